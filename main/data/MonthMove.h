// The move of a date by months, by its defining steps and by a shorter road that is checked against them.
#pragma once

#include "velcoredata/data/DateTime.h"
#include "velsys/Arithmetic.h"

#include <cstdint>

namespace detail {

// Defining steps. The day is put into the target month as it stands, also where the month has no such day: the day
// number then runs on into the next month, and going back day by day finds the end of the target month. Months are
// compared by number alone, which is enough: December, the one target whose next month has a lower number, has 31 days.
inline DateTime MoveMonthsBySteps(DateTime const & value, std::int32_t months)
{
    DateTime::YearMonthDay const from = value.GetYearMonthDay();
    std::int32_t year = from.year;
    if (months > 12 || months < -12) {
        std::int32_t const years = months / 12;
        year = WrapAdd(year, years);
        months -= 12 * years;
    }
    std::int32_t month = WrapAdd(from.month, months);
    if (month >= 13) {
        year = WrapAdd(year, 1);
        month -= 12;
    } else if (month < 1) {
        year = WrapSub(year, 1);
        month += 12;
    }
    date const day = date::gregoriandate(year, static_cast<std::int8_t>(month), static_cast<std::int8_t>(from.day));
    DateTime result = DateTime::FromValue(
        WrapMul(static_cast<unsigned long long>(static_cast<long long>(day.GetDayNumber())), DateTime::s_scaling));
    result.SetTime(value.GetHour(), value.GetMinute(), value.GetSecond(), value.GetFraction());
    while (result.GetMonth() > month)
        result -= DateTimeSpan::Days(1);
    return result;
}

// The same within the range of the integer calendar, with the day clamped by the length of the month.
inline DateTime MoveMonths(DateTime const & value, std::int32_t months)
{
    constexpr std::uint32_t firstDay = date::FirstIntegerDay;
    constexpr std::uint32_t lastDay = date::LastIntegerDay;
    unsigned long long const dayNumber = value.GetRepresentation() / DateTime::s_scaling;
    constexpr std::int32_t monthLimit = 12 * 100000;  // keeps the sum below in 32 bits
    if (dayNumber - firstDay > lastDay - firstDay || months > monthLimit || months < -monthLimit)
        return MoveMonthsBySteps(value, months);
    CivilDay const from = date(static_cast<std::int32_t>(dayNumber)).GetCivilDay();
    std::int32_t const count = from.year * 12 + (from.month - 1) + months;
    if (count < 400 * 12 || count >= 11000 * 12)
        return MoveMonthsBySteps(value, months);
    std::uint32_t const year = static_cast<std::uint32_t>(count) / 12;
    std::uint32_t const month = static_cast<std::uint32_t>(count) % 12 + 1;
    std::int32_t day = from.day;
    if (day > 28) {
        bool const isLeap = year % (year % 100 == 0 ? 400 : 4) == 0;
        std::int32_t const last =
            month == 2 ? (isLeap ? 29 : 28) : static_cast<std::int32_t>(30 + ((month ^ month >> 3) & 1));
        day = day < last ? day : last;
    }
    date const to = date::gregoriandate(static_cast<std::int32_t>(year), static_cast<std::int8_t>(month),
                                        static_cast<std::int8_t>(day));
    unsigned long long const ticks = value.GetRepresentation() - dayNumber * DateTime::s_scaling;
    return DateTime::FromValue(static_cast<unsigned long long>(to.GetDayNumber()) * DateTime::s_scaling + ticks);
}

}  // namespace detail
