// Casting a column of 1,000,000 texts of which every second one, on average, is no number, beside a column of numbers
// alone: a failing cast is not to cost an exception.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <random>
#include <vector>

#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/utility/DataValueOperators.h"

namespace {

constexpr std::size_t kTexts = 1'000'000;

std::vector<DataValue> Column(bool halfBad)
{
    static constexpr char const * bad[] = {"Paris",   "n/a",        "12 apples", "2020-01-02 10:00",
                                           "$12.50",  "1,234",      "unknown",   "",
                                           "1.2.3.4", "2020-01-02", "10:30",     "\xE6\x9D\xB1\xE4\xBA\xAC"};
    std::mt19937_64 random(1);
    Collation const collation = GetBinaryCollation();
    std::vector<DataValue> column;
    column.reserve(kTexts);
    char buffer[40];
    while (column.size() < kTexts) {
        auto const draw = random();
        double const unit = static_cast<double>(draw >> 11) * 0x1p-53;
        if (halfBad && (draw & 1) != 0)
            std::snprintf(buffer, sizeof buffer, "%s", bad[(draw >> 1) % std::size(bad)]);
        else if ((draw & 2) != 0)
            std::snprintf(buffer, sizeof buffer, "%.2f", unit * 1e6);
        else
            std::snprintf(buffer, sizeof buffer, "%d", static_cast<int>(unit * 1e9));
        column.emplace_back(collation, TString::fromUtf8(buffer));
    }
    return column;
}

void CastColumn(benchmark::State & state, bool halfBad, DataType target)
{
    std::vector<DataValue> const column = Column(halfBad);
    DataValueOperators const operators;
    for (auto _ : state)
        for (DataValue const & text : column)
            benchmark::DoNotOptimize(operators.ExplicitCast(text, target));
}

BENCHMARK_CAPTURE(CastColumn, , true, DataType::Real)
    ->Name("cast of 1 M texts, half of them no numbers, to Real/ours")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CastColumn, , false, DataType::Real)
    ->Name("cast of 1 M texts, half of them no numbers, to Real/peer:a column of numbers")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CastColumn, , true, DataType::Integer)
    ->Name("cast of 1 M texts, half of them no numbers, to Integer/ours")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CastColumn, , false, DataType::Integer)
    ->Name("cast of 1 M texts, half of them no numbers, to Integer/peer:a column of numbers")
    ->Unit(benchmark::kMillisecond);

}  // namespace
