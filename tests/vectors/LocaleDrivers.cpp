// Drivers of the tables of locales.

#include <string>

#include "main/core/LocaleDatePattern.h"
#include "main/utility/DatePicture.h"
#include "main/utility/WinApiLocaleInfoProvider.h"
#include "tests/vectors/VectorDriver.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/ResourceRegistrationCache.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/Time.h"

namespace {

using velcoredata::vectors::Row;

TString TextOf(Row const & row, char const * column)
{
    return TString::fromStdU16String(row.Text(column));
}

// "7,5,9,0": hour, minute, second, microsecond.
Time TimeOf(TString const & parts)
{
    std::vector<TString> const part = parts.split(u",");
    return Time(part.at(0).toUInt(), part.at(1).toUInt(), part.at(2).toUInt(), part.at(3).toUInt());
}

LCID Lcid(Row const & row)
{
    return static_cast<LCID>(row.UInt("a1"));
}

}  // namespace

VECTOR_DRIVER("locale_misc")
{
    std::string const & function = row.Cell("fn");
    if (function == "GetLocaleStr")
        row.ExpectText("expected", LanguageUtils::GetLocaleStr(Lcid(row)).View());
    else if (function == "GetPrimaryLanguage")
        row.ExpectInt("expected", TLocale::GetPrimaryLanguage(Lcid(row)));
    else if (function == "GetDateOrder")
        row.ExpectInt("expected", TLocale::GetDateOrder(Lcid(row)));
    else if (function == "GetCurrencyDecimalPlaces")
        row.ExpectInt("expected", TLocale::GetCurrencyDecimalPlaces(Lcid(row)));
    else if (function == "GetMinimalDaysInFirstWeek")
        row.ExpectInt("expected", TLocale::GetMinimalDaysInFirstWeek(Lcid(row)));
    else if (function == "negative_of_INEGCURR")
        row.ExpectInt("expected", static_cast<int>(detail::NegativeOfCurrencyLayout(static_cast<int>(row.Int("a1")))));
    else if (function == "negative_of_INEGNUMBER")
        row.ExpectInt("expected", static_cast<int>(detail::NegativeOfNumberLayout(static_cast<int>(row.Int("a1")))));
    else if (function == "format_code_spec") {
        LanguageCode const language(u"de_DE");
        auto const spec = static_cast<ICUUtils::DefaultDateTimeFormatSpec>(row.Int("expected"));
        row.Expect("expected", TLocale::GetLocaleFormatAsICU(spec, language.GetLCID()).toStdString(),
                   detail::GetFormatString(static_cast<DateTimeFormatCodes>(row.Int("a1")), language).toStdString());
    } else if (function == "Format_Time")
        row.ExpectText("expected", TimeOf(TextOf(row, "a1")).Format().View());
    else if (function == "GetCorrectedLangCode")
        row.ExpectText("expected", GetCorrectedLangCode(TextOf(row, "a1")).View());
    else
        row.Fail("no such function");
}

VECTOR_DRIVER("numfmt_patterns")
{
    TString const picture = TextOf(row, "windows");
    row.ExpectText("icu", detail::PictureToIcu(picture).View());
    row.ExpectText("custom", detail::PictureToCustom(picture).View());
    row.ExpectText("qt", detail::PictureToQt(picture).View());
}
