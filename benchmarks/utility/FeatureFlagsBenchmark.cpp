// A flag asked for outside a session: ours against a find in a plain set of the same flags. Two of three ids asked are
// on.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>
#include <unordered_set>
#include <vector>

#include "velcoredata/utility/FeatureFlags.h"

namespace {

constexpr std::size_t flagCount = 1'015;
constexpr std::size_t enabledCount = 673;
// So many that the processor does not learn the answers by heart.
constexpr std::size_t questionCount = 1'048'576;

struct Flags
{
    Flags()
    {
        std::mt19937 random(1);
        std::vector<FeatureFlagId> ids;
        for (std::size_t i = 0; i < flagCount; ++i)
            ids.push_back(FeatureFlagId(static_cast<std::uint32_t>(random())));
        enabled.insert(ids.begin(), ids.begin() + enabledCount);
        FeatureFlags::GetMutable().Clear();
        for (std::size_t i = 0; i < enabledCount; ++i)
            FeatureFlags::GetMutable().Enable(ids[i]);
        for (std::size_t i = 0; i < questionCount; ++i)
            questions.push_back(ids[random() % ids.size()]);
    }

    std::unordered_set<FeatureFlagId> enabled;
    std::vector<FeatureFlagId> questions;
};

Flags const & TheFlags()
{
    static Flags const flags;
    return flags;
}

void Ours(benchmark::State & state)
{
    auto const & questions = TheFlags().questions;
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(FeatureFlags::IsOn(questions[i++ % questionCount]));
}

void PlainSet(benchmark::State & state)
{
    auto const & enabled = TheFlags().enabled;
    auto const & questions = TheFlags().questions;
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(enabled.find(questions[i++ % questionCount]) != enabled.end());
}

BENCHMARK(Ours)->Name("feature flag without a session/ours");
BENCHMARK(PlainSet)->Name("feature flag without a session/peer:std::unordered_set");

}  // namespace
