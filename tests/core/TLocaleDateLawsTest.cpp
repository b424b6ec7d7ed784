// Laws of dates and times as text, on drawn values.

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "tests/core/TLocalePeer.h"
#include "tests/support/RandomText.h"
#include "tests/support/ValuePrinters.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velicu/ICULocale.h"

namespace {

DateTime const SENTINEL = DateTime::FromValue(2134567890123456);
constexpr int DRAWS = 10000;

DateTime DrawValue(test_support::RandomText & random, int firstYear, int lastYear)
{
    int const year = firstYear + static_cast<int>(random.Below(static_cast<std::size_t>(lastYear - firstYear + 1)));
    int const month = 1 + static_cast<int>(random.Below(12));
    int const day = 1 + static_cast<int>(random.Below(static_cast<std::size_t>(DateTime::LastDay(year, month))));
    DateTime const date(year, month, day, 0, 0, 0, 0.0);
    return date + DateTimeSpan::FromMilliseconds(static_cast<long long>(random.Below(86400000)));
}

// Texts of a few patterns, so that searches hit and miss the one before.
std::u16string DrawText(test_support::RandomText & random, TLocale const & locale)
{
    static constexpr char16_t const * patterns[] = {
        u"MM/dd/yyyy", u"dd/MM/yyyy",  u"yyyy-MM-dd", u"MM/dd/yy",          u"dd-MMM", u"h:mm a", u"M.d.yyyy",
        u"d.M.yyyy",   u"dd MMM yyyy", u"yyyy/M/d",   u"MMM d, yyyy HH:mm", u"yyyy",
    };
    TString const text = locale.Format(DrawValue(random, 1990, 2030), patterns[random.Below(std::size(patterns))]);
    std::u16string result = text.toStdU16String();
    if (random.Below(8) == 0)
        result.insert(random.Below(result.size() + 1), random.Any(1));
    return result.substr(0, result.find(u'\0'));
}

}  // namespace

TEST(TLocaleDateLaws, WhatAPatternPrintsItReadsInEveryLocale)
{
    struct Form
    {
        char16_t const * pattern;
        long long ticks;  // what the pattern keeps of a value
    };
    static constexpr Form forms[] = {
        {u"yyyy-MM-dd HH:mm:ss.SSS", 10},
        {u"yyyyMMdd'T'HHmmss", 10000},
        {u"dd/MM/yyyy HH:mm:ss", 10000},
        {u"yyyy-MM-dd", 864000000},
    };
    auto const locales = VelICU::ICULocale::getAvailableLocales();
    int const draws = DRAWS / static_cast<int>(locales.size()) + 1;
    test_support::RandomText random(28);
    for (auto const & icuLocale : locales) {
        TLocale const locale(TString::fromLatin1(icuLocale->getName()));
        for (int i = 0; i < draws; ++i) {
            Form const & form = forms[random.Below(std::size(forms))];
            DateTime const drawn = DrawValue(random, 1583, 9998);
            unsigned long long const representation = drawn.GetRepresentation();
            DateTime const value =
                DateTime::FromValue(representation - representation % static_cast<unsigned long long>(form.ticks));
            TString const text = locale.Format(value, form.pattern);
            // In fields that stand side by side ICU counts code units, so that digits outside the basic plane are none.
            if (&form == &forms[1] && text.length() > 15)
                continue;
            DateTime out = SENTINEL;
            EXPECT_TRUE(locale.ParseDateTime(text, form.pattern, out, ParseDateAndTime))
                << icuLocale->getName() << " " << text.toStdString();
            EXPECT_EQ(out, value) << icuLocale->getName() << " " << text.toStdString();
        }
    }
}

TEST(TLocaleDateLaws, ASearchRepeatedAtOnceGivesTheSame)
{
    test_support::RandomText random(29);
    for (char16_t const * const name : {u"en_US", u"de_DE", u"ja_JP"}) {
        TLocale const locale{TString(name)};
        int const draws = TString(name) == u"en_US" ? DRAWS : DRAWS / 50;
        int read = 0;
        for (int i = 0; i < draws; ++i) {
            std::u16string const text = DrawText(random, locale);
            DateTime first = SENTINEL;
            if (!locale.ParseDateTimeTryAllFormats(text.c_str(), first, ParseDateAndTime))
                continue;
            DateTime again = SENTINEL;
            EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(text.c_str(), again, ParseDateAndTime));
            EXPECT_EQ(again, first) << TString::fromView(text).toStdString();
            ++read;
        }
        EXPECT_GT(read, draws / 4);
    }
}

