// Laws of period arithmetic, on random dates, and its freedom from undefined arithmetic and from the heap.
#include "tests/data/DateTestSupport.h"
#include "tests/support/AllocationCounter.h"
#include "velcoredata/data/DateTimeUtils.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"
#include "velsys/VeltriaException.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace test_support;
using enum DatePeriodType;

namespace {

constexpr int draws = 10000;

DateTime const firstDate = D(410, 1, 1);
DateTime const lastDate = D(9989, 12, 31, 23, 59, 59, 0.9999);

// Gregorian options of every start of week (none included) and fiscal start, or ISO 8601.
class RandomOptions
{
public:
    IDateOptions const & operator()(std::mt19937_64 & random)
    {
        unsigned const choice = static_cast<unsigned>(random() % (8 * 12 + 8));
        if (choice >= 8 * 12)
            return m_iso;
        m_gregorian.SetStartOfWeek(StartOfWeek(static_cast<int>(choice % 8)));
        m_gregorian.SetFiscalYearStart(FiscalStart(static_cast<int>(choice / 8) + 1));
        return m_gregorian;
    }

private:
    GregorianDateOptions m_gregorian;
    ISO8601DateOptions m_iso;
};

}  // namespace

TEST(DatePeriodLaws, ADifferenceUndoesAMoveByMonthsQuartersOrYears)
{
    std::mt19937_64 random(53);
    RandomOptions anyOptions;
    for (int i = 0; i < draws; ++i) {
        DateTime const date = RandomDateTime(random, firstDate, lastDate);
        IDateOptions const & options = anyOptions(random);
        for (auto const & [type, limit] : {std::pair{Month, 100}, {Quarter, 35}, {Year, 9}}) {
            long long const count = std::uniform_int_distribution<long long>(-limit, limit)(random);
            EXPECT_EQ(DatePeriodDifference(AdjustByDatePeriod(date, type, count), date, type, options), count)
                << testing::PrintToString(date) << ' ' << static_cast<int>(type);
        }
    }
}

TEST(DatePeriodLaws, ADifferenceIsAntisymmetric)
{
    std::mt19937_64 random(54);
    RandomOptions anyOptions;
    for (int i = 0; i < draws; ++i) {
        DateTime const a = RandomDateTime(random, firstDate, lastDate);
        DateTime const b = i % 2 == 0 ? RandomDateTime(random, firstDate, lastDate)
                                      : a + DateTimeSpan(static_cast<long long>(random() % 1728000000));
        IDateOptions const & options = anyOptions(random);
        for (int type = 0; type < numberOfPeriodTypes; ++type)
            EXPECT_EQ(DatePeriodDifference(a, b, PeriodType(type), options),
                      -DatePeriodDifference(b, a, PeriodType(type), options))
                << testing::PrintToString(a) << ' ' << testing::PrintToString(b) << ' ' << type;
    }
}

TEST(DatePeriodLaws, TheStartOfAPeriodIsItsOwnStartAndNotLater)
{
    std::mt19937_64 random(55);
    RandomOptions anyOptions;
    for (int i = 0; i < draws; ++i) {
        DateTime const date = RandomDateTime(random, firstDate, lastDate);
        IDateOptions const & options = anyOptions(random);
        for (int type = 0; type < numberOfPeriodTypes; ++type) {
            DateTime const start = FindStartOfPeriod(date, PeriodType(type), options);
            EXPECT_TRUE(start <= date) << testing::PrintToString(date) << ' ' << type;
            EXPECT_EQ(FindStartOfPeriod(start, PeriodType(type), options), start)
                << testing::PrintToString(date) << ' ' << type;
        }
    }
}

TEST(DatePeriodLaws, NoBoundaryLiesBetweenADateAndTheStartOfItsPeriodAndOneLiesBeforeThat)
{
    std::mt19937_64 random(56);
    RandomOptions anyOptions;
    for (int i = 0; i < draws; ++i) {
        DateTime const date = RandomDateTime(random, firstDate, lastDate);
        IDateOptions const & options = anyOptions(random);
        for (int type = 0; type < numberOfPeriodTypes; ++type) {
            // These two count weeks otherwise than FindStartOfPeriod finds them.
            if ((PeriodType(type) == Week && options.GetStartOfWeek() == SOW_NONE) ||
                (PeriodType(type) == ISOWeek && options.GetStartOfWeek() != SOW_MONDAY))
                continue;
            DateTime const start = FindStartOfPeriod(date, PeriodType(type), options);
            EXPECT_EQ(DatePeriodDifference(date, start, PeriodType(type), options), 0)
                << testing::PrintToString(date) << ' ' << type;
            EXPECT_EQ(DatePeriodDifference(date, start - DateTimeSpan(1), PeriodType(type), options), 1)
                << testing::PrintToString(date) << ' ' << type;
        }
    }
}

