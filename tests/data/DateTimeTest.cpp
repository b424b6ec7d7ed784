#include "velcoredata/data/DateTime.h"

#include <cmath>
#include <limits>
#include <sstream>
#include <type_traits>

#include <gtest/gtest.h>

#include "main/data/DateTimeFixedText.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/RecordingLogger.h"

namespace {

constexpr char c_message[] = "Invalid datetime value";
constexpr double c_nan = std::numeric_limits<double>::quiet_NaN();
constexpr double c_infinity = std::numeric_limits<double>::infinity();

DateTime Date(int year, int month, int day)
{
    return DateTime(year, month, day, 0, 0, 0, 0.0);
}

}  // namespace

static_assert(sizeof(DateTime) == 8 && std::is_trivially_copyable_v<DateTime>);
static_assert(std::is_standard_layout_v<DateTime>);
static_assert(!std::is_constructible_v<DateTime, double>, "an OLE date is made by FromOleDate");
static_assert(sizeof(DateTime::YearMonthDay) == 12);

TEST(DateTime, TheDefaultValueHasNoDateAndNoTime)
{
    DateTime const value;
    EXPECT_EQ(value.GetRepresentation(), DateTime::s_OLEEpoch);
    EXPECT_EQ(value.GetYearMonthDay(), DateTime::YearMonthDay(1899, 12, 30));
    EXPECT_FALSE(value.HasDate());
    EXPECT_FALSE(value.HasTime());
    EXPECT_TRUE(value.IsValid());
    EXPECT_EQ(value.GetDayOfWeek(), 7);
    EXPECT_EQ(value.GetISO8601DayOfWeek(), 6);
}

TEST(DateTime, TheEpochsAreTheDatesThatSetDateTimeMakes)
{
    EXPECT_EQ(DateTime::OLEEpoch, Date(1899, 12, 30));
    EXPECT_EQ(DateTime::BaseDateEpoch, Date(1900, 1, 1));
    EXPECT_EQ(DateTime::UnixEpoch, Date(1970, 1, 1));
    EXPECT_EQ(DateTime::s_baseDateEpoch, DateTime::BaseDateEpoch.GetRepresentation());
    EXPECT_EQ(DateTime::UnixEpoch.GetRepresentation() / DateTime::s_scaling, 2440587u);
    EXPECT_EQ(DateTime::s_accuracy, 1e-05);
}

TEST(DateTime, ARepresentationIsStoredUnchecked)
{
    for (unsigned long long value : {0ull, 1ull, 0x8000000000000000ull, 0xFFFFFFFFFFFFFFFFull}) {
        EXPECT_EQ(DateTime(value).GetRepresentation(), value);
        EXPECT_EQ(DateTime::FromValue(value).GetRepresentation(), value);
    }
}

TEST(DateTime, ADateAndATimeAreSetAndReadBack)
{
    DateTime value;
    EXPECT_TRUE(value.SetDateTime(2021, 3, 4, 5, 6, 7, 0.0089));
    EXPECT_EQ(value.GetYear(), 2021);
    EXPECT_EQ(value.GetMonth(), 3);
    EXPECT_EQ(value.GetDay(), 4);
    EXPECT_EQ(value.GetHour(), 5);
    EXPECT_EQ(value.GetMinute(), 6);
    EXPECT_EQ(value.GetSecond(), 7);
    EXPECT_EQ(value.GetFraction(), 0.0089);
    EXPECT_EQ(value.GetMilliseconds(), 8);
    EXPECT_EQ(value.GetQuarter(), 1);
    EXPECT_TRUE(value.HasDate());
    EXPECT_TRUE(value.HasTime());
}

