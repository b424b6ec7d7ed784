#include "velicu/ICUCalendar.h"

#include <gtest/gtest.h>
#include <unicode/gregocal.h>

#include <chrono>
#include <climits>
#include <tuple>

#include "velicu/ScopedStatusFault.h"

namespace VelICU_V2 {

namespace {

using Ymd = std::tuple<int, int, int>;

constexpr double DAY = 86400000.0;

std::unique_ptr<ICUCalendar> CalendarFor(char const * locale)
{
    ICUErrorCode status = U_ZERO_ERROR;
    auto calendar = ICUCalendar::createInstance(*ICULocale::createInstance(locale), status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    return calendar;
}

int Field(ICUCalendar const & calendar, ICUCalendarDateFields field)
{
    ICUErrorCode status = U_ZERO_ERROR;
    int const value = calendar.get(field, status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    return value;
}

Ymd DateOf(ICUCalendar const & calendar)
{
    return {Field(calendar, ICUFieldYear), Field(calendar, ICUFieldMonth) + 1, Field(calendar, ICUFieldDayOfMonth)};
}

double TimeOf(ICUCalendar const & calendar)
{
    ICUErrorCode status = U_ZERO_ERROR;
    double const time = calendar.getTime(status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    return time;
}

std::unique_ptr<ICUCalendar> IsoWeeks(int year, int month, int day)
{
    auto calendar = CalendarFor("en_US");
    calendar->setFirstDayOfWeek(2);
    calendar->setMinimalDaysInFirstWeek(4);
    calendar->clear();
    calendar->set(year, month - 1, day);
    return calendar;
}

}  // namespace

TEST(ICUCalendar, FieldsHaveTheirNumbers)
{
    auto const calendar = CalendarFor("en_US");
    calendar->clear();
    calendar->set(2015, 9, 15, 10, 11, 12);
    calendar->set(ICUFieldMillisecond, 345);
    int const expected[] = {2015, 9, 15, 10, 11, 12, 345, 5, 42, 2015, 288};
    for (int field = 0; field <= 10; ++field)
        EXPECT_EQ(expected[field], Field(*calendar, static_cast<ICUCalendarDateFields>(field))) << field;
    EXPECT_EQ(6, ICUFieldMillisecond);
}

TEST(ICUCalendar, AnUnknownFieldFailsAndSetsNothing)
{
    auto const calendar = CalendarFor("en_US");
    calendar->clear();
    for (int field : {-1, 11, 1000}) {
        ICUErrorCode status = U_ZERO_ERROR;
        EXPECT_EQ(0, calendar->get(static_cast<ICUCalendarDateFields>(field), status));
        EXPECT_EQ(U_ILLEGAL_ARGUMENT_ERROR, status);
        calendar->set(static_cast<ICUCalendarDateFields>(field), 77);
    }
    EXPECT_EQ(0.0, TimeOf(*calendar));
}

TEST(ICUCalendar, IsProlepticGregorianInUtcOnEveryDayOfFourCenturies)
{
    auto const calendar = CalendarFor("en_US");
    for (int day = -200000; day < -50000; day += 7) {
        std::chrono::year_month_day const expected{std::chrono::sys_days{std::chrono::days{day}}};
        ICUErrorCode status = U_ZERO_ERROR;
        calendar->setTime(day * DAY, status);
        ASSERT_EQ(Ymd(static_cast<int>(expected.year()), static_cast<int>(static_cast<unsigned>(expected.month())),
                      static_cast<int>(static_cast<unsigned>(expected.day()))),
                  DateOf(*calendar));
        ASSERT_EQ(0, Field(*calendar, ICUFieldHourOfDay));
    }
    calendar->clear();
    calendar->set(1582, 9, 10);  // a day that the Julian calendar's end left out
    EXPECT_EQ(Ymd(1582, 10, 10), DateOf(*calendar));
}

TEST(ICUCalendar, IsGregorianUnlessTheLocaleNamesAnother)
{
    for (char const * locale : {"th_TH", "fa_IR", "ar_SA", "ja_JP", "en_US", "", "en_US@calendar=gregorian"})
        EXPECT_EQ(ICUGregorianCalendar::getStaticClassID(), CalendarFor(locale)->getDynamicClassID()) << locale;
    for (char const * locale : {"th_TH@calendar=buddhist", "ja_JP@calendar=japanese", "en@calendar=hebrew"})
        EXPECT_NE(ICUGregorianCalendar::getStaticClassID(), CalendarFor(locale)->getDynamicClassID()) << locale;

    auto const buddhist = CalendarFor("th_TH@calendar=buddhist");
    ICUErrorCode status = U_ZERO_ERROR;
    buddhist->setTime(18262 * DAY, status);
    EXPECT_EQ(Ymd(2563, 1, 1), DateOf(*buddhist));
    buddhist->setTime(-141428 * DAY, status);  // 1582-10-14
    EXPECT_EQ(Ymd(2125, 10, 14), DateOf(*buddhist));

    auto const gregorian =
        ICUGregorianCalendar::createInstance(*ICULocale::createInstance("th_TH@calendar=buddhist"), status);
    gregorian->setTime(18262 * DAY, status);
    EXPECT_EQ(Ymd(2020, 1, 1), DateOf(*gregorian));
    EXPECT_EQ(ICUGregorianCalendar::getStaticClassID(),
              ICUGregorianCalendar::createInstance(status)->getDynamicClassID());
}

TEST(ICUCalendar, WeeksAreTheLocales)
{
    struct Row
    {
        char const * locale;
        int firstDay;
        int minimalDays;
    };
    for (Row const & row : {Row{"en_US", 1, 1}, Row{"de_DE", 2, 4}, Row{"ar_EG", 7, 1}, Row{"fr_FR", 2, 4}}) {
        auto const calendar = CalendarFor(row.locale);
        ICUErrorCode status = U_ZERO_ERROR;
        EXPECT_EQ(row.firstDay, calendar->getFirstDayOfWeek(status)) << row.locale;
        EXPECT_EQ(row.minimalDays, calendar->getMinimalDaysInFirstWeek()) << row.locale;
    }
}

TEST(ICUCalendar, WeekSettersIgnoreWhatIsNoDay)
{
    auto const calendar = CalendarFor("en_US");
    ICUErrorCode status = U_ZERO_ERROR;
    calendar->setFirstDayOfWeek(4);
    for (int day : {0, 8, -5, 1000})
        calendar->setFirstDayOfWeek(day);
    EXPECT_EQ(4, calendar->getFirstDayOfWeek(status));
    calendar->setMinimalDaysInFirstWeek(0);
    EXPECT_EQ(1, calendar->getMinimalDaysInFirstWeek());
    calendar->setMinimalDaysInFirstWeek(200);
    EXPECT_EQ(7, calendar->getMinimalDaysInFirstWeek());
}

TEST(ICUCalendar, LeniencyDecidesAboutFieldsOutOfRange)
{
    auto const calendar = CalendarFor("en_US");
    calendar->clear();
    calendar->set(2019, 12, 32, 23, 59, 60);
    EXPECT_EQ(Ymd(2020, 2, 2), DateOf(*calendar));
    EXPECT_TRUE(calendar->isLenient());

    calendar->setLenient(false);
    calendar->clear();
    calendar->set(2019, 12, 1);
    ICUErrorCode status = U_ZERO_ERROR;
    calendar->getTime(status);
    EXPECT_EQ(U_ILLEGAL_ARGUMENT_ERROR, status);
    status = U_ZERO_ERROR;
    calendar->get(ICUFieldYear, status);
    EXPECT_TRUE(ICU_FAILURE(status));
}

TEST(ICUCalendar, ACopyGoesItsOwnWay)
{
    auto const calendar = CalendarFor("en_US");
    calendar->clear();
    calendar->set(2020, 0, 1);
    auto const copy = calendar->clone();
    copy->set(2021, 0, 1);
    EXPECT_EQ(Ymd(2020, 1, 1), DateOf(*calendar));
    EXPECT_EQ(Ymd(2021, 1, 1), DateOf(*copy));
}

TEST(ICUCalendar, CannotBeMadeWithAStatusInFailure)
{
    ICUErrorCode status = U_PARSE_ERROR;
    EXPECT_EQ(nullptr, ICUCalendar::createInstance(status));
    EXPECT_EQ(nullptr, ICUCalendar::createInstance(*ICULocale::getRoot(), status));
    EXPECT_EQ(nullptr, ICUGregorianCalendar::createInstance(status));
    EXPECT_EQ(U_PARSE_ERROR, status);
    status = U_ZERO_ERROR;
    ScopedStatusFault fault(U_MEMORY_ALLOCATION_ERROR);
    EXPECT_EQ(nullptr, ICUCalendar::createInstance(status));
    EXPECT_EQ(U_MEMORY_ALLOCATION_ERROR, status);
}

TEST(ICUCalendar, FiscalPartsStandInTheCalendarsOwnPlaces)
{
    auto const calendar = CalendarFor("en_US");
    struct Row
    {
        int year, quarter, week;
        Ymd date;
    };
    for (Row const & row : {
             Row{2013, 1, 1, Ymd(2013, 1, 1)},     // week 1 begins in December
             Row{2013, 1, 2, Ymd(2013, 1, 6)},     // a Sunday
             Row{2013, 2, 14, Ymd(2013, 4, 1)},    // week 14 begins a day before the quarter
             Row{2013, 2, 20, Ymd(2013, 5, 12)},   // inside
             Row{2013, 1, 20, Ymd(2013, 3, 31)},   // behind the quarter: its last day
             Row{2013, 4, 53, Ymd(2013, 12, 29)},  //
             Row{2016, 4, 54, Ymd(2016, 12, 31)},  // no such week: the last day
             Row{2012, 0, -3, Ymd(2012, 1, 1)},    // held inside 1 to 4 and 1 to 54
             Row{2012, 9, 1, Ymd(2012, 10, 1)},    //
         })
    {
        calendar->setFiscal(row.year, row.quarter, row.week);
        EXPECT_EQ(row.date, DateOf(*calendar)) << row.year << ' ' << row.quarter << ' ' << row.week;
        EXPECT_EQ(row.year, Field(*calendar, ICUFieldYear));
        EXPECT_EQ(0, Field(*calendar, ICUFieldHourOfDay));
        EXPECT_EQ(0, Field(*calendar, ICUFieldMillisecond));
    }
}

TEST(ICUCalendar, FiscalYearQuarterAndWeekAreReadBackWhereTheyMeet)
{
    auto const calendar = CalendarFor("en_US");
    for (int year = 1990; year < 2030; ++year)
        for (int week = 2; week <= 52; ++week)
            for (int quarter = 1; quarter <= 4; ++quarter) {
                calendar->setFiscal(year, quarter, week);
                EXPECT_EQ(year, Field(*calendar, ICUFieldYear));
                EXPECT_EQ(quarter, Field(*calendar, ICUFieldMonth) / 3 + 1);
                if (week > 13 * (quarter - 1) + 2 && week < 13 * quarter) {
                    EXPECT_EQ(week, Field(*calendar, ICUFieldWeekOfYear));
                    EXPECT_EQ(1, Field(*calendar, ICUFieldDayOfWeek));
                }
            }
}

TEST(ICUCalendar, TheFiscalSetterKeepsLeniency)
{
    auto const calendar = CalendarFor("en_US");
    calendar->setLenient(false);
    calendar->setFiscal(2013, 4, 45);
    EXPECT_FALSE(calendar->isLenient());
    EXPECT_EQ(Ymd(2013, 11, 3), DateOf(*calendar));
}

TEST(ICUCalendar, WeekToYearScopeMovesIntoTheYearOfTheWeek)
{
    struct Row
    {
        Ymd from;
        Ymd to;
    };
    for (Row const & row : {
             Row{Ymd(2019, 12, 30), Ymd(2020, 1, 1)},  // week 1 of 2020
             Row{Ymd(2021, 1, 1), Ymd(2020, 12, 31)},  // week 53 of 2020
             Row{Ymd(2021, 1, 3), Ymd(2020, 12, 31)},  //
             Row{Ymd(2021, 1, 4), Ymd(2021, 1, 4)},    // week 1 of its own year
             Row{Ymd(2020, 7, 14), Ymd(2020, 7, 14)},  //
             Row{Ymd(2018, 12, 31), Ymd(2019, 1, 1)},  //
         })
    {
        auto const [year, month, day] = row.from;
        auto const calendar = IsoWeeks(year, month, day);
        calendar->set(ICUFieldHourOfDay, 13);
        int const week = Field(*calendar, ICUFieldWeekOfYear);
        calendar->WeekToYearScope();
        EXPECT_EQ(row.to, DateOf(*calendar));
        EXPECT_EQ(13, Field(*calendar, ICUFieldHourOfDay));
        EXPECT_EQ(week, Field(*calendar, ICUFieldWeekOfYear));
        EXPECT_EQ(Field(*calendar, ICUFieldYear), Field(*calendar, ICUFieldWeekYear));
    }
}

TEST(ICUCalendar, ExtremeArgumentsDoNoHarm)
{
    auto const calendar = CalendarFor("en_US");
    for (int extreme : {INT_MIN, INT_MAX}) {
        ICUErrorCode status = U_ZERO_ERROR;
        calendar->set(extreme, 0, 1);
        calendar->getTime(status);
        calendar->setFiscal(extreme, extreme, extreme);
        calendar->WeekToYearScope();
    }
    ICUErrorCode status = U_ZERO_ERROR;
    calendar->setTime(1e300, status);
    calendar->WeekToYearScope();
}

}  // namespace VelICU_V2
