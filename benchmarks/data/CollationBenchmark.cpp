// Comparing, hashing, sorting and interning under a collation, beside plain ICU.
//
// Words are random, 3 to 14 letters, one in four capitalized, one in sixteen in capitals, and every fourth pair shares
// its first half, as neighbours in a sort do. 32,768 pairs, more than a branch predictor learns.
#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <absl/container/flat_hash_map.h>
#include <benchmark/benchmark.h>
#include <oneapi/tbb/concurrent_hash_map.h>
#include <unicode/ucol.h>
#ifndef XXH_INLINE_ALL
#define XXH_INLINE_ALL
#endif
#include <xxhash.h>

#include "velcoredata/data/CollatedSort.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/StringWithCollationCache.h"

namespace {

using Text = std::u16string;
// Terminated texts inside one buffer, so that the cache is measured on neither side.
using Pair = std::pair<std::u16string_view, std::u16string_view>;

constexpr int c_count = 32768;

enum class Script
{
    ascii,
    latin,
    cjk
};

Text Word(std::mt19937 & random, Script script)
{
    static constexpr char16_t accented[] = u"éèàêüöäñçåøÉÖÄ";
    Text text;
    auto const form = random() % 16;
    for (auto n = 3 + random() % 12; n > 0; --n) {
        auto const draw = static_cast<unsigned>(random());
        if (script == Script::cjk)
            text += static_cast<char16_t>(0x4E00 + draw % 8000);
        else if (script == Script::latin && draw % 6 == 0)
            text += accented[draw / 6 % 14];
        else
            text += static_cast<char16_t>((form == 0 || (form < 5 && text.empty()) ? u'A' : u'a') + draw % 26);
    }
    return text;
}

std::vector<Pair> MakePairs(Script script)
{
    static std::vector<std::unique_ptr<Text>> buffers;
    std::mt19937 random(42);
    Text & buffer = *buffers.emplace_back(std::make_unique<Text>());
    buffer.reserve(std::size_t{c_count} * 64);
    auto const keep = [&](Text const & text) {
        std::size_t const at = buffer.size();
        buffer += text;
        buffer += char16_t{0};
        return std::u16string_view(buffer.data() + at, text.size());
    };
    std::vector<Pair> pairs;
    for (int i = 0; i < c_count; ++i) {
        Text const first = Word(random, script);
        Text second = Word(random, script);
        if (i % 4 == 0)
            second = first.substr(0, first.size() / 2) + second;
        pairs.emplace_back(keep(first), keep(second));
    }
    return pairs;
}

std::vector<Pair> const & Pairs(Script script)
{
    static std::vector<Pair> const ascii = MakePairs(Script::ascii);
    static std::vector<Pair> const latin = MakePairs(Script::latin);
    static std::vector<Pair> const cjk = MakePairs(Script::cjk);
    return script == Script::ascii ? ascii : script == Script::latin ? latin : cjk;
}

struct IcuCollator
{
    IcuCollator()
    {
        UErrorCode status = U_ZERO_ERROR;
        collator = ucol_open("en_US", &status);
    }
    ~IcuCollator() { ucol_close(collator); }
    UCollator * collator;
};

UCollator * Icu()
{
    static IcuCollator const icu;
    return icu.collator;
}

Collation const & English()
{
    static Collation const collation(u"LEN_RUS", 0);
    return collation;
}

template <class Items, class Operation>
void Run(benchmark::State & state, Items const & items, Operation const & operation)
{
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(items.size())))
        for (auto const & item : items)
            benchmark::DoNotOptimize(operation(item));
}

void Compare(benchmark::State & state, Script script)
{
    Collation const & collation = English();
    Run(state, Pairs(script), [&](Pair const & pair) {
        return collation.Compare(pair.first.data(), static_cast<int>(pair.first.size()), pair.second.data(),
                                 static_cast<int>(pair.second.size()));
    });
}

void CompareIcu(benchmark::State & state, Script script)
{
    UCollator * const collator = Icu();
    Run(state, Pairs(script), [&](Pair const & pair) {
        return ucol_strcoll(collator, pair.first.data(), static_cast<int>(pair.first.size()), pair.second.data(),
                            static_cast<int>(pair.second.size()));
    });
}

BENCHMARK_CAPTURE(Compare, ascii, Script::ascii)->Name("collated compare, ASCII/ours");
BENCHMARK_CAPTURE(CompareIcu, ascii, Script::ascii)->Name("collated compare, ASCII/peer:ucol_strcoll");
BENCHMARK_CAPTURE(Compare, latin, Script::latin)->Name("collated compare, Latin/ours");
BENCHMARK_CAPTURE(CompareIcu, latin, Script::latin)->Name("collated compare, Latin/peer:ucol_strcoll");
BENCHMARK_CAPTURE(Compare, cjk, Script::cjk)->Name("collated compare, CJK/ours");
BENCHMARK_CAPTURE(CompareIcu, cjk, Script::cjk)->Name("collated compare, CJK/peer:ucol_strcoll");

void Hash(benchmark::State & state)
{
    Collation const & collation = English();
    Run(state, Pairs(Script::ascii), [&](Pair const & pair) { return collation.Hash(pair.first.data()); });
}

void HashIcu(benchmark::State & state)
{
    UCollator * const collator = Icu();
    std::uint8_t key[1024];
    Run(state, Pairs(Script::ascii), [&](Pair const & pair) {
        int const length =
            ucol_getSortKey(collator, pair.first.data(), static_cast<int>(pair.first.size()), key, sizeof key);
        return XXH3_64bits(key, static_cast<std::size_t>(length));
    });
}

BENCHMARK(Hash)->Name("collated hash, ASCII/ours");
BENCHMARK(HashIcu)->Name("collated hash, ASCII/peer:ucol_getSortKey + XXH3");

