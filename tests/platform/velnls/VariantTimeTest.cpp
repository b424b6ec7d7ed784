#include "velnls/VariantTime.h"

#include <limits>

#include <gtest/gtest.h>

TEST(VariantTime, TheFractionHasNoSign)
{
    struct Case
    {
        double date;
        SYSTEMTIME expected;
    };
    Case const cases[] = {
        {0.0, {1899, 12, 6, 30, 0, 0, 0, 0}},
        {2.5, {1900, 1, 1, 1, 12, 0, 0, 0}},
        {-1.25, {1899, 12, 5, 29, 6, 0, 0, 0}},
        {-0.25, {1899, 12, 6, 30, 6, 0, 0, 0}},
        {36526.999988425926, {2000, 1, 6, 1, 23, 59, 59, 0}},
        {-657434.0, {100, 1, 5, 1, 0, 0, 0, 0}},
        {-657434.5, {100, 1, 5, 1, 12, 0, 0, 0}},
        {2958465.0 + 86399.0 / 86400, {9999, 12, 5, 31, 23, 59, 59, 0}},
    };
    for (Case const & c : cases) {
        SYSTEMTIME parts{};
        ASSERT_TRUE(VariantTimeToSystemTime(c.date, parts)) << c.date;
        EXPECT_EQ(parts.wYear, c.expected.wYear) << c.date;
        EXPECT_EQ(parts.wMonth, c.expected.wMonth) << c.date;
        EXPECT_EQ(parts.wDayOfWeek, c.expected.wDayOfWeek) << c.date;
        EXPECT_EQ(parts.wDay, c.expected.wDay) << c.date;
        EXPECT_EQ(parts.wHour, c.expected.wHour) << c.date;
        EXPECT_EQ(parts.wMinute, c.expected.wMinute) << c.date;
        EXPECT_EQ(parts.wSecond, c.expected.wSecond) << c.date;
        EXPECT_EQ(parts.wMilliseconds, 0) << c.date;
    }
}

TEST(VariantTime, TheTimeIsRoundedToTheNearestSecondAndCarries)
{
    SYSTEMTIME parts{};
    ASSERT_TRUE(VariantTimeToSystemTime(1.0 + 86399.6 / 86400, parts));
    EXPECT_EQ(parts.wYear, 1900);
    EXPECT_EQ(parts.wMonth, 1);
    EXPECT_EQ(parts.wDay, 1);
    EXPECT_EQ(parts.wHour, 0);
    ASSERT_TRUE(VariantTimeToSystemTime(1.0 + 1.4 / 86400, parts));
    EXPECT_EQ(parts.wSecond, 1);
}

TEST(VariantTime, DatesOutsideTheYears100To9999AreRefused)
{
    for (double date : {-657435.0, 2958466.0, 2958465.999999, 1e300, -1e300, std::numeric_limits<double>::infinity(),
                        -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
    {
        SYSTEMTIME parts{};
        parts.wYear = 42;
        EXPECT_FALSE(VariantTimeToSystemTime(date, parts)) << date;
        EXPECT_EQ(parts.wYear, 42);
    }
}