TEST(DateTime, ClockFieldsAboveTheirRangeAreCarried)
{
    struct Case
    {
        int hour, minute, second;
        double fraction;
        DateTime expected;
    };
    Case const cases[] = {
        {24, 0, 0, 0.0, Date(2000, 3, 1)},
        {23, 60, 0, 0.0, Date(2000, 3, 1)},
        {23, 59, 60, 0.0, Date(2000, 3, 1)},
        {0, 0, 3600, 0.0, DateTime(2000, 2, 29, 1, 0, 0, 0.0)},
        {25, 61, 61, 0.5, DateTime(2000, 3, 1, 2, 2, 1, 0.5)},
        {0, 0, 0, 86400.0, Date(2000, 3, 1)},
        {0, 0, 0, 0.00004, Date(2000, 2, 29)},
        {0, 0, 0, 0.00005, Date(2000, 2, 29) + DateTimeSpan(1)},
    };
    for (Case const & c : cases)
        EXPECT_EQ(DateTime(2000, 2, 29, c.hour, c.minute, c.second, c.fraction), c.expected)
            << c.hour << ':' << c.minute << ':' << c.second << ' ' << c.fraction;
}

TEST(DateTime, ANegativeFractionMakesTheWholeClockCountBack)
{
    EXPECT_EQ(DateTime(2000, 2, 29, 6, 0, 0, -0.5), Date(2000, 2, 29) - DateTimeSpan(216004999));
}

TEST(DateTime, InvalidPartsAreRefusedWithTheValueUnchanged)
{
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    int const cases[][6] = {
        {2000, 2, 30, 0, 0, 0},     {1900, 2, 29, 0, 0, 0},     {399, 12, 31, 0, 0, 0},      {0, 1, 1, 0, 0, 0},
        {-1, 1, 1, 0, 0, 0},        {lowest, 1, 1, 0, 0, 0},    {highest, 1, 1, 0, 0, 0},    {2000, 0, 1, 0, 0, 0},
        {2000, 13, 1, 0, 0, 0},     {2000, 257, 1, 0, 0, 0},    {2000, lowest, 1, 0, 0, 0},  {2000, 1, 0, 0, 0, 0},
        {2000, 1, 32, 0, 0, 0},     {2000, 1, 257, 0, 0, 0},    {2000, 1, highest, 0, 0, 0}, {2000, 1, 1, -1, 0, 0},
        {2000, 1, 1, 0, -1, 0},     {2000, 1, 1, 0, 0, -1},     {2000, 1, 1, -24, 0, 0},     {2000, 1, 1, 24, 0, -1},
        {2000, 1, 1, lowest, 0, 0}, {2000, 1, 1, 0, lowest, 0}, {2000, 1, 1, 0, 0, lowest},
    };
    for (auto const & c : cases) {
        DateTime const before = DateTime::FromValue(123456789);
        DateTime value = before;
        test_support::RecordingLogger log;
        EXPECT_THAT([&] { value.SetDateTime(c[0], c[1], c[2], c[3], c[4], c[5], 0.0); },
                    ThrowsError("VeltriaException_AutoGen_0xDD90F63D", c_message))
            << c[0] << '-' << c[1] << '-' << c[2];
        EXPECT_EQ(value, before);
        EXPECT_EQ(log.GetRecords().size(), 1u);
        EXPECT_THAT([&] { DateTime(c[0], c[1], c[2], c[3], c[4], c[5], 0.0); },
                    ThrowsError("VeltriaException_AutoGen_0xDD90F63D", c_message));
    }
}

TEST(DateTime, AnInvalidDateTimeIsLoggedInOneLineAfterTheCarry)
{
    // The fraction is divided by s_accuracy, which is no exact number: 0.25 prints as 024999.
    struct Case
    {
        int parts[6];
        double fraction;
        char const * line;
    };
    Case const cases[] = {
        {{2000, 2, 30, 1, 2, 3}, 0.0, "DateTime::SetDateTime: invalid datetime #2000-02-30T01:02:03.000000#"},
        {{399, 12, 31, 0, 0, 0}, 0.25, "DateTime::SetDateTime: invalid datetime #0399-12-31T00:00:00.024999#"},
        {{10000, 13, 1, 24, 60, 61}, 0.5, "DateTime::SetDateTime: invalid datetime #10000-13-01T23:59:59.366249999#"},
    };
    for (Case const & c : cases) {
        test_support::RecordingLogger log;
        int const(&p)[6] = c.parts;
        EXPECT_THAT([&] { DateTime(p[0], p[1], p[2], p[3], p[4], p[5], c.fraction); },
                    ThrowsError("VeltriaException_AutoGen_0xDD90F63D"));
        ASSERT_EQ(log.GetRecords().size(), 1u);
        EXPECT_THAT(log.GetRecords()[0].text, testing::HasSubstr(c.line));
    }
}

