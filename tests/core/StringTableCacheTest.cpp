#include "velcoredata/core/StringTableCache.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <QtCore/QTranslator>

#include "main/core/TableCacheInstance.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/FreshProcess.h"
#include "tests/support/ResourceBuilder.h"
#include "velcoredata/core/ResourceRegistrationCache.h"

using test_support::CompiledTranslation;
using test_support::InFreshProcess;
using test_support::ResourceFolder;

namespace {

constexpr char const * resourceName = "TQRC_VELSTRINGS";

// Puts translations of "Year" under IDS_YEAR into a language archive beside the program.
void Install(ResourceFolder const & folder, std::string const & language, std::string const & year)
{
    folder.Pack("app/res/" + (language == "en_US" ? "" : language + "/") + "vellangres.rcc",
                {{resourceName, CompiledTranslation({{"IDS_YEAR", "Year", year}})}});
}

TString Year(QTranslator const * translator)
{
    return translator == nullptr ? TString(u"(null)") : TString(translator->translate("IDS_YEAR", "Year"));
}

struct OpenCache : StringTableCache
{
    using StringTableCache::LoadTranslatorInfo;
};

}  // namespace

TEST(StringTableCache, GivesTheTranslatorOfALanguage)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        Install(folder, "de_DE", "Jahr");
        Install(folder, "fr_FR", "Année");
        StringTableCache & cache = StringTableCache::GetInstance();
        EXPECT_EQ(&cache, &StringTableCache::GetInstance());
        QTranslator const * const german = cache.GetTranslator(u"de_DE");
        EXPECT_EQ(Year(german), u"Jahr");
        EXPECT_EQ(Year(cache.GetTranslator(u"fr_FR")), u"Année");
        EXPECT_EQ(cache.GetTranslator(u"de_DE"), german) << "made once";
        EXPECT_TRUE(german->translate("IDS_OTHER", "Other").isEmpty());
        EXPECT_EQ(StringTableCache::sm_csInstancePriority, 10);
    });
}

TEST(StringTableCache, GivesNoneForEnglish)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        Install(folder, "en_US", "Annum");
        StringTableCache & cache = StringTableCache::GetInstance();
        EXPECT_EQ(cache.GetTranslator(u""), nullptr);
        EXPECT_EQ(cache.GetTranslator(u"en_US"), nullptr) << "though its archive has translations";
    });
}

TEST(StringTableCache, FallsBackToTheClosestSupportedLanguage)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        Install(folder, "de_DE", "Jahr");
        Install(folder, "zh_TW", "年");
        StringTableCache & cache = StringTableCache::GetInstance();
        EXPECT_EQ(Year(cache.GetTranslator(u"de_AT")), u"Jahr");
        EXPECT_EQ(Year(cache.GetTranslator(u"zh_HK")), u"年");
        EXPECT_EQ(cache.GetTranslator(u"sv_SE"), nullptr) << "closest is English";
        EXPECT_EQ(cache.GetTranslator(u"fr_CA"), nullptr) << "supported, but without an archive";
        EXPECT_EQ(cache.GetTranslator(u"no language at all"), nullptr);
    });
}

TEST(StringTableCache, TakesTheDefaultLanguagesArchiveBeforeTheClosestLanguage)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        Install(folder, "en_US", "Annum");
        Install(folder, "de_DE", "Jahr");
        StringTableCache & cache = StringTableCache::GetInstance();
        EXPECT_EQ(Year(cache.GetTranslator(u"de_AT")), u"Annum");
        EXPECT_EQ(Year(cache.GetTranslator(u"de_DE")), u"Jahr");
    });
}

TEST(StringTableCache, PrefersTheBrand)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        Install(folder, "de_DE", "Jahr");
        folder.Pack("app/res/de_DE/veltria-oem.rcc",
                    {{resourceName, CompiledTranslation({{"IDS_YEAR", "Year", "Markenjahr"}})}});
        EXPECT_EQ(Year(StringTableCache::GetInstance().GetTranslator(u"de_DE")), u"Markenjahr");
    });
}

