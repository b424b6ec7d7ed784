#include "velcoredata/data/Date.h"

#include "main/data/CalendarSteps.h"

std::int32_t date::DayNumberBySteps(std::int32_t year, std::int8_t month, std::int8_t day) noexcept
{
    return detail::calendarsteps::DayNumber(year, month, day);
}

detail::CivilDay date::CivilDayBySteps(std::int32_t dayNumber) noexcept
{
    return detail::calendarsteps::Civil(dayNumber);
}

detail::IsoWeek date::IsoWeekBySteps(std::int32_t dayNumber) noexcept
{
    return detail::calendarsteps::Iso(dayNumber);
}