TEST(DateTime, HugeAndMissingFractionsAreDefined)
{
    // What does not fit 64 bits of ticks becomes the lowest count; nothing is thrown.
    for (double fraction : {c_nan, c_infinity, -c_infinity, 1e300, -1e300, 1e15}) {
        DateTime value;
        EXPECT_TRUE(value.SetDateTime(2000, 1, 1, 0, 0, 0, fraction));
        value.SetTime(1, 2, 3, fraction);
        static_cast<void>(value.GetYearMonthDay());
        static_cast<void>(value.GetFraction());
    }
    EXPECT_EQ(DateTime(2000, 1, 1, 0, 0, 0, c_nan),
              Date(2000, 1, 1) + DateTimeSpan(std::numeric_limits<long long>::min()));
}

TEST(DateTime, TheYears400AndUpCanBeSetWithoutAnUpperLimit)
{
    EXPECT_EQ(Date(400, 1, 1).GetYear(), 400);
    DateTime const late = Date(10000, 1, 1);
    EXPECT_EQ(late.GetYear(), 10000);
    EXPECT_FALSE(late.IsValid());
    EXPECT_EQ(Date(32000, 12, 31).GetYearMonthDay(), DateTime::YearMonthDay(32000, 12, 31));
    EXPECT_EQ(Date(1000000, 2, 29).GetYearMonthDay(), DateTime::YearMonthDay(1000000, 2, 29));
}

TEST(DateTime, SetTimeKeepsTheDateAndReplacesTheClock)
{
    DateTime value(2015, 5, 6, 7, 8, 9, 0.5);
    value.SetTime(10, 11, 12, 0.25);
    EXPECT_EQ(value, DateTime(2015, 5, 6, 10, 11, 12, 0.25));
    value.SetTime(24, 0, 0, 0.0);
    EXPECT_EQ(value, Date(2015, 5, 7));
}

TEST(DateTime, SetTimeWorksInYearsThatSetDateTimeRefuses)
{
    DateTime value = DateTime::FromValue(1830692 * DateTime::s_scaling + 77);
    value.SetTime(1, 0, 0, 0.0);
    EXPECT_EQ(value.GetRepresentation(), 1830692 * DateTime::s_scaling + 36000000);
}

TEST(DateTime, SetTimeRefusesANegativeClockWithTheValueUnchanged)
{
    int const cases[][3] = {{-1, 0, 0}, {0, -1, 0}, {0, 0, -1}, {24, -1, 0}, {std::numeric_limits<int>::min(), 0, 0}};
    for (auto const & c : cases) {
        DateTime const before(2015, 5, 6, 7, 8, 9, 0.5);
        DateTime value = before;
        EXPECT_THAT([&] { value.SetTime(c[0], c[1], c[2], 0.0); },
                    ThrowsError("VeltriaException_AutoGen_0x87C06BF7", c_message));
        EXPECT_EQ(value, before);
    }
}

