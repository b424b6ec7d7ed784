#include "velcoredata/data/DateTimeUtils.h"

#include "tests/data/DateTestSupport.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"

#include <gtest/gtest.h>

using namespace test_support;
using enum DatePeriodType;

namespace {

GregorianDateOptions const sundayJanuary;
GregorianDateOptions const april(FYS_APRIL);
GregorianDateOptions const november(FYS_NOVEMBER);
GregorianDateOptions const monday(SOW_MONDAY);
GregorianDateOptions const noStartOfWeek(SOW_NONE);
ISO8601DateOptions const iso;

}  // namespace

TEST(AdjustByDatePeriod, MonthsClampTheDayToTheEndOfTheMonth)
{
    struct
    {
        DateTime date;
        DatePeriodType type;
        long long count;
        DateTime result;
    } const rows[] = {
        {D(2020, 1, 31), Month, 1, D(2020, 2, 29)},    {D(2021, 1, 31), Month, 1, D(2021, 2, 28)},
        {D(2020, 2, 29), Year, 1, D(2021, 2, 28)},     {D(2020, 2, 29), Year, 4, D(2024, 2, 29)},
        {D(2020, 3, 31), Month, -1, D(2020, 2, 29)},   {D(2021, 3, 31), Month, -1, D(2021, 2, 28)},
        {D(2020, 12, 15), Month, 1, D(2021, 1, 15)},   {D(2020, 1, 15), Month, -1, D(2019, 12, 15)},
        {D(2020, 1, 15), Month, -25, D(2017, 12, 15)}, {D(2020, 10, 31), Month, 2, D(2020, 12, 31)},
        {D(2020, 1, 31), Month, 12, D(2021, 1, 31)},   {D(2020, 1, 31), Month, -12, D(2019, 1, 31)},
        {D(2020, 1, 31), Month, 13, D(2021, 2, 28)},   {D(2020, 8, 31), Quarter, 1, D(2020, 11, 30)},
        {D(2020, 5, 31), Quarter, -1, D(2020, 2, 29)}, {D(2020, 5, 31), Year, 0, D(2020, 5, 31)},
    };
    for (auto const & row : rows)
        EXPECT_EQ(AdjustByDatePeriod(row.date, row.type, row.count), row.result)
            << static_cast<int>(row.type) << ' ' << row.count;
}

TEST(AdjustByDatePeriod, TheClockSurvivesAMonthMove)
{
    EXPECT_EQ(AdjustByDatePeriod(D(2020, 1, 31, 13, 14, 15, 0.1234), Month, 1), D(2020, 2, 29, 13, 14, 15, 0.1234));
    EXPECT_EQ(AdjustByDatePeriod(D(2020, 1, 31, 23, 59, 59, 0.9999), Month, 1), D(2020, 2, 29, 23, 59, 59, 0.9999));
}

TEST(AdjustByDatePeriod, DaysAndClockPeriodsAreExactSpans)
{
    DateTime const date = D(2020, 2, 28, 23, 59, 59, 0.5);
    struct
    {
        DatePeriodType type;
        long long count;
        DateTime result;
    } const rows[] = {
        {Week, 1, D(2020, 3, 6, 23, 59, 59, 0.5)},    {Week, -1, D(2020, 2, 21, 23, 59, 59, 0.5)},
        {Day, 2, D(2020, 3, 1, 23, 59, 59, 0.5)},     {Day, -28, D(2020, 1, 31, 23, 59, 59, 0.5)},
        {Hour, 1, D(2020, 2, 29, 0, 59, 59, 0.5)},    {Minute, 1, D(2020, 2, 29, 0, 0, 59, 0.5)},
        {Second, 1, D(2020, 2, 29, 0, 0, 0, 0.5)},    {Second, -60, D(2020, 2, 28, 23, 58, 59, 0.5)},
        {Hour, -48, D(2020, 2, 26, 23, 59, 59, 0.5)},
    };
    for (auto const & row : rows)
        EXPECT_EQ(AdjustByDatePeriod(date, row.type, row.count), row.result)
            << static_cast<int>(row.type) << ' ' << row.count;
}

