#include "velcoredata/utility/DataValueInterpolator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <utility>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValueSamples.h"

namespace {

using namespace test_support;
using Operators = DataValueOperators;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

void ExpectSame(DataValue const & actual, DataValue const & expected)
{
    EXPECT_TRUE(SameFields(actual, expected))
        << testing::PrintToString(actual) << ", not " << testing::PrintToString(expected);
}

TEST(DataValueInterpolator, CastsBackToTheTypeOfStartUnlessToldNotTo)
{
    Operators const o;
    ExpectSame(o.Interpolate(0.5, 0, 10, false), 5);
    ExpectSame(o.Interpolate(0.5, 0, 10, true), 5.0);
    ExpectSame(o.Interpolate(0.55, 0, 10, false), 5);
    ExpectSame(o.Interpolate(0.5, 0.0, 10, false), 5.0);
    ExpectSame(o.Interpolate(0.5, 0, 1.0, false), 0);
    ExpectSame(o.Interpolate(0.5, DateOf(2020, 1, 1), DateOf(2020, 1, 2), false), DateOf(2020, 1, 1));
    ExpectSame(o.Interpolate(0.5, DateOf(2020, 1, 1), DateOf(2020, 1, 2), true), DatetimeOf(2020, 1, 1, 12, 0, 0));
    ExpectSame(o.Interpolate(0.5, DatetimeOf(2020, 1, 1, 0, 0, 0), DatetimeOf(2020, 1, 2, 0, 0, 0), false),
               DatetimeOf(2020, 1, 1, 12, 0, 0));
    ExpectSame(o.Interpolate(0.5, DateOf(2020, 1, 1), DatetimeOf(2020, 1, 2, 0, 0, 0), false), DateOf(2020, 1, 1));
}

TEST(DataValueInterpolator, ExtrapolatesWithoutClamping)
{
    Operators const o;
    ExpectSame(o.Interpolate(2.0, 0, 10, false), 20);
    ExpectSame(o.Interpolate(-1.0, 0, 10, false), -10);
    ExpectSame(o.Interpolate(2.0, 0, 4000000, false), 8000000);
    EXPECT_EQ(o.InverseInterpolate(20, 0, 10), 2.0);
    EXPECT_EQ(o.InverseInterpolate(-10, 0, 10), -1.0);
}

TEST(DataValueInterpolator, EqualEndsGiveStartAsItIs)
{
    Operators const o;
    DataValue const start(3.0, 5, 2);
    ExpectSame(o.Interpolate(0.7, start, 3, false), start);
    EXPECT_EQ(o.InverseInterpolate(7, 3, 3), 0.0);
    DataValue const text(GetBinaryCollation(), u"a");
    ExpectSame(o.Interpolate(0.7, text, text, false), text);
    EXPECT_EQ(o.InverseInterpolate(7, text, text), 0.0);  // the value is not looked at
    ExpectSame(o.Interpolate(0.7, DataValue(), DataValue(), false), DataValue());
}

TEST(DataValueInterpolator, EndsThatDoNotPromoteOrSubtractRaise)
{
    DataValue const a(GetBinaryCollation(), u"a");
    DataValue const b(GetBinaryCollation(), u"b");
    EXPECT_THAT([&] { DataValueInterpolator(a, DataValue(1)); },
                ThrowsError("DataValueOperatorException_AutoGen_0x5EA10C37", "type exception"));
    DataValueInterpolator between(a, b);
    EXPECT_THAT([&] { between(0.5); }, ThrowsError("DataValueOperatorException_AutoGen_0x5EA10C36", "type exception"));
    EXPECT_THAT([&] { between.Inverse(a); },
                ThrowsError("DataValueOperatorException_AutoGen_0x5EA10C36", "type exception"));
}

// The weighted sum: with a range of over a million, between numbers whose difference is out of range too.
TEST(DataValueInterpolator, ALargeRangeTakesTheWeightedSum)
{
    Operators const o;
    double const largest = std::numeric_limits<double>::max();
    ExpectSame(o.Interpolate(0.5, 0, 4000000, false), 2000000);
    ExpectSame(o.Interpolate(0.5, -largest, largest, false), 0.0);
    ExpectSame(o.Interpolate(0.0, 0.0, kInfinity, false), std::numeric_limits<double>::quiet_NaN());
    // One million is not over one million: start + fraction * (end - start), which keeps the small start.
    ExpectSame(o.Interpolate(0.1, 0.1, 1000000.1, false), 0.1 + 0.1 * (1000000.1 - 0.1));
    ExpectSame(o.Interpolate(0.1, 0.1, 1000001.2, false), 0.1 * (1.0 - 0.1) + 1000001.2 * 0.1);
}

TEST(DataValueInterpolator, InverseOfLargeRanges)
{
    Operators const o;
    EXPECT_EQ(o.InverseInterpolate(2000000, 0, 4000000), 0.5);  // start is zero
    EXPECT_EQ(o.InverseInterpolate(2000000, 4000000, 0), 0.5);  // end is zero
    EXPECT_DOUBLE_EQ(o.InverseInterpolate(3000000, 1000000, 5000000), 0.5);
    EXPECT_EQ(o.InverseInterpolate(0.0, -1e308, 1e308), 0.5);
    EXPECT_EQ(o.InverseInterpolate(5, 0, 10), 0.5);
    EXPECT_EQ(o.InverseInterpolate(DateOf(2020, 1, 2), DateOf(2020, 1, 1), DateOf(2020, 1, 5)), 0.25);
    EXPECT_EQ(o.InverseInterpolate(DatetimeOf(2020, 1, 1, 12, 0, 0), DateOf(2020, 1, 1), DateOf(2020, 1, 2)), 0.5);
}

TEST(DataValueInterpolator, InverseRaisesForAValueOfAnotherType)
{
    DataValueInterpolator numbers(0, 10);
    EXPECT_THAT([&] { numbers.Inverse(true); }, ThrowsError("DataValueOperatorException_AutoGen_0x5EA10C37"));
    DataValueInterpolator large(0, 4000000);
    EXPECT_THAT([&] { large.Inverse(true); }, ThrowsError("DataValueOperatorException_AutoGen_0x5EA10C36"));
}

TEST(DataValueInterpolator, CopiesAndMovesMemberWise)
{
    DataValueInterpolator original(0, 10);
    EXPECT_TRUE(original.GetCast());
    original.SetCast(false);
    DataValueInterpolator copy(original);
    EXPECT_FALSE(copy.GetCast());
    DataValueInterpolator moved(std::move(original));
    EXPECT_FALSE(moved.GetCast());
    ExpectSame(copy(0.5), 5.0);
    ExpectSame(moved(0.5), 5.0);
    copy.SetCast(true);
    ExpectSame(copy(0.5), 5);
}

TEST(DataValueInterpolator, InverseUndoesInterpolationUpToRounding)
{
    std::mt19937_64 random(9);
    std::uniform_real_distribution<double> end(-1e7, 1e7);
    std::uniform_real_distribution<double> fraction(-2.0, 3.0);
    for (int i = 0; i < 20000; ++i) {
        DataValueInterpolator f(end(random), end(random));
        double const x = fraction(random);
        ASSERT_NEAR(f.Inverse(f(x)), x, 1e-6);
    }
}

}  // namespace
