#pragma once

#include <cstdint>

/// The enumerations of the calendar. All are signed 32-bit numbers with fixed values. None is range-checked anywhere in
/// the library: setters store what they get, and a number outside the list feeds the modular arithmetic as it is.

/// The calendar a computation runs in.
enum class CalendarType : std::int32_t
{
    Gregorian = 0,
    ISO8601 = 1,  ///< ISO 8601 week calendar: years of 52 or 53 whole weeks, Monday first
};

/// First day of the week, numbered as DateTime::GetDayOfWeek.
enum SOWValue : std::int32_t
{
    SOW_NONE = 0,  ///< DatePeriodDifference counts whole blocks of seven days instead of week boundaries
    SOW_SUNDAY = 1,
    SOW_MONDAY = 2,
    SOW_TUESDAY = 3,
    SOW_WEDNESDAY = 4,
    SOW_THURSDAY = 5,
    SOW_FRIDAY = 6,
    SOW_SATURDAY = 7,
};

/// Fiscal year start: the calendar month in which the fiscal year begins. A fiscal year is named for the calendar year
/// in which it ends; with FYS_JANUARY it is the calendar year.
enum FYSValues : std::int32_t
{
    FYS_JANUARY = 1,
    FYS_FEBRUARY = 2,
    FYS_MARCH = 3,
    FYS_APRIL = 4,
    FYS_MAY = 5,
    FYS_JUNE = 6,
    FYS_JULY = 7,
    FYS_AUGUST = 8,
    FYS_SEPTEMBER = 9,
    FYS_OCTOBER = 10,
    FYS_NOVEMBER = 11,
    FYS_DECEMBER = 12,
};

/// The month as a number: FYS_APRIL == 4.
constexpr bool operator==(FYSValues fiscalYearStart, int month) noexcept
{
    return static_cast<int>(fiscalYearStart) == month;
}
constexpr bool operator!=(FYSValues fiscalYearStart, int month) noexcept
{
    return static_cast<int>(fiscalYearStart) != month;
}

/// Which week is week 1. The Gregorian date options answer FirstWeekUnset, though their week 1 holds January 1; the ISO
/// 8601 options answer FirstWeekFourDays; a locale answers any of the other three.
enum FirstWeekBehaviour : std::int32_t
{
    FirstWeekUnset = 0,
    FirstWeekContainsJanFirst = 1,  ///< the week that holds January 1, however short
    FirstWeekFourDays = 2,          ///< the first week with four days or more in the year
    FirstWeekFullWeek = 3,          ///< the first week with all seven days in the year
};

/// What a hierarchy of aggregations is for.
enum class DateDataType : std::int32_t
{
    Date = 0,
    DateTime = 1,  ///< date and time of day
};

/// How an aggregation maps a date.
enum class DateComputationKind : std::int32_t
{
    Bin = 0,    ///< onto the number of a date part, such as the month of the year
    Trunc = 1,  ///< onto the start of the period that holds it
};

/// Periods of date arithmetic.
enum class DatePeriodType : std::int32_t
{
    Year = 0,     ///< fiscal where the options say so
    Quarter = 1,  ///< fiscal where the options say so
    Month = 2,
    Week = 3,
    Day = 4,
    Hour = 5,
    Minute = 6,
    Second = 7,
    ISOYear = 8,
    ISOQuarter = 9,  ///< 13 weeks; the fourth has 14 in a year of 53 weeks
    ISOWeek = 10,
};
