#include "velcoredata/core/ResourceRegistrationCache.h"

#include <gtest/gtest.h>

#include <boost/any.hpp>

#include <unistd.h>

#include <array>
#include <functional>
#include <memory>
#include <thread>
#include <utility>

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>

#include "main/core/ResourceFiles.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/FreshProcess.h"
#include "tests/support/ResourceBuilder.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/core/TResource.h"
#include "velcoreplatform/CorePlatformOptions.h"
#include "velcoreplatform/CoreThreadContext.h"

using test_support::InFreshProcess;
using test_support::ResourceFolder;

namespace {

// A registry of its own, with nothing tried yet but what every one tries at first.
class Registry : public ResourceRegistrationCache
{};

TString const none;

std::string BytesAt(TString const & qtPath)
{
    TResource const resource{qtPath};
    return resource.isValid() ? std::string(reinterpret_cast<char const *>(resource.GetPtr()),
                                            static_cast<std::size_t>(resource.size()))
                              : "(none)";
}

std::string BytesOf(ResourceRegistrationCache & registry, char16_t const * name, char16_t const * language)
{
    TString const path = registry.GetResourcePath(name, language);
    return path.isEmpty() ? "(none)" : BytesAt(path);
}

// The file of an archive under the working directory.
std::string ArchiveFile(std::string const & language, bool brand)
{
    return "work/res/" + (language == "en_US" ? "" : language + "/") + (brand ? "veltria-oem.rcc" : "vellangres.rcc");
}

void SetSessionLocale(std::shared_ptr<TLocale> locale)
{
    CoreThreadContext::SetGenericObject(u"locale", std::make_shared<boost::any>(std::move(locale)));
}

// Puts an option back at the end.
struct BundleScope
{
    BundleScope() { CorePlatformOptions::SetIsAppBundle(true); }
    ~BundleScope() { CorePlatformOptions::SetIsAppBundle(false); }
};

}  // namespace