TEST(AdjustByDatePeriod, AWeekKeepsTheWeekdayAndAnIsoWeekGoesToMonday)
{
    DateTime const thursday = D(2021, 3, 4, 12);
    EXPECT_EQ(AdjustByDatePeriod(thursday, ISOWeek, 1), D(2021, 3, 8, 12));
    EXPECT_EQ(AdjustByDatePeriod(thursday, Week, 1), D(2021, 3, 11, 12));
    EXPECT_EQ(AdjustByDatePeriod(thursday, ISOWeek, 0), D(2021, 3, 1, 12));
    EXPECT_EQ(AdjustByDatePeriod(D(2021, 3, 7, 12), ISOWeek, 0), D(2021, 3, 1, 12));
    EXPECT_EQ(AdjustByDatePeriod(thursday, ISOWeek, -1), D(2021, 2, 22, 12));
}

TEST(AdjustByDatePeriod, IsoYearsKeepTheDayOffsetAndRunOverWithoutAClamp)
{
    EXPECT_EQ(AdjustByDatePeriod(D(2015, 12, 31), ISOYear, 1), D(2017, 1, 5));  // week 53 into a year of 52 weeks
    EXPECT_EQ(AdjustByDatePeriod(D(2015, 1, 1, 6, 30), ISOYear, 1), D(2016, 1, 7, 6, 30));
    EXPECT_EQ(AdjustByDatePeriod(D(2016, 1, 3), ISOYear, 0), D(2016, 1, 3));
    EXPECT_EQ(AdjustByDatePeriod(D(2014, 12, 29), ISOYear, -1), D(2013, 12, 30));
}

TEST(AdjustByDatePeriod, IsoQuartersKeepTheDayOffsetAndRunOverWithoutAClamp)
{
    // ISO year 2015 begins on 2014-12-29 and has 53 weeks; 2016-01-03 is its last day, day 97 of the fourth quarter.
    EXPECT_EQ(AdjustByDatePeriod(D(2014, 12, 29), ISOQuarter, 1), D(2015, 3, 30));
    EXPECT_EQ(AdjustByDatePeriod(D(2014, 12, 29), ISOQuarter, 4), D(2016, 1, 4));
    EXPECT_EQ(AdjustByDatePeriod(D(2016, 1, 4), ISOQuarter, -1), D(2015, 9, 28));
    EXPECT_EQ(AdjustByDatePeriod(D(2016, 1, 3), ISOQuarter, 1), D(2016, 4, 10));
    EXPECT_EQ(AdjustByDatePeriod(D(2016, 1, 3, 23, 59, 59, 0.5), ISOQuarter, 0), D(2016, 1, 3, 23, 59, 59, 0.5));
}

TEST(AdjustByDatePeriod, CalendarCountsAreNarrowedTo32BitsBeforeAndAfterTheirProduct)
{
    DateTime const date = D(2020, 5, 15);
    long long const wraps = 1LL << 32;
    EXPECT_EQ(AdjustByDatePeriod(date, Month, wraps + 1), D(2020, 6, 15));
    EXPECT_EQ(AdjustByDatePeriod(date, Year, wraps + 1), D(2021, 5, 15));
    EXPECT_EQ(AdjustByDatePeriod(date, Quarter, wraps - 1), D(2020, 2, 15));
    EXPECT_EQ(AdjustByDatePeriod(date, Year, 1LL << 30), date);  // 12 x 2^30 is 0 in 32 bits
    EXPECT_EQ(AdjustByDatePeriod(date, ISOWeek, wraps), D(2020, 5, 11));
    EXPECT_EQ(AdjustByDatePeriod(date, ISOYear, wraps), date);
    EXPECT_EQ(AdjustByDatePeriod(date, ISOQuarter, wraps), date);
}

TEST(AdjustByDatePeriod, AResultOutsideTheValidRangeComesBackAsItIs)
{
    DateTime const later = AdjustByDatePeriod(D(9999, 12, 31), Month, 1);
    EXPECT_EQ(later, D(10000, 1, 31));
    EXPECT_FALSE(later.IsValid());
    EXPECT_FALSE(AdjustByDatePeriod(D(9999, 12, 31), Day, 1).IsValid());
    EXPECT_EQ(AdjustByDatePeriod(D(400, 1, 1), Month, -1).GetYearMonthDay(), DateTime::YearMonthDay(399, 12, 1));
}

