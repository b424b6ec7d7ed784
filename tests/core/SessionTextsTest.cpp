// The translations that are compiled into the library, by themselves and through sessions.

#include <gtest/gtest.h>

#include <boost/any.hpp>

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtCore/QTranslator>

#include "main/core/TableCacheInstance.h"
#include "tests/core/StringTableRows.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/FreshProcess.h"
#include "tests/support/ResourceBuilder.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/LocalStrings.h"
#include "velcoredata/core/ResourceRegistrationCache.h"
#include "velcoredata/core/StringTableCache.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DataValue.h"
#include "velcoreplatform/CoreThreadContext.h"

using CoreData::LookupTStrExported;
using CoreData::StringId;
using string_table_rows::AllRows;
using string_table_rows::Row;
using test_support::CompiledTranslation;
using test_support::InFreshProcess;
using test_support::ResourceFolder;

namespace {

constexpr char16_t const * kLanguages[] = {u"ar_YE", u"de_DE", u"en_GB", u"es_ES", u"fr_CA", u"fr_FR", u"ga_IE",
                                           u"it_IT", u"ja_JP", u"ko_KR", u"pt_BR", u"zh_CN", u"zh_TW"};

void SetSessionLocale(char16_t const * language)
{
    CoreThreadContext::SetGenericObject(u"locale",
                                        std::make_shared<boost::any>(std::make_shared<TLocale>(TString(language))));
}

TString TextIn(char16_t const * language, StringId id)
{
    ScopedSession const session;
    SetSessionLocale(language);
    return LookupTStrExported(id);
}

// "%1", "%2" and so on, as often as they stand there.
std::multiset<std::string> Places(std::string const & text)
{
    std::multiset<std::string> places;
    for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1))
        places.insert(text.substr(at, 2));
    return places;
}

}  // namespace

TEST(SessionTexts, EveryKeyHasATranslationInEveryLanguage)
{
    for (char16_t const * language : kLanguages) {
        QTranslator translator;
        QString const none = QStringLiteral("");
        ASSERT_TRUE(translator.load(QStringLiteral(":/velcoredata/TQRC_MODSTRINGS_") + QString::fromUtf16(language),
                                    none, none, none))
            << TString(language);
        ScopedSession const session;
        SetSessionLocale(language);
        int different = 0;
        for (Row const & row : AllRows()) {
            TString const translated(translator.translate(row.key, row.english));
            EXPECT_FALSE(translated.isEmpty()) << TString(language) << " " << row.key;
            EXPECT_FALSE(translated.contains(u'\uFFFD')) << TString(language) << " " << row.key;
            EXPECT_EQ(Places(translated.toStdString()), Places(row.english)) << TString(language) << " " << row.key;
            EXPECT_EQ(LookupTStrExported(row.id), translated) << TString(language) << " " << row.key;
            different += translated == TString::fromUtf8(row.english) ? 0 : 1;
        }
        // Proper names, examples and punctuation stay; British English differs in the spelling of some colours.
        EXPECT_GE(different, TString(language) == u"en_GB" ? 10 : 150) << TString(language);
    }
}

