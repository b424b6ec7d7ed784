#include "velcoredata/core/LanguageUtils.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

#include "main/core/LanguageTables.h"
#include "tests/support/MemorySettings.h"
#include "velnls/LocaleNames.h"

using namespace LanguageUtils;

namespace {

constexpr char16_t const * uiKey = u"veltria/velcoredata/35/LanguageCode";
constexpr char16_t const * samplesKey = u"veltria/velcoredata/35/SamplesLanguage";

}  // namespace

TEST(LanguageUtils, LocaleNamesOfLcids)
{
    struct
    {
        LCID lcid;
        char const * name;
    } const rows[] = {
        {0x409, "en_US"},
        {0x404, "zh_TW"},
        {0xC04, "zh_HK"},
        {9, "en"},
        {0x48C, "fa_AF"},  // published as prs-AF
        {0x8C, "fa"},
        {0x46B, "qu_BO"},  // published as quz-BO
        {0x6B, "qu"},
        {0x241A, "sr_Latn_RS"},
        {0x10407, "de_DE_phoneb"},
        {0, "root"},
        {0xFFFF, "root"},
        {0xFFFFFFFF, "root"},
        // The defaults are the user's locale.
        {127, "en_US"},
        {1024, "en_US"},
        {2048, "en_US"},
        {3072, "en_US"},
        {4096, "en_US"},
        {5120, "en_US"},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(GetLocaleNarrowStr(row.lcid), row.name) << std::hex << row.lcid;
        if (row.lcid != 4096) {
            EXPECT_EQ(GetLocaleStr(row.lcid), TString::fromUtf8(row.name)) << std::hex << row.lcid;
        }
    }
    EXPECT_EQ(GetLocaleStr(4096), u"ar_YE");
}

TEST(LanguageUtils, EveryPublishedNameIsTheNameOfItsLcid)
{
    for (VelNLS::PublishedLocaleName const & row : VelNLS::GetPublishedLocaleNames()) {
        std::string name(row.name);
        std::replace(name.begin(), name.end(), '-', '_');
        if (name.substr(0, 3) == "prs" || name.substr(0, 3) == "quz")
            continue;
        EXPECT_EQ(GetLocaleNarrowStr(row.lcid), name);
    }
}

TEST(LanguageUtils, EverySixteenBitLcidHasAName)
{
    for (LCID lcid = 0; lcid <= 0xFFFF; ++lcid)
        ASSERT_FALSE(GetLocaleNarrowStr(lcid).empty()) << lcid;
}

TEST(LanguageUtils, AnLcidThatOnlyIcuKnowsHasIcusName)
{
    EXPECT_EQ(GetLocaleNarrowStr(0x7409), "en");
}

TEST(LanguageUtils, LcidsOfNames)
{
    EXPECT_EQ(GetLCID(u"de_DE"), 0x407u);
    EXPECT_EQ(GetLCID(u"xx_YY"), 0u);
    EXPECT_EQ(GetLCID(u""), 0u);
    EXPECT_TRUE(IsLocaleSupported(u"de_DE"));
    EXPECT_FALSE(IsLocaleSupported(u"xx_YY"));
    EXPECT_EQ(LanguageUtils::ConvertDefaultLocale(1024), 0x409u);
    EXPECT_EQ(LanguageUtils::ConvertDefaultLocale(1031), 1031u);
}

