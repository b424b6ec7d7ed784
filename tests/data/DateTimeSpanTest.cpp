#include "velcoredata/data/DateTimeSpan.h"

#include <limits>
#include <sstream>
#include <type_traits>

#include <gtest/gtest.h>

namespace {
constexpr long long c_lowest = std::numeric_limits<long long>::min();
constexpr long long c_highest = std::numeric_limits<long long>::max();
}  // namespace

static_assert(sizeof(DateTimeSpan) == 8 && std::is_trivially_copyable_v<DateTimeSpan>);

TEST(DateTimeSpan, AnyNegativePartMakesTheWholeSpanNegative)
{
    struct Case
    {
        long long days, hours, minutes, seconds;
        double fraction;
        long long ticks;
    };
    Case const cases[] = {
        {0, 1, 0, 0, 0.0, 36000000},   {-1, 2, 0, 0, 0.0, -26 * 36000000ll},
        {0, -1, 2, 0, 0.0, -37200000}, {0, 0, -1, 2, 0.0, -620000},
        {0, 0, 0, -1, 0.5, -15000},    {1, 0, 0, 0, -0.5, -864004999},
        {0, 0, 0, 0, 0.00005, 1},      {0, 0, 0, 0, 0.00004, 0},
        {1, 2, 3, 4, 0.5, 937845000},
    };
    for (Case const & c : cases) {
        EXPECT_EQ(DateTimeSpan(c.days, c.hours, c.minutes, c.seconds, c.fraction).GetRepresentation(), c.ticks);
        DateTimeSpan span(7);
        span.SetDateTimeSpan(c.days, c.hours, c.minutes, c.seconds, c.fraction);
        EXPECT_EQ(span.GetRepresentation(), c.ticks);
    }
    EXPECT_EQ(DateTimeSpan(0, 1, 0, 0, 0.0).GetTotalMinutes(), 60);
    EXPECT_EQ(DateTimeSpan(-1, 2, 0, 0, 0.0).GetTotalHours(), -26);
}

TEST(DateTimeSpan, ExtremePartsWrap)
{
    static_cast<void>(DateTimeSpan(c_lowest, c_lowest, c_highest, c_lowest, 1e300));
    static_cast<void>(DateTimeSpan(c_highest, 0, 0, 0, std::numeric_limits<double>::quiet_NaN()));
    static_cast<void>(DateTimeSpan::Days(c_lowest));
    EXPECT_EQ(DateTimeSpan::FromMilliseconds(c_highest).GetRepresentation(), -10);
}

TEST(DateTimeSpan, DaysAndMillisecondsMakeSpans)
{
    EXPECT_EQ(DateTimeSpan::Days(2), DateTimeSpan(2 * 864000000ll));
    EXPECT_EQ(DateTimeSpan::Days(-2), DateTimeSpan(-2 * 864000000ll));
    EXPECT_EQ(DateTimeSpan::FromMilliseconds(1).GetRepresentation(), 10);
    EXPECT_EQ(DateTimeSpan().GetRepresentation(), 0);
    DateTimeSpan span;
    span = 25;
    EXPECT_EQ(span.GetRepresentation(), 25);
}

