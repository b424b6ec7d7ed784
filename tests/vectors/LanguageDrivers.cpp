// Drivers of the tables language_*.

#include <algorithm>
#include <set>
#include <string>

#include "main/core/BiDiPseudoOption.h"
#include "main/core/LanguageCatalogue.h"
#include "tests/vectors/VectorDriver.h"
#include "velcoredata/core/LanguageCode.h"
#include "velcoredata/core/LanguageUtils.h"

namespace {

using LanguageUtils::detail::LanguageCatalogue;
using velcoredata::vectors::Row;

TString TextOf(Row const & row, char const * column)
{
    return TString::fromStdString(row.Cell(column));
}

void ExpectText(Row & row, char const * column, TString const & actual)
{
    row.Expect(column, row.Cell(column), actual.toStdString());
}

struct BiDiPseudoScope
{
    explicit BiDiPseudoScope(bool use) { CoreData::detail::SetUseBiDiPseudo(use); }
    ~BiDiPseudoScope() { CoreData::detail::SetUseBiDiPseudo(false); }
};

LanguageCatalogue const & Catalogue(bool withPseudoLocales)
{
    static LanguageCatalogue const s_plain(LanguageUtils::detail::DesktopLanguages(), false);
    static LanguageCatalogue const s_pseudo(LanguageUtils::detail::DesktopLanguages(), true);
    return withPseudoLocales ? s_pseudo : s_plain;
}

TString SpecialRow(TString const & key)
{
    for (LanguageUtils::detail::CodeRow const & row : LanguageUtils::detail::SpecialLocales()) {
        if (key == row.key)
            return row.fullCode;
    }
    return TString();
}

TString Joined(std::vector<TString> const & texts)
{
    TString all;
    for (TString const & text : texts)
        all += (all.isEmpty() ? TString() : TString(u",")) + text;
    return all;
}

// Where more than one answer is allowed, one of those; else the expected one.
void ExpectClosest(Row & row, TString const & actual)
{
    if (row.Bool("determined")) {
        ExpectText(row, "expected", actual);
        return;
    }
    std::string const all = '|' + row.Cell("all_admissible") + '|';
    bool const allowed = all.find('|' + actual.toStdString() + '|') != all.npos;
    row.Expect("all_admissible", row.Cell("all_admissible"),
               allowed ? row.Cell("all_admissible") : actual.toStdString());
}

}  // namespace

VECTOR_DRIVER("language_tables")
{
    std::string const & table = row.Cell("table");
    TString const key = TextOf(row, "key");
    auto const truth = [](bool value) { return TString(value ? u"true" : u"false"); };
    if (table == "supported_closest")
        ExpectText(row, "expected", LanguageUtils::GetClosestSupportedLanguageCode(key));
    else if (table == "IsLanguageCodeSupported")
        ExpectText(row, "expected", truth(LanguageUtils::IsLanguageCodeSupported(key)));
    else if (table == "IsLocaleSupported")
        ExpectText(row, "expected", truth(LanguageUtils::IsLocaleSupported(key)));
    else if (table == "UsesImperial_country")
        ExpectText(row, "expected", truth(LanguageUtils::UsesImperialDistanceUnits(key)));
    else if (table == "special_raw")
        ExpectText(row, "expected", SpecialRow(key));
    else if (table == "map_code") {
        auto const & codes = LanguageUtils::GetMapCodeLocales();
        auto const found = codes.find(key);
        ExpectText(row, "expected",
                   TString::number(static_cast<int>(found == codes.end() ? MapCodeUS : found->second)));
    } else if (table == "script")
        ExpectText(row, "expected", TString::number(static_cast<int>(LanguageUtils::GetLanguageScript(key))));
    else if (table == "menu_label_with_pseudo")
        ExpectText(row, "expected", Catalogue(true).GetMenuLabel(key));
    else if (table == "menu_label_without_pseudo")
        ExpectText(row, "expected", Catalogue(false).GetMenuLabel(key));
    else if (table == "GetAvailableDesktopLanguages_ui")
        ExpectText(row, "expected", Joined(Catalogue(false).GetDesktopLanguages(LanguageUtils::GetISOString(key))));
    else if (table == "GetMapCodeString")
        ExpectText(row, "expected", LanguageUtils::GetMapCodeString(static_cast<MapCode>(key.toInt())));
    else if (table == "GetISOString")
        ExpectText(row, "expected", LanguageUtils::GetISOString(key));
    else if (table == "GetLanguageName")
        ExpectText(row, "expected", LanguageUtils::GetLanguageName(key));
    else
        row.Fail("no such table");
}

VECTOR_DRIVER("language_strip")
{
    TString const input = TextOf(row, "input");
    std::string const & fn = row.Cell("fn");
    if (fn == "RemoveScriptFromLanguageCode")
        ExpectText(row, "expected", LanguageUtils::RemoveScriptFromLanguageCode(input));
    else if (fn == "RemoveMarketStringFromLanguageCode")
        ExpectText(row, "expected", LanguageUtils::RemoveMarketStringFromLanguageCode(input));
    else
        row.Fail("no such function");
}

VECTOR_DRIVER("language_closest")
{
    ExpectClosest(row, LanguageUtils::GetClosestSupportedLanguageCode(TextOf(row, "code")));
}

VECTOR_DRIVER("language_special")
{
    ExpectClosest(row, LanguageUtils::GetClosestSpecialLocaleCode(TextOf(row, "code")));
}

VECTOR_DRIVER("language_setcode")
{
    BiDiPseudoScope const scope(row.Bool("bidi"));
    LanguageCode const code(TextOf(row, "text"));
    ExpectText(row, "market", code.GetMarketString());
    ExpectText(row, "short", code.GetShortLanguageCode());
    row.ExpectUInt("lcid", code.GetLCID());
    // The published name of an LCID comes before ICU's.
    TString const published = TextOf(row, "iso_alternative");
    if (published.isEmpty()) {
        ExpectText(row, "iso", code.GetISOString());
        ExpectText(row, "full", code.GetFullString());
        ExpectText(row, "web", code.GetWebLanguageCode());
        return;
    }
    TString web = published.toLower();
    web.replace(u'_', u'-');
    row.Expect("iso_alternative", published.toStdString(), code.GetISOString().toStdString());
    row.Expect("full", (published + u'-' + code.GetMarketString()).toStdString(), code.GetFullString().toStdString());
    row.Expect("web", web.toStdString(), code.GetWebLanguageCode().toStdString());
}

VECTOR_DRIVER("language_lcid")
{
    auto const lcid = static_cast<LCID>(row.UInt("lcid"));
    static std::set<LCID> const published = {1028, 3076, 5124, 4100, 66567};
    if (row.Cell("certainty") == "icu72" && published.count(lcid) != 0) {
        row.Skip("the published name of the LCID (zh-TW, de-DE_phoneb) comes before ICU's");
        return;
    }
    LanguageCode const code(lcid);
    ExpectText(row, "iso", code.GetISOString());
    ExpectText(row, "market", code.GetMarketString());
    row.ExpectUInt("lcid_kept", code.GetLCID());
    row.ExpectUInt("langid", code.GetLangID());
    ExpectText(row, "locale_str", LanguageUtils::GetLocaleStr(lcid));
}
