// The defining steps between calendar days and day numbers, in floating point as they were first written down
// (astronomical rule: J. Meeus, "Astronomical Algorithms", chapter 7). `date` answers like these on every input; its
// integer road is checked against them day by day.
#pragma once

#include <cmath>
#include <cstdint>

#include "velcoredata/data/Date.h"
#include "velsys/Arithmetic.h"

namespace detail::calendarsteps {

inline std::int32_t DayNumber(std::int32_t year, std::int8_t month, std::int8_t day) noexcept
{
    std::int32_t y = year;
    if (year < 0)
        y = WrapAdd(y, 1);  // there is no year 0
    int m = month;
    if (month < 3) {
        y = WrapSub(y, 1);
        m += 12;
    }
    std::int32_t const a = y / 100;
    std::int32_t sum = day + 2 + a / 4 - a;
    sum = WrapAdd(sum, RealToInt32(std::floor(30.6001 * (m + 1))));
    sum = WrapAdd(sum, RealToInt32(std::floor(365.25 * WrapAdd(y, 4716))));
    return RealToInt32(sum - 1524.5);
}

// Below day 1830692 alpha is negative. It is shifted as an unsigned number, so b becomes a huge unsigned number and the
// year comes out beyond eight million.
inline CivilDay Civil(std::int32_t dayNumber) noexcept
{
    auto const truncate = [](double value) { return static_cast<std::uint32_t>(RealToInt64(value)); };
    std::int32_t const z = WrapAdd(dayNumber, 1);
    std::uint32_t const alpha = truncate((z - 1867216.25) / 36524.25);
    std::uint32_t const b = static_cast<std::uint32_t>(z) + 1525 + alpha - (alpha >> 2);
    std::uint32_t const c = truncate((b - 122.1) / 365.25);
    std::uint32_t const d = truncate(365.25 * c);
    std::uint32_t const e = truncate((b - d) / 30.6001);
    std::uint32_t const day = b - d - truncate(30.6001 * e);
    std::uint32_t const month = e - 1 > 12 ? e - 13 : e - 1;
    std::uint32_t const year = c - 4715 - (month > 2 ? 1 : 0);
    return {static_cast<std::int32_t>(year), static_cast<std::int32_t>(month), static_cast<std::int32_t>(day)};
}

// Day of the week, 1 = Monday to 7 = Sunday.
inline std::int32_t IsoDayOfWeek(std::int32_t dayNumber) noexcept
{
    return WrapAdd(dayNumber, 1) % 7 + 1;
}

// Monday of the week that holds 4 January of the year: the first day of ISO week 1.
inline std::int32_t IsoYearStart(std::int32_t isoYear) noexcept
{
    std::int32_t const j = DayNumber(isoYear, 1, 4);
    return WrapSub(j, WrapAdd(j, 1) % 7);
}

inline IsoWeek Iso(std::int32_t dayNumber) noexcept
{
    std::int32_t const year = Civil(dayNumber).year;
    std::int32_t const d = IsoDayOfWeek(dayNumber);
    auto const weekCountedFrom = [&](std::int32_t y) {
        std::int32_t const n = WrapAdd(WrapSub(dayNumber, DayNumber(y, 1, 1)), 1);
        return WrapAdd(WrapSub(n, d), 10) / 7;
    };
    std::int32_t const week = weekCountedFrom(year);
    if (week == 0)
        return {WrapSub(year, 1), weekCountedFrom(WrapSub(year, 1))};
    if (week == 53 && IsoYearStart(WrapAdd(year, 1)) <= dayNumber)
        return {WrapAdd(year, 1), 1};
    return {year, week};
}

}  // namespace detail::calendarsteps
