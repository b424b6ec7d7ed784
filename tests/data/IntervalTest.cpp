#include "velcoredata/data/Interval.h"

#include <limits>
#include <sstream>
#include <type_traits>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {
constexpr long long c_lowest = std::numeric_limits<long long>::min();
constexpr long long c_highest = std::numeric_limits<long long>::max();
constexpr double c_nan = std::numeric_limits<double>::quiet_NaN();
}  // namespace

static_assert(sizeof(Interval) == 8 && std::is_trivially_copyable_v<Interval>);

TEST(Interval, PartsAddUpWithTheirSigns)
{
    struct Case
    {
        int days;
        long long hours, minutes, seconds;
        double fraction;
        long long micros;
    };
    Case const cases[] = {
        {-1, 2, 0, 0, 0.0, -22 * 3600000000ll},
        {1, -24, 0, 0, 0.0, 0},
        {0, 0, 1, -60, 0.0, 0},
        {0, 0, 0, 1, -0.25, 750000},
        {0, 0, 0, 0, 0.0000005, 1},
        {0, 0, 0, 0, -0.0000005, -1},
        {2147483647, 0, 0, 0, 0.0, 1075146363704483840},
    };
    for (Case const & c : cases) {
        EXPECT_EQ(Interval(c.days, c.hours, c.minutes, c.seconds, c.fraction).GetRepresentation(), c.micros);
        Interval interval(7);
        interval.SetDateTimeSpan(c.days, c.hours, c.minutes, c.seconds, c.fraction);
        EXPECT_EQ(interval.GetRepresentation(), c.micros);
    }
    EXPECT_EQ(Interval(-1, 2, 0, 0, 0.0).GetTotalHours(), -22);
    static_cast<void>(Interval(std::numeric_limits<int>::min(), c_lowest, c_highest, c_lowest, -1e300));
    static_cast<void>(Interval(0, 0, 0, 0, c_nan));
}

TEST(Interval, PartsTakeTheSignOfTheInterval)
{
    Interval const interval(-((((24 + 2) * 60 + 3) * 60 + 4) * 1000000ll + 500000));
    EXPECT_EQ(interval.GetDays(), -1);
    EXPECT_EQ(interval.GetTotalDays(), -1);
    EXPECT_EQ(interval.GetHours(), -2);
    EXPECT_EQ(interval.GetMinutes(), -3);
    EXPECT_EQ(interval.GetSeconds(), -4);
    EXPECT_EQ(interval.GetMicroseconds(), -500000);
    EXPECT_EQ(interval.GetFraction(), -0.5);
    EXPECT_EQ(interval.GetTotalHours(), -26);
    EXPECT_EQ(interval.GetTotalMinutes(), -1563);
    EXPECT_EQ(interval.GetTotalSeconds(), -93784);
    EXPECT_EQ(interval.GetTimePart(), -7384500000);
    EXPECT_EQ(Interval(c_lowest).GetDays(), -106751991);
}

TEST(Interval, AnIntervalBecomesATimeByMovingFromMidnight)
{
    EXPECT_EQ(static_cast<Time>(Interval(-1000000)), Time(23, 59, 59, 0u));
    EXPECT_EQ(static_cast<Time>(Interval(3, 0, 0, 1, 0.0)), Time(0, 0, 1, 0u));
    EXPECT_EQ(Interval(1000000) + Time(12, 0, 0, 0u), Time(12, 0, 1, 0u));
}

TEST(Interval, ProductsTruncateAndQuotientsAddAHalf)
{
    EXPECT_EQ((Interval(5) * 0.5).GetRepresentation(), 2);
    EXPECT_EQ((Interval(-5) * 0.5).GetRepresentation(), -2);
    EXPECT_EQ((Interval(5) / 2.0).GetRepresentation(), 3);
    EXPECT_EQ((Interval(-5) / 2.0).GetRepresentation(), -2);
    EXPECT_EQ((Interval(1) / 0.0).GetRepresentation(), c_lowest);
    EXPECT_EQ((Interval(1) * c_nan).GetRepresentation(), c_lowest);
    EXPECT_EQ((Interval(c_highest) * 2.0).GetRepresentation(), c_lowest);
    EXPECT_EQ(Interval(10) / Interval(-3), -3);
}

TEST(IntervalDeathTest, ARatioWithoutAResultEndsTheProcess)
{
    EXPECT_DEATH(static_cast<void>(Interval(1) / Interval(0)), "");
    EXPECT_DEATH(static_cast<void>(Interval(c_lowest) / Interval(-1)), "");
}

TEST(Interval, SumsWrap)
{
    EXPECT_EQ((Interval(c_highest) + Interval(1)).GetRepresentation(), c_lowest);
    EXPECT_EQ((Interval(c_lowest) - Interval(1)).GetRepresentation(), c_highest);
    EXPECT_EQ((-Interval(c_lowest)).GetRepresentation(), c_lowest);
    Interval interval;
    interval = 5;
    interval += Interval(2);
    EXPECT_EQ(interval, Interval(7));
    interval -= Interval(10);
    EXPECT_EQ(interval, Interval(-3));
}

TEST(Interval, ATimeIsSubtractedDownToTheLowestIntervalButOne)
{
    EXPECT_EQ((Interval(5) - Time(7ull)).GetRepresentation(), -2);
    EXPECT_EQ((Interval(c_lowest + 1) - Time(0ull)).GetRepresentation(), c_lowest + 1);
    EXPECT_EQ((Interval(c_lowest + 8) - Time(7ull)).GetRepresentation(), c_lowest + 1);
    struct Case
    {
        long long interval;
        unsigned long long time;
    };
    for (Case const & c : {Case{c_lowest, 0}, Case{c_lowest + 7, 7}, Case{c_lowest + 100, 86399999999}})
        EXPECT_THAT([&] { Interval(c.interval) - Time(c.time); },
                    ThrowsError("VeltriaException_AutoGen_0x9370C2A6", "Output out of range for Interval Type"));
}

TEST(Interval, ComparisonIsSigned)
{
    Interval const low(-1);
    Interval const high(1);
    EXPECT_TRUE(low < high && low <= high && high > low && high >= low && low != high && low == low);
    EXPECT_FALSE(low > high || low >= high || high < low || high <= low || low == high || low != low);
    EXPECT_EQ(low.Compare(high), -1);
    EXPECT_EQ(low.Compare(low), 0);
    EXPECT_EQ(high.Compare(low), 1);
}

TEST(Interval, AFractionIsRoundedWhenAMicrosecondCannotHoldIt)
{
    EXPECT_TRUE(Interval::IsFractionRounded(0.1234567));
    EXPECT_FALSE(Interval::IsFractionRounded(0.5));
    EXPECT_FALSE(Interval::IsFractionRounded(c_nan));
    for (double fraction : {1.0, -1e-9, std::numeric_limits<double>::infinity()})
        EXPECT_THAT([&] { Interval::IsFractionRounded(fraction); },
                    ThrowsError("VeltriaException_AutoGen_0x40C02767", "Invalid datetime value"));
}

TEST(Interval, AStreamGetsTheMicroseconds)
{
    std::ostringstream stream;
    stream << Interval(-5);
    EXPECT_EQ(stream.str(), "-5us");
}
