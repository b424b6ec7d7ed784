// The peer of value text that Boost has from 1.75 on.

#include <boost/json/src.hpp>

#include <benchmark/benchmark.h>

#include "benchmarks/parser/MixedColumn.h"

namespace {

void BoostJson(benchmark::State & state)
{
    boost::json::array array;
    for (benchmarks::Cell const & cell : benchmarks::MixedColumn())
        array.push_back(std::visit(
            [](auto const & value) {
                if constexpr (std::is_same_v<decltype(value), benchmarks::Day const &>)
                    return boost::json::value(boost::json::string(value.Text()));
                else if constexpr (std::is_same_v<decltype(value), std::string const &>)
                    return boost::json::value(boost::json::string(value));
                else
                    return boost::json::value(value);
            },
            cell));
    for (auto _ : state)
        benchmark::DoNotOptimize(boost::json::serialize(array));
}

BENCHMARK(BoostJson)->Name("value to interchange text (mixed column)/peer:boost::json");

}  // namespace
