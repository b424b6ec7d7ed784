#include "main/string/CalendarCache.h"
#include "main/string/PatternGeneratorCache.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/string/ICUUtils.h"
#include "velcoredata/string/TDateTimeFormat.h"
#include "velicu/ICUVersion.h"
#include "velsys/ThrowSite.h"

namespace ICUUtils {

void Initialize()
{
    detail::CalendarCache::Get();
    detail::DateTimePatternGeneratorCache::Get();
}

void Cleanup()
{
    VelICU::t_u_cleanup();
}

double ConvertToTDate(DateTime const & value)
{
    return ConvertToTDate(value, false);
}

double ConvertToTDate(DateTime const & value, bool roundSeconds)
{
    auto const wrapper = detail::CalendarCache::Get().Acquire();
    AutoSynchronize const lock(wrapper->mutex, 0, __FILE__, "ICUUtils::ConvertToTDate", __LINE__);
    int second = value.GetSecond();
    if (roundSeconds && value.GetFraction() > 0.5)
        ++second;
    DateTime::YearMonthDay const date = value.GetYearMonthDay();
    wrapper->calendar->set(date.year, date.month - 1, date.day, value.GetHour(), value.GetMinute(), second);
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    double const tdate = wrapper->calendar->getTime(status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0xE8AC867C);
    return tdate;
}

double CreateTDate(int year, int month, int day, int hour, int minute, int second)
{
    auto const wrapper = detail::CalendarCache::Get().Acquire();
    AutoSynchronize const lock(wrapper->mutex, 0, __FILE__, "ICUUtils::CreateTDate", __LINE__);
    wrapper->calendar->set(year, month, day, hour, minute, second);
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    double const tdate = wrapper->calendar->getTime(status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0x682A2430);
    return tdate;
}

SOWValue GetStartOfWeek()
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    auto const calendar = VelICU::ICUCalendar::createInstance(status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0x7545A35E);
    int const day = calendar->getFirstDayOfWeek(status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0x7E4DB4D2);
    return static_cast<SOWValue>(day);
}

TString FormatDateTimePattern(double const & tdate, TDateTimeFormat const & format)
{
    return format.format(tdate);
}

}  // namespace ICUUtils
