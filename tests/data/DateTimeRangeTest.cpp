#include "velcoredata/data/DateTimeRange.h"

#include <sstream>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

DateTime Day(int day)
{
    return DateTime(2015, 1, day, 0, 0, 0, 0.0);
}

DateTimeRange Days(int first, int last)
{
    return DateTimeRange(Day(first), Day(last));
}

}  // namespace

TEST(DateTimeRange, ADefaultRangeIsEmpty)
{
    EXPECT_TRUE(DateTimeRange().isEmpty);
    EXPECT_EQ(DateTimeRange().start, DateTime());
    EXPECT_EQ(DateTimeRange().end, DateTime());
    EXPECT_EQ(DateTimeRange(), DateTimeRange::EMPTY_RANGE);
}

TEST(DateTimeRange, ARangeOfOneInstantIsNotEmpty)
{
    DateTimeRange const range = Days(3, 3);
    EXPECT_FALSE(range.isEmpty);
    EXPECT_EQ(range.start, Day(3));
    EXPECT_EQ(range.end, Day(3));
}

TEST(DateTimeRange, EndsOutOfOrderAreRefused)
{
    EXPECT_THAT([] { Days(4, 3); },
                ThrowsAssert("Range DateTimes are out of order", "LogicException_LogicAssert_0xD65C6EA9"));
}

TEST(DateTimeRange, EqualityLooksAtAllThreeFields)
{
    EXPECT_TRUE(Days(1, 2) == Days(1, 2));
    EXPECT_TRUE(Days(1, 2) != Days(1, 3));
    EXPECT_TRUE(Days(1, 3) != Days(2, 3));
    EXPECT_TRUE(DateTimeRange() != DateTimeRange(DateTime(), DateTime()));
    EXPECT_FALSE(Days(1, 2) != Days(1, 2));
}

TEST(DateTimeRange, IntersectionIsTheCommonPart)
{
    struct Case
    {
        DateTimeRange a, b, expected;
    };
    Case const cases[] = {
        {Days(1, 5), Days(3, 8), Days(3, 5)},
        {Days(1, 8), Days(3, 5), Days(3, 5)},
        {Days(1, 3), Days(3, 5), Days(3, 3)},
        {Days(1, 2), Days(3, 5), DateTimeRange::EMPTY_RANGE},
    };
    for (Case const & c : cases) {
        EXPECT_EQ(c.a.Intersect(c.b), c.expected);
        EXPECT_EQ(c.b.Intersect(c.a), c.expected);
    }
}

TEST(DateTimeRange, AnEmptyRangeTakesPartAsTheInstant18991230)
{
    DateTimeRange const around(DateTime(1899, 1, 1, 0, 0, 0, 0.0), Day(1));
    DateTimeRange const met = around.Intersect(DateTimeRange());
    EXPECT_FALSE(met.isEmpty);
    EXPECT_EQ(met, DateTimeRange(DateTime(), DateTime()));
    EXPECT_EQ(Days(1, 2).Intersect(DateTimeRange()), DateTimeRange::EMPTY_RANGE);
}

TEST(DateTimeRange, AStreamGetsBothEnds)
{
    std::ostringstream stream;
    stream << DateTimeRange();
    EXPECT_EQ(stream.str(), "empty [0, 0]");
}
