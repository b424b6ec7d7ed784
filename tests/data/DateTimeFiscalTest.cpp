// The fiscal members of DateTime.
#include "tests/data/DateTestSupport.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/DateTimeUtils.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"

#include <gtest/gtest.h>

using namespace test_support;

namespace {

char const * const invalidDate = "VeltriaException_AutoGen_0xDD90F63D";

}  // namespace

TEST(DateTimeFiscal, AFiscalYearIsNamedForTheYearInWhichItEnds)
{
    struct
    {
        DateTime date;
        FYSValues start;
        int year, quarter, month;
    } const rows[] = {
        {D(2020, 4, 1), FYS_APRIL, 2021, 1, 1},       {D(2020, 3, 31), FYS_APRIL, 2020, 4, 12},
        {D(2020, 12, 31), FYS_APRIL, 2021, 3, 9},     {D(2020, 1, 1), FYS_JANUARY, 2020, 1, 1},
        {D(2020, 12, 31), FYS_JANUARY, 2020, 4, 12},  {D(2020, 12, 1), FYS_DECEMBER, 2021, 1, 1},
        {D(2020, 11, 30), FYS_DECEMBER, 2020, 4, 12},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(row.date.GetFiscalYear(row.start), row.year);
        EXPECT_EQ(row.date.GetFiscalQuarter(row.start), row.quarter);
        EXPECT_EQ(row.date.GetFiscalMonth(row.start), row.month);
        EXPECT_EQ(row.date.GetFiscalYearMonthDay(row.start),
                  DateTime::YearMonthDay(row.year, row.month, row.date.GetDay()));
    }
}

TEST(DateTimeFiscal, AFiscalDateIsGivenByItsCalendarMonth)
{
    EXPECT_EQ(DateTime::FromFiscalYear(2021, FYS_APRIL, 4, 1, 0, 0, 0, 0.0), D(2020, 4, 1));
    EXPECT_EQ(DateTime::FromFiscalYear(2021, FYS_APRIL, 3, 31, 23, 59, 59, 0.5), D(2021, 3, 31, 23, 59, 59, 0.5));
    EXPECT_EQ(DateTime::FromFiscalYear(2021, FYS_JANUARY, 12, 31, 0, 0, 0, 0.0), D(2021, 12, 31));
    EXPECT_THAT([] { DateTime::FromFiscalYear(2021, FYS_APRIL, 2, 30, 0, 0, 0, 0.0); }, ThrowsError(invalidDate));
    EXPECT_THAT([] { DateTime::FromFiscalYear(400, FYS_APRIL, 4, 1, 0, 0, 0, 0.0); }, ThrowsError(invalidDate));
}

TEST(DateTimeFiscal, BoundsOfAYearFromApril)
{
    EXPECT_EQ(DateTime::FiscalYearStart(2021, FYS_APRIL), D(2020, 4, 1));
    EXPECT_EQ(DateTime::FiscalYearEnd(2021, FYS_APRIL), D(2021, 3, 31));
    EXPECT_EQ(DateTime::FiscalYearStart(2021, FYS_JANUARY), D(2021, 1, 1));
    EXPECT_EQ(DateTime::FiscalYearEnd(2021, FYS_JANUARY), D(2021, 12, 31));
    EXPECT_EQ(DateTime::FiscalQuarterStart(2021, 1, FYS_APRIL), D(2020, 4, 1));
    EXPECT_EQ(DateTime::FiscalQuarterStart(2021, 4, FYS_APRIL), D(2021, 1, 1));
    EXPECT_EQ(DateTime::FiscalQuarterEnd(2021, 3, FYS_APRIL), D(2020, 12, 31));
    EXPECT_EQ(DateTime::FiscalQuarterEnd(2021, 4, FYS_APRIL), D(2021, 3, 31));
    EXPECT_EQ(DateTime::FiscalMonthStart(2021, 1, FYS_APRIL), D(2020, 4, 1));
    EXPECT_EQ(DateTime::FiscalMonthStart(2021, 12, FYS_APRIL), D(2021, 3, 1));
    EXPECT_EQ(DateTime::FiscalMonthEnd(2021, 11, FYS_APRIL), D(2021, 2, 28));
    EXPECT_EQ(DateTime::FiscalMonthEnd(2021, 12, FYS_APRIL), D(2021, 3, 31));
}