TEST(FindResourceFile, TakesTheWorkingDirectoryThenTheLibrarysThenTheProgramsOwn)
{
    ResourceFolder const folder;
    TString const library = ModuleDirectory(reinterpret_cast<void const *>(&FindResourceFile));
    // A name of this process's own: the library's directory is shared with other tests.
    std::string const name = "found-" + std::to_string(getpid()) + ".txt";
    TPath const relative(TString::fromStdString(name));
    std::string const beside = library.toStdString() + "/res/" + name;

    EXPECT_TRUE(FindResourceFile(relative).IsEmpty());
    folder.Write("app/res/" + name, "program");
    EXPECT_EQ(TString(FindResourceFile(relative)), TString::fromStdString(folder.PathOf("app/res/" + name)));
    QDir().mkpath(QString::fromStdString(library.toStdString() + "/res"));
    {
        QFile file(QString::fromStdString(beside));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    EXPECT_EQ(TString(FindResourceFile(relative)), TString::fromStdString(beside));
    folder.Write("work/res/" + name, "working");
    EXPECT_EQ(TString(FindResourceFile(relative)), TString::fromStdString("res/" + name));
    QFile::remove(QString::fromStdString(beside));
    QDir(library.toQString()).rmdir(QStringLiteral("res"));
}

TEST(FindResourceFile, LooksIntoTheBundlesFolderInABundle)
{
    ResourceFolder const folder;
    folder.Write("work/res/a.txt", "");
    folder.Write("Resources/b.txt", "");
    EXPECT_TRUE(FindResourceFile(u"b.txt").IsEmpty());
    BundleScope const bundle;
    EXPECT_TRUE(FindResourceFile(u"a.txt").IsEmpty());
    EXPECT_EQ(TString(FindResourceFile(u"b.txt")), u"../Resources/b.txt");
}

TEST(FindResourceFile, ReadsTheDirectoryOfTheLibraryAsItsBuildsShareIt)
{
    struct
    {
        char16_t const * directory;
        bool alternative;
        char16_t const * expected;
    } const rows[] = {
        {u"C:\\product\\bin32", false, u"C:\\product\\bin"},
        {u"C:\\product\\bin32\\x", false, u"C:\\product\\bin\\x"},
        {u"C:\\product\\BIN32", false, u"C:\\product\\BIN32"},
        {u"/product/bin32", false, u"/product/bin32"},
        {u"D:\\veltria-1.3\\build\\debug", false, u"D:\\veltria-1.3\\build\\debug"},
        {u"D:\\veltria-1.3\\build\\debug", true, u"D:\\veltria-1.3\\build\\debug-x64"},
        {u"D:\\veltria-1.3\\build\\debug-x64", true, u"D:\\veltria-1.3\\build\\debug-x64"},
        {u"D:\\veltria-1.4\\build\\debug", true, u"D:\\veltria-1.4\\build\\debug"},
        {u"D:\\veltria-1.3\\build\\bin32", true, u"D:\\veltria-1.3\\build\\bin-x64"},
    };
    for (auto const & row : rows)
        EXPECT_EQ(detail::LibraryResourceDirectory(row.directory, row.alternative), row.expected);
}

TEST(GetCorrectedLangCode, CompletesShortCodes)
{
    EXPECT_EQ(GetCorrectedLangCode(u"de"), u"de_");
    EXPECT_EQ(GetCorrectedLangCode(u"zh"), u"zh_");
    EXPECT_EQ(GetCorrectedLangCode(u"de_DE"), u"de_DE");
    EXPECT_EQ(GetCorrectedLangCode(u"haw"), u"haw");
    EXPECT_EQ(GetCorrectedLangCode(u""), u"en_US");
    EXPECT_EQ(GetCorrectedLangCode(u"d"), u"en_US");
}

TEST(GetCorrectedLangCode, TakesTheLanguageOfTheSession)
{
    ScopedSession const session;
    EXPECT_EQ(GetCorrectedLangCode(u""), u"") << "a session without a locale has no language";
    SetSessionLocale(std::make_shared<TLocale>(TString(u"fr_FR")));
    EXPECT_EQ(GetCorrectedLangCode(u""), u"fr_FR");
    EXPECT_EQ(GetCorrectedLangCode(u"x"), u"fr_FR");
    EXPECT_EQ(GetCorrectedLangCode(u"de"), u"de_");
    SetSessionLocale(std::make_shared<TLocale>(0x1Du));
    EXPECT_EQ(GetCorrectedLangCode(u""), u"sv_") << "a language of two letters is completed too";
}

TEST(GetCorrectedLangCode, RaisesBadFunctionCallWhereTheSessionQuestionIsEmpty)
{
    struct Restore
    {
        ~Restore() { CoreThreadContext::HasSessionId = before; }
        std::function<bool()> before = std::exchange(CoreThreadContext::HasSessionId, nullptr);
    } const restore;
    EXPECT_THROW(GetCorrectedLangCode(u""), std::bad_function_call);
    EXPECT_EQ(GetCorrectedLangCode(u"de"), u"de_");
    EXPECT_EQ(GetCorrectedLangCode(u"de_DE"), u"de_DE");
}

TEST(ResourceRegistrationCache, TriesBothArchivesOfTheDefaultLanguageAtFirst)
{
    ResourceFolder const folder;
    Registry const registry;
    EXPECT_TRUE(registry.IsResourceLoaded(u"en_US")) << "tried, though there is none";
    EXPECT_TRUE(registry.IsResourceLoaded(u"OEM/en_US"));
    EXPECT_FALSE(registry.IsResourceLoaded(u"de_DE"));
    EXPECT_FALSE(registry.IsResourceLoaded(u"/en_US"));
    EXPECT_EQ(ResourceRegistrationCache::sm_csInstancePriority, 3);
}

TEST(ResourceRegistrationCache, RegistersTheArchiveOfALanguageUnderItsRoot)
{
    ResourceFolder const folder;
    folder.Pack("work/res/vellangres.rcc", {{"r", "english"}});
    folder.Pack("work/res/de_DE/vellangres.rcc", {{"r", "german"}, {"sub/s", "deep"}});
    folder.Pack("app/res/fr_FR/veltria-oem.rcc", {{"r", "french"}});
    {
        Registry registry;
        EXPECT_EQ(BytesAt(u":/en_US/r"), "english");
        EXPECT_EQ(BytesAt(u":/de_DE/r"), "(none)");
        EXPECT_TRUE(registry.LoadResource(u"vellangres.rcc", u"de_DE", none));
        EXPECT_EQ(BytesAt(u":/de_DE/r"), "german");
        EXPECT_EQ(BytesAt(u":/de_DE/sub/s"), "deep");
        EXPECT_TRUE(registry.LoadResource(u"veltria-oem.rcc", u"fr_FR", u"OEM"));
        EXPECT_EQ(BytesAt(u":/OEM/fr_FR/r"), "french");
        EXPECT_TRUE(registry.LoadResource(u"vellangres.rcc", u"de_DE", none)) << "the answer stays";
        EXPECT_TRUE(registry.IsResourceLoaded(u"de_DE"));
        EXPECT_TRUE(registry.IsResourceLoaded(u"OEM/fr_FR"));
        EXPECT_FALSE(registry.IsResourceLoaded(u"fr_FR"));
    }
    for (char16_t const * path : {u":/en_US/r", u":/de_DE/r", u":/OEM/fr_FR/r"})
        EXPECT_EQ(BytesAt(path), "(none)") << "the registry takes its archives with it";
}

TEST(ResourceRegistrationCache, LooksForAnArchiveOnce)
{
    ResourceFolder const folder;
    Registry registry;
    EXPECT_FALSE(registry.LoadResource(u"vellangres.rcc", u"de_DE", none));
    EXPECT_TRUE(registry.IsResourceLoaded(u"de_DE")) << "a failure is remembered";
    folder.Pack("work/res/de_DE/vellangres.rcc", {{"r", "german"}});
    EXPECT_FALSE(registry.LoadResource(u"vellangres.rcc", u"de_DE", none));
    // The key is the language, whatever the name of the archive.
    folder.Pack("work/res/de_DE/other.rcc", {{"r", "other"}});
    EXPECT_FALSE(registry.LoadResource(u"other.rcc", u"de_DE", none));
    EXPECT_TRUE(registry.LoadResource(u"other.rcc", u"de_DE", u"Mine"));
    EXPECT_EQ(BytesAt(u":/Mine/de_DE/r"), "other");
    EXPECT_EQ(BytesAt(u":/de_DE/r"), "(none)");
}

// The archives that lie there, one digit each: brand and language archive of German, then of English.
TEST(ResourceRegistrationCache, FindsAResourceInTheStatedOrder)
{
    for (int present = 0; present < 16; ++present) {
        ResourceFolder const folder;
        bool const brandGerman = (present & 1) != 0;
        bool const brandEnglish = (present & 2) != 0;
        bool const german = (present & 4) != 0;
        bool const english = (present & 8) != 0;
        if (brandGerman)
            folder.Pack(ArchiveFile("de_DE", true), {{"r", "brand german"}, {"only-brand-german", ""}});
        if (brandEnglish)
            folder.Pack(ArchiveFile("en_US", true), {{"r", "brand english"}});
        if (german)
            folder.Pack(ArchiveFile("de_DE", false), {{"r", "german"}, {"plain", "german plain"}});
        if (english)
            folder.Pack(ArchiveFile("en_US", false), {{"r", "english"}, {"plain", "english plain"}, {"e", "e"}});
        std::string const plain = german ? "german" : english ? "english" : "(none)";
        std::string const branded = brandGerman ? "brand german" : brandEnglish ? "brand english" : plain;

        Registry registry;
        EXPECT_EQ(BytesOf(registry, u"r", u"de_DE"), branded) << present;
        // An archive without the resource is passed over.
        EXPECT_EQ(BytesOf(registry, u"plain", u"de_DE"), german    ? "german plain"
                                                         : english ? "english plain"
                                                                   : "(none)")
            << present;
        EXPECT_EQ(BytesOf(registry, u"e", u"de_DE"), english ? "e" : "(none)") << present;
        EXPECT_EQ(BytesOf(registry, u"e", u"sv_SE"), english ? "e" : "(none)") << "any language";
        EXPECT_EQ(BytesOf(registry, u"r", u"en_US"), brandEnglish ? "brand english"
                                                     : english    ? "english"
                                                                  : "(none)")
            << present;
        EXPECT_EQ(BytesOf(registry, u"r", u""), brandEnglish ? "brand english" : english ? "english" : "(none)");
        EXPECT_EQ(registry.GetResourcePath(u"missing", u"de_DE"), none);
    }
}

TEST(ResourceRegistrationCache, NamesTheQtPathsOfBothArchives)
{
    ResourceFolder const folder;
    folder.Pack(ArchiveFile("de_DE", true), {{"a", ""}});
    folder.Pack(ArchiveFile("de_DE", false), {{"b", ""}, {"sub/c", ""}});
    Registry registry;
    EXPECT_EQ(registry.GetResourcePath(u"a", u"de_DE"), u":/OEM/de_DE/a");
    EXPECT_EQ(registry.GetResourcePath(u"b", u"de_DE"), u":/de_DE/b");
    EXPECT_EQ(registry.GetResourcePath(u"sub/c", u"de_DE"), u":/de_DE/sub/c");
    ScopedSession const session;
    SetSessionLocale(std::make_shared<TLocale>(TString(u"de_DE")));
    EXPECT_EQ(registry.GetResourcePath(u"b", u""), u":/de_DE/b") << "the session's language";
}

TEST(ResourceRegistrationCache, LooksOnlyIntoTheLanguageArchivesWithoutTheBrand)
{
    ResourceFolder const folder;
    for (char const * language : {"de_DE", "en_US"}) {
        folder.Pack(ArchiveFile(language, true), {{"r", std::string("brand ") + language}, {"b", ""}});
        folder.Pack(ArchiveFile(language, false), {{"r", language}});
    }
    Registry registry;
    EXPECT_FALSE(registry.OEMResourcesDisabled());
    registry.DisableOEMResources();
    EXPECT_TRUE(registry.OEMResourcesDisabled());
    EXPECT_EQ(BytesOf(registry, u"r", u"de_DE"), "de_DE");
    EXPECT_EQ(BytesOf(registry, u"r", u"en_US"), "en_US");
    EXPECT_EQ(BytesOf(registry, u"b", u"de_DE"), "(none)");
    EXPECT_FALSE(registry.IsResourceLoaded(u"OEM/de_DE")) << "not even looked for";
    EXPECT_TRUE(registry.LoadResource(u"veltria-oem.rcc", u"de_DE", u"OEM")) << "loading by name still works";
    registry.DisableOEMResources();
    EXPECT_TRUE(registry.OEMResourcesDisabled());
}

TEST(ResourceRegistrationCache, AnswersManyThreadsAlike)
{
    ResourceFolder const folder;
    char16_t const * const languages[] = {u"de_DE", u"fr_FR", u"it_IT", u"ja_JP", u"sv_SE", u"en_US"};
    folder.Pack(ArchiveFile("en_US", false), {{"r", "english"}});
    for (char const * language : {"de_DE", "it_IT"})
        folder.Pack(ArchiveFile(language, false), {{"r", language}});
    folder.Pack(ArchiveFile("fr_FR", true), {{"r", "brand"}});
    Registry registry;
    std::array<int, 8> wrong{};
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < wrong.size(); ++i) {
        threads.emplace_back([&, i] {
            for (int round = 0; round < 60; ++round) {
                TString const language = languages[(i + static_cast<std::size_t>(round)) % std::size(languages)];
                TString const path = registry.GetResourcePath(u"r", language);
                TString const expected = language == u"fr_FR"                           ? TString(u":/OEM/fr_FR/r")
                                         : language == u"de_DE" || language == u"it_IT" ? u":/" + language + u"/r"
                                                                                        : TString(u":/en_US/r");
                wrong[i] += path == expected && registry.IsResourceLoaded(u"OEM/" + language) ? 0 : 1;
                wrong[i] += registry.LoadResource(u"vellangres.rcc", u"ja_JP", none) ? 1 : 0;
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    for (int const count : wrong)
        EXPECT_EQ(count, 0);
}

TEST(ResourceRegistrationCache, TheProcesssInstanceIsMadeOnce)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        folder.Pack("app/res/vellangres.rcc", {{"r", "english"}});
        std::array<ResourceRegistrationCache *, 8> found{};
        std::vector<std::thread> threads;
        for (auto & place : found)
            threads.emplace_back([&place] {
                InitResourceRegistrationCache();
                place = &ResourceRegistrationCache::GetInstance();
            });
        for (std::thread & thread : threads)
            thread.join();
        for (auto * const place : found)
            EXPECT_EQ(place, &ResourceRegistrationCache::GetInstance());
        EXPECT_EQ(BytesOf(*found[0], u"r", u"de_DE"), "english");
        TResource const resource(u"r", u"fr_FR");
        EXPECT_TRUE(resource.isValid()) << "resources by language ask the process's instance";
    });
}

TEST(PseudoLocales, AreOfferedWhereTheirTranslationsAreInstalled)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        folder.Pack("app/res/ga_IE/vellangres.rcc", {{"TQRC_VELSTRINGS", "x"}});
        EXPECT_TRUE(LanguageUtils::PseudoLocFeatureShouldBeEnabled());
        EXPECT_TRUE(LanguageUtils::IsLanguageCodeSupported(u"ga_IE-US"));
        EXPECT_TRUE(LanguageUtils::IsLanguageCodeSupported(u"ar"));
        EXPECT_EQ(LanguageUtils::GetSupportedLanguages().size(), 15u);
        EXPECT_EQ(LanguageUtils::GetClosestSpecialLocaleCode(u"ga_IE-US"), u"en_US-US");
        EXPECT_EQ(LanguageCode(u"ga").GetFullString(), u"ga_IE-US");
    });
}

