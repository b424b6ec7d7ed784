// Texts by key outside a session, against the look-up that Qt programs use: QCoreApplication::translate with a
// translator of the same texts.

#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>

#include <random>
#include <vector>

#include "main/core/StringTable.h"
#include "velcoredata/core/LocalStrings.h"

namespace {

using CoreData::StringId;

constexpr std::size_t keyCount = 32'768;

// Keys as they come: messages, list texts, names of colours.
std::vector<StringId> const & Keys()
{
    static std::vector<StringId> const keys = [] {
        static constexpr StringId kinds[] = {
            StringId::IDP_VALUE_LIST_FEW_VALUES,
            StringId::IDP_VALUE_LIST_MANY_VALUES,
            StringId::IDS_AGG_DAY,
            StringId::IDS_AGG_WEEKDAY,
            StringId::IDS_AGG_YEAR,
            StringId::IDS_DATETIME_ERROR,
            StringId::IDS_ERR_EXPECT_LBRACKET,
            StringId::IDS_ERR_INCORRECT_DATA_TYPE_GET,
            StringId::IDS_ERR_PARSING_NUMBER,
            StringId::IDS_ISO8601_TRUNC_WEEK_EXAMPLE,
            StringId::IDS_NO_FILL,
            StringId::IDS_PALETTE_AREA_RED_GREEN,
            StringId::IDS_PALETTE_LIGHTNING_WATER,
            StringId::IDS_PALETTE_TOOLTIP_LIGHT_GRAY,
            StringId::IDS_PALETTE_TOOLTIP_VERY_DARK_ORANGE,
            StringId::IDS_VALUE_LIST_NO_VALUES,
        };
        std::mt19937 random(7);
        std::vector<StringId> drawn(keyCount);
        for (StringId & key : drawn)
            key = kinds[random() % std::size(kinds)];
        return drawn;
    }();
    return keys;
}

void Ours(benchmark::State & state)
{
    auto const & keys = Keys();
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(CoreData::LookupTStrExported(keys[i]));
        i = (i + 1) % keyCount;
    }
}

// The peer gets its context and source text for nothing.
void Translate(benchmark::State & state)
{
    static int argc = 1;
    static char name[] = "benchmark";
    static char * argv[] = {name, nullptr};
    static QCoreApplication const application(argc, argv);
    static QTranslator translator;
    QString const none = QStringLiteral("");
    static bool const installed =
        translator.load(QStringLiteral(":/velcoredata/TQRC_MODSTRINGS_de_DE"), none, none, none) &&
        QCoreApplication::installTranslator(&translator);
    if (!installed) {
        state.SkipWithError("no translations");
        return;
    }
    struct Message
    {
        char const * context;
        char const * source;
    };
    std::vector<Message> messages;
    for (StringId const key : Keys())
        messages.push_back({CoreData::detail::StringTableKey(key), CoreData::detail::StringTableEnglish(key).data()});
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(QCoreApplication::translate(messages[i].context, messages[i].source));
        i = (i + 1) % keyCount;
    }
}

}  // namespace

BENCHMARK(Ours)->Name("text by key/ours");
BENCHMARK(Translate)->Name("text by key/peer:QCoreApplication::translate");