TEST(FindStartOfPeriod, YearsAndQuartersAreFiscal)
{
    struct
    {
        DateTime date;
        DatePeriodType type;
        GregorianDateOptions const & options;
        DateTime start;
    } const rows[] = {
        {D(2020, 2, 15), Year, april, D(2019, 4, 1)},         {D(2020, 4, 1), Year, april, D(2020, 4, 1)},
        {D(2020, 2, 15), Year, sundayJanuary, D(2020, 1, 1)}, {D(2020, 5, 15), Quarter, april, D(2020, 4, 1)},
        {D(2020, 2, 15), Quarter, november, D(2020, 2, 1)},   {D(2020, 1, 15), Quarter, november, D(2019, 11, 1)},
        {D(2020, 12, 31), Quarter, november, D(2020, 11, 1)}, {D(2020, 12, 31), Quarter, sundayJanuary, D(2020, 10, 1)},
        {D(2020, 3, 31), Quarter, april, D(2020, 1, 1)},
    };
    for (auto const & row : rows)
        EXPECT_EQ(FindStartOfPeriod(row.date, row.type, row.options), row.start) << static_cast<int>(row.type);
}

TEST(FindStartOfPeriod, FinerPeriodsCutWhatIsBelowThem)
{
    DateTime const date = D(2021, 3, 4, 13, 14, 15, 0.1234);  // a Thursday
    struct
    {
        DatePeriodType type;
        DateTime start;
    } const rows[] = {
        {Month, D(2021, 3, 1)},    {Week, D(2021, 2, 28)},          {Day, D(2021, 3, 4)},
        {Hour, D(2021, 3, 4, 13)}, {Minute, D(2021, 3, 4, 13, 14)}, {Second, D(2021, 3, 4, 13, 14, 15)},
        {ISOYear, D(2021, 1, 4)},  {ISOQuarter, D(2021, 1, 4)},
    };
    for (auto const & row : rows)
        EXPECT_EQ(FindStartOfPeriod(date, row.type, sundayJanuary), row.start) << static_cast<int>(row.type);
}

TEST(FindStartOfPeriod, AnIsoWeekBeginsWhereTheOptionsSay)
{
    DateTime const thursday = D(2021, 3, 4, 12);
    EXPECT_EQ(FindStartOfPeriod(thursday, ISOWeek, sundayJanuary), D(2021, 2, 28));
    EXPECT_EQ(FindStartOfPeriod(thursday, ISOWeek, iso), D(2021, 3, 1));
    EXPECT_EQ(FindStartOfPeriod(thursday, ISOWeek, monday), D(2021, 3, 1));
}

TEST(FindStartOfPeriod, AFiscalStartThatIsNoMonthIsRejectedByTheDate)
{
    for (int const number : {0, 13, -1})
        EXPECT_THAT([&] { FindStartOfPeriod(D(2020, 5, 1), Year, GregorianDateOptions(FiscalStart(number))); },
                    ThrowsError("VeltriaException_AutoGen_0xDD90F63D", "Invalid datetime value"));
}

TEST(DatePeriodDifference, OneSecondAcrossNewYearCrossesEveryBoundary)
{
    DateTime const later = D(2021, 1, 1);
    DateTime const earlier = D(2020, 12, 31, 23, 59, 59);
    for (DatePeriodType const type : {Year, Quarter, Month, Day, Hour, Minute, Second}) {
        EXPECT_EQ(DatePeriodDifference(later, earlier, type, sundayJanuary), 1) << static_cast<int>(type);
        EXPECT_EQ(DatePeriodDifference(earlier, later, type, sundayJanuary), -1) << static_cast<int>(type);
    }
    EXPECT_EQ(DatePeriodDifference(later, earlier, Week, sundayJanuary), 0);  // Thursday to Friday
}

TEST(DatePeriodDifference, YearsAndQuartersCountFiscalBoundaries)
{
    EXPECT_EQ(DatePeriodDifference(D(2021, 4, 1), D(2021, 3, 31), Year, april), 1);
    EXPECT_EQ(DatePeriodDifference(D(2021, 1, 1), D(2020, 12, 31), Year, april), 0);
    EXPECT_EQ(DatePeriodDifference(D(2021, 1, 1), D(2020, 12, 31), Month, april), 1);
    EXPECT_EQ(DatePeriodDifference(D(2021, 2, 1), D(2021, 1, 31), Quarter, november), 1);
    EXPECT_EQ(DatePeriodDifference(D(2021, 1, 1), D(2020, 12, 31), Quarter, november), 0);
    EXPECT_EQ(DatePeriodDifference(D(2021, 1, 1), D(2020, 12, 31), Year, iso), 1);
}

