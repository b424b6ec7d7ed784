#include <gtest/gtest.h>

#include <string>

#include "main/string/PatternGeneratorCache.h"
#include "velcoredata/string/CoreICUUtils.h"
#include "velcoredata/string/ICUUtils.h"

TEST(CoreICUUtilsGetLocale, RootDefaultAndNamed)
{
    EXPECT_STREQ(CoreICUUtils::GetLocale(0)->getName(), "");
    EXPECT_STREQ(CoreICUUtils::GetLocale(1024)->getName(), "en_US");
    EXPECT_STREQ(CoreICUUtils::GetLocale(0x407)->getName(), "de_DE");
    EXPECT_STREQ(CoreICUUtils::GetLocale(2048)->getName(), "en_US");
    EXPECT_STREQ(CoreICUUtils::GetLocale(0x404)->getName(), "zh_TW");
    EXPECT_STREQ(CoreICUUtils::GetLocale(0xFFFF)->getName(), "");
}

TEST(ICUUtilsLocales, NamesOfDaysMonthsAndQuarters)
{
    EXPECT_EQ(ICUUtils::GetLongDayName(1, 0x409), u"Sunday");
    EXPECT_EQ(ICUUtils::GetLongDayName(7, 0x407), u"Samstag");
    EXPECT_EQ(ICUUtils::GetLongDayName(0, 0x409), u"");
    EXPECT_EQ(ICUUtils::GetLongDayName(8, 0x409), u"");
    EXPECT_EQ(ICUUtils::GetLongMonthName(1, 0x409), u"January");
    EXPECT_EQ(ICUUtils::GetLongMonthName(12, 0x40C), u"d\u00E9cembre");
    EXPECT_EQ(ICUUtils::GetLongMonthName(13, 0x409), u"");
    EXPECT_EQ(ICUUtils::GetShortQuarterName(4, 0x409), u"Q4");
    EXPECT_EQ(ICUUtils::GetShortQuarterName(5, 0x409), u"");
    EXPECT_EQ(ICUUtils::GetShortQuarterName(0x409), u"Q");
    EXPECT_EQ(ICUUtils::GetShortQuarterName(0x40C), u"T");
    EXPECT_EQ(ICUUtils::GetShortQuarterName(0x804), u"\u5B63\u5EA6");  // of "1" and two characters
}

// Names go by the narrow name of an LCID, which knows no pseudo-locale.
TEST(ICUUtilsLocales, NamesOfTheBidirectionalPseudoLocaleAreTheUsers)
{
    EXPECT_EQ(ICUUtils::GetLongDayName(1, 4096), u"Sunday");
    EXPECT_EQ(ICUUtils::GetLongMonthName(1, 4096), u"January");
    EXPECT_EQ(ICUUtils::GetShortQuarterName(4096), u"Q");
    EXPECT_EQ(ICUUtils::GetDisplayName(4096, 0x409), u"English (United States)");
    EXPECT_EQ(ICUUtils::GetBestDateTimePattern(u"yMMMd", 4096), u"MMM d, y");
    EXPECT_STREQ(CoreICUUtils::GetLocale(4096)->getName(), "en_US");
}

TEST(ICUUtilsLocales, DisplayNames)
{
    EXPECT_EQ(ICUUtils::GetDisplayName(0x407, 0x409), u"German (Germany)");
    EXPECT_EQ(ICUUtils::GetDisplayName(0x409, 0x407), u"Englisch (Vereinigte Staaten)");
    EXPECT_EQ(ICUUtils::GetDisplayName(1024, 1024), u"English (United States)");
}

TEST(ICUUtilsLocales, BestPatternsComeFromTheStoreOfFiveLocales)
{
    using ICUUtils::GetBestDateTimePattern;
    auto & store = ICUUtils::detail::DateTimePatternGeneratorCache::Get();
    EXPECT_EQ(GetBestDateTimePattern(u"yMMMd", 0x409), u"MMM d, y");
    EXPECT_EQ(GetBestDateTimePattern(u"yMMMd", 0x407), u"d. MMM y");
    EXPECT_TRUE(store.Holds("de_DE"));
    for (LCID lcid : {0x40Cu, 0x410u, 0x413u, 0x411u, 0x412u})
        GetBestDateTimePattern(u"yMMMd", lcid);
    EXPECT_FALSE(store.Holds("de_DE"));
    EXPECT_LE(store.Count(), 5u);
    EXPECT_EQ(GetBestDateTimePattern(u"yMMMd", 0x407), u"d. MMM y");
}
