#include "velicu/ICULocale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/locid.h>

#include "tests/support/ErrorMatchers.h"

namespace VelICU_V2 {

TEST(ICULocale, ComesFromANameOrFromParts)
{
    auto const whole = ICULocale::createInstance("zh_Hant_TW");
    EXPECT_STREQ("zh_Hant_TW", whole->getName());
    EXPECT_STREQ("zh", whole->getLanguage());
    EXPECT_STREQ("Hant", whole->getScript());
    EXPECT_STREQ("TW", whole->getCountry());
    EXPECT_STREQ("TWN", whole->getISO3Country());
    EXPECT_STREQ("", whole->getVariant());

    auto const parts = ICULocale::createInstance("th", "TH", nullptr, "calendar=buddhist");
    EXPECT_STREQ("th_TH@calendar=buddhist", parts->getName());
    EXPECT_EQ("buddhist", parts->getKeywordValue("calendar"));
    EXPECT_EQ("", parts->getKeywordValue("collation"));
    EXPECT_EQ("", whole->getKeywordValue("calendar"));

    EXPECT_STREQ("de_DE", ICULocale::createInstance(TString(u"de_DE"))->getName());
}

TEST(ICULocale, TheBareEnvironmentIsAmericanEnglish)
{
    EXPECT_STREQ("en_US", ICULocale::getDefault()->getName());
    EXPECT_STREQ("en_US", ICULocale::createInstance(nullptr)->getName());
    EXPECT_STREQ("", ICULocale::getRoot()->getName());
    EXPECT_EQ(0x409u, ICULocale::getDefault()->getLCID());
    EXPECT_EQ(0u, ICULocale::getRoot()->getLCID());
}

TEST(ICULocale, EqualityLooksAtNameAndKeywords)
{
    auto const a = ICULocale::createInstance("de_DE");
    EXPECT_TRUE(*a == *ICULocale::createInstance("de", "DE"));
    EXPECT_TRUE(*a == *a->clone());
    EXPECT_FALSE(*a == *ICULocale::createInstance("de_AT"));
    EXPECT_FALSE(*a == *ICULocale::createInstance("de_DE@calendar=japanese"));
}

TEST(ICULocale, DisplayNamesSpeakTheDisplayLocale)
{
    auto const russian = ICULocale::createInstance("ru_RU");
    EXPECT_EQ(TString(u"Russian (Russia)"), russian->getDisplayName(*ICULocale::createInstance("en")));
    EXPECT_EQ(TString(u"Russisch (Russland)"), russian->getDisplayName(*ICULocale::createInstance("de")));
}

TEST(ICULocale, AvailableLocalesAreIcus)
{
    std::int32_t count = 0;
    icu::Locale const * const native = icu::Locale::getAvailableLocales(count);
    auto const ours = ICULocale::getAvailableLocales();
    ASSERT_EQ(static_cast<std::size_t>(count), ours.size());
    for (std::size_t i = 0; i < ours.size(); ++i) {
        EXPECT_STREQ(native[i].getName(), ours[i]->getName());
        EXPECT_EQ(native[i].getLCID(), ours[i]->getLCID()) << native[i].getName();
    }
}

TEST(ICULocale, AnyTextMakesALocale)
{
    for (std::string const & text : {std::string("?"), std::string(3000, 'x'), std::string("_@;=_"), std::string()}) {
        auto const locale = ICULocale::createInstance(text.c_str());
        ASSERT_NE(nullptr, locale);
        EXPECT_NE(nullptr, locale->getName());
        EXPECT_NE(nullptr, locale->getCountry());
        locale->getDisplayName(*locale);
    }
}

}  // namespace VelICU_V2
