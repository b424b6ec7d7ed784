// The clock, the calendar structure and the time zone of the operating system, under their Windows names.
//
// All functions may be called from any thread. The current time zone is the C library's (the variable TZ, else the
// system's), read when the process first asks for it.
#pragma once

#include <cstdint>
#include <ctime>

#include "velcoreplatform/Export.h"

// A date and time of day in parts. wDayOfWeek is written as 0 = Sunday to 6 = Saturday and never read.
struct SYSTEMTIME
{
    std::uint16_t wYear;
    std::uint16_t wMonth;  // 1 to 12
    std::uint16_t wDayOfWeek;
    std::uint16_t wDay;  // 1 to 31
    std::uint16_t wHour;
    std::uint16_t wMinute;
    std::uint16_t wSecond;
    std::uint16_t wMilliseconds;
};

// A count of 100 nanoseconds since 1601-01-01 UTC, in two halves.
struct FILETIME
{
    std::uint32_t dwLowDateTime;
    std::uint32_t dwHighDateTime;
};

VELCOREPLATFORM_API void GetLocalTime(SYSTEMTIME & out);
VELCOREPLATFORM_API void GetSystemTime(SYSTEMTIME & out);

// These three return false and leave `out` alone unless the argument is a day of the years 1601 to 30827 and a time of
// day below 24:00:00.000.

VELCOREPLATFORM_API bool SystemTimeToFileTime(SYSTEMTIME const & time, FILETIME & out);
// UTC to the current zone.
VELCOREPLATFORM_API bool SystemTimeToTzSpecificLocalTime(SYSTEMTIME const & utc, SYSTEMTIME & out);
// The current zone to UTC. A local time that the zone skips is read with the offset in force before the gap; of the two
// readings of a repeated one the later is taken.
VELCOREPLATFORM_API bool TzSpecificLocalTimeToSystemTime(SYSTEMTIME const & local, SYSTEMTIME & out);

// The parts of a count of seconds since 1970 in UTC and in the current zone, as the C runtime's _gmtime64 and
// _localtime64 give them. They return false and leave `out` alone for a negative count and for one past
// 3000-12-31 23:59:59 UTC (32535215999).
VELCOREPLATFORM_API bool GmTime64(long long seconds, std::tm & out);
VELCOREPLATFORM_API bool LocalTime64(long long seconds, std::tm & out);