TEST(DateTimeFiscal, AQuarterOrMonthBeyondTheLastEndsWithTheFirstOfTheNextYear)
{
    EXPECT_EQ(DateTime::FiscalQuarterEnd(2021, 7, FYS_APRIL), D(2021, 3, 31));
    EXPECT_EQ(DateTime::FiscalMonthEnd(2021, 20, FYS_APRIL), D(2021, 3, 31));
}

TEST(DateTimeFiscal, BoundsBelowTheYear400AreRejected)
{
    EXPECT_THAT([] { DateTime::FiscalYearStart(400, FYS_APRIL); }, ThrowsError(invalidDate, "Invalid datetime value"));
    EXPECT_EQ(DateTime::FiscalYearEnd(400, FYS_APRIL), D(400, 3, 31));
    EXPECT_THAT([] { DateTime::FiscalMonthStart(399, 1, FYS_JANUARY); }, ThrowsError(invalidDate));
    EXPECT_THAT([] { DateTime::FiscalWeekStart(399, 1, GregorianDateOptions()); }, ThrowsError(invalidDate));
    EXPECT_THAT([] { DateTime::FiscalYearStart(2000, FiscalStart(13)); }, ThrowsError(invalidDate));
}

TEST(DateTimeFiscal, WeekOneBeginsOnTheFirstDayOfTheFiscalYear)
{
    GregorianDateOptions const sunday(SOW_SUNDAY, FYS_APRIL);
    GregorianDateOptions const monday(SOW_MONDAY, FYS_APRIL);
    struct
    {
        DateTime date;
        GregorianDateOptions const & options;
        int week;
    } const rows[] = {
        {D(2020, 4, 1), sunday, 1},  // a Wednesday
        {D(2020, 4, 4, 23), sunday, 1}, {D(2020, 4, 5), sunday, 2},   {D(2020, 4, 5), monday, 1},
        {D(2020, 4, 6), monday, 2},     {D(2020, 3, 31), sunday, 53},
    };
    for (auto const & row : rows)
        EXPECT_EQ(row.date.GetFiscalWeek(row.options), row.week) << testing::PrintToString(row.date);
    EXPECT_EQ(D(2020, 12, 31).GetFiscalWeek(GregorianDateOptions()), 53);
    EXPECT_EQ(D(2020, 1, 4).GetFiscalWeek(GregorianDateOptions()), 1);
    EXPECT_EQ(D(2020, 1, 5).GetFiscalWeek(GregorianDateOptions()), 2);
}

TEST(DateTimeFiscal, AFiscalWeekMayBeginBeforeItsYear)
{
    GregorianDateOptions const sunday(SOW_SUNDAY, FYS_APRIL);
    GregorianDateOptions const monday(SOW_MONDAY, FYS_APRIL);
    EXPECT_EQ(DateTime::FiscalWeekStart(2021, 1, sunday), D(2020, 3, 29));
    EXPECT_EQ(DateTime::FiscalWeekEnd(2021, 1, sunday), D(2020, 4, 4));
    EXPECT_EQ(DateTime::FiscalWeekStart(2021, 2, sunday), D(2020, 4, 5));
    EXPECT_EQ(DateTime::FiscalWeekStart(2021, 1, monday), D(2020, 3, 30));
    EXPECT_EQ(DateTime::FiscalWeekEnd(2021, 1, monday), D(2020, 4, 5));
    EXPECT_EQ(DateTime::FiscalWeekStart(2021, 0, monday), D(2020, 3, 23));
}

TEST(DateTimeFiscal, ADayOfAFiscalWeekCountsFromSundayWhateverTheOptionsSay)
{
    for (int startOfWeek = 0; startOfWeek <= 7; ++startOfWeek) {
        GregorianDateOptions const options(StartOfWeek(startOfWeek), FYS_APRIL);
        EXPECT_EQ(DateTime::FiscalDayOfWeek(2021, 1, 1, options), D(2020, 3, 29));
        EXPECT_EQ(DateTime::FiscalDayOfWeek(2021, 1, 7, options), D(2020, 4, 4));
        EXPECT_EQ(DateTime::FiscalDayOfWeek(2021, 2, 4, options), D(2020, 4, 8));
    }
}

