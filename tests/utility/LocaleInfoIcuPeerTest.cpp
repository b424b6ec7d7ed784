// Outside evidence: what the library says of a locale against plain ICU, asked here without it, for every locale that
// ICU has and that has an LCID of its own.

#include <gtest/gtest.h>

#include <unicode/calendar.h>
#include <unicode/decimfmt.h>
#include <unicode/ucurr.h>
#include <unicode/ulocdata.h>

#include <memory>
#include <string>
#include <vector>

#include "velcoredata/core/TLocale.h"
#include "velcoredata/string/NumberFormatOptions.h"
#include "velicu/ICULocale.h"
#include "velnls/LocaleNames.h"

namespace {

TString ToText(icu::UnicodeString const & text)
{
    return TString(text.getBuffer(), text.length());
}

struct Peer
{
    LCID lcid;
    icu::Locale locale;
};

// ICU's locales whose LCID is a published one (ICU numbers ko_KP, which has none) and stands for them and no neighbour:
// the library's name of the LCID has the same language, script and region, once those that go without saying are added.
std::vector<Peer> const & Peers()
{
    static std::vector<Peer> const peers = [] {
        std::vector<Peer> found;
        std::int32_t count = 0;
        icu::Locale const * const locales = icu::Locale::getAvailableLocales(count);
        for (std::int32_t i = 0; i < count; ++i) {
            LCID const lcid = locales[i].getLCID();
            if (VelNLS::FindPublishedLocaleName(lcid) == nullptr || *locales[i].getCountry() == 0)
                continue;
            TLocale const ours(lcid);
            icu::Locale mine(ours.getICULocale().getName());
            icu::Locale theirs(locales[i]);
            UErrorCode status = U_ZERO_ERROR;
            mine.addLikelySubtags(status);
            theirs.addLikelySubtags(status);
            if (U_SUCCESS(status) && mine == theirs)
                found.push_back({lcid, locales[i]});
        }
        return found;
    }();
    return peers;
}

// Sizes of groups, read off a printed number: "3;2;0" for 1,23,45,67,89,012.
TString GroupsOf(icu::DecimalFormat const & format)
{
    int const first = format.isGroupingUsed() ? format.getGroupingSize() : 0;
    int const others = format.getSecondaryGroupingSize();
    if (first <= 0)
        return u"0";
    TString const tail = others > 0 && others != first ? u";" + TString::number(others) : TString();
    return TString::number(first) + tail + u";0";
}

std::unique_ptr<icu::DecimalFormat> FormatOf(icu::Locale const & locale, UNumberFormatStyle style)
{
    UErrorCode status = U_ZERO_ERROR;
    auto * const format = dynamic_cast<icu::DecimalFormat *>(icu::NumberFormat::createInstance(locale, style, status));
    EXPECT_TRUE(U_SUCCESS(status));
    return std::unique_ptr<icu::DecimalFormat>(format);
}

}  // namespace

TEST(LocaleInfoAgainstIcu, MostLocalesOfIcuAreCompared)
{
    EXPECT_GT(Peers().size(), 200u);
}

TEST(LocaleInfoAgainstIcu, NumbersHaveTheSeparatorsAndGroupsOfNumberFormat)
{
    for (Peer const & peer : Peers()) {
        SCOPED_TRACE(peer.locale.getName());
        auto const format = FormatOf(peer.locale, UNUM_DECIMAL);
        ASSERT_NE(format, nullptr);
        using Symbols = icu::DecimalFormatSymbols;
        TString const point = ToText(format->getDecimalFormatSymbols()->getSymbol(Symbols::kDecimalSeparatorSymbol));
        TString const thousand =
            ToText(format->getDecimalFormatSymbols()->getSymbol(Symbols::kGroupingSeparatorSymbol));
        EXPECT_EQ(TLocale::GetDecimalPoint(peer.lcid), point);
        EXPECT_EQ(TLocale::GetThousandSeparator(peer.lcid), thousand);
        NumberFormatOptions options;
        TLocale::GetSystemNumberSettings(peer.lcid, &options);
        EXPECT_EQ(options.decimalSeparator, point);
        EXPECT_EQ(options.thousandSeparator, thousand);
        EXPECT_EQ(options.grouping, GroupsOf(*format));

        // As printed: one fraction with its point, nine digits with their groups.
        icu::UnicodeString printed;
        format->format(12345678901.5, printed);
        EXPECT_TRUE(ToText(printed).contains(point));
        EXPECT_EQ(ToText(printed).contains(thousand), options.useGrouping);
    }
}

TEST(LocaleInfoAgainstIcu, AmountsHaveTheCurrencyOfNumberFormat)
{
    for (Peer const & peer : Peers()) {
        SCOPED_TRACE(peer.locale.getName());
        UErrorCode status = U_ZERO_ERROR;
        auto const format = FormatOf(peer.locale, UNUM_CURRENCY);
        ASSERT_NE(format, nullptr);
        char16_t const * const currency = format->getCurrency();
        std::int32_t length = 0;
        char16_t const * const symbol =
            ucurr_getName(currency, peer.locale.getName(), UCURR_SYMBOL_NAME, nullptr, &length, &status);
        EXPECT_EQ(TLocale::GetCurrencyString(peer.lcid), TString(symbol, length));
        EXPECT_EQ(TLocale::GetCurrencyDecimalPlaces(peer.lcid), ucurr_getDefaultFractionDigits(currency, &status));
        EXPECT_TRUE(U_SUCCESS(status));

        NumberFormatOptions options;
        TLocale::GetSystemCurrencySettings(peer.lcid, &options);
        icu::UnicodeString printed;
        format->format(1.0, printed);
        bool const symbolFirst = ToText(printed).indexOf(TString(symbol, length)) <
                                 printed.length() / 2 - (length > printed.length() / 2 ? 1 : 0);
        EXPECT_EQ(options.suffix.isEmpty(), symbolFirst) << ToText(printed).toStdString();
        EXPECT_EQ(options.prefix.isEmpty(), !symbolFirst) << ToText(printed).toStdString();
        EXPECT_EQ(options.grouping, GroupsOf(*format));
    }
}

TEST(LocaleInfoAgainstIcu, WeeksAreThoseOfTheCalendar)
{
    for (Peer const & peer : Peers()) {
        SCOPED_TRACE(peer.locale.getName());
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Calendar> const calendar(icu::Calendar::createInstance(peer.locale, status));
        ASSERT_TRUE(U_SUCCESS(status));
        EXPECT_EQ(TLocale::GetMinimalDaysInFirstWeek(peer.lcid), calendar->getMinimalDaysInFirstWeek());
        EXPECT_EQ(TLocale::FirstWeekIsBroken(peer.lcid), calendar->getMinimalDaysInFirstWeek() == 1);
    }
}

TEST(LocaleInfoAgainstIcu, MeasuresAreThoseOfTheLocaleData)
{
    for (Peer const & peer : Peers()) {
        UErrorCode status = U_ZERO_ERROR;
        bool const metric = ulocdata_getMeasurementSystem(peer.locale.getName(), &status) != UMS_US;
        ASSERT_TRUE(U_SUCCESS(status));
        EXPECT_EQ(TLocale::GetMeasureSystem(peer.lcid) == Localization::MeasureMetric, metric) << peer.locale.getName();
    }
}