TEST(LanguageUtils, PartsOfCodes)
{
    EXPECT_EQ(GetISOString(u"de_DE-EU"), u"de_DE");
    EXPECT_EQ(GetISOString(u"de_DE-EU-X"), u"de_DE");
    EXPECT_EQ(GetISOString(u"de_DE"), u"de_DE");
    EXPECT_EQ(GetISOString(u"-EU"), u"-EU");
    EXPECT_EQ(GetISOString(u""), u"");
    EXPECT_EQ(GetLanguageName(u"de_DE-EU"), u"de");
    EXPECT_EQ(GetLanguageName(u"zh_Hant_TW"), u"zh");

    EXPECT_EQ(RemoveMarketStringFromLanguageCode(u"de_DE-EU"), u"de_DE");
    EXPECT_EQ(RemoveMarketStringFromLanguageCode(u"de_DE"), u"de_DE");
    EXPECT_EQ(RemoveMarketStringFromLanguageCode(u"a-bcd"), u"a-bcd");
    EXPECT_EQ(RemoveMarketStringFromLanguageCode(u"a-bcde"), u"a");
    EXPECT_EQ(RemoveMarketStringFromLanguageCode(u"de-DE-EU"), u"de-DE-EU");
    EXPECT_EQ(RemoveMarketStringFromLanguageCode(u"-abcde"), u"");  // the first of two parts, an empty one
    EXPECT_EQ(RemoveMarketStringFromLanguageCode(u"abcde-"), u"abcde");
    EXPECT_EQ(RemoveScriptFromLanguageCode(u"zh_Hans_CN"), u"zh_CN");
    EXPECT_EQ(RemoveScriptFromLanguageCode(u"zh_CN"), u"zh_CN");
    EXPECT_EQ(RemoveScriptFromLanguageCode(u"a_b_c"), u"a_b_c");
    EXPECT_EQ(RemoveScriptFromLanguageCode(u"a_b_cd"), u"a_cd");
    EXPECT_EQ(RemoveScriptFromLanguageCode(u"a_b_c_d"), u"a_b_c_d");
    EXPECT_EQ(RemoveScriptFromLanguageCode(u"_abcd_"), u"_");
}

TEST(LanguageUtils, ScriptsByTable)
{
    for (char16_t const * simplified : {u"zh_CN", u"zh_Hans_CN", u"zh_SG", u"zh_Hans_SG"})
        EXPECT_EQ(GetLanguageScript(simplified), ScriptSimplified);
    EXPECT_EQ(static_cast<int>(ScriptNone), 0);
    EXPECT_EQ(static_cast<int>(ScriptSimplified), 1);
    EXPECT_EQ(static_cast<int>(ScriptTraditional), 2);
    for (char16_t const * traditional :
         {u"zh_TW", u"zh_Hant_TW", u"zh_HK", u"zh_Hans_HK", u"zh_Hant_HK", u"zh_MO", u"zh_Hans_MO", u"zh_Hant_MO"})
        EXPECT_EQ(GetLanguageScript(traditional), ScriptTraditional);
    for (char16_t const * none : {u"zh", u"zh_Hans", u"zh_Hant", u"zh_CN-China", u"zh_cn", u"en_US", u""})
        EXPECT_EQ(GetLanguageScript(none), ScriptNone);
    EXPECT_EQ(LanguageUtils::detail::Scripts().size(), 12u);
}

TEST(LanguageUtils, TextsOfMapCodes)
{
    EXPECT_EQ(GetMapCodeString(MapCodeUS), u"US");
    EXPECT_EQ(GetMapCodeString(MapCodeCN), u"CN");
    EXPECT_EQ(GetMapCodeString(MapCodeIN), u"IN");
    EXPECT_EQ(GetMapCodeString(static_cast<MapCode>(9)), u"US");
    EXPECT_EQ(GetMapCodeString(static_cast<MapCode>(0)), u"US");
}

TEST(LanguageUtils, FourCountriesMeasureInMiles)
{
    for (char16_t const * country : {u"US", u"GB", u"LR", u"MM"})
        EXPECT_TRUE(UsesImperialDistanceUnits(TString(country)));
    for (char16_t const * country : {u"", u"DE", u"us", u"USA", u"CA"})
        EXPECT_FALSE(UsesImperialDistanceUnits(TString(country)));
}

TEST(LanguageUtils, TheDefaultLanguage)
{
    EXPECT_EQ(GetDefaultISOString(), u"en_US");
    EXPECT_EQ(GetDefaultLanguage(), u"en");
    EXPECT_EQ(GetDefaultSamplesString(), u"en_US-US");
}

TEST(LanguageUtils, OtherCodesAreNotSupported)
{
    for (char16_t const * code : {u"", u"de_AT", u"DE", u"ga_IE", u"ar_YE", u"ga", u"ar_YE-US", u"en_US-"})
        EXPECT_FALSE(IsLanguageCodeSupported(code));
}

