#pragma once

#include <cstdint>

/// Aggregations of dates, each a part of a date (`AGG_`, a "bin": month of year is 1 to 12) or the start of a period
/// (`TRUNC_`). An AggType numbers every aggregation of the platform; this library knows the range 14 to 41 and hands
/// all other numbers through untouched. The numbers are stored by callers and never change.
///
/// The three uncommon aggregations (23, 24, 25) are listed by GregorianDateOptions; their meaning belongs to the layers
/// above.
enum AggType : std::int32_t
{
    AGG_YEAR = 14,
    AGG_QUARTER = 15,
    AGG_MONTH = 16,
    AGG_DAY = 17,
    AGG_HOUR = 18,
    AGG_MINUTE = 19,
    AGG_SECOND = 20,
    AGG_WEEK = 21,
    AGG_WEEKDAY = 22,
    AGG_UNCOMMON_23 = 23,
    AGG_UNCOMMON_24 = 24,
    AGG_UNCOMMON_25 = 25,
    AGG_ISO_YEAR = 26,
    AGG_ISO_QUARTER = 27,
    AGG_ISO_WEEK = 28,
    AGG_ISO_WEEKDAY = 29,
    TRUNC_YEAR = 30,
    TRUNC_QUARTER = 31,
    TRUNC_MONTH = 32,
    TRUNC_WEEK = 33,
    TRUNC_DAY = 34,
    TRUNC_HOUR = 35,
    TRUNC_MINUTE = 36,
    TRUNC_SECOND = 37,
    TRUNC_ISO_YEAR = 38,
    TRUNC_ISO_QUARTER = 39,
    TRUNC_ISO_WEEK = 40,
    TRUNC_ISO_DAY = 41,
};