TEST(DatePeriodDifference, WeeksCountStartsOfWeekOrBlocksOfSevenDays)
{
    DateTime const saturday = D(2021, 1, 2);
    DateTime const sunday = D(2021, 1, 3);
    EXPECT_EQ(DatePeriodDifference(sunday, saturday, Week, sundayJanuary), 1);
    EXPECT_EQ(DatePeriodDifference(sunday, saturday, Week, monday), 0);
    EXPECT_EQ(DatePeriodDifference(sunday, saturday, Week, noStartOfWeek), 0);
    EXPECT_EQ(DatePeriodDifference(D(2021, 1, 9), saturday, Week, noStartOfWeek), 1);
    EXPECT_EQ(DatePeriodDifference(D(2021, 1, 8, 23), saturday, Week, noStartOfWeek), 0);
    // Calendar days count, not elapsed hours.
    EXPECT_EQ(DatePeriodDifference(D(2021, 1, 9), saturday + DateTimeSpan(0, 23, 0, 0, 0.0), Week, noStartOfWeek), 1);
}

TEST(DatePeriodDifference, IsoPeriodsDoNotReadTheOptions)
{
    DateTime const sunday = D(2016, 1, 3);  // last day of ISO year 2015
    DateTime const nextDay = D(2016, 1, 4);
    for (IDateOptions const * options :
         {static_cast<IDateOptions const *>(&sundayJanuary), static_cast<IDateOptions const *>(&april),
          static_cast<IDateOptions const *>(&noStartOfWeek), static_cast<IDateOptions const *>(&iso)})
    {
        EXPECT_EQ(DatePeriodDifference(nextDay, sunday, ISOYear, *options), 1);
        EXPECT_EQ(DatePeriodDifference(nextDay, sunday, ISOQuarter, *options), 1);
        EXPECT_EQ(DatePeriodDifference(nextDay, sunday, ISOWeek, *options), 1);
        EXPECT_EQ(DatePeriodDifference(sunday, D(2016, 1, 2), ISOWeek, *options), 0);
        EXPECT_EQ(DatePeriodDifference(D(2016, 1, 1), D(2015, 12, 31), ISOYear, *options), 0);
    }
}

TEST(DatePeriodDifference, ValuesHalfTheRangeApartAreAnAssertion)
{
    DateTime const far = DateTime::FromValue(0x8000000000000000);
    EXPECT_THAT([&] { DatePeriodDifference(far, DateTime::FromValue(0), Day, sundayJanuary); },
                ThrowsAssert("0.0 <= diff.ToOleSpan()", "LogicException_LogicAssert_0x5B31E824"));
    EXPECT_THAT([&] { DatePeriodDifference(DateTime::FromValue(0), far, Day, sundayJanuary); },
                ThrowsAssert("0.0 <= diff.ToOleSpan()", "LogicException_LogicAssert_0x5B31E824"));
}

TEST(DatePeriods, ANumberThatIsNoPeriodIsRejectedByEachFunction)
{
    char const * const message = "unexpected DatePeriodType";
    DateTime const date = D(2020, 1, 1);
    for (int const number : {-1, 11, 12, 2147483647}) {
        DatePeriodType const type = PeriodType(number);
        EXPECT_THAT([&] { AdjustByDatePeriod(date, type, 1); },
                    ThrowsErrorOf<VeltriaException>("VeltriaException_AutoGen_0xD0038968", message));
        EXPECT_THAT([&] { FindStartOfPeriod(date, type, sundayJanuary); },
                    ThrowsErrorOf<VeltriaException>("VeltriaException_AutoGen_0x16E59994", message));
        EXPECT_THAT([&] { DatePeriodDifference(date, date, type, sundayJanuary); },
                    ThrowsErrorOf<VeltriaException>("VeltriaException_AutoGen_0xADE0C173", message));
        EXPECT_THAT([&] { DatePeriodDifference(DateTime::OLEEpoch, date, type, sundayJanuary); },
                    ThrowsErrorOf<VeltriaException>("VeltriaException_AutoGen_0xADE0C173", message));
    }
}

