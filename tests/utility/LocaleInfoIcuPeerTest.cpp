// Outside evidence: what the library says of an LCID against plain ICU, asked here without it, for every locale of ICU
// that an LCID names. The library answers from ICU's data too, so that agreement shows two things: an LCID leads to the
// right locale, and what is read off ICU's formats (groups, layouts, places of signs) is what these formats print.

#include <gtest/gtest.h>

#include <unicode/calendar.h>
#include <unicode/decimfmt.h>
#include <unicode/uchar.h>
#include <unicode/ucurr.h>
#include <unicode/uloc.h>
#include <unicode/ulocdata.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "velcoredata/core/TLocale.h"
#include "velcoredata/string/ICUUtils.h"
#include "velcoredata/string/NumberFormatOptions.h"
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

icu::Locale WithLikelyParts(char const * name)
{
    icu::Locale locale(name);
    UErrorCode status = U_ZERO_ERROR;
    locale.addLikelySubtags(status);
    return icu::Locale(
        (std::string(locale.getLanguage()) + '_' + locale.getScript() + '_' + locale.getCountry()).c_str());
}

// ICU's locales with a region by their full names, "zh_Hant_TW".
std::map<std::string, icu::Locale> const & LocalesOfIcu()
{
    static std::map<std::string, icu::Locale> const locales = [] {
        std::map<std::string, icu::Locale> found;
        std::int32_t count = 0;
        icu::Locale const * const all = icu::Locale::getAvailableLocales(count);
        for (std::int32_t i = 0; i < count; ++i) {
            if (*all[i].getCountry() != 0 && *all[i].getVariant() == 0)
                found.emplace(WithLikelyParts(all[i].getName()).getName(), all[i]);
        }
        return found;
    }();
    return locales;
}

// By ICU's own numbers: a locale whose LCID stands for it and no neighbour. ICU numbers two that no LCID is published
// for, ko_KP and en_US_POSIX.
std::map<LCID, icu::Locale> PeersByIcusNumbers()
{
    std::map<LCID, icu::Locale> peers;
    for (auto const & [fullName, locale] : LocalesOfIcu()) {
        LCID const lcid = locale.getLCID();
        char back[ULOC_FULLNAME_CAPACITY] = {};
        UErrorCode status = U_ZERO_ERROR;
        uloc_getLocaleForLCID(lcid, back, ULOC_FULLNAME_CAPACITY, &status);
        if (U_SUCCESS(status) && fullName == WithLikelyParts(back).getName() &&
            VelNLS::FindPublishedLocaleName(lcid) != nullptr)
            peers.emplace(lcid, locale);
    }
    return peers;
}

// And the published names of the other LCIDs, languages without a region and alternate sort orders among them, where
// ICU has that locale.
std::vector<Peer> const & Peers()
{
    static std::vector<Peer> const peers = [] {
        std::map<LCID, icu::Locale> found = PeersByIcusNumbers();
        for (VelNLS::PublishedLocaleName const & row : VelNLS::GetPublishedLocaleNames()) {
            std::string const name(row.name);
            if (name.substr(0, 2) == "x-")  // "x-IV_mathan" is no language
                continue;
            auto const locale = LocalesOfIcu().find(WithLikelyParts(name.substr(0, name.find('_')).c_str()).getName());
            if (locale != LocalesOfIcu().end())
                found.emplace(row.lcid, locale->second);
        }
        std::vector<Peer> all;
        for (auto const & [lcid, locale] : found)
            all.push_back({lcid, locale});
        return all;
    }();
    return peers;
}

std::unique_ptr<icu::DecimalFormat> FormatOf(icu::Locale const & locale, UNumberFormatStyle style)
{
    UErrorCode status = U_ZERO_ERROR;
    auto * const format = dynamic_cast<icu::DecimalFormat *>(icu::NumberFormat::createInstance(locale, style, status));
    EXPECT_TRUE(U_SUCCESS(status));
    return std::unique_ptr<icu::DecimalFormat>(format);
}

