#pragma once

#include "tests/support/DatePrinter.h"
#include "velcoredata/data/DateEnums.h"
#include "velcoredata/data/DateTime.h"

#include <random>

namespace test_support {

inline DateTime D(int year, int month, int day, int hour = 0, int minute = 0, int second = 0, double fraction = 0.0)
{
    return DateTime(year, month, day, hour, minute, second, fraction);
}

constexpr int numberOfPeriodTypes = 11;

inline DatePeriodType PeriodType(int number)
{
    return static_cast<DatePeriodType>(number);
}

inline SOWValue StartOfWeek(int number)
{
    return static_cast<SOWValue>(number);
}

inline FYSValues FiscalStart(int number)
{
    return static_cast<FYSValues>(number);
}

// Any date-time of a range of representations.
inline DateTime RandomDateTime(std::mt19937_64 & random, DateTime const & first, DateTime const & last)
{
    return DateTime::FromValue(
        std::uniform_int_distribution<unsigned long long>(first.GetRepresentation(), last.GetRepresentation())(random));
}

}  // namespace test_support