TEST(PseudoLocales, AreNotOfferedWithoutAnArchiveOfTheirOwn)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        // Found in the default language's archive, but that is not theirs.
        folder.Pack("app/res/vellangres.rcc", {{"TQRC_VELSTRINGS", "x"}});
        EXPECT_FALSE(LanguageUtils::PseudoLocFeatureShouldBeEnabled());
        EXPECT_FALSE(LanguageUtils::IsLanguageCodeSupported(u"ga_IE-US"));
        EXPECT_EQ(LanguageUtils::GetSupportedLanguages().size(), 13u);
        EXPECT_TRUE(ResourceRegistrationCache::GetInstance().IsResourceLoaded(u"ga_IE")) << "it was looked for";
    });
    InFreshProcess([] {
        ResourceFolder const folder;
        // An archive, but without translations, neither there nor in the default language.
        folder.Pack("app/res/ga_IE/vellangres.rcc", {{"r", "x"}});
        EXPECT_FALSE(LanguageUtils::PseudoLocFeatureShouldBeEnabled());
        EXPECT_FALSE(LanguageUtils::IsLanguageCodeSupported(u"ga"));
    });
}

TEST(PseudoLocales, AreAskedForByManyThreadsAtOnce)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        folder.Pack("app/res/ga_IE/vellangres.rcc", {{"TQRC_VELSTRINGS", "x"}});
        std::array<bool, 8> supported{};
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < supported.size(); ++i)
            threads.emplace_back([&place = supported[i], i] {
                if (i % 2 == 0)
                    ResourceRegistrationCache::GetInstance().LoadResource(u"vellangres.rcc", u"de_DE", none);
                place = LanguageUtils::IsLanguageCodeSupported(u"ga_IE");
            });
        for (std::thread & thread : threads)
            thread.join();
        for (bool const one : supported)
            EXPECT_TRUE(one);
    });
}
