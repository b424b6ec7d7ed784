#include "main/core/LanguageCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

using namespace LanguageUtils::detail;
using testing::ElementsAre;

namespace {

LanguageCatalogue const & Plain()
{
    static LanguageCatalogue const s_catalogue(DesktopLanguages(), false);
    return s_catalogue;
}

LanguageCatalogue const & WithPseudoLocales()
{
    static LanguageCatalogue const s_catalogue(DesktopLanguages(), true);
    return s_catalogue;
}

}  // namespace

TEST(LanguageCatalogue, PseudoLocalesAreSupportedOnlyWhereTheyAreInstalled)
{
    for (char16_t const * key : {u"ga", u"ga_IE", u"ga_IE-US"}) {
        EXPECT_EQ(Plain().FindSupported(key), nullptr);
        ASSERT_NE(WithPseudoLocales().FindSupported(key), nullptr);
        EXPECT_EQ(*WithPseudoLocales().FindSupported(key), u"ga_IE-US");
    }
    for (char16_t const * key : {u"ar", u"ar_YE", u"ar_YE-US"}) {
        EXPECT_EQ(Plain().FindSupported(key), nullptr);
        ASSERT_NE(WithPseudoLocales().FindSupported(key), nullptr);
        EXPECT_EQ(*WithPseudoLocales().FindSupported(key), u"ar_YE-US");
    }
    EXPECT_EQ(Plain().GetSupportedLanguages().size(), 13u);
    EXPECT_EQ(WithPseudoLocales().GetSupportedLanguages().size(), 15u);
}

TEST(LanguageCatalogue, SamplesOfPseudoLocalesAreEnglish)
{
    EXPECT_EQ(WithPseudoLocales().GetClosestSpecialCode(u"ga_IE-US"), u"en_US-US");
    EXPECT_EQ(WithPseudoLocales().GetClosestSpecialCode(u"ar_YE-US"), u"en_US-US");
    EXPECT_EQ(WithPseudoLocales().GetClosestSpecialCode(u"ar_YE"), u"en_GB-EU");
    EXPECT_EQ(WithPseudoLocales().GetClosestSpecialCode(u"ga_IE"), u"ga_IE-US");
    EXPECT_EQ(Plain().GetClosestSpecialCode(u"ga_IE"), u"en_US-US");
}

TEST(LanguageCatalogue, TheMenuHoldsPseudoLocalesOnlyWhereTheyAreInstalled)
{
    EXPECT_THAT(Plain().GetDesktopLanguages(u"sv_SE"),
                ElementsAre(u"de_DE", u"en_GB", u"en_US", u"es_ES", u"fr_CA", u"fr_FR", u"it_IT", u"pt_BR", u"ja_JP",
                            u"zh_CN", u"zh_TW", u"ko_KR"));
    EXPECT_THAT(WithPseudoLocales().GetDesktopLanguages(u"en_US"),
                ElementsAre(u"en_US", u"de_DE", u"en_GB", u"es_ES", u"fr_CA", u"fr_FR", u"it_IT", u"pt_BR", u"ja_JP",
                            u"zh_CN", u"zh_TW", u"ko_KR", u"ga_IE", u"ar_YE"));
    EXPECT_EQ(WithPseudoLocales().GetMenuLabel(u"ga_IE"), u"Ps\u00E8\u00FAd&o");
    EXPECT_EQ(WithPseudoLocales().GetMenuLabel(u"ar_YE"), u"BiDi Ps\u00E8\u00FAd&o");
}

TEST(LanguageCatalogue, EveryDesktopLanguageHasTheMarketOfItsFullCode)
{
    ASSERT_EQ(DesktopLanguages().size(), 14u);
    for (DesktopLanguage const & row : DesktopLanguages()) {
        TString const fullCode = TString(row.isoString) + u'-' + row.market;
        ASSERT_NE(WithPseudoLocales().FindSupported(row.isoString), nullptr) << TString(row.isoString);
        EXPECT_EQ(*WithPseudoLocales().FindSupported(row.isoString), fullCode);
        EXPECT_EQ(TString(row.enabled), u"0");
    }
}

TEST(LanguageCatalogue, AnEnabledRowIsASupportedLanguage)
{
    DesktopLanguage const desktop[] = {
        {u"sv_SE", u"S&venska", u"Svenska", u"1", u"EU"},
        {u"de_LU", u"&Deutsch (Luxemburg)", u"Deutsch L", u"2", u"EU"},
        {u"nl_NL", u"&Nederlands", u"Nederlands", u"0", u"EU"},
        {u"zh_TW", u"&T", u"T", u"1", u"EU"},
    };
    LanguageCatalogue const catalogue(desktop, false);
    for (char16_t const * key : {u"sv", u"sv_SE", u"sv_SE-EU"}) {
        ASSERT_NE(catalogue.FindSupported(key), nullptr);
        EXPECT_EQ(*catalogue.FindSupported(key), u"sv_SE-EU");
    }
    EXPECT_EQ(*catalogue.FindSupported(u"de"), u"de_DE-EU");  // its language was there
    EXPECT_EQ(*catalogue.FindSupported(u"de_LU"), u"de_LU-EU");
    EXPECT_EQ(*catalogue.FindSupported(u"de_LU-EU"), u"de_LU-EU");
    EXPECT_EQ(catalogue.FindSupported(u"nl_NL"), nullptr);
    EXPECT_EQ(*catalogue.FindSupported(u"zh_TW"), u"zh_TW-EU");  // the row's market comes before the table's
    EXPECT_EQ(*catalogue.FindSupported(u"zh"), u"zh_CN-China");
    EXPECT_EQ(catalogue.GetClosestSupportedCode(u"sv_FI"), u"sv_SE-EU");
    EXPECT_THAT(catalogue.GetDesktopLanguages(u"nl_NL"), ElementsAre(u"nl_NL", u"de_LU", u"sv_SE", u"zh_TW"));
}

TEST(LanguageCatalogue, AnInstalledPseudoLocaleWithoutARowIsAFault)
{
    DesktopLanguage const desktop[] = {{u"de_DE", u"&Deutsch", u"Deutsch", u"0", u"EU"}};
    EXPECT_THAT([&] { LanguageCatalogue(desktop, true); },
                ThrowsAssert("it != s_desktopLanguages.end()", "LogicException_LogicAssert_0x4B77BEEC"));
    LanguageCatalogue(desktop, false);
}