TEST(LanguageUtils, TheClosestSupportedCode)
{
    struct
    {
        char16_t const * code;
        char16_t const * closest;
    } const rows[] = {
        {u"de_AT", u"de_DE-EU"},
        {u"de_AT-EU", u"de_DE-EU"},
        {u"de_AT-APAC", u"en_US"},  // the market contradicts
        {u"zh_HK", u"zh_TW-APAC"},
        {u"zh_SG", u"zh_CN-China"},
        {u"zh_SG-EU", u"zh_CN-China"},  // the script decides before the market
        {u"zh_Hans_HK", u"zh_TW-APAC"},
        // A code without a script meets the full codes, which are in no table of scripts either.
        {u"zh-China", u"zh_CN-China"},
        {u"zh-APAC", u"zh_TW-APAC"},
        {u"zh-EU", u"en_US"},
        {u"en_ZA", u"en_US-US"},
        {u"en_AU-APAC", u"en_US-APAC"},
        {u"fr_MA", u"fr_FR-EU"},
        {u"sv_SE", u"en_US"},
        {u"", u"en_US"},
        {u"root", u"en_US"},
    };
    for (auto const & row : rows)
        EXPECT_EQ(GetClosestSupportedLanguageCode(TString(row.code)), row.closest) << TString(row.code);
    EXPECT_EQ(GetClosestSupportedLanguageCode(LCID(0xC07)), u"de_DE-EU");
    EXPECT_EQ(GetClosestSupportedLanguageCode(LCID(0xC04)), u"zh_TW-APAC");
    EXPECT_EQ(GetClosestSupportedLanguageCode(LCID(2048)), u"en_US-US");
    EXPECT_EQ(GetClosestSupportedLanguageCode(LCID(0)), u"en_US");
}

TEST(LanguageUtils, TheClosestSpecialCode)
{
    EXPECT_EQ(GetClosestSpecialLocaleCode(TString(u"de")), u"de_DE-EU");
    EXPECT_EQ(GetClosestSpecialLocaleCode(TString(u"xx")), u"en_US-US");
    EXPECT_EQ(GetClosestSpecialLocaleCode(TString()), u"en_US-US");
    EXPECT_EQ(GetClosestSpecialLocaleCode(LCID(0x41D)), u"en_GB-EU");
    EXPECT_EQ(GetClosestSpecialLocaleCode(LCID(0x450)), u"en_US-US");
}

// Whatever the text: a full code that is supported, or the default ISO string from the first of the two; the same at
// every call.
TEST(LanguageUtils, ClosestCodesAreSupportedAndStable)
{
    std::unordered_set<TString> const full = GetSupportedLanguages();
    std::vector<TString> codes;
    for (VelNLS::PublishedLocaleName const & row : VelNLS::GetPublishedLocaleNames())
        codes.push_back(GetLocaleStr(row.lcid));
    for (char16_t const * text : {u"-", u"_", u"de-", u"-de", u"zh__", u"en_US-US-US", u"@", u"en@x=y", u"\xD800",
                                  u"de_DE-\u00DF", u"x-y-z", u"zh_HK-China"})
        codes.emplace_back(text);
    codes.emplace_back(u'e', 5000);
    codes.emplace_back(u'_', 5000);
    for (TString const & code : codes) {
        TString const closest = GetClosestSupportedLanguageCode(code);
        EXPECT_TRUE(full.count(closest) == 1 || closest == u"en_US") << code;
        EXPECT_EQ(GetClosestSupportedLanguageCode(code), closest) << code;
        TString const special = GetClosestSpecialLocaleCode(code);
        EXPECT_EQ(full.count(special), 1u) << code;
        EXPECT_TRUE(IsLanguageCodeSupported(special)) << code;
        EXPECT_EQ(GetClosestSpecialLocaleCode(code), special) << code;
    }
}