TEST(SessionTexts, AreInTheLanguageOfTheSession)
{
    struct
    {
        char16_t const * language;
        StringId id;
        char16_t const * text;
    } const rows[] = {
        {u"de_DE", StringId::IDS_AGG_YEAR, u"Jahr"},
        {u"de_DE", StringId::IDP_DATE_PARSE_ERROR, u"Fehler beim Analysieren des Datums „%1“"},
        {u"fr_FR", StringId::IDP_DATE_PARSE_ERROR, u"Erreur lors de l’analyse de la date « %1 »"},
        {u"fr_CA", StringId::IDS_PALETTE_TOOLTIP_LIGHT_GRAY, u"Gris clair"},
        {u"en_GB", StringId::IDS_PALETTE_TOOLTIP_LIGHT_GRAY, u"Light Grey"},
        {u"es_ES", StringId::IDS_AGG_YEAR, u"Año"},
        {u"it_IT", StringId::IDS_VALUE_LIST_NO_VALUES, u"Nessuno"},
        {u"ja_JP", StringId::IDP_DATE_PARSE_ERROR, u"日付「%1」の解析エラー"},
        {u"ko_KR", StringId::IDS_VALUE_LIST_NO_VALUES, u"없음"},
        {u"pt_BR", StringId::IDS_VALUE_LIST_NO_VALUES, u"Nenhum"},
        {u"zh_CN", StringId::IDS_PALETTE_TOOLTIP_LIGHT_GRAY, u"浅灰色"},
        {u"zh_TW", StringId::IDS_PALETTE_TOOLTIP_LIGHT_GRAY, u"淺灰色"},
        {u"ga_IE", StringId::IDS_AGG_YEAR, u"[Ýéåŕ]"},
        {u"ar_YE", StringId::IDS_AGG_YEAR, u"\u202EYear\u202C"},
        // Without translations of their own: those of the closest supported language, which may be English.
        {u"de_AT", StringId::IDS_AGG_YEAR, u"Jahr"},
        {u"zh_HK", StringId::IDS_VALUE_LIST_NO_VALUES, u"無"},
        {u"pt_PT", StringId::IDS_AGG_YEAR, u"Ano"},
        {u"da_DK", StringId::IDS_AGG_YEAR, u"Year"},
        {u"en_US", StringId::IDS_AGG_YEAR, u"Year"},
        {u"en_AU", StringId::IDS_PALETTE_TOOLTIP_LIGHT_GRAY, u"Light Gray"},
        {u"xx_XX", StringId::IDS_AGG_YEAR, u"Year"},
        {u"de_DE", StringId{1}, u""},
    };
    for (auto const & row : rows)
        EXPECT_EQ(TextIn(row.language, row.id), row.text) << TString(row.language);
}

TEST(SessionTexts, FillTheirPlaces)
{
    ScopedSession const session;
    SetSessionLocale(u"de_DE");
    EXPECT_EQ(TString(CoreData::LookupTFormatStrExported(StringId::IDP_DATE_PARSE_ERROR).arg(u"gestern")),
              u"Fehler beim Analysieren des Datums „gestern“");
    EXPECT_THAT([] { DataValue(1.5).GetInt(); },
                ThrowsError("VeltriaException_IncorrectDatatypeException_0xCA8336D0",
                            "Falscher Datentyp real beim Abrufen des erwarteten Typs integer."));
}

TEST(SessionTexts, FollowTheSessionFromCallToCall)
{
    ScopedSession const session;
    EXPECT_EQ(LookupTStrExported(StringId::IDS_AGG_YEAR), u"Year");
    SetSessionLocale(u"de_DE");
    EXPECT_EQ(LookupTStrExported(StringId::IDS_AGG_YEAR), u"Jahr");
    {
        ScopedSession const inner;
        SetSessionLocale(u"fr_FR");
        EXPECT_EQ(LookupTStrExported(StringId::IDS_AGG_YEAR), u"Année");
    }
    {
        ScopedSession const outside(nullptr);
        EXPECT_EQ(LookupTStrExported(StringId::IDS_AGG_YEAR), u"Year");
    }
    EXPECT_EQ(LookupTStrExported(StringId::IDS_AGG_YEAR), u"Jahr");
}

TEST(SessionTexts, GiveEnglishForAKeyThatTheLanguageLacks)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        folder.Pack("swedish.rcc", {{"TQRC_MODSTRINGS_sv_SE", CompiledTranslation({{"IDS_AGG_YEAR", "Year", "År"}})}});
        ASSERT_TRUE(QResource::registerResource(QString::fromStdString(folder.PathOf("swedish.rcc")),
                                                QStringLiteral("/velcoredata")));
        EXPECT_EQ(TextIn(u"sv_SE", StringId::IDS_AGG_YEAR), u"År");
        EXPECT_EQ(TextIn(u"sv_SE", StringId::IDS_AGG_DAY), u"Day");
        EXPECT_EQ(TextIn(u"sv_SE", StringId::IDP_VALUE_LIST_FEW_VALUES), u"%1 & %2");
        EXPECT_EQ(TextIn(u"de_DE", StringId::IDS_AGG_DAY), u"Tag") << "the others are still there";
    });
}

