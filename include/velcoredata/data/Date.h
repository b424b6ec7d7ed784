#pragma once

#include <array>
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

/// By month (as an unsigned byte): floor(30.6001 x (m + 1)) of the defining steps, where January and February are the
/// months 13 and 14 of the year before, and the constants of those steps added.
inline constexpr auto DaysBeforeMonth = [] {
    std::array<std::int32_t, 256> days{};
    for (int month = -128; month < 128; ++month) {
        int const m = month < 3 ? month + 12 : month;
        double const product = 30.6001 * (m + 1);
        auto floor = static_cast<std::int32_t>(product);
        if (floor > product)
            --floor;
        days[static_cast<std::uint8_t>(month)] = floor + 1720996;
    }
    return days;
}();

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
        if (static_cast<std::uint32_t>(year) - 1u >= 32767u) [[unlikely]]
            return date(DayNumberBySteps(year, month, day));
        std::uint32_t const y = static_cast<std::uint32_t>(year) - (month < 3);
        std::uint32_t const century = y / 100;
        std::uint32_t const daysBeforeYear = 1461 * y / 4 - century + century / 4;
        return date(static_cast<std::int32_t>(daysBeforeYear) +
                    detail::DaysBeforeMonth[static_cast<std::uint8_t>(month)] + day);
    }

    constexpr std::int32_t GetDayNumber() const noexcept { return m_dayNumber; }

    /// Year, month and day. date(2415018) is 1899-12-30; date(1757584) reads as a day of the year 8819334.
    detail::CivilDay GetCivilDay() const noexcept
    {
        if (!IsWithin(m_dayNumber, FirstIntegerDay, LastIntegerDay)) [[unlikely]]
            return CivilDayBySteps(m_dayNumber);
        YearSplit const y = SplitFrom(m_dayNumber, c_firstMarchOfYear0);
        std::uint32_t const n = 2141 * y.dayOfYear + 197913;
        std::uint32_t const month = n >> 16;
        bool const isJanOrFeb = y.dayOfYear >= c_january;
        return {static_cast<std::int32_t>(y.century * 100 + y.yearOfCentury + isJanOrFeb),
                static_cast<std::int32_t>(isJanOrFeb ? month - 12 : month),
                static_cast<std::int32_t>((n & 0xFFFF) / 2141 + 1)};
    }

    /// The year of GetCivilDay, at less cost.
    std::int32_t GetYear() const noexcept
    {
        if (!IsWithin(m_dayNumber, FirstIntegerDay, LastIntegerDay)) [[unlikely]]
            return CivilDayBySteps(m_dayNumber).year;
        YearSplit const y = SplitFrom(m_dayNumber, c_firstJanuaryOfYear1);
        return static_cast<std::int32_t>(y.century * 100 + y.yearOfCentury + 1);
    }

    /// ISO 8601 year and week. 2016-01-03 is in week 53 of 2015, 2018-12-31 in week 1 of 2019.
    detail::IsoWeek GetIsoWeek() const noexcept
    {
        // Three days of room for the Thursday on either side.
        if (!IsWithin(m_dayNumber, FirstIntegerDay + 3, LastIntegerDay - 3)) [[unlikely]]
            return IsoWeekBySteps(m_dayNumber);
        // The ISO year is the year of the week's Thursday, and the week counts the Thursdays of that year.
        auto const daysSinceMonday = static_cast<std::int32_t>(static_cast<std::uint32_t>(m_dayNumber + 1) % 7);
        YearSplit const y = SplitFrom(m_dayNumber - daysSinceMonday + 3, c_firstJanuaryOfYear1);
        return {static_cast<std::int32_t>(y.century * 100 + y.yearOfCentury + 1),
                static_cast<std::int32_t>(y.dayOfYear / 7 + 1)};
    }

private:
    // Counts of whole centuries, years and days since an epoch from which every fourth year is one day longer at its
    // end (but not every hundredth, but every four-hundredth). 1 March of the year 0 is such a day, and so is 1 January
    // of the year 1.
    struct YearSplit
    {
        std::uint32_t century;
        std::uint32_t yearOfCentury;
        std::uint32_t dayOfYear;
    };

    static constexpr std::int32_t c_firstMarchOfYear0 = 1721119;
    static constexpr std::int32_t c_firstJanuaryOfYear1 = 1721425;
    static constexpr std::uint32_t c_january = 306;  // day of 1 January in a year that starts on 1 March

    static constexpr bool IsWithin(std::int32_t value, std::int32_t first, std::int32_t last) noexcept
    {
        return static_cast<std::uint32_t>(value) - static_cast<std::uint32_t>(first) <=
               static_cast<std::uint32_t>(last - first);
    }

    static YearSplit SplitFrom(std::int32_t dayNumber, std::int32_t epoch) noexcept
    {
        std::uint32_t const n1 = 4 * static_cast<std::uint32_t>(dayNumber - epoch) + 3;
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
