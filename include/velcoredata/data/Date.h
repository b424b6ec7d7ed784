#pragma once

#include <cstdint>

#include "velcoredata/core/Export.h"

namespace detail {

/// A day of the calendar: month 1 to 12, day 1 to 31. Years count astronomically (there is a year 0).
struct CivilDay
{
    std::int32_t year;
    std::int32_t month;
    std::int32_t day;
};

/// A week of the ISO 8601 calendar: week 1 to 53 of the ISO year, which may differ from the calendar year by one.
struct IsoWeek
{
    std::int32_t year;
    std::int32_t week;
};

}  // namespace detail

/// A day of the proleptic Gregorian calendar as a day number: the integer part of the Julian Date of that day's
/// midnight. 1899-12-30 is 2415018, 1970-01-01 is 2440587, 9999-12-31 is 5373483.
///
/// Two roads lead from a day number to a calendar day and back. The defining one is a handful of floating-point steps
/// (main/data/CalendarSteps.h); it is a plain calendar from day 1830692 (0300-03-02) up, and below that day it answers
/// years beyond eight million, which callers see and rely on. Between `FirstIntegerDay` and `LastIntegerDay` an integer
/// method gives the same answers at a fraction of the cost and inline (C. Neri, L. Schneider, "Euclidean affine
/// functions and their application to calendar algorithms", 2022). The functions here choose between the two.
///
/// A plain value; all functions are pure and may be called from any thread.
class date
{
public:
    /// First and last day number that take the integer road: 0300-03-02 and 11715-05-06.
    static constexpr std::int32_t FirstIntegerDay = 1830692;
    static constexpr std::int32_t LastIntegerDay = 6000000;

    constexpr explicit date(std::int32_t dayNumber) noexcept : m_dayNumber(dayNumber) {}

    /// The day number of a calendar day. Nothing is checked: a day outside its month counts on from the month's first
    /// day, a month above 12 is put into the same formula, and a negative year is counted without a year 0.
    /// gregoriandate(1970, 1, 1) is 2440587; gregoriandate(2015, 2, 29) equals gregoriandate(2015, 3, 1).
    static date gregoriandate(std::int32_t year, std::int8_t month, std::int8_t day) noexcept
    {
        if (static_cast<std::uint32_t>(year) - 1u >= 32767u || static_cast<std::uint32_t>(month) - 1u >= 12u)
            return date(DayNumberBySteps(year, month, day));
        std::uint32_t const isJanOrFeb = month <= 2;
        std::uint32_t const y = static_cast<std::uint32_t>(year) - isJanOrFeb;
        std::uint32_t const m = static_cast<std::uint32_t>(month) + (isJanOrFeb ? 12u : 0u);
        std::uint32_t const century = y / 100;
        std::uint32_t const daysBeforeYear = 1461 * y / 4 - century + century / 4;
        std::uint32_t const daysBeforeMonth = (979 * m - 2919) / 32;
        return date(static_cast<std::int32_t>(daysBeforeYear + daysBeforeMonth) + day + (c_firstMarchOfYear0 - 1));
    }

    constexpr std::int32_t GetDayNumber() const noexcept { return m_dayNumber; }

    /// Year, month and day. date(2415018) is 1899-12-30; date(1757584) reads as a day of the year 8819334.
    detail::CivilDay GetCivilDay() const noexcept
    {
        if (!IsWithin(m_dayNumber, FirstIntegerDay, LastIntegerDay))
            return CivilDayBySteps(m_dayNumber);
        MarchYear const y = SplitMarchYear(m_dayNumber);
        std::uint32_t const n = 2141 * y.dayOfYear + 197913;
        std::uint32_t const month = n >> 16;
        bool const isJanOrFeb = y.dayOfYear >= c_firstJanuary;
        return {static_cast<std::int32_t>(y.century * 100 + y.yearOfCentury + isJanOrFeb),
                static_cast<std::int32_t>(isJanOrFeb ? month - 12 : month),
                static_cast<std::int32_t>((n & 0xFFFF) / 2141 + 1)};
    }

    /// ISO 8601 year and week. 2016-01-03 is in week 53 of 2015, 2018-12-31 in week 1 of 2019.
    detail::IsoWeek GetIsoWeek() const noexcept
    {
        // The days before and after the nearest Thursday take the integer road too.
        if (!IsWithin(m_dayNumber, FirstIntegerDay + 366, LastIntegerDay - 366))
            return IsoWeekBySteps(m_dayNumber);
        std::int32_t const thursday = m_dayNumber - (m_dayNumber + 1) % 7 + 3;
        MarchYear const y = SplitMarchYear(thursday);
        bool const isJanOrFeb = y.dayOfYear >= c_firstJanuary;
        std::uint32_t const isLeap = ((y.yearOfCentury != 0 ? y.yearOfCentury : y.century) & 3) == 0;
        std::uint32_t const dayOfYear = isJanOrFeb ? y.dayOfYear - c_firstJanuary : y.dayOfYear + 59 + isLeap;
        return {static_cast<std::int32_t>(y.century * 100 + y.yearOfCentury + isJanOrFeb),
                static_cast<std::int32_t>(dayOfYear / 7 + 1)};
    }

private:
    // A year that starts on 1 March; the day counts from 0.
    struct MarchYear
    {
        std::uint32_t century;
        std::uint32_t yearOfCentury;
        std::uint32_t dayOfYear;
    };

    static constexpr std::int32_t c_firstMarchOfYear0 = 1721119;  // day number of 0000-03-01
    static constexpr std::uint32_t c_firstJanuary = 306;          // day of 1 January in a March year

    static constexpr bool IsWithin(std::int32_t value, std::int32_t first, std::int32_t last) noexcept
    {
        return static_cast<std::uint32_t>(value) - static_cast<std::uint32_t>(first) <=
               static_cast<std::uint32_t>(last - first);
    }

    static MarchYear SplitMarchYear(std::int32_t dayNumber) noexcept
    {
        std::uint32_t const n1 = 4 * static_cast<std::uint32_t>(dayNumber - c_firstMarchOfYear0) + 3;
        std::uint32_t const century = n1 / 146097;
        std::uint32_t const n2 = n1 % 146097 | 3;
        std::uint64_t const p2 = std::uint64_t{2939745} * n2;
        return {century, static_cast<std::uint32_t>(p2 >> 32), static_cast<std::uint32_t>(p2) / 2939745 / 4};
    }

    VELCOREDATA_API static std::int32_t DayNumberBySteps(std::int32_t year, std::int8_t month,
                                                         std::int8_t day) noexcept;
    VELCOREDATA_API static detail::CivilDay CivilDayBySteps(std::int32_t dayNumber) noexcept;
    VELCOREDATA_API static detail::IsoWeek IsoWeekBySteps(std::int32_t dayNumber) noexcept;

    std::int32_t m_dayNumber;
};
