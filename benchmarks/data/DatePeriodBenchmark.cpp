// Calendar periods beside std::chrono. Both sides do the whole job on the same representation: take the day out of a
// count of ticks, compute with it, and (but for the ISO week) put the clock back.

#include "velcoredata/data/DateTime.h"
#include "velcoredata/data/DateTimeUtils.h"
#include "velcoredata/data/GregorianDateOptions.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <random>
#include <vector>

namespace {

using namespace std::chrono;

// More inputs than a branch predictor can learn.
constexpr std::size_t inputs = 1 << 16;

struct Input
{
    DateTime date;
    int months;
};

std::vector<Input> const & Inputs()
{
    static std::vector<Input> const all = [] {
        std::mt19937_64 random(3);
        std::uniform_int_distribution<unsigned long long> anyDate(
            DateTime(1900, 1, 1, 0, 0, 0, 0.0).GetRepresentation(),
            DateTime(2100, 1, 1, 0, 0, 0, 0.0).GetRepresentation());
        std::uniform_int_distribution<int> anyMonths(-120, 120);
        std::vector<Input> made;
        for (std::size_t i = 0; i < inputs; ++i)
            made.push_back({DateTime::FromValue(anyDate(random)), anyMonths(random)});
        return made;
    }();
    return all;
}

constexpr long long unixEpoch = 2440587;

struct ChronoDateTime
{
    sys_days day;
    unsigned long long ticks;

    explicit ChronoDateTime(DateTime const & value)
        : day(days(static_cast<int>(value.GetRepresentation() / DateTime::s_scaling) - unixEpoch)),
          ticks(value.GetRepresentation() % DateTime::s_scaling)
    {}
};

unsigned long long Representation(sys_days day, unsigned long long ticks)
{
    return static_cast<unsigned long long>(day.time_since_epoch().count() + unixEpoch) * DateTime::s_scaling + ticks;
}

unsigned long long ChronoAddMonths(Input const & input)
{
    ChronoDateTime const from(input.date);
    year_month_day to = year_month_day(from.day) + months(input.months);
    if (!to.ok())
        to = to.year() / to.month() / last;
    return Representation(sys_days(to), from.ticks);
}

int ChronoISOWeek(DateTime const & date)
{
    sys_days const thursday = ChronoDateTime(date).day;
    sys_days const nearest = thursday - (weekday(thursday) - Monday) + days(3);
    year const isoYear = year_month_day(nearest).year();
    int const dayOfYear = static_cast<int>((nearest - sys_days(isoYear / January / 1)).count());
    return dayOfYear / 7 + 1;
}

unsigned long long ChronoStartOfQuarter(DateTime const & date)
{
    year_month_day const day(ChronoDateTime(date).day);
    month const first((static_cast<unsigned>(day.month()) - 1) / 3 * 3 + 1);
    return Representation(sys_days(day.year() / first / 1), 0);
}

unsigned long long ChronoStartOfWeek(DateTime const & date)
{
    sys_days const day = ChronoDateTime(date).day;
    return Representation(day - (weekday(day) - Sunday), 0);
}

template <class Question>
void Ask(benchmark::State & state, Question const & question)
{
    std::vector<Input> const & all = Inputs();
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(question(all[i]));
        i = (i + 1) % inputs;
    }
}

void MonthAddOurs(benchmark::State & state)
{
    Ask(state, [](Input const & input) { return AdjustByDatePeriod(input.date, DatePeriodType::Month, input.months); });
}
void MonthAddChrono(benchmark::State & state)
{
    Ask(state, ChronoAddMonths);
}

void ISOWeekOurs(benchmark::State & state)
{
    Ask(state, [](Input const & input) { return input.date.GetISO8601Week(); });
}
void ISOWeekChrono(benchmark::State & state)
{
    Ask(state, [](Input const & input) { return ChronoISOWeek(input.date); });
}

GregorianDateOptions const options;

void StartOfQuarterOurs(benchmark::State & state)
{
    Ask(state, [](Input const & input) { return FindStartOfPeriod(input.date, DatePeriodType::Quarter, options); });
}
void StartOfQuarterChrono(benchmark::State & state)
{
    Ask(state, [](Input const & input) { return ChronoStartOfQuarter(input.date); });
}

void StartOfWeekOurs(benchmark::State & state)
{
    Ask(state, [](Input const & input) { return FindStartOfPeriod(input.date, DatePeriodType::Week, options); });
}
void StartOfWeekChrono(benchmark::State & state)
{
    Ask(state, [](Input const & input) { return ChronoStartOfWeek(input.date); });
}

// A peer that gives other answers would be no peer.
bool const sameAnswers = [] {
    for (Input const & input : Inputs()) {
        DateTime const & date = input.date;
        if (AdjustByDatePeriod(date, DatePeriodType::Month, input.months).GetRepresentation() !=
                ChronoAddMonths(input) ||
            date.GetISO8601Week() != ChronoISOWeek(date) ||
            FindStartOfPeriod(date, DatePeriodType::Quarter, options).GetRepresentation() !=
                ChronoStartOfQuarter(date) ||
            FindStartOfPeriod(date, DatePeriodType::Week, options).GetRepresentation() != ChronoStartOfWeek(date))
            std::abort();
    }
    return true;
}();

BENCHMARK(MonthAddOurs)->Name("month add/ours");
BENCHMARK(MonthAddChrono)->Name("month add/peer:std::chrono");
BENCHMARK(ISOWeekOurs)->Name("ISO week/ours");
BENCHMARK(ISOWeekChrono)->Name("ISO week/peer:std::chrono");
BENCHMARK(StartOfQuarterOurs)->Name("start of quarter/ours");
BENCHMARK(StartOfQuarterChrono)->Name("start of quarter/peer:std::chrono");
BENCHMARK(StartOfWeekOurs)->Name("start of week/ours");
BENCHMARK(StartOfWeekChrono)->Name("start of week/peer:std::chrono");

}  // namespace
