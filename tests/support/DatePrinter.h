// Readable dates in failing tests. Every test file of a program that compares dates includes this, so that all of it
// prints alike.
#pragma once

#include <cstdio>
#include <ostream>

#include "velcoredata/data/DateTime.h"

namespace test_support {

// 2021-03-04 12:34:56.5000 (representation), whatever the representation.
inline void PrintDate(DateTime const & value, std::ostream & out)
{
    DateTime::YearMonthDay const day = value.GetYearMonthDay();
    char text[80];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d.%04d", day.year, day.month, day.day,
                  value.GetHour(), value.GetMinute(), value.GetSecond(),
                  static_cast<int>(value.GetFraction() * 10000.0 + 0.5));
    out << text << " (" << value.GetRepresentation() << ')';
}

}  // namespace test_support

inline void PrintTo(DateTime const & value, std::ostream * out)
{
    test_support::PrintDate(value, *out);
}
