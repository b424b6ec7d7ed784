// Adding values beside the std::variant that a user would write instead, and the price of a failing type check beside
// throwing its exception.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "velcoredata/data/DataValue.h"
#include "velcoredata/utility/DataValueOperatorException.h"
#include "velcoredata/utility/DataValueOperators.h"
#include "velsys/ThrowSite.h"

namespace {

using Text = std::shared_ptr<std::u16string const>;
using Variant = std::variant<std::int64_t, double, Text>;

// More than a branch predictor can learn.
constexpr std::size_t kInputs = 65536;

// Integers and reals in random order.
template <class Value>
std::vector<Value> Numbers(unsigned seed)
{
    std::mt19937_64 random(seed);
    std::vector<Value> values;
    values.reserve(kInputs);
    for (std::size_t i = 0; i < kInputs; ++i) {
        auto const number = static_cast<std::int64_t>(random() >> 12);
        if ((random() & 1) != 0)
            values.emplace_back(number);
        else
            values.emplace_back(static_cast<double>(number) / 1024.0);
    }
    return values;
}

struct AddNumbers
{
    template <class A, class B>
    Variant operator()(A const & a, B const & b) const
    {
        if constexpr (std::is_same_v<A, std::int64_t> && std::is_same_v<B, std::int64_t>)
            return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
        else if constexpr (std::is_arithmetic_v<A> && std::is_arithmetic_v<B>)
            return static_cast<double>(a) + static_cast<double>(b);
        else
            throw std::bad_variant_access();
    }
};

void AddOurs(benchmark::State & state)
{
    auto const a = Numbers<DataValue>(1);
    auto const b = Numbers<DataValue>(2);
    DataValueOperators operators;
    for (auto _ : state)
        for (std::size_t i = 0; i < kInputs; ++i)
            benchmark::DoNotOptimize(operators.Add(a[i], b[i]));
}

void AddPeer(benchmark::State & state)
{
    auto const a = Numbers<Variant>(1);
    auto const b = Numbers<Variant>(2);
    for (auto _ : state)
        for (std::size_t i = 0; i < kInputs; ++i)
            benchmark::DoNotOptimize(std::visit(AddNumbers(), a[i], b[i]));
}

void FailingCheckOurs(benchmark::State & state)
{
    DataValueOperators operators;
    DataValue const number(1);
    DataValue const flag(true);
    for (auto _ : state) {
        try {
            benchmark::DoNotOptimize(operators.Add(number, flag));
        } catch (DataValueOperatorException const & e) {
            benchmark::DoNotOptimize(&e);
        }
    }
}

// Thrown from as many calls below the handler as the check throws from: each costs its share of the unwinding.
template <int Calls>
[[gnu::noinline]] void ThrowBelow()
{
    if constexpr (Calls == 1) {
        VELTRIA_THROW(DataValueOperatorException, 0x5EA10C37, u"type exception");
    } else {
        ThrowBelow<Calls - 1>();
        benchmark::ClobberMemory();
    }
}

void FailingCheckPeer(benchmark::State & state)
{
    for (auto _ : state) {
        try {
            ThrowBelow<4>();
        } catch (DataValueOperatorException const & e) {
            benchmark::DoNotOptimize(&e);
        }
    }
}

BENCHMARK(AddOurs)->Name("Add of mixed integer and real/ours");
BENCHMARK(AddPeer)->Name("Add of mixed integer and real/peer:std::variant");
BENCHMARK(FailingCheckOurs)->Name("failing type check/ours");
BENCHMARK(FailingCheckPeer)->Name("failing type check/peer:the exception alone");

}  // namespace
