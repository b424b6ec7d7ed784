// Dates in the manner of a locale: what needs TLocale.

#include "main/string/CalendarCache.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/string/ICUUtils.h"
#include "velcoredata/string/TDateTimeFormat.h"
#include "velicu/ICULocale.h"

namespace ICUUtils {

SOWValue GetFirstDayOfWeek(TLocale const & locale)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    if (locale.getICULocale() == TLocale::GetISODefaultLocale().getICULocale()) {
        auto const wrapper = detail::CalendarCache::Get().Acquire();
        AutoSynchronize const lock(wrapper->mutex, 0, __FILE__, "ICUUtils::GetFirstDayOfWeek", __LINE__);
        return static_cast<SOWValue>(wrapper->calendar->getFirstDayOfWeek(status));
    }
    auto const calendar = VelICU::ICUCalendar::createInstance(locale.getICULocale(), status);
    return calendar == nullptr ? SOW_MONDAY : static_cast<SOWValue>(calendar->getFirstDayOfWeek(status));
}

std::unique_ptr<TDateTimeFormat> GetDateTimeFormatter(TString const & pattern, LCID lcid)
{
    return std::make_unique<TDateTimeFormat>(pattern, TLocale(lcid).getICULocale());
}

std::unique_ptr<TDateTimeFormat> GetBestDateTimeFormatter(TString const & skeleton, LCID lcid)
{
    return GetDateTimeFormatter(GetBestDateTimePattern(skeleton, lcid), lcid);
}

std::unique_ptr<TDateTimeFormat> GetDateTimeDefaultFormatter(DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return GetDateTimeFormatter(TLocale::GetLocaleFormatAsICU(spec, lcid), lcid);
}

TString FormatDateTimePattern(double const & tdate, TString const & pattern, LCID lcid)
{
    std::unique_ptr<TDateTimeFormat> const formatter = GetDateTimeFormatter(pattern, lcid);
    return formatter == nullptr ? pattern : FormatDateTimePattern(tdate, *formatter);
}

TString FormatDateTimePattern(DateTime const & value, TString const & pattern, LCID lcid)
{
    return FormatDateTimePattern(ConvertToTDate(value), pattern, lcid);
}

TString FormatBestDateTimePattern(double const & tdate, TString const & skeleton, LCID lcid)
{
    return FormatDateTimePattern(tdate, GetBestDateTimePattern(skeleton, lcid), lcid);
}

TString FormatBestDateTimePattern(DateTime const & value, TString const & skeleton, LCID lcid)
{
    return FormatDateTimePattern(value, GetBestDateTimePattern(skeleton, lcid), lcid);
}

TString GetLocaleFormatAsICU(DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return TLocale::GetLocaleFormatAsICU(spec, lcid);
}

TString GetLocaleFormatQLocale(DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return TLocale::GetLocaleFormatQLocale(spec, lcid);
}

}  // namespace ICUUtils