TEST(DateTimeFiscal, FirstAndLastWeekOfMonthQuarterOrYear)
{
    GregorianDateOptions const january;
    GregorianDateOptions const april(FYS_APRIL);
    struct
    {
        int year, quarter, month;
        GregorianDateOptions const & options;
        int first, last;
    } const rows[] = {
        {-1, -1, -1, january, 1, 53},  // 2012 begins on a Sunday and is a leap year
        {2012, -1, -1, january, 1, 53}, {-1, 1, -1, january, 1, 13},
        {2012, -1, 3, january, 9, 13},  {2012, 4, 3, january, 9, 13},  // a month goes before a quarter
        {-1, -1, -1, april, 1, 53},  // 2011-04-01, a Friday, to 2012-03-31, a Saturday
        {2021, -1, 4, april, 1, 5},  // 2020-04-01, a Wednesday, to 2020-04-30
    };
    for (auto const & row : rows) {
        EXPECT_EQ(DateTime::FirstWeek(row.year, row.quarter, row.month, row.options), row.first)
            << row.year << ' ' << row.quarter << ' ' << row.month;
        EXPECT_EQ(DateTime::LastWeek(row.year, row.quarter, row.month, row.options), row.last)
            << row.year << ' ' << row.quarter << ' ' << row.month;
    }
    EXPECT_THAT([&] { DateTime::FirstWeek(2012, -1, 13, january); }, ThrowsError(invalidDate));
    EXPECT_THAT([&] { DateTime::LastWeek(2012, -1, 13, january); }, ThrowsError(invalidDate));
}

TEST(DateTimeFiscal, DaysSinceTheStartOfTheWeek)
{
    DateTime const thursday = D(2021, 3, 4, 12);
    EXPECT_EQ(thursday.GetDaysSinceStartOfWeek(GregorianDateOptions()), 4);
    EXPECT_EQ(thursday.GetDaysSinceStartOfWeek(ISO8601DateOptions()), 3);
    EXPECT_EQ(thursday.GetDaysSinceStartOfWeek(GregorianDateOptions(SOW_THURSDAY)), 0);
    EXPECT_EQ(thursday.GetDaysSinceStartOfWeek(GregorianDateOptions(SOW_FRIDAY)), 6);
    EXPECT_EQ(DateTime::GetDaysSinceStartOfWeek(1, ISO8601DateOptions()), 6);
    EXPECT_EQ(DateTime::GetDaysSinceStartOfWeek(7, GregorianDateOptions(SOW_NONE)), 0);
    EXPECT_EQ(DateTime::GetDaysSinceStartOfWeek(1, GregorianDateOptions(StartOfWeek(20))), -5);
}

TEST(DateTimeFiscal, BoundsHoldExactlyTheDaysOfTheirPeriod)
{
    for (int start = 1; start <= 12; ++start) {
        FYSValues const fiscalStart = FiscalStart(start);
        for (DateTime day = D(2019, 1, 1); day < D(2021, 1, 1); day += DateTimeSpan::Days(1)) {
            int const year = day.GetFiscalYear(fiscalStart);
            int const quarter = day.GetFiscalQuarter(fiscalStart);
            int const month = day.GetFiscalMonth(fiscalStart);
            EXPECT_TRUE(DateTime::FiscalYearStart(year, fiscalStart) <= day);
            EXPECT_TRUE(day <= DateTime::FiscalYearEnd(year, fiscalStart));
            EXPECT_TRUE(DateTime::FiscalQuarterStart(year, quarter, fiscalStart) <= day);
            EXPECT_TRUE(day <= DateTime::FiscalQuarterEnd(year, quarter, fiscalStart));
            EXPECT_TRUE(DateTime::FiscalMonthStart(year, month, fiscalStart) <= day);
            EXPECT_TRUE(day <= DateTime::FiscalMonthEnd(year, month, fiscalStart));
            for (int startOfWeek = 1; startOfWeek <= 7; ++startOfWeek) {
                GregorianDateOptions const options(StartOfWeek(startOfWeek), fiscalStart);
                int const week = day.GetFiscalWeek(options);
                EXPECT_TRUE(DateTime::FiscalWeekStart(year, week, options) <= day);
                EXPECT_TRUE(day <= DateTime::FiscalWeekEnd(year, week, options));
            }
        }
    }
}
