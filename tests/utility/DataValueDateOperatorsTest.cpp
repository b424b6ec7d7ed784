#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/QuietLogger.h"
#include "tests/support/ValueSamples.h"
#include "velcoredata/utility/DataValueOperators.h"

namespace {

using namespace test_support;
using Operators = DataValueOperators;

constexpr char const * kOneType = "DataValueOperatorException_AutoGen_0x5EA10C36";
constexpr char const * kTwoTypes = "DataValueOperatorException_AutoGen_0x5EA10C37";
constexpr char const * kInvalidDate = "VeltriaException_AutoGen_0xDD90F63D";

void ExpectSame(DataValue const & actual, DataValue const & expected)
{
    EXPECT_TRUE(SameFields(actual, expected))
        << testing::PrintToString(actual) << ", not " << testing::PrintToString(expected);
}

TEST(DataValueDateOperators, AddKeepsADateForWholeDaysAlone)
{
    Operators o;
    DataValue const date = DateOf(2020, 1, 31);
    DataValue const noon = DatetimeOf(2020, 1, 31, 12, 0, 0);
    ExpectSame(o.Add(date, 3), DateOf(2020, 2, 3));
    ExpectSame(o.Add(3, date), DateOf(2020, 2, 3));
    ExpectSame(o.Add(date, -31), DateOf(2019, 12, 31));
    ExpectSame(o.Add(date, 0.5), noon);
    ExpectSame(o.Add(0.5, date), noon);
    ExpectSame(o.Add(date, 1.0), DatetimeOf(2020, 2, 1, 0, 0, 0));
    ExpectSame(o.Add(noon, 1), DatetimeOf(2020, 2, 1, 12, 0, 0));
    ExpectSame(o.Add(noon, -0.5), DatetimeOf(2020, 1, 31, 0, 0, 0));
    ExpectSame(o.Add(Null(DataType::Integer), date), date);
    ExpectSame(o.Add(Null(DataType::Date), 1), DateOf(1899, 12, 31));  // 1899-12-30 and a day
}

TEST(DataValueDateOperators, TheCountOfDaysIsCutTo32Bits)
{
    Operators o;
    ExpectSame(o.Add(DateOf(2020, 1, 31), (1LL << 32) + 3), DateOf(2020, 2, 3));
    ExpectSame(o.Add(DateOf(2020, 1, 31), 1LL << 31), Null(DataType::Date));  // out of the calendar
}

TEST(DataValueDateOperators, WhatLeavesTheCalendarBecomesNull)
{
    QuietLogger const quiet;
    Operators o;
    ExpectSame(o.Add(DateOf(9999, 12, 31), 1), Null(DataType::Date));
    ExpectSame(o.Add(DateOf(2020, 1, 1), 1e7), Null(DataType::DateTime));
    ExpectSame(o.Add(DateOf(2020, 1, 1), -1e7), Null(DataType::DateTime));
    EXPECT_THAT([&] { o.Add(DateOf(400, 1, 1), -1); }, ThrowsError(kInvalidDate, "Invalid datetime value"));
}

// The conversion of a span leaves nothing of a count that does not fit 64 bits.
TEST(DataValueDateOperators, RealDaysBeyondTheRangeOfSpansCountAsNone)
{
    Operators o;
    DataValue const midnight = DatetimeOf(2020, 1, 1, 0, 0, 0);
    for (double const days : {1e300, -1e300, std::numeric_limits<double>::infinity()})
        ExpectSame(o.Add(DateOf(2020, 1, 1), days), midnight);
}

TEST(DataValueDateOperators, OtherPairsDoNotAdd)
{
    Operators o;
    DataValue const date = DateOf(2020, 1, 1);
    DataValue const noon = DatetimeOf(2020, 1, 1, 12, 0, 0);
    EXPECT_THAT([&] { o.Add(date, date); }, ThrowsError(kTwoTypes, "type exception"));
    EXPECT_THAT([&] { o.Add(date, noon); }, ThrowsError(kTwoTypes, "type exception"));
    EXPECT_THAT([&] { o.Add(date, true); }, ThrowsError(kTwoTypes, "type exception"));
    EXPECT_THAT([&] { o.Add(true, date); }, ThrowsError(kTwoTypes, "type exception"));
    EXPECT_THAT([&] { o.Add(date, DataValue()); }, ThrowsError(kTwoTypes, "type exception"));
    EXPECT_THAT([&] { o.Multiply(date, 2); }, ThrowsError(kTwoTypes, "type exception"));
    EXPECT_THAT([&] { o.Divide(date, date); }, ThrowsError(kOneType, "type exception"));
}

TEST(DataValueDateOperators, SubtractCountsDays)
{
    Operators o;
    DataValue const date = DateOf(2020, 1, 31);
    DataValue const noon = DatetimeOf(2020, 1, 31, 12, 0, 0);
    ExpectSame(o.Subtract(date, DateOf(2020, 1, 1)), 30);
    ExpectSame(o.Subtract(DateOf(2020, 1, 1), date), -30);
    ExpectSame(o.Subtract(noon, DatetimeOf(2020, 1, 30, 0, 0, 0)), 1.5);
    ExpectSame(o.Subtract(date, noon), -0.5);
    ExpectSame(o.Subtract(noon, date), 0.5);
    ExpectSame(o.Subtract(noon, 1.5), DatetimeOf(2020, 1, 30, 0, 0, 0));
    ExpectSame(o.Subtract(date, 30), DateOf(2020, 1, 1));
    ExpectSame(o.Subtract(date, 0.5), DatetimeOf(2020, 1, 30, 12, 0, 0));
    EXPECT_THAT([&] { o.Subtract(1, date); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.Subtract(date, true); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.Subtract(true, 1); }, ThrowsError(kTwoTypes, "type exception"));
}

TEST(DataValueDateOperators, MarkersWithSqlNulls)
{
    Operators o;
    o.SetSQLNullSemantics(true);
    DataValue const date = DateOf(2020, 1, 1);
    DataValue const noon = DatetimeOf(2020, 1, 1, 12, 0, 0);
    auto const all = [](DataType type) { return DataValue(DataValueTypes::All, type); };
    ExpectSame(o.Add(Null(DataType::Date), 1), Null(DataType::Date));
    ExpectSame(o.Add(date, Null(DataType::Real)), Null(DataType::Date));
    ExpectSame(o.Add(all(DataType::Integer), Null(DataType::DateTime)), Null(DataType::DateTime));  // swapped first
    ExpectSame(o.Add(Null(DataType::String), date), Null(DataType::String));
    ExpectSame(o.Subtract(Null(DataType::Date), date), Null(DataType::Integer));
    ExpectSame(o.Subtract(date, all(DataType::Date)), all(DataType::Integer));
    ExpectSame(o.Subtract(Null(DataType::DateTime), noon), Null(DataType::Real));
    ExpectSame(o.Subtract(Null(DataType::Date), noon), Null(DataType::Real));
    ExpectSame(o.Subtract(all(DataType::Date), Null(DataType::Date)), all(DataType::Integer));
    ExpectSame(o.Subtract(5, Null(DataType::Date)), Null(DataType::Date));  // Negate keeps the marker
}

TEST(DataValueDateOperators, PartsOfDatesAndDatetimes)
{
    Operators const o;
    for (DataValue const & value : {DateOf(2021, 3, 2), DatetimeOf(2021, 3, 2, 13, 14, 15, 0.9)}) {
        ExpectSame(o.DateAsYear(value), 2021);
        ExpectSame(o.DateAsQuarter(value), 1);
        ExpectSame(o.DateAsMonth(value), 3);
        ExpectSame(o.DateAsWeek(value), 10);
        ExpectSame(o.DateAsDay(value), 2);
        ExpectSame(o.DateAsDayOfYear(value), 61);
        ExpectSame(o.DateAsDayOfWeek(value), 3);
        ExpectSame(o.DateAsISOYear(value), 2021);
        ExpectSame(o.DateAsISOQuarter(value), 1);
        ExpectSame(o.DateAsISOWeek(value), 9);
        ExpectSame(o.DateAsISODayOfWeek(value), 2);
        ExpectSame(o.DateAsMonthYear(value), 32021);
        ExpectSame(o.DateAsMonthDayYear(value), 3022021);
    }
    DataValue const clock = DatetimeOf(2021, 3, 2, 13, 14, 15, 0.9);
    ExpectSame(o.DateTimeAsHour(clock), 13);
    ExpectSame(o.DateTimeAsMinute(clock), 14);
    ExpectSame(o.DateTimeAsSecond(clock), 15);
    ExpectSame(o.DateTimeAsHour(DateOf(2021, 3, 2)), 0);
}

TEST(DataValueDateOperators, PartsOfANullDateAreThoseOfTheDefaultDatetime)
{
    Operators sql;
    sql.SetSQLNullSemantics(true);
    ExpectSame(sql.DateAsYear(Null(DataType::Date)), 1899);
    ExpectSame(sql.DateAsMonthDayYear(Null(DataType::DateTime)), 12301899);
    ExpectSame(sql.DateTimeAsHour(Null(DataType::DateTime)), 0);
}

TEST(DataValueDateOperators, PartsOfOtherTypesRaise)
{
    Operators const o;
    DataValue const time(Time(1ull), DataType::Time);
    EXPECT_THAT([&] { o.DateAsYear(2021); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.DateAsMonthYear(time); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.DateTimeAsHour(time); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.DateTimeAsSecond(DataValue()); }, ThrowsError(kOneType, "type exception"));
}

}  // namespace