TEST(LanguageUtils, TheUserInterfaceLanguageIsKept)
{
    test_support::MemorySettings settings;
    EXPECT_EQ(GetUILanguageCodeStr(), u"en_US-US");
    EXPECT_EQ(settings.values.at(uiKey), u"en_US-US");

    settings.values[uiKey] = u"de";  // short forms are supported codes, and stay short
    EXPECT_EQ(GetUILanguageCodeStr(), u"de");
    EXPECT_EQ(settings.values.at(uiKey), u"de");

    settings.values[uiKey] = u"fr_CA-USCA";
    EXPECT_EQ(GetUILanguageCodeStr(), u"fr_CA-USCA");
    EXPECT_EQ(GetSampleWorkbooksLanguageString(), u"fr_CA");

    settings.values[uiKey] = u"sv_SE";
    EXPECT_EQ(GetUILanguageCodeStr(), u"en_US-US");
    EXPECT_EQ(settings.values.at(uiKey), u"en_US-US");
    EXPECT_EQ(GetSampleWorkbooksLanguageString(), u"en_US");
}

TEST(LanguageUtils, TheSamplesLanguageIsKeptUntested)
{
    test_support::MemorySettings settings;
    EXPECT_EQ(GetSampleDataSourcesLanguageString(), u"en_US-US");
    EXPECT_EQ(settings.values.at(samplesKey), u"en_US-US");
    settings.values[samplesKey] = u"any text";
    EXPECT_EQ(GetSampleDataSourcesLanguageString(), u"any text");
    EXPECT_EQ(settings.values.count(uiKey), 0u);
}

TEST(LanguageUtils, TheMenuOfLanguagesBeginsWithTheOneInUse)
{
    test_support::MemorySettings settings;
    settings.values[uiKey] = u"ja_JP-Japan";
    std::vector<TString> const expected = {u"ja_JP", u"de_DE", u"en_GB", u"en_US", u"es_ES", u"fr_CA",
                                           u"fr_FR", u"it_IT", u"pt_BR", u"zh_CN", u"zh_TW", u"ko_KR"};
    EXPECT_EQ(GetAvailableDesktopLanguages(), expected);
    // A short form is no row of the menu: none is moved to the front.
    settings.values[uiKey] = u"ja";
    std::vector<TString> const sorted = {u"de_DE", u"en_GB", u"en_US", u"es_ES", u"fr_CA", u"fr_FR",
                                         u"it_IT", u"pt_BR", u"ja_JP", u"zh_CN", u"zh_TW", u"ko_KR"};
    EXPECT_EQ(GetAvailableDesktopLanguages(), sorted);
}

TEST(LanguageUtils, MenuLabels)
{
    struct
    {
        char16_t const * isoString;
        char16_t const * label;
    } const rows[] = {
        {u"de_DE", u"&Deutsch"},
        {u"en_US", u"&English (United States)"},
        {u"en_GB", u"E&nglish (United Kingdom)"},
        {u"fr_FR", u"&Fran\u00E7ais (France)"},
        {u"pt_BR", u"&Portugu\u00EAs"},
        {u"es_ES", u"E&spa\u00F1ol"},
        {u"it_IT", u"&Italiano"},
        {u"ja_JP", u"\u65E5\u672C\u8A9E(&J)"},
        {u"ko_KR", u"\uD55C\uAD6D\uC5B4(&K)"},
        {u"zh_CN", u"\u7B80\u4F53\u4E2D\u6587(&C)"},
        {u"zh_TW", u"\u7E41\u9AD4\u4E2D\u6587(&T)"},
        {u"fr_CA", u"F&ran\u00E7ais (Canada)"},
        {u"ga_IE", u""},
        {u"ar_YE", u""},
        {u"de_DE-EU", u""},
        {u"de", u""},
        {u"", u""},
    };
    for (auto const & row : rows)
        EXPECT_EQ(GetDisplayStringForLanguageCode(row.isoString), row.label) << TString(row.isoString);
}

TEST(LanguageUtils, AllQuestionsFromManyThreads)
{
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([] {
            for (int i = 0; i < 50; ++i) {
                InitializeLanguageMap();
                EXPECT_EQ(GetClosestSupportedLanguageCode(TString(u"zh_HK")), u"zh_TW-APAC");
                EXPECT_EQ(GetDefaultLanguage(), u"en");
                EXPECT_EQ(GetMapCodeLocales().size(), 35u);
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
}
