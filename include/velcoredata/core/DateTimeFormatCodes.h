#pragma once

#include <cstdint>

/// A format that each locale has its own pattern for, by number, 0 to 23:
///
///     4, 14, 19              short date
///     9                      long date
///     20, 21, 22             time with seconds
///     23                     time without seconds
///     all others up to 18    short date, one blank, time with seconds
///
/// The search for the format of a text asks for them in the order of their numbers; several mean the same pattern.
enum class DateTimeFormatCodes : std::int32_t
{
    First = 0,
    Last = 23,
};
