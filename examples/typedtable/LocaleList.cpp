#include "typedtable/LocaleList.h"

#include <cstdio>
#include <exception>
#include <ostream>

#include "typedtable/TextTable.h"
#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "velcoredata/core/ReStringParser.h"
#include "velcoredata/core/TLocale.h"

namespace typedtable {

namespace {

RefCntPtr<ReStringParser> Compile(std::string const & pattern)
{
    try {
        return RefCntPtr<ReStringParser>(
            new ReStringParser(TString::fromStdString(pattern).GetString(), false, RegExParserXpressive));
    } catch (std::exception const &) {
        throw UserError(Text("--list-locales: \"%1\" is not a regular expression", pattern));
    }
}

std::string Hexadecimal(int lcid)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%04X", static_cast<unsigned>(lcid));
    return text;
}

}  // namespace

void PrintLocales(std::ostream & out, LocalesRequest const & request)
{
    RefCntPtr<ReStringParser> const pattern = Compile(request.pattern);
    auto const locales = TLocale::GetCommonlySupportedLocalesForWindowsAndICU(LanguageScope::GetLcid());

    TextTable table;
    for (std::string const & title : {Text("lcid"), Text("locale"), Text("name"), Text("short date")})
        table.AddColumn(title, TextTable::Align::Left);
    std::size_t matching = 0;
    for (TLocale::LocaleInfo const & locale : locales) {
        if (!request.pattern.empty() && !pattern->search(locale.name.GetString()) &&
            !pattern->search(locale.displayName.GetString()))
            continue;
        ++matching;
        TString const date = TLocale::GetLocaleFormatAsWindows(ICUUtils::SpecShortDate, static_cast<LCID>(locale.lcid));
        table.AddRow({Hexadecimal(locale.lcid), locale.name.toStdString(), locale.displayName.toStdString(),
                      date.toStdString()});
    }
    table.Print(out);
    out << Text("%1 of %2 locales", matching, locales.size()) << '\n';
}

}  // namespace typedtable