TEST(StringTableCache, GivesNoneWithoutArchives)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        for (int round = 0; round < 2; ++round) {
            for (char16_t const * language : {u"de_DE", u"de", u"ga_IE", u"ar_YE", u"xx_XX"})
                EXPECT_EQ(StringTableCache::GetInstance().GetTranslator(language), nullptr) << TString(language);
        }
    });
}

TEST(StringTableCache, GivesOneWithoutMessagesForDamagedTranslations)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        std::string const whole = CompiledTranslation({{"IDS_YEAR", "Year", "Jahr"}});
        std::pair<char16_t const *, std::string> const rows[] = {
            {u"de_DE", whole.substr(0, whole.size() / 2)},
            {u"fr_FR", ""},
            {u"it_IT", "no translations"},
            // "Further files: a", which Qt would open.
            {u"ja_JP", whole.substr(0, 16) + std::string("\x96\0\0\0\x06\0\0\0\x02\0a", 11)},
        };
        for (auto const & [language, bytes] : rows)
            folder.Pack("app/res/" + TString(language).toStdString() + "/vellangres.rcc", {{resourceName, bytes}});
        for (auto const & [language, bytes] : rows) {
            QTranslator const * const translator = StringTableCache::GetInstance().GetTranslator(language);
            ASSERT_NE(translator, nullptr) << TString(language);
            EXPECT_TRUE(translator->isEmpty()) << TString(language);
            EXPECT_EQ(Year(translator), u"") << TString(language);
        }
    });
}

TEST(StringTableCache, LoadsARecord)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        Install(folder, "de_DE", "Jahr");
        folder.Pack("app/res/fr_FR/vellangres.rcc", {{resourceName, "damaged"}});
        OpenCache cache;
        QTranslatorInfo info;
        EXPECT_FALSE(cache.LoadTranslatorInfo(u"it_IT", info));
        EXPECT_EQ(info.translator, nullptr) << "nothing to load from";
        EXPECT_TRUE(cache.LoadTranslatorInfo(u"vellangres.rcc", u"de_DE", info));
        EXPECT_EQ(Year(info.translator.get()), u"Jahr");
        QTranslator const * const before = info.translator.get();
        EXPECT_FALSE(cache.LoadTranslatorInfo(u"it_IT", info));
        EXPECT_EQ(info.translator.get(), before) << "the record stays";
        EXPECT_FALSE(cache.LoadTranslatorInfo(u"fr_FR", info));
        ASSERT_NE(info.translator, nullptr);
        EXPECT_TRUE(info.translator->isEmpty()) << "a new one, though it did not load";
        EXPECT_TRUE(cache.LoadTranslatorInfo(u"other.rcc", u"de_DE", info)) << "the archive's name has no effect";
    });
}

TEST(StringTableCache, AnswersManyThreadsAlike)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        Install(folder, "de_DE", "Jahr");
        Install(folder, "fr_FR", "Année");
        std::pair<char16_t const *, char16_t const *> const expected[] = {{u"de_DE", u"Jahr"},
                                                                          {u"fr_FR", u"Année"},
                                                                          {u"de_AT", u"Jahr"},
                                                                          {u"it_IT", u"(null)"},
                                                                          {u"en_US", u"(null)"}};
        std::array<int, 8> wrong{};
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < wrong.size(); ++i) {
            threads.emplace_back([&, i] {
                for (std::size_t round = 0; round < 50; ++round) {
                    auto const & [language, year] = expected[(i + round) % std::size(expected)];
                    wrong[i] += Year(StringTableCache::GetInstance().GetTranslator(language)) == year ? 0 : 1;
                }
            });
        }
        for (std::thread & thread : threads)
            thread.join();
        for (int const count : wrong)
            EXPECT_EQ(count, 0);
    });
}

// An instance cannot be missing by itself: here its maker gives none.
TEST(StringTableCache, AMissingInstanceIsAFault)
{
    static void * s_slot = nullptr;
    auto const ask = [] {
        CoreData::detail::StringTableCacheIn(
            &s_slot, [](void *) { return new boost::any(std::shared_ptr<StringTableCache>()); });
    };
    EXPECT_THAT(ask, ThrowsAssert("s_cache", "LogicException_LogicAssert_0xD9D457CD"));
    EXPECT_THAT(ask, ThrowsAssert("s_cache", "LogicException_LogicAssert_0xD9D457CD")) << "and stays one";
}