TEST(TLocaleDateLaws, WithoutACachedFormatterASearchOfTheTableForgetsEarlierTexts)
{
    test_support::RandomText random(30);
    TLocale const fresh(u"en_US");
    TLocale locale(fresh);
    locale.setCacheFormatter(false);
    for (int i = 0; i < DRAWS / 10; ++i) {
        std::u16string const text = DrawText(random, fresh);
        DateTime out = SENTINEL;
        DateTime expected = SENTINEL;
        bool const read = locale.ParseDateTimeTryAllFormats(text.c_str(), out, ParseDateAndTime);
        EXPECT_EQ(read, TLocale(fresh).ParseDateTimeTryAllFormats(text.c_str(), expected, ParseDateAndTime));
        EXPECT_EQ(out, expected) << TString::fromView(text).toStdString();
    }
}

TEST(TLocaleDateLaws, OutsideEnUsALateSearchLeavesALenientFormatter)
{
    TLocale locale(u"de_DE");
    locale.setCacheFormatter(false);
    locale.setParseNative(false);
    DateTime out = SENTINEL;
    EXPECT_FALSE(locale.ParseDateTimeTryAllFormats(u"10/02/2024", out, ParseDateAndTime));
    EXPECT_TRUE(locale.GetFormatterCache()->GetICUDateFormatter().isLenient());
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(u"10/02/2024", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(2024, 2, 10, 0, 0, 0, 0.0));
}

TEST(TLocaleDateLaws, FailureLeavesTheValueAloneAndBlankTextLeavesTheState)
{
    test_support::RandomText random(31);
    TLocale const locale(u"en_US");
    for (int i = 0; i < DRAWS; ++i) {
        std::u16string text = random.Any(12);
        text.resize(std::min(text.size(), text.find(u'\0')));
        TString trimmed = TString::fromView(text);
        trimmed.trim();
        TString const pattern = TLocalePeer::GetPattern(locale);
        int const readings = TLocalePeer::CountReadings(locale);
        DateTime out = SENTINEL;
        bool const read = random.Below(2) == 0 ? locale.ParseDateTimeTryAllFormats(text.c_str(), out, ParseDateAndTime)
                                               : locale.ParseDateTime(text.c_str(), u"d/M/y", out, ParseDateAndTime);
        EXPECT_EQ(read, out != SENTINEL);
        if (trimmed.isEmpty()) {
            EXPECT_FALSE(read);
            EXPECT_EQ(TLocalePeer::GetPattern(locale), pattern);
            EXPECT_EQ(TLocalePeer::CountReadings(locale), readings);
        }
    }
}

TEST(TLocaleDateLaws, ACopyPrintsTheSameAndReadsAfresh)
{
    test_support::RandomText random(33);
    for (char16_t const * const name : {u"en_US", u"de_DE", u"ar_EG", u"th_TH"}) {
        TLocale const source{TString(name)};
        for (int i = 0; i < DRAWS / 100; ++i) {
            DateTime const value = DrawValue(random, 400, 9999);
            TString const text = source.Format(value, u"EEEE, d. MMMM yyyy HH:mm:ss.SSS");
            DateTime out;
            source.ParseDateTimeTryAllFormats(u"13/02/2020", out, ParseDateAndTime);
            TLocale const copy(source);
            EXPECT_EQ(copy.Format(value, u"EEEE, d. MMMM yyyy HH:mm:ss.SSS"), text);
            EXPECT_FALSE(TLocalePeer::HasRead(copy));
        }
    }
    TLocale const english(u"en_US");
    DateTime out;
    EXPECT_TRUE(english.ParseDateTimeTryAllFormats(u"13/02/2020", out, ParseDateAndTime));
    EXPECT_TRUE(TLocale(english).ParseDateTimeTryAllFormats(u"01/02/2020", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(2020, 1, 2, 0, 0, 0, 0.0));
    TLocale const buddhist(0x41E, u"buddhist");
    EXPECT_EQ(TString::fromLatin1(TLocale(buddhist).getICULocale().getName()), TString(u"th_TH"));
}
