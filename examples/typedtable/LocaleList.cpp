#include "typedtable/LocaleList.h"

#include <cstdio>
#include <exception>
#include <ostream>

#include "typedtable/TextTable.h"
#include "typedtable/UserError.h"
#include "velcoredata/core/ReStringParser.h"
#include "velcoredata/core/TLocale.h"

namespace typedtable {

namespace {

constexpr LCID kEnglish = 0x409;

RefCntPtr<ReStringParser> Compile(std::string const & pattern)
{
    try {
        return RefCntPtr<ReStringParser>(
            new ReStringParser(TString::fromStdString(pattern).GetString(), false, RegExParserXpressive));
    } catch (std::exception const &) {
        throw UserError("--list-locales: \"" + pattern + "\" is not a regular expression");
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
    auto const locales = TLocale::GetCommonlySupportedLocalesForWindowsAndICU(kEnglish);

    TextTable table;
    for (char const * const title : {"lcid", "locale", "name", "short date"})
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
    out << matching << " of " << locales.size() << " locales\n";
}

}  // namespace typedtable
