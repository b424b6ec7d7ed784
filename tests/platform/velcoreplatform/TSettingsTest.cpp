#include "velcoreplatform/TSettings.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

constexpr auto kGroup = TSettings::Group::Language;

// A configuration folder of this program's own; Qt reads the variable once, before the first settings object.
std::filesystem::path const & ConfigurationFolder()
{
    static std::filesystem::path const s_folder = [] {
        std::string pattern = (std::filesystem::temp_directory_path() / "velcoreplatform-settings-XXXXXX").string();
        std::filesystem::path const folder = mkdtemp(pattern.data());
        setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
        return folder;
    }();
    return s_folder;
}

class DefaultStore : public testing::Test
{
public:
    static void SetUpTestSuite() { ConfigurationFolder(); }
    static void TearDownTestSuite() { std::filesystem::remove_all(ConfigurationFolder()); }
};

class MemoryStore : public TSettings::Store
{
public:
    MemoryStore() : m_before(TSettings::ReplaceStore(this)) {}
    ~MemoryStore() override { TSettings::ReplaceStore(m_before); }

    std::optional<TString> Get(TString const & organization, TString const & application, TSettings::Group group,
                               TString const & key) override
    {
        auto const found = values.find(Path(organization, application, group, key));
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void Set(TString const & organization, TString const & application, TSettings::Group group, TString const & key,
             TString const & value) override
    {
        values[Path(organization, application, group, key)] = value;
    }

    std::map<TString, TString> values;

private:
    static TString Path(TString const & organization, TString const & application, TSettings::Group group,
                        TString const & key)
    {
        return organization + u'|' + application + u'|' + TString::number(static_cast<int>(group)) + u'|' + key;
    }

    TSettings::Store * m_before;
};

TEST(TSettings, TheLanguageGroupIsThirtyFive)
{
    EXPECT_EQ(static_cast<int>(kGroup), 35);
}

TEST(TSettings, GoesToTheReplacedStore)
{
    MemoryStore store;
    EXPECT_EQ(TSettings::GetStringValue(kGroup, u"LanguageCode", u"none"), u"none");
    TSettings::SetStringValue(kGroup, u"LanguageCode", u"de_DE");
    EXPECT_EQ(TSettings::GetStringValue(kGroup, u"LanguageCode", u"none"), u"de_DE");
    TSettings::SetStringValue(kGroup, u"LanguageCode", u"");
    EXPECT_EQ(TSettings::GetStringValue(kGroup, u"LanguageCode", u"none"), u"");
    TSettings(kGroup, u"org", u"app").SetStringValue(u"SamplesLanguage", u"fr_FR");
    EXPECT_EQ(store.values[u"org|app|35|SamplesLanguage"], u"fr_FR");
    EXPECT_EQ(TSettings::GetStringValue(kGroup, u"SamplesLanguage", u"none"), u"none");
}

TEST(TSettings, TheStoreBeforeComesBack)
{
    MemoryStore const outer;
    {
        MemoryStore inner;
        TSettings::SetStringValue(kGroup, u"k", u"v");
        EXPECT_EQ(inner.values.size(), 1u);
    }
    EXPECT_TRUE(outer.values.empty());
}

TEST_F(DefaultStore, KeepsTextsInTheConfigurationFolder)
{
    struct Row
    {
        char16_t const * key;
        char16_t const * value;
    };
    Row const rows[] = {
        {u"LanguageCode", u"de_DE"},    {u"Empty", u""},         {u"Blank", u"  a, \"b\"; c=d  "},
        {u"Wide", u"\u00FC\U0001F600"}, {u"At", u"@Variant(x)"}, {u"with blank", u"x\ny"},
    };
    for (Row const & row : rows) {
        EXPECT_EQ(TSettings::GetStringValue(kGroup, row.key, u"none"), u"none");
        TSettings::SetStringValue(kGroup, row.key, row.value);
    }
    for (Row const & row : rows)
        EXPECT_EQ(TSettings::GetStringValue(kGroup, row.key, u"none"), row.value);
    bool inFolder = false;
    for (auto const & entry : std::filesystem::recursive_directory_iterator(ConfigurationFolder()))
        inFolder = inFolder || entry.is_regular_file();
    EXPECT_TRUE(inFolder);
}

TEST_F(DefaultStore, KeepsTheSettingsOfAnotherApplicationApart)
{
    TSettings::SetStringValue(kGroup, u"Apart", u"own");
    TSettings(kGroup, u"org", u"app").SetStringValue(u"Apart", u"other");
    EXPECT_EQ(TSettings::GetStringValue(kGroup, u"Apart", u"none"), u"own");
}

TEST_F(DefaultStore, MayBeUsedFromSeveralThreads)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([i] {
            TString const key = u"Thread" + TString::number(i);
            for (int round = 0; round < 5; ++round)
                TSettings::SetStringValue(kGroup, key, TString::number(round));
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(TSettings::GetStringValue(kGroup, u"Thread" + TString::number(i), u"none"), u"4");
}

}  // namespace
