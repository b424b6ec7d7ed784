#include "velcoreplatform/SystemTime.h"

#include <cstdint>

#include <gtest/gtest.h>

#include "tests/support/ZoneScope.h"

namespace {

constexpr char c_newYork[] = "EST5EDT,M3.2.0,M11.1.0";

std::uint64_t Count(SYSTEMTIME const & time)
{
    FILETIME count{};
    EXPECT_TRUE(SystemTimeToFileTime(time, count));
    return std::uint64_t{count.dwHighDateTime} << 32 | count.dwLowDateTime;
}

}  // namespace

TEST(SystemTime, FileTimeCounts100NanosecondsSince1601)
{
    EXPECT_EQ(Count({1601, 1, 0, 1, 0, 0, 0, 0}), 0u);
    EXPECT_EQ(Count({1601, 1, 0, 2, 0, 0, 0, 1}), 864000010000u);
    EXPECT_EQ(Count({1970, 1, 0, 1, 0, 0, 0, 0}), 116444736000000000u);
    EXPECT_EQ(Count({30827, 12, 0, 31, 23, 59, 59, 999}), 9223149887999990000u);
}

TEST(SystemTime, PartsOutOfRangeAreRefused)
{
    SYSTEMTIME const cases[] = {
        {1600, 12, 0, 31, 0, 0, 0, 0},  {30828, 1, 0, 1, 0, 0, 0, 0},  {2000, 0, 0, 1, 0, 0, 0, 0},
        {2000, 13, 0, 1, 0, 0, 0, 0},   {2000, 257, 0, 1, 0, 0, 0, 0}, {2000, 1, 0, 0, 0, 0, 0, 0},
        {2000, 2, 0, 30, 0, 0, 0, 0},   {2001, 2, 0, 29, 0, 0, 0, 0},  {2000, 1, 0, 257, 0, 0, 0, 0},
        {2000, 1, 0, 1, 24, 0, 0, 0},   {2000, 1, 0, 1, 0, 60, 0, 0},  {2000, 1, 0, 1, 0, 0, 60, 0},
        {2000, 1, 0, 1, 0, 0, 0, 1000},
    };
    for (SYSTEMTIME const & time : cases) {
        FILETIME count{1, 2};
        EXPECT_FALSE(SystemTimeToFileTime(time, count));
        EXPECT_EQ(count.dwLowDateTime, 1u);
        EXPECT_EQ(count.dwHighDateTime, 2u);
        SYSTEMTIME out{42, 0, 0, 0, 0, 0, 0, 0};
        EXPECT_FALSE(SystemTimeToTzSpecificLocalTime(time, out));
        EXPECT_FALSE(TzSpecificLocalTimeToSystemTime(time, out));
        EXPECT_EQ(out.wYear, 42);
    }
}

TEST(SystemTime, TheDayOfWeekIsIgnoredAndWritten)
{
    ZoneScope const zone("UTC");
    SYSTEMTIME out{};
    ASSERT_TRUE(SystemTimeToTzSpecificLocalTime({2000, 1, 999, 1, 12, 0, 0, 7}, out));
    EXPECT_EQ(out.wDayOfWeek, 6);
    EXPECT_EQ(out.wMilliseconds, 7);
}

TEST(SystemTime, ZonesConvertBothWays)
{
    ZoneScope const zone(c_newYork);
    struct Case
    {
        SYSTEMTIME local;
        SYSTEMTIME utc;
    };
    Case const cases[] = {
        {{2015, 1, 4, 1, 7, 0, 0, 5}, {2015, 1, 4, 1, 12, 0, 0, 5}},
        {{2015, 7, 3, 1, 8, 0, 0, 0}, {2015, 7, 3, 1, 12, 0, 0, 0}},
        {{2015, 3, 0, 8, 1, 59, 59, 0}, {2015, 3, 0, 8, 6, 59, 59, 0}},
        {{2015, 3, 0, 8, 3, 0, 0, 0}, {2015, 3, 0, 8, 7, 0, 0, 0}},
        {{2014, 12, 3, 31, 22, 0, 0, 0}, {2015, 1, 4, 1, 3, 0, 0, 0}},
    };
    for (Case const & c : cases) {
        SYSTEMTIME out{};
        ASSERT_TRUE(TzSpecificLocalTimeToSystemTime(c.local, out));
        EXPECT_EQ(Count(out), Count(c.utc)) << c.local.wMonth << '-' << c.local.wDay;
        ASSERT_TRUE(SystemTimeToTzSpecificLocalTime(c.utc, out));
        EXPECT_EQ(Count(out), Count(c.local)) << c.local.wMonth << '-' << c.local.wDay;
    }
}

TEST(SystemTime, ASkippedTimeIsReadWithTheOffsetBeforeTheGap)
{
    ZoneScope const zone(c_newYork);
    SYSTEMTIME out{};
    ASSERT_TRUE(TzSpecificLocalTimeToSystemTime({2015, 3, 0, 8, 2, 30, 0, 0}, out));
    EXPECT_EQ(Count(out), Count({2015, 3, 0, 8, 7, 30, 0, 0}));
}

TEST(SystemTime, OfARepeatedTimeTheLaterReadingIsTaken)
{
    ZoneScope const zone(c_newYork);
    SYSTEMTIME out{};
    ASSERT_TRUE(TzSpecificLocalTimeToSystemTime({2015, 11, 0, 1, 1, 30, 0, 0}, out));
    EXPECT_EQ(Count(out), Count({2015, 11, 0, 1, 6, 30, 0, 0}));
}

TEST(SystemTime, UnixTimePartsEndWithTheYear3000)
{
    for (auto const convert : {&GmTime64, &LocalTime64}) {
        std::tm parts{};
        EXPECT_TRUE(convert(0, parts));
        EXPECT_TRUE(convert(32535215999, parts));
        parts.tm_year = 42;
        EXPECT_FALSE(convert(-1, parts));
        EXPECT_FALSE(convert(32535216000, parts));
        EXPECT_EQ(parts.tm_year, 42);
    }
    std::tm parts{};
    ASSERT_TRUE(GmTime64(32535215999, parts));
    EXPECT_EQ(parts.tm_year + 1900, 3000);
    EXPECT_EQ(parts.tm_mon, 11);
    EXPECT_EQ(parts.tm_mday, 31);
    ZoneScope const zone(c_newYork);
    ASSERT_TRUE(LocalTime64(0, parts));
    EXPECT_EQ(parts.tm_hour, 19);
    EXPECT_EQ(parts.tm_year + 1900, 1969);
}

TEST(SystemTime, TheClockHasValidParts)
{
    SYSTEMTIME now{};
    GetSystemTime(now);
    FILETIME count{};
    EXPECT_TRUE(SystemTimeToFileTime(now, count));
    GetLocalTime(now);
    EXPECT_TRUE(SystemTimeToFileTime(now, count));
}