TEST(DateTime, ValidityEndsAtTheLastWholeSecondOf9999)
{
    struct Case
    {
        unsigned long long value;
        bool isValid;
    };
    Case const cases[] = {
        {DateTime::minGregorianDate, true},
        {DateTime::minGregorianDate - 1, false},
        {DateTime::maxGregorianDate, true},
        {DateTime::maxGregorianDate + 1, false},
        {DateTime::maxGregorianDate + 9999, false},
        {0, false},
        {0xFFFFFFFFFFFFFFFF, false},
    };
    for (Case const & c : cases) {
        DateTime const value = DateTime::FromValue(c.value);
        EXPECT_EQ(value.IsValid(), c.isValid) << c.value;
        if (c.isValid) {
            EXPECT_NO_THROW(value.Validate());
        } else {
            EXPECT_THAT([&] { value.Validate(); }, ThrowsError("VeltriaException_AutoGen_0xE154043D", c_message));
        }
    }
    DateTime const past = DateTime::FromValue(DateTime::maxGregorianDate + 1);
    EXPECT_EQ(past.GetYearMonthDay(), DateTime::YearMonthDay(9999, 12, 31));
    EXPECT_EQ(past.GetSecond(), 59);
    EXPECT_EQ(past.GetFraction(), 0.0001);
}

TEST(DateTime, BelowTheYear300ValidValuesReadOffTheCalendar)
{
    DateTime const value = DateTime::FromValue(DateTime::minGregorianDate);
    EXPECT_TRUE(value.IsValid());
    EXPECT_EQ(value.GetYear(), 8819334);
    EXPECT_TRUE(value.HasDate());
    EXPECT_THAT([&] { value.GetDate(); }, ThrowsError("VeltriaException_AutoGen_0xDD90F63D", c_message));
    EXPECT_EQ(DateTime::FromValue(1830692 * DateTime::s_scaling).GetYearMonthDay(), DateTime::YearMonthDay(300, 3, 2));
}

TEST(DateTime, GetDateCutsTheTime)
{
    EXPECT_EQ(DateTime(2015, 5, 6, 7, 8, 9, 0.5).GetDate(), Date(2015, 5, 6));
    DateTime const early = Date(400, 1, 1) - DateTimeSpan(1);
    EXPECT_THAT([&] { early.GetDate(); }, ThrowsError("VeltriaException_AutoGen_0xDD90F63D", c_message));
}

TEST(DateTime, HasTimeLooksAtEveryPartOfTheClock)
{
    for (int ticks : {1, 9999, 10000, 600000, 36000000})
        EXPECT_TRUE((Date(2015, 1, 1) + DateTimeSpan(ticks)).HasTime()) << ticks;
    EXPECT_FALSE(Date(2015, 1, 1).HasTime());
}

TEST(DateTime, ClockPartsTakeTheSignOfTheCount)
{
    DateTime const beforeZero = DateTime::FromValue(0) - DateTimeSpan(0, 1, 2, 3, 0.5);
    EXPECT_EQ(beforeZero.GetHour(), -1);
    EXPECT_EQ(beforeZero.GetMinute(), -2);
    EXPECT_EQ(beforeZero.GetSecond(), -3);
    EXPECT_EQ(beforeZero.GetFraction(), -0.5);
}

TEST(DateTime, DaysSinceTheEpochsCountDatesOnBothSides)
{
    EXPECT_EQ(DateTime(1899, 12, 29, 23, 59, 59, 0.0).GetDaysSinceOLEEpoch(), -1);
    EXPECT_EQ(DateTime(1899, 12, 31, 23, 59, 59, 0.0).GetDaysSinceOLEEpoch(), 1);
    EXPECT_EQ(Date(1900, 1, 1).GetDaysSinceBaseDateEpoch(), 0);
    EXPECT_EQ(Date(1899, 12, 30).GetDaysSinceBaseDateEpoch(), -2);
}

