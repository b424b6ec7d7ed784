#include "velcoredata/data/DateOptionsUtils.h"

#include "tests/data/DateOptionsTestSupport.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

using namespace DateOptionsUtils;
using test_support::Numbers;
using test_support::NumbersFrom;

TEST(DateOptionsUtils, EveryTypeButIso8601MakesDefaultGregorianOptions)
{
    EXPECT_TRUE(*CreateDateOptionsForCalendarType(CalendarType::ISO8601) == ISO8601DateOptions());
    for (int const type : {0, 2, -1}) {
        auto const options = CreateDateOptionsForCalendarType(static_cast<CalendarType>(type));
        EXPECT_NE(dynamic_cast<GregorianDateOptions const *>(options.get()), nullptr);
        EXPECT_TRUE(*options == GregorianDateOptions());
    }
}

TEST(DateOptionsUtils, ListsStandOneBehindTheOther)
{
    EXPECT_EQ(Numbers(GetAllBinDateAggregations(false)), NumbersFrom(14, 17));
    EXPECT_EQ(Numbers(GetAllBinDateAggregations(true)), (std::vector{14, 15, 16, 17, 26, 27, 28, 29}));
    EXPECT_EQ(Numbers(GetAllTruncDateAggregations(false)), NumbersFrom(30, 34));
    EXPECT_EQ(Numbers(GetAllTruncDateAggregations(true)), (std::vector{30, 31, 32, 33, 34, 38, 39, 40, 41}));
    EXPECT_EQ(Numbers(GetAllUncommonDateAggregations(false)), (std::vector{21, 22, 25, 23, 24, 25}));
    EXPECT_EQ(Numbers(GetAllUncommonDateAggregations(true)), (std::vector{21, 22, 25, 23, 24, 25}));
}

TEST(DateOptionsUtils, InstancesAreSortedOnceEachAndWithout25)
{
    std::vector<int> binOfBoth = NumbersFrom(14, 24);
    for (int const number : NumbersFrom(26, 29))
        binOfBoth.push_back(number);
    EXPECT_EQ(Numbers(GetAllBinInstanceAggregations(false)), NumbersFrom(14, 24));
    EXPECT_EQ(Numbers(GetAllBinInstanceAggregations(true)), binOfBoth);
    EXPECT_EQ(Numbers(GetAllTruncInstanceAggregations(false)), NumbersFrom(30, 37));
    EXPECT_EQ(Numbers(GetAllTruncInstanceAggregations(true)), NumbersFrom(30, 41));
}

TEST(DateOptionsUtils, ManyThreadsMayAskAtOnce)
{
    std::vector<std::thread> threads;
    std::vector<std::vector<AggType>> answers(4);
    for (auto & answer : answers)
        threads.emplace_back([&answer] {
            for (int i = 0; i < 100; ++i) {
                answer = GetAllBinInstanceAggregations(true);
                GregorianDateOptions().GetHierarchy(DateDataType::Date, DateComputationKind::Trunc);
                ISO8601DateOptions().GetHierarchy(DateDataType::Date, DateComputationKind::Trunc);
            }
        });
    for (std::thread & thread : threads)
        thread.join();
    for (auto const & answer : answers)
        EXPECT_EQ(answer, answers.front());
}
