#include "main/core/NativeDateText.h"

#include "velcoredata/data/DateTime.h"
#include "velnls/VariantDate.h"
#include "velnls/VariantTime.h"

namespace {

constexpr int FIRST_YEAR = 400;  // of DateTime::SetDateTime

}  // namespace

bool detail::FormatNativeDate(DateTime const & value, LCID lcid, DateTimeParseOptions options, TString & out)
{
    std::uint32_t const flags = options == ParseDateOnly   ? VAR_DATEVALUEONLY
                                : options == ParseTimeOnly ? VAR_TIMEVALUEONLY
                                                           : 0;
    std::u16string text;
    if (VarBstrFromDate(DateTime::OleDateFromFixedPrecision(value.GetRepresentation(), true), lcid, flags, text) < 0)
        return false;
    out = TString::fromStdU16String(text);
    return true;
}

bool detail::ParseNativeDate(char16_t const * text, LCID lcid, DateTimeParseOptions options, DateTime & out)
{
    std::uint32_t const flags = options == ParseDateAndTime ? 0
                                : options == ParseDateOnly  ? VAR_DATEVALUEONLY
                                                            : VAR_TIMEVALUEONLY;
    double date = 0.0;
    SYSTEMTIME parts{};
    if (VarDateFromStr(text == nullptr ? u"" : text, lcid, flags, date) < 0 || !VariantTimeToSystemTime(date, parts) ||
        parts.wYear < FIRST_YEAR)
        return false;
    out = DateTime::FromValue(DateTime::OleDateToFixedPrecision(date));
    return true;
}
