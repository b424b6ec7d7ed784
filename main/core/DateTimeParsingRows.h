// The whole table of fixed patterns, the four rows without an identifier included.
#pragma once

#include <span>

#include "velcoredata/core/Export.h"

namespace detail {

struct DateTimeParsingRow
{
    char16_t const * formatString;  // tried on a text
    char16_t const * pattern;       // the same, with the letter of the time zone for a quoted Z
    bool tryAll;                    // takes part in the search

    constexpr DateTimeParsingRow(char16_t const * formatString_, bool tryAll_)
        : DateTimeParsingRow(formatString_, formatString_, tryAll_)
    {}
    constexpr DateTimeParsingRow(char16_t const * formatString_, char16_t const * pattern_, bool tryAll_)
        : formatString(formatString_), pattern(pattern_), tryAll(tryAll_)
    {}
};

// 74 rows in the order in which they are tried.
VELCOREDATA_API std::span<DateTimeParsingRow const> DateTimeParsingRows() noexcept;

}  // namespace detail
