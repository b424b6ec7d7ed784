// The text of reals with 17 significant digits: ours, of UTF-16, beside std::to_chars, of bytes.

#include "velcoreplatform/RealText.h"

#include <benchmark/benchmark.h>

#include <QtCore/QString>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kCount = 32'768;

// Measurements, amounts with two decimals, ratios, and numbers of every size.
std::vector<double> const & Values()
{
    static std::vector<double> const values = [] {
        std::mt19937_64 random(1);
        std::vector<double> made;
        while (made.size() < kCount) {
            auto const draw = static_cast<double>(random() >> 11);
            switch (made.size() % 4) {
            case 0: made.push_back(draw * 0x1p-53 * 1e6); break;
            case 1: made.push_back(static_cast<double>(random() % 100000000) / 100); break;
            case 2: made.push_back(-draw * 0x1p-53); break;
            default: {
                double const any = std::bit_cast<double>(random());
                made.push_back(std::isfinite(any) ? any : 1.0);
            }
            }
        }
        return made;
    }();
    return values;
}

void Ours(benchmark::State & state)
{
    auto const & values = Values();
    std::size_t i = 0;
    char16_t text[detail::kRealTextRoom];
    for (auto _ : state) {
        benchmark::DoNotOptimize(detail::WriteReal(text, values[i++ % kCount], 17));
        benchmark::ClobberMemory();
    }
}

void ToChars(benchmark::State & state)
{
    auto const & values = Values();
    std::size_t i = 0;
    char text[32];
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            std::to_chars(text, text + sizeof text, values[i++ % kCount], std::chars_format::general, 17).ptr);
        benchmark::ClobberMemory();
    }
}

void Qt(benchmark::State & state)
{
    auto const & values = Values();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(QString::number(values[i++ % kCount], 'g', 17));
}

BENCHMARK(Ours)->Name("real to text, 17 digits/ours");
BENCHMARK(ToChars)->Name("real to text, 17 digits/peer:std::to_chars");
BENCHMARK(Qt)->Name("real to text, 17 digits/plain path");

}  // namespace
