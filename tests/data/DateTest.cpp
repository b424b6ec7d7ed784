#include "velcoredata/data/Date.h"

#include <chrono>
#include <limits>

#include <gtest/gtest.h>

#include "main/data/CalendarSteps.h"
#include "velcoredata/data/DateTime.h"

namespace steps = detail::calendarsteps;

namespace {

constexpr std::int32_t c_unixEpochDay = 2440587;

DateTime Midnight(std::int32_t dayNumber)
{
    return DateTime::FromValue(static_cast<unsigned long long>(dayNumber) * DateTime::s_scaling);
}

std::int32_t DayNumberOf(std::chrono::year_month_day const & day)
{
    return static_cast<std::int32_t>(std::chrono::sys_days{day}.time_since_epoch().count()) + c_unixEpochDay;
}

// The ISO 8601 week by way of the week's Thursday.
detail::IsoWeek IsoWeekByThursday(std::chrono::sys_days day)
{
    using namespace std::chrono;
    sys_days const thursday = day - (weekday{day} - Monday) + days{3};
    year const isoYear = year_month_day{thursday}.year();
    return {static_cast<int>(isoYear), static_cast<int>((thursday - sys_days{isoYear / January / 1}).count() / 7 + 1)};
}

}  // namespace

TEST(Date, EveryDayOfTheYears400To9999AgreesWithTheStandardCalendar)
{
    using namespace std::chrono;
    std::int32_t const first = DayNumberOf(year{400} / January / 1);
    std::int32_t const last = DayNumberOf(year{9999} / December / 31);
    EXPECT_EQ(last, 5373483);
    for (std::int32_t number = first; number <= last; ++number) {
        sys_days const day{days{number - c_unixEpochDay}};
        year_month_day const expected{day};
        weekday const expectedWeekday{day};
        detail::IsoWeek const expectedWeek = IsoWeekByThursday(day);
        DateTime const actual = Midnight(number);
        DateTime::YearMonthDay const civil = actual.GetYearMonthDay();
        bool const isEqual =
            civil.year == static_cast<int>(expected.year()) &&
            civil.month == static_cast<int>(static_cast<unsigned>(expected.month())) &&
            civil.day == static_cast<int>(static_cast<unsigned>(expected.day())) && actual.GetYear() == civil.year &&
            actual.GetMonth() == civil.month && actual.GetDay() == civil.day &&
            date::gregoriandate(civil.year, static_cast<std::int8_t>(civil.month), static_cast<std::int8_t>(civil.day))
                    .GetDayNumber() == number &&
            actual.GetDayOfWeek() == static_cast<int>(expectedWeekday.c_encoding()) + 1 &&
            actual.GetISO8601DayOfWeek() == static_cast<int>(expectedWeekday.iso_encoding()) &&
            actual.GetISO8601Year() == expectedWeek.year && actual.GetISO8601Week() == expectedWeek.week &&
            actual.GetDayOfYear() == (day - sys_days{expected.year() / January / 1}).count() + 1;
        ASSERT_TRUE(isEqual) << "day number " << number;
    }
}

TEST(Date, EveryDayNumberDecomposesByTheDefiningSteps)
{
    for (std::int32_t number = 0; number <= date::LastIntegerDay + 1000; ++number) {
        detail::CivilDay const expected = steps::Civil(number);
        detail::CivilDay const actual = date(number).GetCivilDay();
        ASSERT_TRUE(actual.year == expected.year && actual.month == expected.month && actual.day == expected.day)
            << "day number " << number;
        ASSERT_EQ(date(number).GetYear(), expected.year) << "day number " << number;
    }
}

TEST(Date, EveryDayNumberIsInTheIsoWeekOfTheDefiningSteps)
{
    for (std::int32_t number = 0; number <= date::LastIntegerDay + 1000; ++number) {
        detail::IsoWeek const expected = steps::Iso(number);
        detail::IsoWeek const actual = date(number).GetIsoWeek();
        ASSERT_TRUE(actual.year == expected.year && actual.week == expected.week) << "day number " << number;
    }
}

TEST(Date, EveryMonthComposesByTheDefiningSteps)
{
    for (std::int32_t year = -2000; year <= 34000; ++year)
        for (int month = year % 100 == 0 ? -128 : -3; month <= (year % 100 == 0 ? 127 : 16); ++month)
            for (int day : {-128, -1, 0, 1, 15, 28, 29, 30, 31, 32, 127}) {
                auto const m = static_cast<std::int8_t>(month);
                auto const d = static_cast<std::int8_t>(day);
                ASSERT_EQ(date::gregoriandate(year, m, d).GetDayNumber(), steps::DayNumber(year, m, d))
                    << year << '-' << month << '-' << day;
            }
}

TEST(Date, ExtremeArgumentsAnswerByTheDefiningSteps)
{
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
    for (std::int32_t value : {lowest, lowest + 1, -1, 0, highest - 1, highest}) {
        EXPECT_EQ(date(value).GetCivilDay().year, steps::Civil(value).year);
        EXPECT_EQ(date(value).GetIsoWeek().week, steps::Iso(value).week);
        EXPECT_EQ(date::gregoriandate(value, -128, 127).GetDayNumber(), steps::DayNumber(value, -128, 127));
        EXPECT_EQ(date::gregoriandate(value, 1, 1).GetDayNumber(), steps::DayNumber(value, 1, 1));
    }
}

TEST(Date, TheCalendarIsReadCorrectlyFrom0300March2Up)
{
    detail::CivilDay const first = date(1830692).GetCivilDay();
    EXPECT_EQ(first.year, 300);
    EXPECT_EQ(first.month, 3);
    EXPECT_EQ(first.day, 2);
    EXPECT_GT(date(1830691).GetCivilDay().year, 8000000);
}

TEST(Date, NegativeYearsAreCountedWithoutAYearZero)
{
    EXPECT_EQ(date::gregoriandate(-1, 6, 1).GetDayNumber(), date::gregoriandate(0, 6, 1).GetDayNumber());
    EXPECT_EQ(date::gregoriandate(-4, 3, 1).GetDayNumber(), steps::DayNumber(-4, 3, 1));
}

TEST(Date, ADayOutsideItsMonthCountsOn)
{
    EXPECT_EQ(date::gregoriandate(2015, 2, 29).GetDayNumber(), date::gregoriandate(2015, 3, 1).GetDayNumber());
    EXPECT_EQ(date::gregoriandate(2015, 1, 0).GetDayNumber(), date::gregoriandate(2014, 12, 31).GetDayNumber());
}
