// A mixed column as text: value text of UTF-16 in one buffer beside JSON of UTF-8. Times are those of the whole column.

#include "velcoredata/parser/DataValueFormatter.h"

#include <benchmark/benchmark.h>

#include <nlohmann/json.hpp>

#include <random>
#include <string>
#include <vector>

#include "benchmarks/parser/MixedColumn.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/Tuple.h"

namespace {

using benchmarks::Cell;

std::vector<DataValue> Values()
{
    struct Make
    {
        DataValue operator()(std::nullptr_t) const { return DataValue(DataValueTypes::Null, DataType::Real); }
        DataValue operator()(bool value) const { return DataValue(value); }
        DataValue operator()(long long value) const { return DataValue(value); }
        DataValue operator()(double value) const { return DataValue(value); }
        DataValue operator()(std::string const & text) const
        {
            return DataValue(GetBinaryCollation(), TString::fromStdString(text));
        }
        DataValue operator()(benchmarks::Day const & day) const
        {
            return DataValue(DateTime(day.year, day.month, day.day, 0, 0, 0, 0.0), DataType::Date);
        }
    };
    std::vector<DataValue> values;
    for (Cell const & cell : benchmarks::MixedColumn())
        values.push_back(std::visit(Make(), cell));
    return values;
}

// The column as one tuple: commas and parentheses of its members are escaped.
void Ours(benchmark::State & state)
{
    DataValue const column(RefCntPtr<Tuple, RefCntObject>(new Tuple(Values())));
    DataValueFormatter::FormatOptions const options;
    for (auto _ : state)
        benchmark::DoNotOptimize(DataValueFormatter::Format(column, options));
}

void Append(benchmark::State & state)
{
    std::vector<DataValue> const values = Values();
    DataValueFormatter::FormatOptions const options;
    for (auto _ : state) {
        TString text;
        for (DataValue const & value : values) {
            DataValueFormatter::AppendTo(text, value, options);
            text += u',';
        }
        benchmark::DoNotOptimize(text);
    }
}

// A text for each value.
void Each(benchmark::State & state)
{
    std::vector<DataValue> const values = Values();
    DataValueFormatter::FormatOptions const options;
    for (auto _ : state)
        for (DataValue const & value : values)
            benchmark::DoNotOptimize(DataValueFormatter::Format(value, options));
}

void Nlohmann(benchmark::State & state)
{
    nlohmann::json array = nlohmann::json::array();
    for (Cell const & cell : benchmarks::MixedColumn())
        array.push_back(std::visit(
            [](auto const & value) {
                if constexpr (std::is_same_v<decltype(value), benchmarks::Day const &>)
                    return nlohmann::json(value.Text());
                else
                    return nlohmann::json(value);
            },
            cell));
    for (auto _ : state)
        benchmark::DoNotOptimize(array.dump());
}

BENCHMARK(Ours)->Name("value to interchange text (mixed column)/ours");
BENCHMARK(Nlohmann)->Name("value to interchange text (mixed column)/peer:nlohmann::json");
BENCHMARK(Append)->Name("value to interchange text (mixed column)/appended one by one");
BENCHMARK(Each)->Name("value to interchange text (mixed column)/a text for each value");

}  // namespace
