#include "velnls/VariantDate.h"

#include <chrono>
#include <cmath>

#include "DateStyles.h"
#include "velnls/LocaleInfo.h"
#include "velnls/VariantTime.h"

namespace {

using VelNLS::detail::DateParts;
using VelNLS::detail::DateStyles;

bool AreFlags(std::uint32_t flags)
{
    return (flags & ~LOCALE_NOUSEROVERRIDE) < (VAR_TIMEVALUEONLY | VAR_DATEVALUEONLY);
}

// Days since 1899-12-30, the fraction without a sign.
double OleDateOf(DateParts const & parts)
{
    using namespace std::chrono;
    sys_days const day = year{parts.year} / parts.month / parts.day;
    auto const days = (day - sys_days{year{1899} / 12 / 30}).count();
    double const time = (parts.hour * 3600 + parts.minute * 60 + parts.second) / 86400.0;
    return days < 0 ? static_cast<double>(days) - time : static_cast<double>(days) + time;
}

}  // namespace

HRESULT VarBstrFromDate(double date, LCID lcid, std::uint32_t flags, std::u16string & out)
{
    SYSTEMTIME time{};
    if (!AreFlags(flags) || !VariantTimeToSystemTime(date, time))
        return E_INVALIDARG;
    std::shared_ptr<DateStyles const> const styles = VelNLS::detail::GetDateStyles(lcid);
    if (styles == nullptr)
        return E_INVALIDARG;

    DateParts parts{time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, true, true};
    if ((flags & VAR_DATEVALUEONLY) != 0)
        parts.hasTime = false;
    else if ((flags & VAR_TIMEVALUEONLY) != 0 || (parts.year == 1899 && parts.month == 12 && parts.day == 30))
        parts.hasDate = false;
    else
        parts.hasTime = parts.hour != 0 || parts.minute != 0 || parts.second != 0;
    out = styles->Print(parts);
    return S_OK;
}

HRESULT VarDateFromStr(std::u16string_view text, LCID lcid, std::uint32_t flags, double & out)
{
    if (!AreFlags(flags))
        return E_INVALIDARG;
    std::shared_ptr<DateStyles const> const styles = VelNLS::detail::GetDateStyles(lcid);
    if (styles == nullptr)
        return E_INVALIDARG;
    std::optional<VelNLS::detail::DateText> const read = VelNLS::detail::ReadDateText(text);
    if (!read)
        return DISP_E_TYPEMISMATCH;
    std::optional<DateParts> parts = styles->Read(*read);
    if (!parts)
        return DISP_E_TYPEMISMATCH;
    bool const dateOnly = (flags & VAR_DATEVALUEONLY) != 0;
    bool const timeOnly = (flags & VAR_TIMEVALUEONLY) != 0;
    if ((dateOnly && !parts->hasDate) || (timeOnly && !parts->hasTime))
        return DISP_E_TYPEMISMATCH;
    if (parts->hasDate && parts->year < 100)
        return DISP_E_OVERFLOW;
    if (timeOnly || !parts->hasDate)
        parts->year = 1899, parts->month = 12, parts->day = 30;
    if (dateOnly)
        parts->hour = parts->minute = parts->second = 0;
    out = OleDateOf(*parts);
    return S_OK;
}