TEST(DateTimeSpan, ARealCountsDaysAndRoundsHalfATickAwayFromZero)
{
    double const halfTick = 0.5 / 864000000.0;
    EXPECT_EQ(DateTimeSpan(1.5).GetTotalHours(), 36);
    EXPECT_EQ(DateTimeSpan(-1.25).GetTotalHours(), -30);
    EXPECT_EQ(DateTimeSpan(halfTick).GetRepresentation(), 1);
    EXPECT_EQ(DateTimeSpan(-halfTick).GetRepresentation(), -1);
    for (double huge :
         {1e300, -1e300, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        static_cast<void>(DateTimeSpan(huge).ToOleSpan());
}

TEST(DateTimeSpan, PartsTakeTheSignOfTheSpan)
{
    DateTimeSpan const span = -DateTimeSpan(1, 2, 3, 4, 0.5);
    EXPECT_EQ(span.GetDays(), -1);
    EXPECT_EQ(span.GetHours(), -2);
    EXPECT_EQ(span.GetMinutes(), -3);
    EXPECT_EQ(span.GetSeconds(), -4);
    EXPECT_EQ(span.GetFraction(), -0.5);
    EXPECT_EQ(span.GetTotalDays(), -1);
    EXPECT_EQ(span.GetTotalHours(), -26);
    EXPECT_EQ(span.GetTotalMinutes(), -1563);
    EXPECT_EQ(span.GetTotalSeconds(), -93784);
    EXPECT_EQ(span.GetTotalMilliseconds(), -93784500);
    EXPECT_EQ(DateTimeSpan(0, -12, 0, 0, 0.0).ToOleSpan(), -0.5);
}

TEST(DateTimeSpan, SecondsAreTakenFromTheLow32BitsOfTheTotal)
{
    // -4294967301 seconds have the low 32 bits of -5.
    DateTimeSpan const span(-42949673010000);
    EXPECT_EQ(span.GetTotalSeconds(), -4294967301);
    EXPECT_EQ(span.GetSeconds(), -5);
    EXPECT_EQ(DateTimeSpan(c_lowest).GetTotalDays(), -2085264524);
}

TEST(DateTimeSpan, ArithmeticWraps)
{
    EXPECT_EQ((DateTimeSpan(c_highest) + DateTimeSpan(1)).GetRepresentation(), c_lowest);
    EXPECT_EQ((DateTimeSpan(c_lowest) - DateTimeSpan(1)).GetRepresentation(), c_highest);
    EXPECT_EQ((-DateTimeSpan(c_lowest)).GetRepresentation(), c_lowest);
    EXPECT_EQ((DateTimeSpan(c_highest) * 2).GetRepresentation(), -2);
    DateTimeSpan span(5);
    span += DateTimeSpan(7);
    EXPECT_EQ(span, DateTimeSpan(12));
    span -= DateTimeSpan(20);
    EXPECT_EQ(span, DateTimeSpan(-8));
}

TEST(DateTimeSpan, DivisionTruncatesTowardZero)
{
    EXPECT_EQ((DateTimeSpan(10) / 3).GetRepresentation(), 3);
    EXPECT_EQ((DateTimeSpan(-10) / 3).GetRepresentation(), -3);
    EXPECT_EQ(DateTimeSpan(-10) / DateTimeSpan(-3), 3);
    EXPECT_EQ(DateTimeSpan(10) / DateTimeSpan(-3), -3);
}

TEST(DateTimeSpanDeathTest, DivisionWithoutAResultEndsTheProcess)
{
    EXPECT_DEATH(static_cast<void>(DateTimeSpan(1) / 0), "");
    EXPECT_DEATH(static_cast<void>(DateTimeSpan(c_lowest) / -1), "");
    EXPECT_DEATH(static_cast<void>(DateTimeSpan(1) / DateTimeSpan(0)), "");
    EXPECT_DEATH(static_cast<void>(DateTimeSpan(c_lowest) / DateTimeSpan(-1)), "");
}

TEST(DateTimeSpan, ComparisonIsSigned)
{
    DateTimeSpan const low(-1);
    DateTimeSpan const high(1);
    EXPECT_TRUE(low < high && low <= high && high > low && high >= low && low != high && low == low);
    EXPECT_FALSE(low > high || low >= high || high < low || high <= low || low == high || low != low);
    EXPECT_EQ(low.Compare(high), -1);
    EXPECT_EQ(low.Compare(low), 0);
    EXPECT_EQ(high.Compare(low), 1);
}

TEST(DateTimeSpan, AStreamGetsTheDays)
{
    std::ostringstream stream;
    stream << DateTimeSpan(0, -12, 0, 0, 0.0);
    EXPECT_EQ(stream.str(), "-0.5");
}
