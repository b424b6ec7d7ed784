#include "velcoredata/data/DateTimeRange.h"

#include <algorithm>
#include <ostream>

#include "velsys/ThrowSite.h"

constinit DateTimeRange const DateTimeRange::EMPTY_RANGE;

DateTimeRange::DateTimeRange(DateTime rangeStart, DateTime rangeEnd) : isEmpty(false), start(rangeStart), end(rangeEnd)
{
    VELTRIA_ASSERT_TEXT(start <= end, "Range DateTimes are out of order", 0xD65C6EA9);
}

DateTimeRange DateTimeRange::Intersect(DateTimeRange const & other) const
{
    if (end < other.start || other.end < start)
        return EMPTY_RANGE;
    return DateTimeRange(std::max(start, other.start), std::min(end, other.end));
}

std::ostream & operator<<(std::ostream & stream, DateTimeRange const & range)
{
    return stream << (range.isEmpty ? "empty " : "") << '[' << range.start << ", " << range.end << ']';
}