TEST(DateTime, WeeksOfTheYearStartOnTheGivenDay)
{
    // 2015-01-01 was a Thursday (5).
    EXPECT_EQ(Date(2015, 1, 1).GetWeek(), 1);
    EXPECT_EQ(Date(2015, 1, 3).GetWeek(), 1);
    EXPECT_EQ(Date(2015, 1, 4).GetWeek(), 2);
    EXPECT_EQ(Date(2015, 1, 4).GetWeek(2), 1);
    EXPECT_EQ(Date(2015, 1, 5).GetWeek(2), 2);
    EXPECT_EQ(Date(2000, 12, 31).GetWeek(), 54);
    static_cast<void>(Date(2015, 1, 4).GetWeek(std::numeric_limits<int>::min()));
    static_cast<void>(Date(2015, 1, 4).GetWeek(std::numeric_limits<int>::max()));
}

TEST(DateTime, IsoWeeksOfTheTurnOfTheYear)
{
    struct Case
    {
        DateTime day;
        int year, quarter, week;
    };
    Case const cases[] = {
        {Date(2015, 12, 28), 2015, 4, 53}, {Date(2016, 1, 3), 2015, 4, 53}, {Date(2018, 12, 31), 2019, 1, 1},
        {Date(2016, 1, 4), 2016, 1, 1},    {Date(2012, 1, 1), 2011, 4, 52}, {Date(2014, 3, 31), 2014, 2, 14},
    };
    for (Case const & c : cases) {
        EXPECT_EQ(c.day.GetISO8601Year(), c.year) << c.day;
        EXPECT_EQ(c.day.GetISO8601Quarter(), c.quarter) << c.day;
        EXPECT_EQ(c.day.GetISO8601Week(), c.week) << c.day;
    }
}

TEST(DateTime, IsoDatesAreComposedWithoutChecks)
{
    EXPECT_EQ(DateTime::FromISO8601Date(2015, 53, 1), Date(2015, 12, 28));
    EXPECT_EQ(DateTime::FromISO8601Date(2015, 54, 1), Date(2016, 1, 4));
    EXPECT_EQ(DateTime::FromISO8601Date(2015, 60, 3), Date(2016, 2, 17));
    EXPECT_EQ(DateTime::FromISO8601Date(2015, 0, 0), Date(2014, 12, 21));
    // Week and day are cut to 8 bits.
    EXPECT_EQ(DateTime::FromISO8601Date(2015, 257, 257), DateTime::FromISO8601Date(2015, 1, 1));
    static_cast<void>(DateTime::FromISO8601Date(std::numeric_limits<int>::max(), 1, 1));
}

TEST(DateTime, IsoPeriodsHaveBounds)
{
    EXPECT_EQ(DateTime::ISO8601YearStart(2015), Date(2014, 12, 29));
    EXPECT_EQ(DateTime::ISO8601YearEnd(2015), Date(2016, 1, 3));
    EXPECT_EQ(DateTime::ISO8601QuarterStart(2015, 2), Date(2015, 3, 30));
    EXPECT_EQ(DateTime::ISO8601QuarterEnd(2015, 1), Date(2015, 3, 29));
    EXPECT_EQ(DateTime::ISO8601QuarterEnd(2015, 4), Date(2016, 1, 3));
    EXPECT_EQ(DateTime::ISO8601QuarterEnd(2015, 5), Date(2016, 1, 3));  // anything from 4 up ends with the year
    EXPECT_EQ(DateTime::ISO8601WeekStart(2015, 53), Date(2015, 12, 28));
    EXPECT_EQ(DateTime::ISO8601WeekEnd(2015, 53), Date(2016, 1, 3));
}

