// Calendar arithmetic beside std::chrono. Inputs are 32,768 random days of the years 400 to 9999, more than a branch
// predictor learns.
#include <chrono>
#include <cstdint>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "velcoredata/data/Date.h"

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::int32_t c_unixEpochDay = 2440587;
constexpr int c_count = 32768;

// Day numbers.
std::vector<std::int32_t> const & Inputs()
{
    static std::vector<std::int32_t> const inputs = [] {
        std::mt19937 random(42);
        std::uniform_int_distribution<std::int32_t> day(1867157, 5373483);
        std::vector<std::int32_t> result;
        for (int i = 0; i < c_count; ++i)
            result.push_back(day(random));
        return result;
    }();
    return inputs;
}

// Time per input of an operation on prepared inputs.
template <class Item, class Operation>
void Run(benchmark::State & state, std::vector<Item> const & items, Operation const & operation)
{
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(items.size())))
        for (Item const & item : items)
            benchmark::DoNotOptimize(operation(item));
}

template <class Make>
auto Prepared(Make const & make)
{
    std::vector<decltype(make(Inputs().front()))> items;
    for (std::int32_t dayNumber : Inputs())
        items.push_back(make(dayNumber));
    return items;
}

sys_days SysDay(std::int32_t dayNumber)
{
    return sys_days{days{dayNumber - c_unixEpochDay}};
}

int Sum(year_month_day const & day)
{
    return static_cast<int>(day.year()) + static_cast<int>(static_cast<unsigned>(day.month())) +
           static_cast<int>(static_cast<unsigned>(day.day()));
}

void DayNumberToCivilOurs(benchmark::State & state)
{
    Run(state, Prepared([](std::int32_t day) { return day; }), [](std::int32_t day) {
        detail::CivilDay const civil = date(day).GetCivilDay();
        return civil.year + civil.month + civil.day;
    });
}

void DayNumberToCivilPeer(benchmark::State & state)
{
    Run(state, Prepared(SysDay), [](sys_days day) { return Sum(year_month_day{day}); });
}

void CivilToDayNumberOurs(benchmark::State & state)
{
    Run(state, Prepared([](std::int32_t day) { return year_month_day{SysDay(day)}; }), [](year_month_day const & day) {
        return date::gregoriandate(static_cast<int>(day.year()),
                                   static_cast<std::int8_t>(static_cast<unsigned>(day.month())),
                                   static_cast<std::int8_t>(static_cast<unsigned>(day.day())))
            .GetDayNumber();
    });
}

void CivilToDayNumberPeer(benchmark::State & state)
{
    Run(state, Prepared([](std::int32_t day) { return year_month_day{SysDay(day)}; }),
        [](year_month_day const & day) { return sys_days{day}.time_since_epoch().count(); });
}

}  // namespace

BENCHMARK(DayNumberToCivilOurs)->Name("day number to y/m/d/ours");
BENCHMARK(DayNumberToCivilPeer)->Name("day number to y/m/d/peer:std::chrono");
BENCHMARK(CivilToDayNumberOurs)->Name("y/m/d to day/ours");
BENCHMARK(CivilToDayNumberPeer)->Name("y/m/d to day/peer:std::chrono");
