// Copying, sorting, comparing and hashing values, beside the std::variant that a user would write instead.
#include <benchmark/benchmark.h>

#include <QtCore/QVariant>

#include <boost/functional/hash.hpp>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <variant>
#include <vector>

#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"

namespace {

using Text = std::shared_ptr<std::u16string const>;
using Variant = std::variant<std::int64_t, double, Text>;

constexpr std::size_t kInputs = 32768;

std::vector<std::int64_t> Numbers(std::size_t count)
{
    std::mt19937_64 random(42);
    std::vector<std::int64_t> numbers(count);
    for (auto & number : numbers)
        number = static_cast<std::int64_t>(random());
    return numbers;
}

std::vector<std::u16string> Texts(std::size_t count)
{
    std::mt19937_64 random(43);
    std::vector<std::u16string> texts(count);
    for (auto & text : texts) {
        text = u"customer ";
        for (auto left = random() % 1000000; left != 0; left /= 10)
            text += static_cast<char16_t>(u'0' + left % 10);
    }
    return texts;
}

template <class Value>
std::vector<Value> Integers(std::size_t count)
{
    std::vector<Value> values;
    values.reserve(count);
    for (std::int64_t const number : Numbers(count))
        values.emplace_back(number);
    return values;
}

std::vector<DataValue> StringValues(std::size_t count)
{
    std::vector<DataValue> values;
    values.reserve(count);
    for (std::u16string const & text : Texts(count))
        values.emplace_back(GetBinaryCollation(), TString::fromStdU16String(text));
    return values;
}

std::vector<Variant> StringVariants(std::size_t count)
{
    std::vector<Variant> values;
    values.reserve(count);
    for (std::u16string const & text : Texts(count))
        values.emplace_back(std::make_shared<std::u16string const>(text));
    return values;
}

std::vector<QVariant> StringQVariants(std::size_t count)
{
    std::vector<QVariant> values;
    values.reserve(static_cast<std::size_t>(count));
    for (std::u16string const & text : Texts(count))
        values.emplace_back(QString::fromStdU16String(text));
    return values;
}

// Copies every value of the input and destroys the copy.
template <class Value>
void CopyAndDestroy(benchmark::State & state, std::vector<Value> const & values)
{
    for (auto _ : state)
        for (Value const & value : values) {
            Value copy(value);
            benchmark::DoNotOptimize(copy);
        }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(values.size()));
}

template <class Value, class Less>
void Sort(benchmark::State & state, std::vector<Value> const & values, Less less)
{
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<Value> sorted(values);
        state.ResumeTiming();
        std::sort(sorted.begin(), sorted.end(), less);
        benchmark::DoNotOptimize(sorted.data());
        state.PauseTiming();
        sorted = {};
        state.ResumeTiming();
    }
}

template <class Value, class Equal>
void CompareNeighbours(benchmark::State & state, std::vector<Value> const & values, Equal equal)
{
    for (auto _ : state)
        for (std::size_t i = 0; i + 1 < values.size(); ++i)
            benchmark::DoNotOptimize(equal(values[i], values[i + 1]));
}

template <class Value, class Hash>
void HashAll(benchmark::State & state, std::vector<Value> const & values, Hash hash)
{
    for (auto _ : state)
        for (Value const & value : values)
            benchmark::DoNotOptimize(hash(value));
}

bool LessVariant(Variant const & a, Variant const & b)
{
    auto const * const x = std::get_if<Text>(&a);
    auto const * const y = std::get_if<Text>(&b);
    return x != nullptr && y != nullptr ? **x < **y : a < b;
}

bool EqualVariant(Variant const & a, Variant const & b)
{
    auto const * const x = std::get_if<Text>(&a);
    auto const * const y = std::get_if<Text>(&b);
    return x != nullptr && y != nullptr ? **x == **y : a == b;
}

std::size_t HashVariant(Variant const & value)
{
    auto const * const text = std::get_if<Text>(&value);
    if (text != nullptr)
        return boost::hash<std::u16string>()(**text);
    auto const * const number = std::get_if<std::int64_t>(&value);
    return number != nullptr ? boost::hash<std::int64_t>()(*number) : boost::hash<double>()(std::get<double>(value));
}

constexpr auto kLess = [](DataValue const & a, DataValue const & b) { return a < b; };
constexpr auto kEqual = [](DataValue const & a, DataValue const & b) { return a == b; };
constexpr auto kHash = [](DataValue const & value) { return value.Hash(); };

// Strings that repeat, shared as an intern table shares them: a thousand texts over a hundred thousand rows.
template <class Value>
std::vector<Value> Repeated(std::vector<Value> const & distinct, std::size_t count)
{
    std::mt19937_64 random(44);
    std::vector<Value> values;
    values.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        values.push_back(distinct[random() % distinct.size()]);
    return values;
}

int Register()
{
    using benchmark::RegisterBenchmark;
    using State = benchmark::State;
    RegisterBenchmark("copy + destroy an integer value/ours",
                      [](State & s) { CopyAndDestroy(s, Integers<DataValue>(kInputs)); });
    RegisterBenchmark("copy + destroy an integer value/peer:std::variant",
                      [](State & s) { CopyAndDestroy(s, Integers<Variant>(kInputs)); });
    RegisterBenchmark("copy + destroy a string value/ours",
                      [](State & s) { CopyAndDestroy(s, StringValues(kInputs)); });
    RegisterBenchmark("copy + destroy a string value/peer:std::variant",
                      [](State & s) { CopyAndDestroy(s, StringVariants(kInputs)); });
    RegisterBenchmark("copy + destroy a string value/peer:QVariant",
                      [](State & s) { CopyAndDestroy(s, StringQVariants(kInputs)); });
    RegisterBenchmark("sort 1 M integer values/ours", [](State & s) { Sort(s, Integers<DataValue>(1000000), kLess); });
    RegisterBenchmark("sort 1 M integer values/peer:std::variant",
                      [](State & s) { Sort(s, Integers<Variant>(1000000), LessVariant); });
    RegisterBenchmark("sort shared strings/ours",
                      [](State & s) { Sort(s, Repeated(StringValues(1000), 100000), kLess); });
    RegisterBenchmark("sort shared strings/peer:std::variant",
                      [](State & s) { Sort(s, Repeated(StringVariants(1000), 100000), LessVariant); });
    RegisterBenchmark("equality of integer values/ours",
                      [](State & s) { CompareNeighbours(s, Integers<DataValue>(kInputs), kEqual); });
    RegisterBenchmark("equality of integer values/peer:std::variant",
                      [](State & s) { CompareNeighbours(s, Integers<Variant>(kInputs), EqualVariant); });
    RegisterBenchmark("equality of string values/ours",
                      [](State & s) { CompareNeighbours(s, StringValues(kInputs), kEqual); });
    RegisterBenchmark("equality of string values/peer:std::variant",
                      [](State & s) { CompareNeighbours(s, StringVariants(kInputs), EqualVariant); });
    RegisterBenchmark("hash of integer values/ours",
                      [](State & s) { HashAll(s, Integers<DataValue>(kInputs), kHash); });
    RegisterBenchmark("hash of integer values/peer:boost::hash",
                      [](State & s) { HashAll(s, Integers<Variant>(kInputs), HashVariant); });
    RegisterBenchmark("hash of string values/ours", [](State & s) { HashAll(s, StringValues(kInputs), kHash); });
    RegisterBenchmark("hash of string values/peer:boost::hash",
                      [](State & s) { HashAll(s, StringVariants(kInputs), HashVariant); });
    return 0;
}

[[maybe_unused]] int const s_registered = Register();

}  // namespace
