// What is made without a check is what the constructor from parts makes.
#include "main/data/WholeDates.h"

#include "tests/data/DateTestSupport.h"
#include "tests/support/ErrorMatchers.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

using namespace test_support;

namespace {

template <class Call>
std::optional<DateTime> Outcome(Call const & call)
{
    try {
        return call();
    } catch (VeltriaException const &) {
        return std::nullopt;
    }
}

testing::AssertionResult CutsLikeTheConstructor(DateTime const & value)
{
    DateTime::YearMonthDay const d = value.GetYearMonthDay();
    int const h = value.GetHour(), m = value.GetMinute(), s = value.GetSecond();
    for (DatePeriodType const unit :
         {DatePeriodType::Day, DatePeriodType::Hour, DatePeriodType::Minute, DatePeriodType::Second})
    {
        auto const expected = Outcome([&] {
            return DateTime(d.year, d.month, d.day, unit >= DatePeriodType::Hour ? h : 0,
                            unit >= DatePeriodType::Minute ? m : 0, unit >= DatePeriodType::Second ? s : 0, 0.0);
        });
        if (Outcome([&] { return detail::CutTo(value, unit); }) != expected)
            return testing::AssertionFailure()
                   << testing::PrintToString(value) << " to unit " << static_cast<int>(unit);
    }
    return testing::AssertionSuccess();
}

}  // namespace

TEST(WholeDates, EveryMonthOfEveryYearAndTheMonthsBeyond)
{
    for (int year = -10; year <= 10100; ++year)
        for (int const month : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12})
            ASSERT_EQ(Outcome([&] { return detail::FirstOfMonth(year, month); }),
                      Outcome([&] { return DateTime(year, month, 1, 0, 0, 0, 0.0); }))
                << year << ' ' << month;
    for (int const month : {0, 13, -1, 257, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_THAT([&] { detail::FirstOfMonth(2000, month); }, ThrowsError("VeltriaException_AutoGen_0xDD90F63D"))
            << month;
}

TEST(WholeDates, DaysFrom0399To10000AreCutLikeTheConstructor)
{
    std::mt19937_64 random(4);
    for (unsigned long long day = 1867157 - 400; day < 5373484 + 400; ++day) {
        if (day % 16 != 0 && day > 1867157 + 400 && day < 5373484 - 400)
            continue;
        ASSERT_TRUE(
            CutsLikeTheConstructor(DateTime::FromValue(day * DateTime::s_scaling + random() % DateTime::s_scaling)));
        ASSERT_TRUE(CutsLikeTheConstructor(DateTime::FromValue(day * DateTime::s_scaling)));
        ASSERT_TRUE(CutsLikeTheConstructor(DateTime::FromValue((day + 1) * DateTime::s_scaling - 1)));
    }
}

TEST(WholeDates, AnyValueIsCutLikeTheConstructor)
{
    std::mt19937_64 random(5);
    for (int i = 0; i < 3000; ++i)
        ASSERT_TRUE(CutsLikeTheConstructor(
            DateTime::FromValue(i % 2 == 0 ? random() : random() % (2 * DateTime::maxGregorianDate))));
}
