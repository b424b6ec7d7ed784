#include "velcoredata/string/TCalendar.h"

#include "main/string/CalendarCache.h"
#include "main/string/TCalendarImpl.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/string/TDateTimeFormat.h"
#include "velicu/ScopedStatusFault.h"

namespace {

using VelICU::ScopedStatusFault;

constexpr double DAY = 86400000.0;

std::unique_ptr<TCalendar> CalendarFor(char const * locale)
{
    return TDateTimeFormat(u"yyyy", *VelICU::ICULocale::createInstance(locale)).getCalendar();
}

int Get(TCalendar const & calendar, TCalendar::TCalendarDateFields field)
{
    bool ok = false;
    int const value = calendar.get(field, ok);
    EXPECT_TRUE(ok);
    return value;
}

int Field(TCalendar & calendar, VelICU::ICUCalendarDateFields field)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    return calendar.getImpl().GetCalendar().get(field, status);
}

}  // namespace

TEST(TCalendar, SetFieldsGiveAMoment)
{
    TCalendar calendar;
    calendar.clear();
    EXPECT_EQ(0.0, calendar.getTime());
    calendar.set(2020, 0, 31);
    EXPECT_EQ(18292 * DAY, calendar.getTime());
    EXPECT_EQ(2020, Get(calendar, TCalendar::Year));
    EXPECT_EQ(0, Get(calendar, TCalendar::Month));
    EXPECT_EQ(31, Get(calendar, TCalendar::DayOfMonth));
    calendar.set(2019, 12, 1);
    EXPECT_EQ(18262 * DAY, calendar.getTime());
}

TEST(TCalendar, FieldNumbersAreThoseOfTheWrapper)
{
    EXPECT_EQ(0, TCalendar::Year);
    EXPECT_EQ(1, TCalendar::Month);
    EXPECT_EQ(2, TCalendar::DayOfMonth);
}

TEST(TCalendar, AFieldThatIsNoneOfTheThreeIsAnAssertion)
{
    TCalendar const calendar;
    for (int field : {3, -1, 6, 1000}) {
        bool ok = true;
        EXPECT_THAT([&] { calendar.get(static_cast<TCalendar::TCalendarDateFields>(field), ok); },
                    ThrowsAssert("false", "LogicException_LogicAssert_0x64F53280"));
    }
}

TEST(TCalendar, ABadStatusOfGetIsToldByTheFlag)
{
    TCalendar calendar;
    calendar.getImpl().GetCalendar().setLenient(false);
    calendar.clear();
    calendar.set(2020, 12, 1);
    bool ok = true;
    calendar.get(TCalendar::Year, ok);
    EXPECT_FALSE(ok);
}

TEST(TCalendar, AnImpossibleFieldOfAStrictCalendarIsAnAssertion)
{
    TCalendar calendar;
    calendar.getImpl().GetCalendar().setLenient(false);
    calendar.clear();
    calendar.set(2020, 12, 1);
    EXPECT_THAT([&] { calendar.getTime(); },
                ThrowsAssert("VelICU::ICU_SUCCESS(status)", "LogicException_LogicAssert_0x24915168"));
}

TEST(TCalendar, WeeksCanBeSetAndRead)
{
    TCalendar calendar;
    EXPECT_EQ(SOW_SUNDAY, calendar.getFirstDayOfWeek());
    calendar.setFirstDayOfWeek(SOW_WEDNESDAY);
    calendar.setMinimalDaysInFirstWeek(4);
    EXPECT_EQ(SOW_WEDNESDAY, calendar.getFirstDayOfWeek());
    EXPECT_EQ(4, calendar.getImpl().GetCalendar().getMinimalDaysInFirstWeek());
    EXPECT_EQ(SOW_MONDAY, CalendarFor("de_DE")->getFirstDayOfWeek());
}

TEST(TCalendar, FailuresOfIcuAreAssertions)
{
    {
        ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
        EXPECT_THAT([] { TCalendar calendar; },
                    ThrowsAssert("VelICU::ICU_SUCCESS(status)", "LogicException_LogicAssert_0xAA8CD228"));
    }
    TCalendar calendar;
    {
        ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
        EXPECT_THAT([&] { calendar.getFirstDayOfWeek(); },
                    ThrowsAssert("VelICU::ICU_SUCCESS(status)", "LogicException_LogicAssert_0x8AA125B8"));
    }
    {
        ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
        EXPECT_THAT([&] { calendar.getImpl().set(DateTime(), FYS_APRIL); },
                    ThrowsAssert("VelICU::ICU_SUCCESS(status)", "LogicException_LogicAssert_0x16461F06"));
    }
    auto const buddhist = CalendarFor("th_TH@calendar=buddhist");
    {
        // The moment is worked out first: one operation, or two where the pool has no calendar to give.
        int const before = ICUUtils::detail::CalendarCache::Get().CountWaiting() == 0 ? 2 : 1;
        ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR, before);
        EXPECT_THAT([&] { buddhist->getImpl().set(DateTime(), FYS_JANUARY); },
                    ThrowsAssert("VelICU::ICU_SUCCESS(status)", "LogicException_LogicAssert_0xE21BB022"));
    }
}

