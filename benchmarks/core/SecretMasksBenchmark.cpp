// Masking secrets in a 200-unit text: ours against RE2 with its patterns compiled beforehand.

#include <benchmark/benchmark.h>
#include <re2/re2.h>

#include <array>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "main/core/SecretMasks.h"
#include "velcoredata/core/StringUtils.h"

namespace {

constexpr std::size_t textCount = 32'768;
constexpr std::size_t textLength = 200;

// Connection strings and log lines: about one in four holds a secret.
std::vector<std::string> MakeTexts()
{
    static std::array<char const *, 12> const parts{
        "server=db.example.com;", "uid=reader;",  "port=5432;",       "dbname=sales; ",
        "connected in 12 ms ",    "query 17 ",    "schema=public;",   "timeout=30; ",
        "SELECT a FROM b; ",      "retry=false;", "path /usr/lib/x ", "user agent "};
    static std::array<char const *, 4> const secrets{"password=s3cr3t ", "PWD=abc123 ", "token=eyJ.abc-def;",
                                                     "rtk=Q9x7;"};
    std::mt19937 random(1);
    std::vector<std::string> texts(textCount);
    for (std::string & text : texts) {
        bool const secret = random() % 4 == 0;
        while (text.size() < textLength) {
            text += parts[random() % parts.size()];
            if (secret && random() % 8 == 0)
                text += secrets[random() % secrets.size()];
        }
        text.resize(textLength);
    }
    return texts;
}

std::vector<std::string> const & NarrowTexts()
{
    static std::vector<std::string> const texts = MakeTexts();
    return texts;
}

std::vector<TString> const & Texts()
{
    static std::vector<TString> const texts = [] {
        std::vector<TString> wide;
        for (std::string const & text : NarrowTexts())
            wide.push_back(TString::fromStdString(text));
        return wide;
    }();
    return texts;
}

void Ours(benchmark::State & state)
{
    auto const & texts = Texts();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(ObfuscateSecretsInString(texts[i++ % textCount]));
}

void Patterns(benchmark::State & state)
{
    auto const & texts = Texts();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(detail::ObfuscateSecretsByPatterns(texts[i++ % textCount]));
}

void Re2(benchmark::State & state)
{
    static RE2 const password("(?i)PASSWORD=\\S*");
    static RE2 const pwd("(?i)PWD=\\S*");
    static RE2 const token("(?i)TOKEN=[A-Za-z0-9\\-._~+/]*;");
    static RE2 const rtk("(?i)RTK=[A-Za-z0-9]*");
    static std::pair<RE2 const *, char const *> const masks[] = {
        {&password, "PASSWORD=********"}, {&pwd, "PWD=********"}, {&token, "TOKEN=********"}, {&rtk, "RTK=********"}};
    auto const & texts = NarrowTexts();
    std::size_t i = 0;
    for (auto _ : state) {
        std::string text = texts[i++ % textCount];
        for (auto const & [pattern, replacement] : masks)
            RE2::GlobalReplace(&text, *pattern, replacement);
        benchmark::DoNotOptimize(text);
    }
}

BENCHMARK(Ours)->Name("masking secrets in a 200-unit text/ours");
BENCHMARK(Re2)->Name("masking secrets in a 200-unit text/peer:RE2 precompiled");
BENCHMARK(Patterns)->Name("masking secrets in a 200-unit text/plain path");

}  // namespace