TEST(SessionTexts, TryALanguageOnce)
{
    InFreshProcess([] {
        EXPECT_EQ(TextIn(u"sv_SE", StringId::IDS_AGG_YEAR), u"Year");
        ResourceFolder const folder;
        folder.Pack("swedish.rcc", {{"TQRC_MODSTRINGS_sv_SE", CompiledTranslation({{"IDS_AGG_YEAR", "Year", "År"}})}});
        ASSERT_TRUE(QResource::registerResource(QString::fromStdString(folder.PathOf("swedish.rcc")),
                                                QStringLiteral("/velcoredata")));
        EXPECT_TRUE(QFile::exists(QStringLiteral(":/velcoredata/TQRC_MODSTRINGS_sv_SE")));
        EXPECT_EQ(TextIn(u"sv_SE", StringId::IDS_AGG_YEAR), u"Year");
    });
}

TEST(SessionTexts, ReachManyThreadsAtOnce)
{
    InFreshProcess([] {
        std::pair<char16_t const *, char16_t const *> const expected[] = {
            {u"de_DE", u"Jahr"}, {u"fr_FR", u"Année"}, {u"it_IT", u"Anno"}, {u"de_AT", u"Jahr"}, {u"da_DK", u"Year"}};
        std::array<int, 8> wrong{};
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < wrong.size(); ++i) {
            threads.emplace_back([&, i] {
                for (std::size_t round = 0; round < 40; ++round) {
                    auto const & [language, year] = expected[(i + round) % std::size(expected)];
                    wrong[i] += TextIn(language, StringId::IDS_AGG_YEAR) == year ? 0 : 1;
                    wrong[i] += LookupTStrExported(StringId::IDS_AGG_YEAR) == u"Year" ? 0 : 1;
                }
            });
        }
        for (std::thread & thread : threads)
            thread.join();
        for (int const count : wrong)
            EXPECT_EQ(count, 0);
    });
}

// The caches ask each other: texts for languages, languages for archives, archives for the session's language.
TEST(SessionTexts, FirstUsesOfAllCachesMeetWithoutWaitingForEachOther)
{
    for (int round = 0; round < 5; ++round) {
        InFreshProcess([] {
            ResourceFolder const folder;
            folder.Pack("app/res/ga_IE/vellangres.rcc", {{"TQRC_VELSTRINGS", "x"}});
            folder.Pack("app/res/de_DE/vellangres.rcc",
                        {{"TQRC_VELSTRINGS", CompiledTranslation({{"IDS_YEAR", "Year", "Jahr"}})}});
            std::function<bool()> const uses[] = {
                [] { return TextIn(u"de_AT", StringId::IDS_AGG_YEAR) == u"Jahr"; },
                [] { return StringTableCache::GetInstance().GetTranslator(u"de_AT") != nullptr; },
                [] { return LanguageUtils::IsLanguageCodeSupported(u"ga_IE"); },
                [] { return ResourceRegistrationCache::GetInstance().IsResourceLoaded(u"en_US"); },
                [] { return LanguageUtils::GetClosestSpecialLocaleCode(u"ga_IE-US") == u"en_US-US"; },
                [] { return TLocale::GetUserDefaultLocale().GetLCID() == 1024; },
                [] { return TextIn(u"fr_CH", StringId::IDS_AGG_YEAR) == u"Année"; },
                [] { return LanguageUtils::PseudoLocFeatureShouldBeEnabled(); },
            };
            std::atomic<int> waiting{static_cast<int>(std::size(uses))};
            std::atomic<int> wrong{0};
            std::vector<std::thread> threads;
            for (auto const & use : uses) {
                threads.emplace_back([&] {
                    --waiting;
                    while (waiting != 0)
                        std::this_thread::yield();
                    wrong += use() ? 0 : 1;
                });
            }
            for (std::thread & thread : threads)
                thread.join();
            EXPECT_EQ(wrong, 0);
        });
    }
}

// An instance cannot be missing by itself: here its maker gives none.
TEST(SessionTexts, AMissingCacheIsAFaultOfTheGeneratedTable)
{
    static void * s_slot = nullptr;
    auto const ask = [] {
        CoreData::detail::LocalStringTableCacheIn(
            &s_slot, [](void *) { return new boost::any(std::shared_ptr<CoreData::LocalStringTableCache>()); });
    };
    EXPECT_THAT(ask, ThrowsAssert("s_cache", "LogicException_LogicAssert_0x5C1E7B92"));
    try {
        ask();
    } catch (LogicException const & e) {
        EXPECT_NE(std::string(e.GetFile()).find("StringTable.cpp"), std::string::npos) << e.GetFile();
    }
}