TEST(TCalendar, After100000ClearsTheNextOneBuildsANewCalendar)
{
    auto const calendar = CalendarFor("th_TH@calendar=buddhist");
    calendar->setFirstDayOfWeek(SOW_THURSDAY);
    for (int i = 0; i < 100000; ++i)
        calendar->clear();
    calendar->set(2563, 0, 1);
    EXPECT_EQ(18262 * DAY, calendar->getTime());
    EXPECT_EQ(SOW_THURSDAY, calendar->getFirstDayOfWeek());

    calendar->clear();  // an ordinary calendar of the default locale from here on
    EXPECT_EQ(SOW_SUNDAY, calendar->getFirstDayOfWeek());
    calendar->set(2020, 0, 1);
    EXPECT_EQ(18262 * DAY, calendar->getTime());

    // The count starts again.
    calendar->setFirstDayOfWeek(SOW_FRIDAY);
    for (int i = 0; i < 99999; ++i)
        calendar->clear();
    EXPECT_EQ(SOW_FRIDAY, calendar->getFirstDayOfWeek());
    calendar->clear();
    EXPECT_EQ(SOW_SUNDAY, calendar->getFirstDayOfWeek());
}

TEST(TCalendar, ARebuildThatFailsLeavesTheCalendarUsable)
{
    TCalendar calendar;
    for (int i = 0; i < 100000; ++i)
        calendar.clear();
    {
        ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
        EXPECT_THAT([&] { calendar.clear(); },
                    ThrowsAssert("VelICU::ICU_SUCCESS(status)", "LogicException_LogicAssert_0xAA8CD228"));
    }
    calendar.clear();
    EXPECT_EQ(0.0, calendar.getTime());
}

TEST(TCalendarImpl, AGregorianCalendarTakesThePartsAndRoundsTheMilliseconds)
{
    struct Row
    {
        double fraction;
        double milliseconds;
    };
    for (Row const & row : {Row{0.0, 0}, Row{0.0004, 0}, Row{0.0005, 1}, Row{0.4994, 499}, Row{0.4995, 500}}) {
        TCalendar calendar;
        calendar.clear();
        calendar.getImpl().set(DateTime(2020, 2, 29, 12, 30, 15, row.fraction), FYS_JANUARY);
        EXPECT_EQ(18321 * DAY + 45015000.0 + row.milliseconds, calendar.getTime()) << row.fraction;
    }
}

TEST(TCalendarImpl, AThousandMillisecondsCarryIntoTheSecond)
{
    TCalendar calendar;
    calendar.clear();
    calendar.getImpl().set(DateTime(2020, 1, 1, 12, 0, 0, 0.9996), FYS_JANUARY);
    EXPECT_EQ(18262 * DAY + DAY / 2 + 1000.0, calendar.getTime());
    EXPECT_EQ(1, Field(calendar, VelICU::ICUFieldSecond));
    EXPECT_EQ(0, Field(calendar, VelICU::ICUFieldMillisecond));

    // A strict calendar refuses the field.
    calendar.getImpl().GetCalendar().setLenient(false);
    calendar.getImpl().set(DateTime(2020, 1, 1, 12, 0, 0, 0.9996), FYS_JANUARY);
    EXPECT_THAT([&] { calendar.getTime(); }, ThrowsAssert("VelICU::ICU_SUCCESS(status)"));
}

TEST(TCalendarImpl, AnotherCalendarTakesTheMomentInWholeSeconds)
{
    auto const calendar = CalendarFor("th_TH@calendar=buddhist");
    calendar->getImpl().set(DateTime(2020, 1, 1, 12, 0, 59, 0.6), FYS_JANUARY);
    EXPECT_EQ(18262 * DAY + DAY / 2 + 60000.0, calendar->getTime());
    EXPECT_EQ(2563, Get(*calendar, TCalendar::Year));
    calendar->getImpl().set(DateTime(2020, 1, 1, 12, 0, 59, 0.5), FYS_APRIL);
    EXPECT_EQ(18262 * DAY + DAY / 2 + 59000.0, calendar->getTime());
}

TEST(TCalendarImpl, AFiscalYearSetsFiscalYearQuarterAndWeek)
{
    TDateTimeFormat const format(u"yyyy QQQ");
    for (int month = 1; month <= 12; ++month) {
        DateTime const value(2015, month, 10, 0, 0, 0, 0.0);
        for (int start = 2; start <= 12; ++start) {
            auto const fys = static_cast<FYSValues>(start);
            TCalendar calendar;
            calendar.getImpl().set(value, fys);
            TString const expected =
                TString::number(value.GetFiscalYear(fys)) + u" Q" + TString::number(value.GetFiscalQuarter(fys));
            EXPECT_EQ(expected, format.format(calendar)) << month << ' ' << start;
        }
    }
    TCalendar calendar;
    calendar.setFirstDayOfWeek(SOW_MONDAY);
    DateTime const value(2015, 10, 15, 0, 0, 0, 0.0);
    calendar.getImpl().set(value, FYS_APRIL);
    int const week = value.GetFiscalWeek(GregorianDateOptions(SOW_MONDAY, FYS_APRIL));
    EXPECT_EQ(29, week);
    EXPECT_EQ(TString(u"2016 Q3 29"), [&] {
        TDateTimeFormat weeks(u"yyyy QQQ w");
        return weeks.format(calendar);
    }());
}

TEST(TCalendarImpl, WeekToYearScopeIsTheWrappers)
{
    TCalendar calendar;
    calendar.clear();
    calendar.set(2020, 11, 31);  // weeks from Sunday: week 1 of 2021
    calendar.getImpl().WeekToYearScope();
    EXPECT_EQ(2021, Get(calendar, TCalendar::Year));
    EXPECT_EQ(0, Get(calendar, TCalendar::Month));
    EXPECT_EQ(1, Get(calendar, TCalendar::DayOfMonth));
}