// Sorting.

std::vector<TString> const & Column()
{
    static std::vector<TString> const column = [] {
        std::mt19937 random(7);
        std::vector<TString> texts;
        for (int i = 0; i < 200'000; ++i)
            texts.push_back(TString::fromStdU16String(Word(random, i % 8 == 0 ? Script::latin : Script::ascii)));
        return texts;
    }();
    return column;
}

void Sort(benchmark::State & state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(CollatedOrder(English(), Column()));
}

void SortIcu(benchmark::State & state)
{
    for (auto _ : state) {
        std::vector<std::pair<std::string, unsigned>> keys;
        keys.reserve(Column().size());
        std::uint8_t key[1024];
        for (TString const & text : Column()) {
            int const length = ucol_getSortKey(Icu(), text.constData(), text.length(), key, sizeof key);
            keys.emplace_back(std::string(reinterpret_cast<char const *>(key), static_cast<std::size_t>(length)),
                              static_cast<unsigned>(keys.size()));
        }
        std::sort(keys.begin(), keys.end());
        benchmark::DoNotOptimize(keys.data());
    }
}

BENCHMARK(Sort)->Name("sort 200 k collated strings/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(SortIcu)->Name("sort 200 k collated strings/peer:ICU sort keys")->Unit(benchmark::kMillisecond);

// The thread's collator: one collation of the five that the thread uses.

std::vector<Collation> const & Five()
{
    static std::vector<Collation> const five = {Collation(u"LEN_RUS", 0), Collation(u"LEN_RUS_S2", 0),
                                                Collation(u"LSV_RSE", 0), Collation(u"LDE_RDE", 0),
                                                Collation(u"LROOT", 0)};
    return five;
}

void ThreadsCollator(benchmark::State & state)
{
    for (Collation const & collation : Five())
        benchmark::DoNotOptimize(&*collation.GetCollator());
    Collation const & collation = Five()[2];
    for (auto _ : state)
        benchmark::DoNotOptimize(&*collation.GetCollator());
}

// A pool as it would be with the map alone.
class MapPool
{
public:
    virtual ~MapPool() = default;
    [[gnu::noinline]] virtual int const * GetCollator() const
    {
        thread_local std::map<MapPool const *, std::shared_ptr<int>> table;
        std::shared_ptr<int> & entry = table[this];
        if (entry == nullptr)
            entry = std::make_shared<int>(1);
        return entry.get();
    }
};

void ThreadsCollatorMap(benchmark::State & state)
{
    static MapPool const pools[5];
    for (MapPool const & pool : pools)
        benchmark::DoNotOptimize(pool.GetCollator());
    MapPool const * pool = &pools[2];
    for (auto _ : state) {
        benchmark::DoNotOptimize(pool);
        benchmark::DoNotOptimize(pool->GetCollator());
    }
}

BENCHMARK(ThreadsCollator)->Name("the thread's collator/ours");
BENCHMARK(ThreadsCollatorMap)->Name("the thread's collator/peer:thread_local map");

// Interning: every text is in the table.

constexpr int c_interned = 1000;

std::vector<TString> const & InternTexts()
{
    static std::vector<TString> const texts = [] {
        std::mt19937 random(9);
        std::vector<TString> distinct, result;
        for (int i = 0; i < c_interned; ++i)
            distinct.push_back(TString::fromStdU16String(Word(random, Script::ascii)) + TString::number(i));
        for (int i = 0; i < c_count; ++i)
            result.push_back(distinct[random() % c_interned]);
        return result;
    }();
    return texts;
}

using Interned = RefCntPtr<StringWithCollation, RefCntObject>;

void Intern(benchmark::State & state)
{
    static StringWithCollationCache cache(English(), 2 * c_interned);
    for (TString const & text : InternTexts())
        cache.Lookup(text);
    Run(state, InternTexts(), [&](TString const & text) { return cache.Lookup(text); });
}

void InternFlatMap(benchmark::State & state)
{
    struct TextHash
    {
        std::size_t operator()(TString const & text) const
        {
            return XXH3_64bits(text.constData(), text.lengthInBytes());
        }
    };
    static absl::flat_hash_map<TString, Interned, TextHash> table;
    static std::mutex mutex;
    if (state.thread_index() == 0) {
        std::lock_guard const lock(mutex);
        for (TString const & text : InternTexts())
            table.try_emplace(text, new StringWithCollation(text, English()));
    }
    Run(state, InternTexts(), [&](TString const & text) {
        std::lock_guard const lock(mutex);
        return table.find(text)->second;
    });
}

void InternConcurrentMap(benchmark::State & state)
{
    struct TextHash
    {
        static std::size_t hash(TString const & text) { return XXH3_64bits(text.constData(), text.lengthInBytes()); }
        static bool equal(TString const & a, TString const & b) { return a == b; }
    };
    using Table = oneapi::tbb::concurrent_hash_map<TString, Interned, TextHash>;
    static Table table;
    for (TString const & text : InternTexts())
        table.insert({text, Interned(new StringWithCollation(text, English()))});
    Run(state, InternTexts(), [&](TString const & text) {
        Table::const_accessor found;
        table.find(found, text);
        return found->second;
    });
}

BENCHMARK(Intern)->Name("intern hit/ours");
BENCHMARK(InternFlatMap)->Name("intern hit/peer:absl flat_hash_map + mutex");
BENCHMARK(Intern)->Name("intern hit/ours")->Threads(2)->UseRealTime();
BENCHMARK(InternConcurrentMap)->Name("intern hit/peer:tbb concurrent_hash_map")->Threads(2)->UseRealTime();

}  // namespace
