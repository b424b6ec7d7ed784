#pragma once

#include <iosfwd>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DateTime.h"

/// A closed range of two date-times, or the empty range. start <= end always holds.
///
/// A plain structure: read the fields, make new ranges by the constructor.
struct VELCOREDATA_API DateTimeRange
{
    bool isEmpty;
    DateTime start;
    DateTime end;

    /// The empty range; both ends are 1899-12-30.
    constexpr DateTimeRange() noexcept : isEmpty(true) {}

    /// The range from start to end, both included; the two may be equal. Logic assertion
    /// LogicException_LogicAssert_0xD65C6EA9 ("Range DateTimes are out of order") if start > end.
    DateTimeRange(DateTime rangeStart, DateTime rangeEnd);

    static DateTimeRange const EMPTY_RANGE;

    /// What both ranges hold; EMPTY_RANGE if that is nothing. Ranges that touch share one instant. An empty range
    /// takes part as the instant 1899-12-30 00:00:00, so it can meet a range that holds this instant.
    DateTimeRange Intersect(DateTimeRange const & other) const;
};

constexpr bool operator==(DateTimeRange const & a, DateTimeRange const & b) noexcept
{
    return a.isEmpty == b.isEmpty && a.start == b.start && a.end == b.end;
}

constexpr bool operator!=(DateTimeRange const & a, DateTimeRange const & b) noexcept
{
    return !(a == b);
}

/// Prints both ends, for logs and tests.
VELCOREDATA_API std::ostream & operator<<(std::ostream & stream, DateTimeRange const & range);
