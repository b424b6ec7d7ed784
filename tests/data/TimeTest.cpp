#include "velcoredata/data/Time.h"

#include <array>
#include <limits>
#include <sstream>
#include <type_traits>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/Interval.h"

namespace {

constexpr char c_message[] = "Invalid datetime value";
constexpr unsigned long long c_day = 86400000000;

// The value one count past the day.
Time FullDay()
{
    return Time(23, 59, 59, 1000000u);
}

}  // namespace

static_assert(sizeof(Time) == 8 && std::is_trivially_copyable_v<Time>);

TEST(Time, PartsMakeAndReadMicroseconds)
{
    Time const time(1, 2, 3, 45u);
    EXPECT_EQ(time.GetRepresentation(), 3723000045u);
    EXPECT_EQ(time.GetHour(), 1);
    EXPECT_EQ(time.GetMinute(), 2);
    EXPECT_EQ(time.GetSecond(), 3);
    EXPECT_EQ(time.GetMicrosecond(), 45u);
    EXPECT_EQ(Time(1, 2, 3, 0.0000454).GetRepresentation(), 3723000045u);
    EXPECT_EQ(Time().GetRepresentation(), 0u);
}

TEST(Time, MicrosecondsAreTakenModuloADay)
{
    EXPECT_EQ(Time(c_day).GetRepresentation(), 0u);
    EXPECT_EQ(Time(c_day - 1).GetRepresentation(), c_day - 1);
    EXPECT_EQ(Time(std::numeric_limits<unsigned long long>::max()).GetRepresentation(),
              std::numeric_limits<unsigned long long>::max() % c_day);
}

TEST(Time, AMillionMicrosecondsAreTheFullNextSecond)
{
    EXPECT_EQ(FullDay().GetRepresentation(), c_day);
    EXPECT_EQ(FullDay().GetHour(), 24);
    EXPECT_EQ(Time(23, 59, 59, 1.0).GetRepresentation(), c_day);
    EXPECT_EQ(Time(0, 0, 0, 1000000u), Time(0, 0, 1, 0u));
}

TEST(Time, PartsOutOfRangeAreRefused)
{
    for (auto const & c : {std::array<unsigned, 4>{24, 0, 0, 0},
                           {0, 60, 0, 0},
                           {0, 0, 60, 0},
                           {0, 0, 0, 1000001},
                           {0xFFFFFFFF, 0, 0, 0}})
    {
        EXPECT_THAT([&] { Time(c[0], c[1], c[2], c[3]); },
                    ThrowsError("VeltriaException_AutoGen_0x5A975297", c_message));
        if (c[3] == 0) {
            EXPECT_THAT([&] { Time(c[0], c[1], c[2], 0.0); },
                        ThrowsError("VeltriaException_AutoGen_0x22D59FE2", c_message));
        }
    }
    for (double fraction : {1.000001, -0.000002, 4000.0})
        EXPECT_THAT([&] { Time(0, 0, 0, fraction); }, ThrowsError("VeltriaException_AutoGen_0x22D59FE2", c_message))
            << fraction;
}

TEST(Time, AFractionIsCutTo32BitsBeforeItsCheck)
{
    // 2^32 microseconds leave 0; a NaN and what exceeds 64 bits do too.
    EXPECT_EQ(Time(0, 0, 0, 4294.967296).GetRepresentation(), 0u);
    EXPECT_EQ(Time(0, 0, 0, std::numeric_limits<double>::quiet_NaN()).GetRepresentation(), 0u);
    EXPECT_EQ(Time(0, 0, 0, 1e300).GetRepresentation(), 0u);
    EXPECT_EQ(Time(0, 0, 0, -0.0000001).GetRepresentation(), 0u);
}

TEST(Time, IntervalsMoveAroundTheClockWithoutTheirWholeDays)
{
    Time const noon(12, 0, 0, 0u);
    EXPECT_EQ(Time() + Interval(1, 0, 0, 1, 0.0), Time(0, 0, 1, 0u));
    EXPECT_EQ(noon + Interval(0, 13, 0, 0, 0.0), Time(1, 0, 0, 0u));
    EXPECT_EQ(noon + Interval(0, -13, 0, 0, 0.0), Time(23, 0, 0, 0u));
    EXPECT_EQ(noon - Interval(0, 13, 0, 0, 0.0), Time(23, 0, 0, 0u));
    EXPECT_EQ(noon - Interval(0, -13, 0, 0, 0.0), Time(1, 0, 0, 0u));
    EXPECT_EQ(noon - Interval(-3, 0, 0, 0, 0.0), noon);
    Time time = noon;
    Time const moved = time += Interval(1);
    EXPECT_EQ(moved, time);
    EXPECT_EQ(time.GetRepresentation(), noon.GetRepresentation() + 1);
    time -= Interval(2);
    EXPECT_EQ(time.GetRepresentation(), noon.GetRepresentation() - 1);
}

TEST(Time, SubtractingItsOwnValueGivesTheFullDay)
{
    EXPECT_EQ((Time(0, 0, 1, 0u) - Interval(0, 0, 0, 1, 0.0)).GetRepresentation(), c_day);
    EXPECT_EQ((Time(0, 0, 1, 0u) + Interval(0, 0, 0, -1, 0.0)).GetRepresentation(), c_day);
    EXPECT_EQ((Time() - Interval()).GetRepresentation(), 0u);
    EXPECT_EQ((FullDay() + Interval()).GetRepresentation(), 0u);
}

TEST(Time, TimesSubtractToSignedIntervals)
{
    EXPECT_EQ((Time(0, 0, 0, 0u) - Time(0, 0, 1, 0u)).GetRepresentation(), -1000000);
    EXPECT_EQ((FullDay() - Time(1ull)).GetRepresentation(), 86399999999);
    Interval const sinceMidnight = Time(0, 0, 1, 5u);
    EXPECT_EQ(sinceMidnight.GetRepresentation(), 1000005);
}

TEST(Time, ComparisonIsOfMicroseconds)
{
    Time const low(1ull);
    Time const high(2ull);
    EXPECT_TRUE(low < high && low <= high && high > low && high >= low && low != high && low == low);
    EXPECT_FALSE(low > high || low >= high || high < low || high <= low || low == high || low != low);
}

TEST(Time, AFractionIsRoundedWhenAMicrosecondCannotHoldIt)
{
    EXPECT_TRUE(Time::IsFractionRounded(0.1234567));
    EXPECT_FALSE(Time::IsFractionRounded(0.5));
    EXPECT_FALSE(Time::IsFractionRounded(std::numeric_limits<double>::quiet_NaN()));
    for (double fraction : {1.0, -1e-9, std::numeric_limits<double>::infinity()})
        EXPECT_THAT([&] { Time::IsFractionRounded(fraction); },
                    ThrowsError("VeltriaException_AutoGen_0xBE17C602", c_message));
}

TEST(Time, AStreamGetsTheClock)
{
    std::ostringstream stream;
    stream << Time(1, 2, 3, 45u);
    EXPECT_EQ(stream.str(), "1:02:03.000045");
}
