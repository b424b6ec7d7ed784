// TString beside QString, std::u16string and XXH3 over texts of 8, 32 and 256 code units.

#include "velcoreplatform/TString.h"
#include "velsys/Hash.h"

#include <benchmark/benchmark.h>

#include <QtCore/QString>

#define XXH_INLINE_ALL
#include <xxhash.h>

#include <string>
#include <vector>

namespace {

constexpr int kLengths[] = {8, 32, 256};

std::u16string Text(int index)
{
    std::u16string text(static_cast<std::size_t>(kLengths[index % 3]), u'x');
    text[0] = static_cast<char16_t>(u'a' + index % 26);
    return text;
}

template <class String, class Make>
std::vector<String> Texts(Make make)
{
    std::vector<String> all;
    for (int i = 0; i < 1024; ++i)
        all.push_back(make(Text(i)));
    return all;
}

std::vector<TString> Ours()
{
    return Texts<TString>([](std::u16string const & text) { return TString::fromStdU16String(text); });
}

std::vector<QString> Qts()
{
    return Texts<QString>([](std::u16string const & text) { return QString::fromStdU16String(text); });
}

std::vector<std::u16string> Standards()
{
    return Texts<std::u16string>([](std::u16string const & text) { return text; });
}

template <class String>
void Copy(benchmark::State & state, std::vector<String> const & texts)
{
    std::size_t i = 0;
    for (auto _ : state) {
        String copy(texts[i++ % texts.size()]);
        benchmark::DoNotOptimize(copy);
    }
}

// Equal texts in different storage.
template <class String>
void Equal(benchmark::State & state, std::vector<String> const & texts, std::vector<String> const & others)
{
    std::size_t i = 0;
    for (auto _ : state) {
        bool const equal = texts[i % texts.size()] == others[i % texts.size()];
        ++i;
        benchmark::DoNotOptimize(equal);
    }
}

void CopyOurs(benchmark::State & state)
{
    Copy(state, Ours());
}

void CopyQString(benchmark::State & state)
{
    Copy(state, Qts());
}

void EqualOurs(benchmark::State & state)
{
    Equal(state, Ours(), Ours());
}

void EqualQString(benchmark::State & state)
{
    Equal(state, Qts(), Qts());
}

void EqualStandard(benchmark::State & state)
{
    Equal(state, Standards(), Standards());
}

void HashOurs(benchmark::State & state)
{
    auto const texts = Ours();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(std::hash<TString>()(texts[i++ % texts.size()]));
}

void HashXXH3(benchmark::State & state)
{
    auto const texts = Standards();
    std::size_t i = 0;
    for (auto _ : state) {
        std::u16string const & text = texts[i++ % texts.size()];
        benchmark::DoNotOptimize(XXH3_64bits_withSeed(text.data(), 2 * text.size(), 0xdeadbeef));
    }
}

BENCHMARK(CopyOurs)->Name("string copy/ours");
BENCHMARK(CopyQString)->Name("string copy/peer:QString");
BENCHMARK(EqualOurs)->Name("string equality/ours");
BENCHMARK(EqualQString)->Name("string equality/peer:QString");
BENCHMARK(EqualStandard)->Name("string equality/peer:std::u16string");
BENCHMARK(HashOurs)->Name("string hash/ours");
BENCHMARK(HashXXH3)->Name("string hash/peer:XXH3");

}  // namespace