TEST(DateTime, IsoQuartersHaveAFirstAndALastWeek)
{
    EXPECT_EQ(DateTime::FirstISO8601Week(2015, 3), 27);
    EXPECT_EQ(DateTime::FirstISO8601Week(-1, -1), 1);
    EXPECT_EQ(DateTime::LastISO8601Week(2015, 3), 39);
    EXPECT_EQ(DateTime::LastISO8601Week(2015, 4), 53);
    EXPECT_EQ(DateTime::LastISO8601Week(2014, -1), 52);
    EXPECT_EQ(DateTime::LastISO8601Week(-1, -1), 53);
    struct
    {
        int (*week)(int, int);
        char const * badYear;
        char const * badQuarter;
    } const cases[] = {
        {&DateTime::FirstISO8601Week, "LogicException_LogicAssert_0x6B1D0A41", "LogicException_LogicAssert_0x6B1D0A42"},
        {&DateTime::LastISO8601Week, "LogicException_LogicAssert_0x6B1D0A43", "LogicException_LogicAssert_0x6B1D0A44"},
    };
    for (auto const & c : cases) {
        EXPECT_THAT([&] { c.week(-2, 1); }, ThrowsAssert("isoYear >= 0", c.badYear));
        for (int quarter : {-2, 0, 5})
            EXPECT_THAT([&] { c.week(2015, quarter); },
                        ThrowsAssert("1 <= isoQuarter && isoQuarter <= 4", c.badQuarter));
    }
}

TEST(DateTime, TheLastIsoWeekOfAnyYearHolds28December)
{
    for (int year = 0; year < 3000; ++year) {
        int const last = DateTime::LastISO8601Week(year, 4);
        ASSERT_TRUE(last == 52 || last == 53) << year;
        if (year >= 400) {
            ASSERT_EQ(last, Date(year, 12, 28).GetISO8601Week()) << year;
        }
    }
}

TEST(DateTime, LastDaysOfMonths)
{
    int const cases[][3] = {
        {1900, 2, 28},  {2000, 2, 29},  {2015, 2, 28},  {-1, 2, 29},   {2001, 1, 31},  {2001, -1, 31}, {2001, 3, 31},
        {2001, 4, 30},  {2001, 5, 31},  {2001, 6, 30},  {2001, 7, 31}, {2001, 8, 31},  {2001, 9, 30},  {2001, 10, 31},
        {2001, 11, 30}, {2001, 12, 31}, {2001, 13, 30}, {2001, 0, 30}, {2001, -2, 30}, {399, 1, 31},   {-5, 4, 30},
    };
    for (auto const & c : cases)
        EXPECT_EQ(DateTime::LastDay(c[0], c[1]), c[2]) << c[0] << '-' << c[1];
    EXPECT_THAT([] { DateTime::LastDay(399, 2); }, ThrowsError("VeltriaException_AutoGen_0xDD90F63D", c_message));
}

TEST(DateTime, OleDatesAreLinearAroundTheEpoch)
{
    EXPECT_EQ(DateTime::FromOleDate(-1.25), DateTime(1899, 12, 28, 18, 0, 0, 0.0));
    EXPECT_EQ(DateTime::FromOleDate(2.5), DateTime(1900, 1, 1, 12, 0, 0, 0.0));
    EXPECT_EQ(DateTime(1899, 12, 28, 18, 0, 0, 0.0).ToOleDate(), -1.25);
    double const halfTick = 0.5 / 864000000.0;
    EXPECT_EQ(DateTime::FromOleDate(halfTick).GetRepresentation(), DateTime::s_OLEEpoch + 1);
    EXPECT_EQ(DateTime::FromOleDate(-halfTick).GetRepresentation(), DateTime::s_OLEEpoch - 1);
    EXPECT_EQ(DateTime::OleDateFromFixedPrecision(DateTime::s_OLEEpoch + 864000000 + 9999, true), 1.0);
    for (double huge : {c_nan, c_infinity, -c_infinity, 1e300, -1e300, 2e10})
        static_cast<void>(DateTime::FromOleDate(huge).ToOleDate());
}

TEST(DateTime, AFractionIsTruncatedWhenATickCannotHoldIt)
{
    EXPECT_TRUE(DateTime::IsFractionTruncated(0.12345));
    EXPECT_FALSE(DateTime::IsFractionTruncated(0.5));
    EXPECT_FALSE(DateTime::IsFractionTruncated(0.0));
    EXPECT_FALSE(DateTime::IsFractionTruncated(c_nan));
    for (double fraction : {1.0, -1e-9, -1.0, 2.0, c_infinity, -c_infinity})
        EXPECT_THAT([&] { DateTime::IsFractionTruncated(fraction); },
                    ThrowsError("VeltriaException_AutoGen_0x47EE95FC", c_message))
            << fraction;
}

