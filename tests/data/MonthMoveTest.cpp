// The short road of a move by months gives what the defining steps give.
#include "main/data/MonthMove.h"

#include "tests/data/DateTestSupport.h"
#include "velsys/VeltriaException.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <optional>

using namespace test_support;

namespace {

template <class Move>
std::optional<DateTime> Outcome(Move const & move, DateTime const & date, int months)
{
    try {
        return move(date, months);
    } catch (VeltriaException const &) {
        return std::nullopt;
    }
}

testing::AssertionResult BothRoadsAgree(DateTime const & date, int months)
{
    if (Outcome(detail::MoveMonths, date, months) == Outcome(detail::MoveMonthsBySteps, date, months))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << testing::PrintToString(date) << " by " << months;
}

}  // namespace

TEST(MonthMove, EveryDayFrom0400To9999ByARandomNumberOfMonths)
{
    std::mt19937_64 random(1);
    DateTime const last = D(9999, 12, 31);
    for (DateTime day = D(400, 1, 1); day <= last; day += DateTimeSpan::Days(1)) {
        unsigned long long const bits = random();
        int const months =
            bits % 4 == 0 ? static_cast<int>(bits / 4 % 240001) - 120000 : static_cast<int>(bits / 4 % 61) - 30;
        DateTime const date = day + DateTimeSpan(static_cast<long long>(random() % DateTime::s_scaling));
        ASSERT_TRUE(BothRoadsAgree(date, months));
    }
}

TEST(MonthMove, EveryDayOfSixYearsByUpTo25Months)
{
    for (DateTime day = D(1999, 1, 1); day <= D(2005, 1, 1); day += DateTimeSpan::Days(1))
        for (int months = -25; months <= 25; ++months)
            ASSERT_TRUE(BothRoadsAgree(day, months));
}

TEST(MonthMove, TheEdgesOfTheShortRoad)
{
    for (std::int32_t const edge : {0, date::FirstIntegerDay, date::LastIntegerDay, 1867157 /* 0400-01-01 */,
                                    5373484 /* 10000-01-01 */, 5738720 /* about 11000 */})
        for (int offset = -800; offset <= 800; offset += 7)
            for (int const months : {0, 1, -1, 11, -11, 12, -12, 13, -13, 24, -24, 1200, -1200, 1200000, -1200000,
                                     1200001, -1200001, 1000000, -1000000})
            {
                auto const dayNumber = static_cast<unsigned long long>(std::max(0, edge + offset));
                ASSERT_TRUE(BothRoadsAgree(DateTime::FromValue(dayNumber * DateTime::s_scaling + 123), months));
            }
}

TEST(MonthMove, AnyValueByAnyNumberOfMonths)
{
    std::mt19937_64 random(2);
    for (int i = 0; i < 300000; ++i) {
        DateTime const date = DateTime::FromValue(i % 3 == 0 ? random() : random() % (8 * DateTime::maxGregorianDate));
        int const months = i % 2 == 0 ? static_cast<int>(random()) : static_cast<int>(random() % 2000) - 1000;
        ASSERT_TRUE(BothRoadsAgree(date, months));
    }
    for (int const months : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        for (unsigned long long const value : {0ull, DateTime::minGregorianDate, DateTime::maxGregorianDate, ~0ull})
            ASSERT_TRUE(BothRoadsAgree(DateTime::FromValue(value), months));
}
