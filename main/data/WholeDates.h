// Dates without a clock, and clocks cut to whole units, within a range of years in which nothing needs to be checked.
// Outside it the constructor of DateTime from parts decides, which is what these functions stand in for.
#pragma once

#include "velcoredata/data/DateEnums.h"
#include "velcoredata/data/DateTime.h"

#include <cstdint>

namespace detail {

constexpr int firstUncheckedYear = 400;  // the first that DateTime accepts
constexpr int lastUncheckedYear = 9999;
constexpr unsigned long long firstUncheckedTick = 1867157 * DateTime::s_scaling;   // 0400-01-01
constexpr unsigned long long endOfUncheckedTicks = 5373484 * DateTime::s_scaling;  // 10000-01-01

// DateTime(year, month, 1, 0, 0, 0, 0.0).
inline DateTime FirstOfMonth(int year, int month)
{
    if (year < firstUncheckedYear || year > lastUncheckedYear || month < 1 || month > 12)
        return DateTime(year, month, 1, 0, 0, 0, 0.0);
    date const day = date::gregoriandate(year, static_cast<std::int8_t>(month), 1);
    return DateTime::FromValue(static_cast<unsigned long long>(day.GetDayNumber()) * DateTime::s_scaling);
}

// DateTime(year, month, day, 0, 0, 0, 0.0) of the parts of the value, hour, minute and second put in down to the unit.
inline DateTime CutTo(DateTime const & value, DatePeriodType unit)
{
    unsigned long long const ticks = value.GetRepresentation();
    if (ticks < firstUncheckedTick || ticks >= endOfUncheckedTicks) {
        DateTime::YearMonthDay const d = value.GetYearMonthDay();
        int const hour = unit >= DatePeriodType::Hour ? value.GetHour() : 0;
        int const minute = unit >= DatePeriodType::Minute ? value.GetMinute() : 0;
        int const second = unit >= DatePeriodType::Second ? value.GetSecond() : 0;
        return DateTime(d.year, d.month, d.day, hour, minute, second, 0.0);
    }
    switch (unit) {
    case DatePeriodType::Hour: return DateTime::FromValue(ticks - ticks % 36000000);
    case DatePeriodType::Minute: return DateTime::FromValue(ticks - ticks % 600000);
    case DatePeriodType::Second: return DateTime::FromValue(ticks - ticks % 10000);
    default: return DateTime::FromValue(ticks - ticks % DateTime::s_scaling);
    }
}

}  // namespace detail
