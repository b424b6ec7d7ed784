#include "velicu/ICUDateNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/dtptngen.h>

#include <climits>

#include "tests/support/ErrorMatchers.h"
#include "velicu/ScopedStatusFault.h"

namespace VelICU_V2 {

TEST(ICUDateFormatSymbols, CountFromOne)
{
    EXPECT_EQ(TString(u"Sunday"), ICUDateFormatSymbols::getWeekday(1, "en_US"));
    EXPECT_EQ(TString(u"Saturday"), ICUDateFormatSymbols::getWeekday(7, "en_US"));
    EXPECT_EQ(TString(u"January"), ICUDateFormatSymbols::getMonth(1, "en_US"));
    EXPECT_EQ(TString(u"December"), ICUDateFormatSymbols::getMonth(12, "en_US"));
    EXPECT_EQ(TString(u"Q1"), ICUDateFormatSymbols::getQuarter(1, "en_US"));
    EXPECT_EQ(TString(u"Q4"), ICUDateFormatSymbols::getQuarter(4, "en_US"));
}

TEST(ICUDateFormatSymbols, SpeakTheLocale)
{
    EXPECT_EQ(TString(u"dimanche"), ICUDateFormatSymbols::getWeekday(1, "fr_FR"));
    EXPECT_EQ(TString(u"\u044F\u043D\u0432\u0430\u0440\u044F"), ICUDateFormatSymbols::getMonth(1, "ru_RU"));
    EXPECT_EQ(TString(u"T1"), ICUDateFormatSymbols::getQuarter(1, "fr_FR"));
    EXPECT_EQ(TString(u"January"), ICUDateFormatSymbols::getMonth(1, nullptr));
    EXPECT_EQ(ICUDateFormatSymbols::getMonth(1, "fa_IR@calendar=gregorian"),
              ICUDateFormatSymbols::getMonth(1, "fa_IR"));
}

TEST(ICUDateFormatSymbols, ANumberOutOfRangeIsTheEmptyText)
{
    for (int number : {INT_MIN, -1, 0, 8, INT_MAX})
        EXPECT_EQ(TString(), ICUDateFormatSymbols::getWeekday(number, "en_US")) << number;
    for (int number : {INT_MIN, -1, 0, 13, INT_MAX})
        EXPECT_EQ(TString(), ICUDateFormatSymbols::getMonth(number, "en_US")) << number;
    for (int number : {INT_MIN, -1, 0, 5, INT_MAX})
        EXPECT_EQ(TString(), ICUDateFormatSymbols::getQuarter(number, "en_US")) << number;
}

TEST(ICUDateTimePatternGenerator, FindsTheLocalesPattern)
{
    ICUErrorCode status = U_ZERO_ERROR;
    EXPECT_EQ(TString(u"MMM d, y"),
              ICUDateTimePatternGenerator::createInstance("en_US", status)->getBestPattern(u"yMMMd", status));
    EXPECT_EQ(TString(u"d. MMM y"),
              ICUDateTimePatternGenerator::createInstance("de_DE", status)->getBestPattern(u"yMMMd", status));
    EXPECT_TRUE(ICU_SUCCESS(status));
}

TEST(ICUDateTimePatternGenerator, AgreesWithPlainIcuOnTheGregorianCalendar)
{
    for (char const * locale : {"en_US", "fr_FR", "ja_JP", "sv_SE", "th_TH", "fa_IR", "zh_CN"})
        for (char16_t const * skeleton : {u"yMd", u"yMMMM", u"jms", u"yQQQ", u"MMMEd"}) {
            UErrorCode plainStatus = ::U_ZERO_ERROR;
            icu::Locale native(locale);
            native.setKeywordValue("calendar", "gregorian", plainStatus);
            std::unique_ptr<icu::DateTimePatternGenerator> const plain(
                icu::DateTimePatternGenerator::createInstance(native, plainStatus));
            icu::UnicodeString const expected = plain->getBestPattern(skeleton, plainStatus);
            ICUErrorCode status = U_ZERO_ERROR;
            EXPECT_EQ(TString(expected.getBuffer(), expected.length()),
                      ICUDateTimePatternGenerator::createInstance(locale, status)->getBestPattern(skeleton, status))
                << locale;
        }
}

TEST(ICUDateTimePatternGenerator, FailsQuietly)
{
    ICUErrorCode status = U_PARSE_ERROR;
    EXPECT_EQ(nullptr, ICUDateTimePatternGenerator::createInstance("en_US", status));
    status = U_ZERO_ERROR;
    auto const generator = ICUDateTimePatternGenerator::createInstance("en_US", status);
    ScopedStatusFault fault(U_MEMORY_ALLOCATION_ERROR);
    EXPECT_EQ(TString(), generator->getBestPattern(u"yMd", status));
    EXPECT_EQ(U_MEMORY_ALLOCATION_ERROR, status);
}

}  // namespace VelICU_V2
