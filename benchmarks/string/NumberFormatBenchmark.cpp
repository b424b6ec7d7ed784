// Opening OLE number formats: ours against the same pattern as a compiled QRegularExpression.

#include <benchmark/benchmark.h>

#include <QRegularExpression>

#include <random>
#include <vector>

#include "main/string/OleFormatPattern.h"
#include "velcoredata/string/OleFormatString.h"

namespace {

constexpr std::size_t formatCount = 32'768;

// Formats of documents: one section or two, one in sixteen no format at all.
std::vector<TString> const & Formats()
{
    static std::vector<TString> const formats = [] {
        std::mt19937 random(1);
        std::vector<TString> made;
        while (made.size() < formatCount) {
            NumberFormatOptions options;
            options.decimals = static_cast<int>(random() % 8);
            options.useGrouping = random() % 2 == 0;
            static constexpr char16_t const * texts[] = {u"", u"", u"$", u"\u20AC ", u" kr", u"approx. "};
            options.prefix = texts[random() % std::size(texts)];
            options.suffix = texts[random() % std::size(texts)];
            options.units = static_cast<UnitsFormatEnum>(random() % 5);
            options.negative = static_cast<NegativeFormatEnum>(random() % 6);
            TString format = BuildOleFormatString(&options, true, nullptr, nullptr);
            if (random() % 16 == 0)
                format += u'%';
            made.push_back(format);
        }
        return made;
    }();
    return formats;
}

template <bool (*parse)(char16_t const *, NumberFormatOptions *)>
void Parse(benchmark::State & state)
{
    auto const & formats = Formats();
    std::size_t i = 0;
    NumberFormatOptions options;
    for (auto _ : state) {
        benchmark::DoNotOptimize(parse(formats[i++ % formatCount].constData(), &options));
        benchmark::DoNotOptimize(options);
    }
}

// The match alone: its groups are not taken out.
void Peer(benchmark::State & state)
{
    QRegularExpression pattern(
        QStringLiteral(
            "^.*?([-(]?)(\"([^\"]*)\")?(-?)((#,##0)|(0))([,]*)((\\.[0]+)?)([KMBG]?)(-?)(\"([^\"]*)\")?([-)]?)$"),
        QRegularExpression::DotMatchesEverythingOption);
    pattern.optimize();
    auto const & formats = Formats();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(pattern.match(formats[i++ % formatCount].toQString()));
}

BENCHMARK(Parse<ParseOleFormatString>)->Name("number-format pattern parse/ours");
BENCHMARK(Peer)->Name("number-format pattern parse/peer:QRegularExpression");
BENCHMARK(Parse<detail::ParseOleFormatStringByPattern>)->Name("number-format pattern parse/plain path");

}  // namespace
