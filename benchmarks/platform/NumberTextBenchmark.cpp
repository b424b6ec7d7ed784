// Numbers from UTF-16 text beside std::from_chars on the same bytes, and the text of integers beside fmt's.
#include "velcoreplatform/NumberText.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#if __has_include(<fmt/format.h>)
#define FMT_HEADER_ONLY
#include <fmt/format.h>
#endif

#include "velcoreplatform/TString.h"
#include "velsys/Arithmetic.h"

namespace {

// More than a branch predictor can learn.
constexpr std::size_t kCount = 65'536;

// Amounts with two decimals, measurements, whole numbers, and all digits of reals, as columns of files have them.
std::vector<std::string> const & Texts()
{
    static std::vector<std::string> const texts = [] {
        std::mt19937_64 random(1);
        std::vector<std::string> made;
        char buffer[40];
        while (made.size() < kCount) {
            double const draw = static_cast<double>(random() >> 11) * 0x1p-53;
            switch (made.size() % 4) {
            case 0: std::snprintf(buffer, sizeof buffer, "%.2f", draw * 1e5); break;
            case 1: std::snprintf(buffer, sizeof buffer, "%.6g", draw * 360 - 180); break;
            case 2: std::snprintf(buffer, sizeof buffer, "%d", static_cast<int>(draw * 1e6)); break;
            default: std::snprintf(buffer, sizeof buffer, "%.17g", draw * 1e3); break;
            }
            made.emplace_back(buffer);
        }
        return made;
    }();
    return texts;
}

std::vector<TString> const & WideTexts()
{
    static std::vector<TString> const texts = [] {
        std::vector<TString> made;
        for (std::string const & text : Texts())
            made.push_back(TString::fromStdString(text));
        return made;
    }();
    return texts;
}

// Of every length.
std::vector<long long> const & Integers()
{
    static std::vector<long long> const integers = [] {
        std::mt19937_64 random(2);
        std::vector<long long> made;
        while (made.size() < kCount)
            made.push_back(static_cast<long long>(random() >> (random() % 64)) * (random() % 4 == 0 ? -1 : 1));
        return made;
    }();
    return integers;
}

void RealOurs(benchmark::State & state)
{
    auto const & texts = WideTexts();
    std::size_t i = 0;
    for (auto _ : state) {
        double value = 0.0;
        benchmark::DoNotOptimize(detail::ReadReal(texts[i++ % kCount].View(), value));
        benchmark::DoNotOptimize(value);
    }
}

void RealFromChars(benchmark::State & state)
{
    auto const & texts = Texts();
    std::size_t i = 0;
    for (auto _ : state) {
        std::string const & text = texts[i++ % kCount];
        double value = 0.0;
        benchmark::DoNotOptimize(std::from_chars(text.data(), text.data() + text.size(), value).ec);
        benchmark::DoNotOptimize(value);
    }
}

void RealPlain(benchmark::State & state)
{
    auto const & texts = WideTexts();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(texts[i++ % kCount].toDouble());
}

// Into the caller's buffer, as fmt::format_int does; with the string around it below.
void IntegerOurs(benchmark::State & state)
{
    auto const & integers = Integers();
    std::size_t i = 0;
    char16_t text[20];
    for (auto _ : state) {
        long long const value = integers[i++ % kCount];
        unsigned long long const magnitude = detail::Magnitude(value);
        detail::WriteInteger(std::end(text), magnitude);
        char16_t * first = std::end(text) - detail::DigitCount(magnitude);
        if (value < 0)
            *--first = u'-';
        benchmark::DoNotOptimize(first);
        benchmark::ClobberMemory();
    }
}

void IntegerString(benchmark::State & state)
{
    auto const & integers = Integers();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(TString::number(integers[i++ % kCount]));
}

BENCHMARK(RealOurs)->Name("text to real/ours");
BENCHMARK(RealFromChars)->Name("text to real/peer:std::from_chars");
BENCHMARK(RealPlain)->Name("text to real/plain path");
BENCHMARK(IntegerOurs)->Name("integer to text/ours");
BENCHMARK(IntegerString)->Name("integer to text/as a TString");

#ifdef FMT_HEADER_ONLY

void IntegerFmt(benchmark::State & state)
{
    auto const & integers = Integers();
    std::size_t i = 0;
    for (auto _ : state) {
        fmt::format_int const text(integers[i++ % kCount]);
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
    }
}

BENCHMARK(IntegerFmt)->Name("integer to text/peer:fmt");

#endif

}  // namespace