// A number as it is printed: what stands before it, its runs of digits and what stands behind it. Blanks are common
// ones, minus signs are hyphens, and marks of direction are left out.
struct Printed
{
    std::u16string head;
    std::vector<int> runs;
    std::vector<std::u16string> separators;
    std::u16string tail;

    Printed(icu::DecimalFormat const & format, double value)
    {
        icu::UnicodeString text;
        format.format(value, text);
        std::u16string between;
        for (std::int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1)) {
            UChar32 const character = text.char32At(i);
            if (u_charDigitValue(character) < 0) {
                between += Plain(character);
                continue;
            }
            if (runs.empty()) {
                head = between;
                runs.push_back(0);
            } else if (!between.empty()) {
                separators.push_back(between);
                runs.push_back(0);
            }
            between.clear();
            ++runs.back();
        }
        tail = between;
    }

    static std::u16string Plain(UChar32 character)
    {
        if (character == 0x200E || character == 0x200F || character == 0x61C)
            return {};
        if (character == 0x2212 || character == 0x2013)
            return u"-";
        if (u_isUWhiteSpace(character))
            return u" ";
        icu::UnicodeString const text(character);
        return std::u16string(text.getBuffer(), static_cast<std::size_t>(text.length()));
    }
    static std::u16string Plain(TString const & text)
    {
        std::u16string plain;
        for (char16_t const unit : text.toStdU16String())
            plain += U16_IS_SURROGATE(unit) ? std::u16string(1, unit) : Plain(static_cast<UChar32>(unit));
        return plain;
    }
};

// Sizes of groups as a number is printed: "3;2;0" for 1,23,45,67,89,01,234.
TString PrintedGroups(icu::DecimalFormat & format)
{
    format.setMaximumFractionDigits(0);
    std::vector<int> const runs = Printed(format, 1234567891234.0).runs;
    if (runs.size() < 3)
        return u"0";
    int const first = runs[runs.size() - 1];
    int const others = runs[runs.size() - 2];
    return TString::number(first) + (others == first ? TString() : u";" + TString::number(others)) + u";0";
}

// A negative number with its sign where the options place it, without blanks.
std::u16string Negative(NumberFormatOptions const & options, char16_t const * number)
{
    std::u16string const prefix = Printed::Plain(options.prefix);
    std::u16string const suffix = Printed::Plain(options.suffix);
    std::u16string text;
    switch (options.negative) {
    case NegativeFormatEnum::Automatic: return u"automatic";
    case NegativeFormatEnum::Parentheses: text = u'(' + prefix + number + suffix + u')'; break;
    case NegativeFormatEnum::MinusFirst: text = u'-' + prefix + number + suffix; break;
    case NegativeFormatEnum::MinusLast: text = prefix + number + suffix + u'-'; break;
    case NegativeFormatEnum::MinusAfterPrefix: text = prefix + u'-' + number + suffix; break;
    case NegativeFormatEnum::MinusAfterNumber: text = prefix + number + u'-' + suffix; break;
    }
    std::erase(text, u' ');
    return text;
}

std::u16string WithoutBlanks(Printed const & printed, char16_t const * number)
{
    std::u16string text = printed.head + number + printed.tail;
    std::erase(text, u' ');
    return text;
}

}  // namespace

TEST(LocaleInfoAgainstIcu, AllLocalesThatAnLcidNamesAreCompared)
{
    EXPECT_GE(PeersByIcusNumbers().size(), 223u);
    EXPECT_GE(Peers().size(), 370u);
}

TEST(LocaleInfoAgainstIcu, NumbersHaveTheSeparatorsGroupsAndSignsOfNumberFormat)
{
    for (Peer const & peer : Peers()) {
        SCOPED_TRACE(std::string(peer.locale.getName()) + ' ' + std::to_string(peer.lcid));
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

        Printed const fraction(*format, 12345678901.5);
        ASSERT_FALSE(fraction.separators.empty());
        EXPECT_EQ(fraction.separators.back(), Printed::Plain(point));
        EXPECT_EQ(fraction.separators.size() > 1, options.useGrouping);
        if (options.useGrouping) {
            EXPECT_EQ(fraction.separators.front(), Printed::Plain(thousand));
        }
        EXPECT_EQ(Negative(options, u"1"), WithoutBlanks(Printed(*format, -1.0), u"1"));
        EXPECT_EQ(options.grouping, PrintedGroups(*format));
    }
}

