#include "velcoredata/data/GregorianDateOptions.h"

#include "tests/data/DateOptionsTestSupport.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/DateTimeHierarchy.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

using namespace test_support;

TEST(GregorianDateOptions, OmittedFieldsAreOne)
{
    struct
    {
        GregorianDateOptions options;
        int startOfWeek;
        int fiscalYearStart;
    } const rows[] = {
        {GregorianDateOptions(), 1, 1},
        {GregorianDateOptions(SOW_MONDAY), 2, 1},
        {GregorianDateOptions(FYS_APRIL), 1, 4},
        {GregorianDateOptions(SOW_SATURDAY, FYS_DECEMBER), 7, 12},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(row.options.GetStartOfWeek(), row.startOfWeek);
        EXPECT_TRUE(row.options.GetFiscalYearStart() == row.fiscalYearStart);
    }
}

TEST(GregorianDateOptions, AnswersForTheGregorianCalendar)
{
    GregorianDateOptions const options(SOW_MONDAY, FYS_APRIL);
    EXPECT_EQ(options.GetCalendarType(), CalendarType::Gregorian);
    EXPECT_EQ(options.GetCalendarTypeId(), TString(u"Gregorian"));
    EXPECT_EQ(options.GetMinDaysInFirstWeek(), 1);
    EXPECT_EQ(options.GetFirstWeekBehavior(), FirstWeekUnset);
}

TEST(GregorianDateOptions, WeeksOfALocaleAreAskedOfIt)
{
    GregorianDateOptions const gregorian(SOW_MONDAY, FYS_APRIL);
    IDateOptions const & options = gregorian;
    EXPECT_EQ(options.GetMinDaysInFirstWeekWhenUsingLocale(1033), 1u);
    EXPECT_EQ(options.GetMinDaysInFirstWeekWhenUsingLocale(1031), 4u);
    EXPECT_TRUE(options.HasBrokenWeeksWhenUsingLocale(1033));
    EXPECT_FALSE(options.HasBrokenWeeksWhenUsingLocale(1031));
    EXPECT_EQ(options.GetMinDaysInFirstWeekWhenUsingLocale(0xFFFF), 1u);  // a locale that nobody knows
    EXPECT_TRUE(options.HasBrokenWeeksWhenUsingLocale(0xFFFF));
}

TEST(GregorianDateOptions, SettersStoreWhateverTheyGet)
{
    GregorianDateOptions options;
    for (int const number : {0, 5, 13, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        options.SetStartOfWeek(static_cast<SOWValue>(number));
        options.SetFiscalYearStart(static_cast<FYSValues>(number));
        EXPECT_EQ(static_cast<int>(options.GetStartOfWeek()), number);
        EXPECT_EQ(static_cast<int>(options.GetFiscalYearStart()), number);
    }
}

TEST(GregorianDateOptions, CloneAndCopyKeepBothFieldsAndAreIndependent)
{
    GregorianDateOptions original(SOW_FRIDAY, FYS_JULY);
    std::unique_ptr<IDateOptions> const clone = original.Clone();
    GregorianDateOptions const copy(original);
    original.SetStartOfWeek(SOW_SUNDAY);
    original.SetFiscalYearStart(FYS_JANUARY);
    EXPECT_NE(dynamic_cast<GregorianDateOptions const *>(clone.get()), nullptr);
    for (IDateOptions const * other :
         {static_cast<IDateOptions const *>(clone.get()), static_cast<IDateOptions const *>(&copy)})
    {
        EXPECT_EQ(other->GetStartOfWeek(), SOW_FRIDAY);
        EXPECT_EQ(other->GetFiscalYearStart(), FYS_JULY);
    }
}

TEST(GregorianDateOptions, ListsItsAggregationsInOrderWithUncommon25Twice)
{
    GregorianDateOptions const options;
    EXPECT_EQ(Numbers(options.GetBinDateAggregations()), NumbersFrom(14, 17));
    EXPECT_EQ(Numbers(options.GetBinDateTimeAggregations()), NumbersFrom(14, 20));
    EXPECT_EQ(Numbers(options.GetUncommonDateAggregations()), (std::vector{21, 22, 25, 23, 24, 25}));
    EXPECT_EQ(Numbers(options.GetTruncDateAggregations()), NumbersFrom(30, 34));
    EXPECT_EQ(Numbers(options.GetTruncDateTimeAggregations()), NumbersFrom(30, 37));
}

TEST(GregorianDateOptions, ListsAndHierarchiesAreSharedByAllObjects)
{
    GregorianDateOptions const a;
    GregorianDateOptions const b(SOW_MONDAY, FYS_APRIL);
    EXPECT_EQ(&a.GetBinDateAggregations(), &b.GetBinDateAggregations());
    EXPECT_EQ(&a.GetBinDateTimeAggregations(), &b.GetBinDateTimeAggregations());
    EXPECT_EQ(&a.GetUncommonDateAggregations(), &b.GetUncommonDateAggregations());
    EXPECT_EQ(&a.GetTruncDateAggregations(), &b.GetTruncDateAggregations());
    EXPECT_EQ(&a.GetTruncDateTimeAggregations(), &b.GetTruncDateTimeAggregations());
    EXPECT_EQ(&a.GetCalendarTypeId(), &b.GetCalendarTypeId());
    EXPECT_EQ(&a.GetHierarchy(DateDataType::Date, DateComputationKind::Bin),
              &b.GetHierarchy(DateDataType::Date, DateComputationKind::Bin));
}

TEST(GregorianDateOptions, HierarchiesHoldWeekOnlyWhenTruncating)
{
    GregorianDateOptions const options;
    HierarchyCase const rows[] = {
        {DateDataType::Date, DateComputationKind::Bin, NumbersFrom(14, 17)},
        {DateDataType::DateTime, DateComputationKind::Bin, NumbersFrom(14, 20)},
        {DateDataType::Date, DateComputationKind::Trunc, NumbersFrom(30, 34)},
        {DateDataType::DateTime, DateComputationKind::Trunc, NumbersFrom(30, 37)},
    };
    for (HierarchyCase const & row : rows)
        EXPECT_EQ(Levels(options.GetHierarchy(row.dataType, row.kind), row.levels.front()), row.levels);
    EXPECT_FALSE(options.GetHierarchy(DateDataType::Date, DateComputationKind::Bin).Contains(AGG_WEEK));
    EXPECT_TRUE(options.GetHierarchy(DateDataType::Date, DateComputationKind::Trunc).Contains(TRUNC_WEEK));
}

TEST(GregorianDateOptions, HierarchyOfAnUnknownKeyIsOutOfRange)
{
    GregorianDateOptions const options;
    for (auto const & [dataType, kind] : {std::pair{2, 0}, {-1, 0}, {0, 2}, {1, -1}, {7, 7}}) {
        try {
            options.GetHierarchy(static_cast<DateDataType>(dataType), static_cast<DateComputationKind>(kind));
            ADD_FAILURE() << dataType << ' ' << kind;
        } catch (std::out_of_range const & error) {
            EXPECT_STREQ(error.what(), "invalid map<K, T> key");
        }
    }
}

TEST(GregorianDateOptions, NormalizesIsoAggregationsAndPassesAllOthers)
{
    GregorianDateOptions const options;
    for (int number = -2; number <= 60; ++number) {
        auto const aggregation = static_cast<AggType>(number);
        EXPECT_EQ(GregorianDateOptions::ConvertToGregorianAggType(aggregation), MappedBy(toGregorian, number))
            << number;
        EXPECT_EQ(options.GetNormalizedAggType(aggregation), MappedBy(toGregorian, number)) << number;
    }
}
