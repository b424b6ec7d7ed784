// Every 16-bit LCID, published or not, is answered: by its locale, or by what is stated for one that nobody knows.

#include <gtest/gtest.h>

#include <string>

#include <QtCore/QLocale>

#include "tests/support/ErrorMatchers.h"
#include "velcoredata/core/LanguageCode.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/string/NumberFormatOptions.h"
#include "velicu/ICULocale.h"
#include "velnls/LocaleInfo.h"
#include "velnls/LocaleNames.h"

namespace {

// Whether the system answers queries about the LCID.
bool IsPublished(LCID lcid)
{
    return lcid == 0 || VelNLS::FindPublishedLocaleName(ConvertDefaultLocale(lcid)) != nullptr;
}

template <class Check>
void ForEveryLcid(Check check)
{
    for (LCID lcid = 0; lcid <= 0xFFFF; ++lcid) {
        check(lcid);
        if (testing::Test::HasFailure()) {
            ADD_FAILURE() << "at LCID 0x" << std::hex << lcid;
            return;
        }
    }
}

void ExpectStatedFallback(LCID lcid)
{
    EXPECT_EQ(TLocale::GetCurrencyDecimalPlaces(lcid), 2);
    EXPECT_EQ(TLocale::GetNumberDecimalPlaces(lcid), 2);
    EXPECT_EQ(TLocale::GetCurrencyString(lcid), u"");
    EXPECT_EQ(TLocale::GetThousandSeparator(lcid), u"");
    EXPECT_EQ(TLocale::GetDecimalPoint(lcid), u".");
    EXPECT_EQ(TLocale::GetListSeparator(lcid), u",");
    EXPECT_EQ(TLocale::GetMeasureSystem(lcid), Localization::MeasureUS);
    EXPECT_EQ(TLocale::GetFirstWeekBehaviour(lcid), FirstWeekContainsJanFirst);
    for (auto const spec :
         {ICUUtils::SpecLongDate, ICUUtils::SpecShortDate, ICUUtils::SpecTime, ICUUtils::SpecShortTime}) {
        EXPECT_EQ(TLocale::GetLocaleFormatAsICU(spec, lcid), u"");
        EXPECT_EQ(TLocale::GetLocaleFormatAsWindows(spec, lcid), u"");
    }
    EXPECT_EQ(TLocale::GetLocaleFormatAsICU(ICUUtils::SpecDateTime, lcid), u" ");
    EXPECT_EQ(TLocale::GetDateOrder(lcid), TLocale::DateOrderUnknown);
}

void ExpectFullAnswer(LCID lcid)
{
    EXPECT_GE(TLocale::GetCurrencyDecimalPlaces(lcid), 0);
    EXPECT_LE(TLocale::GetCurrencyDecimalPlaces(lcid), 4);
    EXPECT_EQ(TLocale::GetNumberDecimalPlaces(lcid), 2);
    EXPECT_FALSE(TLocale::GetCurrencyString(lcid).isEmpty());
    EXPECT_FALSE(TLocale::GetThousandSeparator(lcid).isEmpty());
    EXPECT_FALSE(TLocale::GetDecimalPoint(lcid).isEmpty());
    EXPECT_FALSE(TLocale::GetListSeparator(lcid).isEmpty());
    for (auto const spec : {ICUUtils::SpecLongDate, ICUUtils::SpecShortDate, ICUUtils::SpecTime,
                            ICUUtils::SpecShortTime, ICUUtils::SpecDateTime})
    {
        EXPECT_GT(TLocale::GetLocaleFormatAsWindows(spec, lcid).length(), 1);
        EXPECT_GT(TLocale::GetLocaleFormatAsICU(spec, lcid).length(), 1);
        EXPECT_GT(TLocale::GetLocaleFormatAsCustom(spec, lcid).length(), 1);
        EXPECT_GT(TLocale::GetLocaleFormatQLocale(spec, lcid).length(), 1);
    }
    EXPECT_NE(TLocale::GetDateOrder(lcid), TLocale::DateOrderUnknown);
}

}  // namespace

TEST(EveryLcid, HasALanguageCode)
{
    ForEveryLcid([](LCID lcid) {
        LanguageCode const code(lcid);
        EXPECT_EQ(code.GetLCID(), lcid) << "the LCID is kept as it is given";
        EXPECT_EQ(code.GetLangID(), lcid);
        TString const name = LanguageUtils::GetLocaleStr(lcid);
        EXPECT_FALSE(name.isEmpty());
        // A supported code leads to its own ISO string: "en" to "en_US".
        TString const closest = LanguageUtils::GetClosestSupportedLanguageCode(name);
        EXPECT_EQ(code.GetISOString(),
                  LanguageUtils::IsLanguageCodeSupported(name) ? LanguageUtils::GetISOString(closest) : name);
        EXPECT_TRUE(closest == u"en_US" || LanguageUtils::IsLanguageCodeSupported(closest));
        EXPECT_TRUE(LanguageUtils::IsLanguageCodeSupported(LanguageUtils::GetClosestSpecialLocaleCode(lcid)));
        if (!IsPublished(lcid) && name != u"root") {
            EXPECT_GT(LanguageUtils::GetLCID(name), 0u) << "a name that ICU gave has an LCID";
        }
        code.GetMapCode();
        code.GetWebLanguageCode();
        code.GetCountryName();
        code.GetDisplayName(0x409);
    });
}

TEST(EveryLcid, HasAnIcuLocale)
{
    ForEveryLcid([](LCID lcid) {
        TLocale const locale(lcid);
        EXPECT_EQ(locale.GetLCID(), lcid);
        EXPECT_EQ(std::string(locale.getICULocale().getName()),
                  std::string(VelICU_V2::ICULocale::createInstance(LanguageUtils::GetLocaleStr(lcid))->getName()));
        TLocale const copy(locale);
        EXPECT_EQ(copy.getLanguageCode().GetISOString().isEmpty(), false);
        LCID const primary = TLocale::GetPrimaryLanguage(lcid);
        EXPECT_EQ(primary, ConvertDefaultLocale(lcid) & 0x3FFu);
        QLocale qt = QLocale::c();
        TLocale::GetQLocale(lcid, qt);
    });
}

TEST(EveryLcid, HasRegionalSettings)
{
    ForEveryLcid([](LCID lcid) {
        if (IsPublished(lcid))
            ExpectFullAnswer(lcid);
        else
            ExpectStatedFallback(lcid);
        int const days = TLocale::GetMinimalDaysInFirstWeek(lcid);
        EXPECT_TRUE(days == 1 || days == 4 || days == 7);
        EXPECT_EQ(TLocale::FirstWeekIsBroken(lcid), days == 1);
        NumberFormatOptions number;
        TLocale::GetSystemNumberSettings(lcid, &number);
        EXPECT_EQ(number.decimals, 2);
        NumberFormatOptions money;
        TLocale::GetSystemCurrencySettings(lcid, &money);
        EXPECT_EQ(money.decimals, TLocale::GetCurrencyDecimalPlaces(lcid));
        EXPECT_EQ(money.prefix.isEmpty() && money.suffix.isEmpty(), !IsPublished(lcid));
    });
}
