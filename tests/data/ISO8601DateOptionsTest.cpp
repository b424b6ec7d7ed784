#include "velcoredata/data/ISO8601DateOptions.h"

#include "tests/data/DateOptionsTestSupport.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/DateTimeHierarchy.h"
#include "velcoredata/data/GregorianDateOptions.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace test_support;

TEST(ISO8601DateOptions, AnswersForTheIsoWeekCalendar)
{
    ISO8601DateOptions const options;
    EXPECT_EQ(options.GetCalendarType(), CalendarType::ISO8601);
    EXPECT_EQ(options.GetCalendarTypeId(), TString(u"ISO8601"));
    EXPECT_EQ(options.GetStartOfWeek(), SOW_MONDAY);
    EXPECT_EQ(options.GetFiscalYearStart(), FYS_JANUARY);
    EXPECT_EQ(options.GetMinDaysInFirstWeek(), 4);
    EXPECT_EQ(options.GetFirstWeekBehavior(), FirstWeekFourDays);
}

TEST(ISO8601DateOptions, WeeksAreThoseOfISO8601InEveryLocale)
{
    ISO8601DateOptions const iso;
    IDateOptions const & options = iso;
    for (LCID const lcid : {1033u, 1031u, 1024u, 0u, 0xFFFFu}) {
        EXPECT_EQ(options.GetMinDaysInFirstWeekWhenUsingLocale(lcid), 4u);
        EXPECT_FALSE(options.HasBrokenWeeksWhenUsingLocale(lcid));
    }
}

TEST(ISO8601DateOptions, SettersChangeNothing)
{
    ISO8601DateOptions options;
    options.SetStartOfWeek(SOW_SUNDAY);
    options.SetFiscalYearStart(FYS_APRIL);
    EXPECT_EQ(options.GetStartOfWeek(), SOW_MONDAY);
    EXPECT_EQ(options.GetFiscalYearStart(), FYS_JANUARY);
}

TEST(ISO8601DateOptions, CloneIsOfTheSameClassAndEqual)
{
    ISO8601DateOptions const options;
    std::unique_ptr<IDateOptions> const clone = options.Clone();
    EXPECT_NE(dynamic_cast<ISO8601DateOptions const *>(clone.get()), nullptr);
    EXPECT_TRUE(*clone == options);
    EXPECT_TRUE(ISO8601DateOptions(options) == options);
}

TEST(ISO8601DateOptions, ListsItsAggregationsAndNoUncommonOnes)
{
    ISO8601DateOptions const options;
    EXPECT_EQ(Numbers(options.GetBinDateAggregations()), NumbersFrom(26, 29));
    EXPECT_EQ(Numbers(options.GetBinDateTimeAggregations()), (std::vector{26, 27, 28, 29, 18, 19, 20}));
    EXPECT_TRUE(options.GetUncommonDateAggregations().empty());
    EXPECT_EQ(Numbers(options.GetTruncDateAggregations()), NumbersFrom(38, 41));
    EXPECT_EQ(Numbers(options.GetTruncDateTimeAggregations()), (std::vector{38, 39, 40, 41, 35, 36, 37}));
}

TEST(ISO8601DateOptions, ListsAndHierarchiesAreSharedByAllObjectsOfTheClassAlone)
{
    ISO8601DateOptions const a;
    ISO8601DateOptions const b;
    GregorianDateOptions const gregorian;
    EXPECT_EQ(&a.GetBinDateAggregations(), &b.GetBinDateAggregations());
    EXPECT_EQ(&a.GetHierarchy(DateDataType::DateTime, DateComputationKind::Trunc),
              &b.GetHierarchy(DateDataType::DateTime, DateComputationKind::Trunc));
    EXPECT_NE(&a.GetHierarchy(DateDataType::DateTime, DateComputationKind::Trunc),
              &gregorian.GetHierarchy(DateDataType::DateTime, DateComputationKind::Trunc));
}

TEST(ISO8601DateOptions, HierarchiesGoFromIsoYearToIsoDayAndOnToSecond)
{
    ISO8601DateOptions const options;
    HierarchyCase const rows[] = {
        {DateDataType::Date, DateComputationKind::Bin, {26, 27, 28, 29}},
        {DateDataType::DateTime, DateComputationKind::Bin, {26, 27, 28, 29, 18, 19, 20}},
        {DateDataType::Date, DateComputationKind::Trunc, {38, 39, 40, 41}},
        {DateDataType::DateTime, DateComputationKind::Trunc, {38, 39, 40, 41, 35, 36, 37}},
    };
    for (HierarchyCase const & row : rows)
        EXPECT_EQ(Levels(options.GetHierarchy(row.dataType, row.kind), row.levels.front()), row.levels);
}

TEST(ISO8601DateOptions, HierarchyOfAnUnknownKeyIsOutOfRange)
{
    ISO8601DateOptions const options;
    try {
        options.GetHierarchy(static_cast<DateDataType>(2), DateComputationKind::Bin);
        ADD_FAILURE();
    } catch (std::out_of_range const & error) {
        EXPECT_STREQ(error.what(), "invalid map<K, T> key");
    }
}

TEST(ISO8601DateOptions, NormalizesGregorianAggregationsAndPassesAllOthers)
{
    ISO8601DateOptions const options;
    for (int number = -2; number <= 60; ++number) {
        auto const aggregation = static_cast<AggType>(number);
        EXPECT_EQ(ISO8601DateOptions::ConvertToISO8601AggType(aggregation), MappedBy(toISO8601, number)) << number;
        EXPECT_EQ(options.GetNormalizedAggType(aggregation), MappedBy(toISO8601, number)) << number;
    }
}

TEST(ISO8601DateOptions, MonthGoesToIsoWeekAndComesBackAsWeek)
{
    auto const roundTrip = [](AggType aggregation) {
        return GregorianDateOptions::ConvertToGregorianAggType(
            ISO8601DateOptions::ConvertToISO8601AggType(aggregation));
    };
    EXPECT_EQ(roundTrip(AGG_MONTH), AGG_WEEK);
    EXPECT_EQ(roundTrip(TRUNC_MONTH), TRUNC_WEEK);
    EXPECT_EQ(roundTrip(AGG_DAY), AGG_WEEKDAY);
    EXPECT_EQ(roundTrip(AGG_YEAR), AGG_YEAR);
}