TEST(DatePeriodLaws, EveryInputHasADefinedAnswerOrAnError)
{
    std::mt19937_64 random(57);
    std::vector<long long> const extremes = {0,
                                             1,
                                             -1,
                                             12,
                                             -13,
                                             std::numeric_limits<int>::max(),
                                             std::numeric_limits<int>::min(),
                                             std::numeric_limits<long long>::max(),
                                             std::numeric_limits<long long>::min(),
                                             0x7FFFFFFF00000000};
    auto const anyNumber = [&] {
        unsigned long long const bits = random();
        switch (bits % 3) {
        case 0: return extremes[bits / 3 % extremes.size()];
        case 1: return static_cast<long long>(random());
        default: return static_cast<long long>(random() % 2000) - 1000;
        }
    };
    int answers = 0;
    int errors = 0;
    auto const ask = [&](auto const & question) {
        try {
            question();
            ++answers;
        } catch (VeltriaException const &) {
            ++errors;
        }
    };
    GregorianDateOptions options;
    for (int i = 0; i < 20000; ++i) {
        auto const a = DateTime::FromValue(i % 2 == 0 ? random() : random() % (2 * DateTime::maxGregorianDate));
        auto const b = DateTime::FromValue(static_cast<unsigned long long>(anyNumber()));
        DatePeriodType const type = PeriodType(static_cast<int>(random() % 13) - 1);
        int const x = static_cast<int>(anyNumber());
        int const y = static_cast<int>(anyNumber());
        options.SetStartOfWeek(StartOfWeek(static_cast<int>(anyNumber())));
        options.SetFiscalYearStart(FiscalStart(static_cast<int>(anyNumber())));
        FYSValues const start = options.GetFiscalYearStart();
        ask([&] { AdjustByDatePeriod(a, type, anyNumber()); });
        ask([&] { FindStartOfPeriod(a, type, options); });
        ask([&] { DatePeriodDifference(a, b, type, options); });
        ask([&] { a.GetFiscalYearMonthDay(start); });
        ask([&] { a.GetFiscalQuarter(start); });
        ask([&] { a.GetFiscalWeek(options); });
        ask([&] { a.GetDaysSinceStartOfWeek(options); });
        ask([&] { DateTime::FiscalYearEnd(x, start); });
        ask([&] { DateTime::FiscalQuarterEnd(x, y, start); });
        ask([&] { DateTime::FiscalMonthEnd(x, y, start); });
        ask([&] { DateTime::FiscalWeekEnd(x, y, options); });
        ask([&] { DateTime::FiscalDayOfWeek(2000, x, y, GregorianDateOptions()); });
        ask([&] { DateTime::FirstWeek(x, y, -1, options); });
        ask([&] { DateTime::LastWeek(x, -1, y, options); });
        ask([&] { return ConvertToFiscalMonth(x, start); });
        ask([&] { return ConvertToCalendarMonth(x, start); });
        ask([&] { return GetFirstMonthInQuarter(x, start); });
        ask([&] { return GetLastMonthInQuarter(x, start); });
    }
    EXPECT_GT(answers, 0);
    EXPECT_GT(errors, 0);
}

TEST(DatePeriodLaws, NothingIsAllocated)
{
    std::mt19937_64 random(58);
    GregorianDateOptions const gregorian(SOW_MONDAY, FYS_APRIL);
    ISO8601DateOptions const iso;
    std::vector<DateTime> dates;
    for (int i = 0; i < 100; ++i)
        dates.push_back(RandomDateTime(random, firstDate, lastDate));

    AllocationCounter const allocations;
    long long sum = 0;
    for (DateTime const & date : dates) {
        for (int type = 0; type < numberOfPeriodTypes; ++type) {
            for (IDateOptions const * options :
                 {static_cast<IDateOptions const *>(&gregorian), static_cast<IDateOptions const *>(&iso)})
            {
                sum += DatePeriodDifference(date, dates.front(), PeriodType(type), *options);
                sum += FindStartOfPeriod(date, PeriodType(type), *options).GetDay();
            }
            sum += AdjustByDatePeriod(date, PeriodType(type), 5).GetDay();
        }
        sum += ConvertToFiscalMonth(date.GetMonth(), FYS_APRIL) + date.GetFiscalWeek(gregorian);
    }
    EXPECT_EQ(allocations.Count(), 0u) << sum;
}
