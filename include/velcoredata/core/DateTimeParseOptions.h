#pragma once

#include <cstdint>

/// Which fields of a date-time count when text is read or printed. Bit 1 is the date, bit 2 the time of day.
enum DateTimeParseOptions : std::int32_t
{
    ParseDateOnly = 1,     ///< year, month, day
    ParseTimeOnly = 2,     ///< hour, minute, second, millisecond
    ParseDateAndTime = 3,  ///< both
};
