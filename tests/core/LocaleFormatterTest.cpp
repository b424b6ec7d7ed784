#include "velcoredata/core/LocaleFormatter.h"

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"
#include "velicu/ICULocale.h"
#include "velicu/ScopedStatusFault.h"

using namespace test_support;
using VelICU::ICUDateFormat;

namespace {

VelICU::ICULocale const & German()
{
    static auto const locale = VelICU::ICULocale::createInstance("de_DE");
    return *locale;
}

}  // namespace

TEST(LocaleFormatter, APatternMakesAStrictFormat)
{
    LocaleFormatter const formatter(TString(u"yyyy-MM-dd"), German());
    EXPECT_FALSE(formatter.GetICUDateFormatter().isLenient());
    EXPECT_EQ(formatter.GetICUDateFormatter().toPattern(), TString(u"yyyy-MM-dd"));
    auto const * const settings = dynamic_cast<SimpleLocaleFormatterSettings const *>(&formatter.GetSettings());
    ASSERT_NE(settings, nullptr);
    EXPECT_EQ(settings->pattern, TString(u"yyyy-MM-dd"));
}

TEST(LocaleFormatter, SettingsTellThePatternOfTheConstructorOnly)
{
    LocaleFormatter const formatter(TString(u"yyyy-MM-dd"), German());
    formatter.GetICUDateFormatter().applyPattern(u"dd.MM.");
    EXPECT_EQ(formatter.GetICUDateFormatter().toPattern(), TString(u"dd.MM."));
    EXPECT_EQ(dynamic_cast<SimpleLocaleFormatterSettings const &>(formatter.GetSettings()).pattern,
              TString(u"yyyy-MM-dd"));
}

TEST(LocaleFormatter, StylesMakeALenientFormat)
{
    for (ICUDateFormat::ICUEStyle const style :
         {ICUDateFormat::kFull, ICUDateFormat::kLong, ICUDateFormat::kMedium, ICUDateFormat::kShort})
    {
        LocaleFormatter const date(style, German());
        EXPECT_TRUE(date.GetICUDateFormatter().isLenient());
        auto const * const dateSettings = dynamic_cast<DateLocaleFormatterSettings const *>(&date.GetSettings());
        ASSERT_NE(dateSettings, nullptr);
        EXPECT_EQ(dateSettings->dateStyle, style);

        LocaleFormatter const dateTime(ICUDateFormat::kShort, style, German());
        EXPECT_TRUE(dateTime.GetICUDateFormatter().isLenient());
        auto const * const settings = dynamic_cast<DateTimeLocaleFormatterSettings const *>(&dateTime.GetSettings());
        ASSERT_NE(settings, nullptr);
        EXPECT_EQ(settings->dateStyle, ICUDateFormat::kShort);
        EXPECT_EQ(settings->timeStyle, style);
    }
    EXPECT_EQ(LocaleFormatter(ICUDateFormat::kShort, German()).GetICUDateFormatter().toPattern(), TString(u"dd.MM.yy"));
    EXPECT_EQ(LocaleFormatter(ICUDateFormat::kShort, ICUDateFormat::kShort, German()).GetICUDateFormatter().toPattern(),
              TString(u"dd.MM.yy, HH:mm"));
}

TEST(LocaleFormatter, AFailedStatusIsAnAssertionForPatternsOnly)
{
    VelICU::ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
    EXPECT_NO_THROW(LocaleFormatter(ICUDateFormat::kShort, German()));
    EXPECT_THAT([] { LocaleFormatter(TString(u"yyyy"), German()); },
                ThrowsAssert("VelICU_V2::ICU_SUCCESS(success)", "LogicException_LogicAssert_0xC9BEB47B"));
}