TEST(LocaleInfoAgainstIcu, AmountsHaveTheCurrencyOfNumberFormat)
{
    for (Peer const & peer : Peers()) {
        SCOPED_TRACE(std::string(peer.locale.getName()) + ' ' + std::to_string(peer.lcid));
        UErrorCode status = U_ZERO_ERROR;
        auto const format = FormatOf(peer.locale, UNUM_CURRENCY);
        ASSERT_NE(format, nullptr);
        char16_t const * const currency = format->getCurrency();
        std::int32_t length = 0;
        char16_t const * const symbol =
            ucurr_getName(currency, peer.locale.getName(), UCURR_SYMBOL_NAME, nullptr, &length, &status);
        int const decimals = ucurr_getDefaultFractionDigits(currency, &status);
        EXPECT_TRUE(U_SUCCESS(status));
        EXPECT_EQ(TLocale::GetCurrencyString(peer.lcid), TString(symbol, length));
        EXPECT_EQ(TLocale::GetCurrencyDecimalPlaces(peer.lcid), decimals);

        NumberFormatOptions options;
        TLocale::GetSystemCurrencySettings(peer.lcid, &options);
        EXPECT_EQ(options.decimals, decimals);
        Printed const one(*format, 1.0);
        EXPECT_EQ(Printed::Plain(options.prefix), one.head);
        EXPECT_EQ(Printed::Plain(options.suffix), one.tail);
        EXPECT_EQ(Negative(options, u"1"), WithoutBlanks(Printed(*format, -1.0), u"1"));

        Printed const amount(*format, 12345678901.5);
        if (decimals > 0) {
            EXPECT_EQ(amount.separators.back(), Printed::Plain(options.decimalSeparator));
        }
        EXPECT_EQ(amount.separators.size() > (decimals > 0 ? 1u : 0u), options.useGrouping);
        if (options.useGrouping) {
            EXPECT_EQ(amount.separators.front(), Printed::Plain(options.thousandSeparator));
        }
        EXPECT_EQ(options.grouping, PrintedGroups(*format));
    }
}

TEST(LocaleInfoAgainstIcu, WeeksAreThoseOfTheCalendar)
{
    for (Peer const & peer : Peers()) {
        SCOPED_TRACE(std::string(peer.locale.getName()) + ' ' + std::to_string(peer.lcid));
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Calendar> const calendar(icu::Calendar::createInstance(peer.locale, status));
        ASSERT_TRUE(U_SUCCESS(status));
        EXPECT_EQ(TLocale::GetMinimalDaysInFirstWeek(peer.lcid), calendar->getMinimalDaysInFirstWeek());
        EXPECT_EQ(TLocale::FirstWeekIsBroken(peer.lcid), calendar->getMinimalDaysInFirstWeek() == 1);
        // 0x92 is published as "ku", by which name ICU has the Kurdish of Turkey and not that of Iraq.
        if (peer.lcid != 0x92) {
            EXPECT_EQ(static_cast<int>(ICUUtils::GetFirstDayOfWeek(TLocale(peer.lcid))),
                      static_cast<int>(calendar->getFirstDayOfWeek(status)));
        }
    }
}

TEST(LocaleInfoAgainstIcu, MeasuresAreThoseOfTheLocaleData)
{
    for (Peer const & peer : Peers()) {
        UErrorCode status = U_ZERO_ERROR;
        bool const metric = ulocdata_getMeasurementSystem(peer.locale.getName(), &status) != UMS_US;
        ASSERT_TRUE(U_SUCCESS(status));
        EXPECT_EQ(TLocale::GetMeasureSystem(peer.lcid) == Localization::MeasureMetric, metric)
            << peer.locale.getName() << ' ' << peer.lcid;
    }
}