TEST(DatePeriods, RebuildingADateBelowTheYear400Throws)
{
    char const * const error = "VeltriaException_AutoGen_0xDD90F63D";
    DateTime const early = DateTime::FromValue(DateTime::s_scaling * 1840000);  // 0325-08-28
    for (DatePeriodType const type : {Year, Quarter, Month, Week, Day, Hour, Minute, Second, ISOWeek})
        EXPECT_THAT([&] { FindStartOfPeriod(early, type, sundayJanuary); },
                    ThrowsError(error, "Invalid datetime value"))
            << static_cast<int>(type);
    for (DatePeriodType const type : {Week, Day, Hour, Minute, Second, ISOWeek})
        EXPECT_THAT([&] { DatePeriodDifference(D(2000, 1, 1), early, type, sundayJanuary); }, ThrowsError(error))
            << static_cast<int>(type);
    for (DatePeriodType const type : {ISOYear, ISOQuarter})
        EXPECT_THAT([&] { AdjustByDatePeriod(early, type, 1); }, ThrowsError(error)) << static_cast<int>(type);
    EXPECT_EQ(DatePeriodDifference(D(2000, 1, 1), early, ISOYear, sundayJanuary), 1999 - 325);
    EXPECT_EQ(FindStartOfPeriod(early, ISOYear, sundayJanuary), DateTime::ISO8601YearStart(325));
    EXPECT_EQ(AdjustByDatePeriod(early, Month, 12).GetYear(), 326);
}

TEST(DatePeriods, HoursMinutesAndSecondsAreTimePeriods)
{
    for (int number = -1; number <= 12; ++number)
        EXPECT_EQ(IsTimePeriod(PeriodType(number)), number == 5 || number == 6 || number == 7) << number;
}

TEST(FiscalConversions, MonthsAndYears)
{
    EXPECT_EQ(ConvertToCalendarMonth(1, FYS_APRIL), 4);
    EXPECT_EQ(ConvertToFiscalMonth(3, FYS_APRIL), 12);
    EXPECT_EQ(ConvertToFiscalYear(2020, 4, FYS_APRIL), 2021);
    EXPECT_EQ(ConvertToFiscalYear(2020, 3, FYS_APRIL), 2020);
    EXPECT_EQ(ConvertToFiscalYear(2020, 12, FYS_JANUARY), 2020);
    EXPECT_EQ(ConvertToCalendarYear(2021, 4, FYS_APRIL), 2020);
    EXPECT_EQ(ConvertToCalendarYear(2021, 3, FYS_APRIL), 2021);
    EXPECT_EQ(ConvertToCalendarYear(2021, 12, FYS_JANUARY), 2021);
}

TEST(FiscalConversions, CalendarAndFiscalMonthsAreInverse)
{
    for (int start = 1; start <= 12; ++start) {
        for (int month = 1; month <= 12; ++month) {
            EXPECT_EQ(ConvertToCalendarMonth(ConvertToFiscalMonth(month, FiscalStart(start)), FiscalStart(start)),
                      month);
            int const fiscalYear = ConvertToFiscalYear(2020, month, FiscalStart(start));
            EXPECT_EQ(ConvertToCalendarYear(fiscalYear, month, FiscalStart(start)), 2020);
        }
    }
}

TEST(FiscalConversions, QuartersHaveThreeMonths)
{
    for (int start = 1; start <= 12; ++start) {
        for (int quarter = 1; quarter <= 4; ++quarter) {
            int const first = GetFirstFiscalMonthInFiscalQuarter(quarter);
            int const last = GetLastFiscalMonthInFiscalQuarter(quarter);
            EXPECT_EQ(first, 3 * quarter - 2);
            EXPECT_EQ(last, 3 * quarter);
            EXPECT_EQ(GetFirstMonthInQuarter(quarter, FiscalStart(start)),
                      ConvertToCalendarMonth(first, FiscalStart(start)));
            EXPECT_EQ(GetLastMonthInQuarter(quarter, FiscalStart(start)),
                      ConvertToCalendarMonth(last, FiscalStart(start)));
        }
    }
}

TEST(FiscalConversions, NumbersOutOfRangeGoThroughTheSameArithmetic)
{
    EXPECT_EQ(ConvertToFiscalMonth(-20, FYS_APRIL), 1);
    EXPECT_EQ(ConvertToFiscalMonth(-13, FYS_APRIL), -4);  // the remainder has the sign of the dividend
    EXPECT_EQ(ConvertToFiscalMonth(1, FiscalStart(20)), -6);
    EXPECT_EQ(ConvertToFiscalYear(2020, 0, FiscalStart(0)), 2021);
    EXPECT_EQ(ConvertToFiscalYear(2147483647, 12, FYS_APRIL), -2147483647 - 1);
    EXPECT_EQ(ConvertToCalendarYear(-2147483647 - 1, 12, FYS_APRIL), 2147483647);
    EXPECT_EQ(GetFirstFiscalMonthInFiscalQuarter(2147483647), 2147483643);
    EXPECT_EQ(GetLastFiscalMonthInFiscalQuarter(2147483647), 2147483645);
}