TEST(DateTime, ArithmeticCountsTicksAndWraps)
{
    EXPECT_EQ(Date(2020, 1, 31) + DateTimeSpan::Days(30), Date(2020, 3, 1));
    EXPECT_EQ(Date(2020, 3, 1) - DateTimeSpan::Days(30), Date(2020, 1, 31));
    EXPECT_EQ(Date(2020, 3, 1) - Date(2020, 1, 31), DateTimeSpan::Days(30));
    EXPECT_EQ(Date(2020, 1, 31) - Date(2020, 3, 1), DateTimeSpan::Days(-30));
    DateTime value = Date(2020, 1, 1);
    value += DateTimeSpan::Days(1);
    EXPECT_EQ(value, Date(2020, 1, 2));
    value -= DateTimeSpan::Days(2);
    EXPECT_EQ(value, Date(2019, 12, 31));
    EXPECT_EQ((DateTime::FromValue(0) - DateTimeSpan(1)).GetRepresentation(), 0xFFFFFFFFFFFFFFFF);
    EXPECT_EQ((DateTime::FromValue(0xFFFFFFFFFFFFFFFF) + DateTimeSpan(1)).GetRepresentation(), 0u);
}

TEST(DateTime, ComparisonIsOfUnsignedRepresentations)
{
    DateTime const low = DateTime::FromValue(1);
    DateTime const high = DateTime::FromValue(0xFFFFFFFFFFFFFFFF);
    EXPECT_TRUE(low < high && low <= high && high > low && high >= low && low != high && low == low);
    EXPECT_FALSE(low > high || low >= high || high < low || high <= low || low == high || low != low);
}

TEST(DateTime, SwapExchangesValues)
{
    DateTime a = Date(2000, 1, 1);
    DateTime b = Date(2001, 1, 1);
    a.swap(b);
    EXPECT_EQ(a, Date(2001, 1, 1));
    EXPECT_EQ(b, Date(2000, 1, 1));
}

TEST(DateTime, AStreamGetsTheOleDate)
{
    std::ostringstream stream;
    stream << DateTime(1900, 1, 1, 12, 0, 0, 0.0);
    EXPECT_EQ(stream.str(), "2.5");
}

TEST(DateTime, TheFixedTextHasMilliseconds)
{
    struct Case
    {
        DateTime value;
        char const * text;
    };
    Case const cases[] = {
        {DateTime(2021, 3, 4, 5, 6, 7, 0.0089), "2021-03-04T05:06:07.008"},
        {DateTime(), "1899-12-30T00:00:00.000"},
        {DateTime(400, 12, 31, 23, 59, 59, 0.9999), "400-12-31T23:59:59.999"},
        {DateTime::FromValue(DateTime::minGregorianDate), "8819334-09-12T00:00:00.000"},
    };
    for (Case const & c : cases)
        EXPECT_EQ(detail::FormatFixed(c.value).toStdString(), c.text);
}

TEST(DateTime, ReadersOfAnyBitPatternAreDefined)
{
    for (int shift = 0; shift < 64; ++shift)
        for (unsigned long long delta : {0ull, 1ull, 0xFFFFFFFFFFFFFFFFull}) {
            DateTime const value = DateTime::FromValue((1ull << shift) + delta);
            static_cast<void>(value.GetYearMonthDay());
            static_cast<void>(value.GetWeek(3) + value.GetISO8601Quarter() + value.GetDayOfYear());
            static_cast<void>(value.GetDayOfWeek() + value.GetISO8601DayOfWeek() + value.GetDaysSinceBaseDateEpoch());
            static_cast<void>(value.HasDate() || value.HasTime());
            static_cast<void>(detail::FormatFixed(value));
        }
}
