#include "velicu/LocaleNames.h"

#include <gtest/gtest.h>
#include <unicode/uloc.h>

#include <string>

namespace VelICU_V2 {

namespace {

using Part = int (*)(char const *, char *, int, ICUErrorCode &) noexcept;

std::string PartOf(Part part, char const * locale)
{
    ICUErrorCode status = U_ZERO_ERROR;
    char buffer[32] = {};
    part(locale, buffer, sizeof buffer, status);
    EXPECT_TRUE(ICU_SUCCESS(status)) << locale;
    return buffer;
}

}  // namespace

TEST(LocaleNames, TakeANameApart)
{
    struct Row
    {
        char const *locale, *language, *script, *country;
    };
    for (Row const & row : {Row{"en_US", "en", "", "US"}, Row{"zh_Hant_TW", "zh", "Hant", "TW"},
                            Row{"fr", "fr", "", ""}, Row{"", "", "", ""}, Row{"en_US_POSIX", "en", "", "US"},
                            Row{"sr-Latn-RS", "sr", "Latn", "RS"}, Row{"de_DE@collation=phonebook", "de", "", "DE"}})
    {
        EXPECT_EQ(row.language, PartOf(t_uloc_getLanguage, row.locale)) << row.locale;
        EXPECT_EQ(row.script, PartOf(t_uloc_getScript, row.locale)) << row.locale;
        EXPECT_EQ(row.country, PartOf(t_uloc_getCountry, row.locale)) << row.locale;
    }
}

TEST(LocaleNames, APartThatDoesNotFitIsAnOverflow)
{
    ICUErrorCode status = U_ZERO_ERROR;
    char buffer[2];
    EXPECT_EQ(3, t_uloc_getLanguage("haw_US", buffer, sizeof buffer, status));
    EXPECT_EQ(U_BUFFER_OVERFLOW_ERROR, status);
}

TEST(LocaleNames, LcidsGoBothWays)
{
    EXPECT_EQ(0x409u, t_uloc_getLCID("en_US"));
    EXPECT_EQ(0x407u, t_uloc_getLCID("de_DE"));
    EXPECT_EQ(0u, t_uloc_getLCID(""));
    EXPECT_EQ(0u, t_uloc_getLCID("xx_YY"));

    ICUErrorCode status = U_ZERO_ERROR;
    char buffer[157] = {};
    EXPECT_EQ(5, t_uloc_getLocaleForLCID(0x419, buffer, sizeof buffer - 1, status));
    EXPECT_EQ(U_ZERO_ERROR, status);
    EXPECT_STREQ("ru_RU", buffer);
    t_uloc_getLocaleForLCID(0xABCDEF, buffer, sizeof buffer - 1, status);
    EXPECT_TRUE(ICU_FAILURE(status));
}

TEST(LocaleNames, AgreeWithIcuForEveryAvailableLocale)
{
    for (int i = 0; i < uloc_countAvailable(); ++i) {
        char const * const name = uloc_getAvailable(i);
        EXPECT_EQ(uloc_getLCID(name), t_uloc_getLCID(name)) << name;
        char buffer[32];
        UErrorCode status = ::U_ZERO_ERROR;
        uloc_getCountry(name, buffer, sizeof buffer, &status);
        EXPECT_EQ(buffer, PartOf(t_uloc_getCountry, name));
        uloc_getScript(name, buffer, sizeof buffer, &status);
        EXPECT_EQ(buffer, PartOf(t_uloc_getScript, name));
    }
}

TEST(LocaleNames, DisplayNamesSpeakTheDisplayLocale)
{
    ICUErrorCode status = U_ZERO_ERROR;
    char16_t buffer[1024];
    int const length = t_uloc_getDisplayLanguage("ru_RU", "en", buffer, 1024, status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    EXPECT_EQ(u"Russian", std::u16string(buffer, static_cast<std::size_t>(length)));
    int const german = t_uloc_getDisplayCountry("ru_RU", "de", buffer, 1024, status);
    EXPECT_EQ(u"Russland", std::u16string(buffer, static_cast<std::size_t>(german)));
}

TEST(LocaleNames, ANullDisplayLocaleIsTheDefaultOne)
{
    ICUErrorCode status = U_ZERO_ERROR;
    char16_t buffer[64] = {};
    t_uloc_getDisplayLanguage("de", nullptr, buffer, 64, status);
    EXPECT_EQ(u"German", std::u16string(buffer));
}

TEST(LocaleNames, AMissingTranslationIsAWarning)
{
    ICUErrorCode status = U_ZERO_ERROR;
    char16_t buffer[64] = {};
    t_uloc_getDisplayLanguage("xyz", "en", buffer, 64, status);
    EXPECT_EQ(U_USING_DEFAULT_WARNING, status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    EXPECT_EQ(u"xyz", std::u16string(buffer));
}

TEST(LocaleNames, TheBareEnvironmentIsAmericanEnglish)
{
    EXPECT_STREQ("en_US", t_uloc_getDefault());
    EXPECT_EQ("US", PartOf(t_uloc_getCountry, nullptr));
}

}  // namespace VelICU_V2
