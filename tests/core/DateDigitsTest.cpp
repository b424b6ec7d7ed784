// Dates printed without ICU, held against the road through ICU.

#include <gtest/gtest.h>

#include <string>

#include "main/core/DateDigits.h"
#include "main/core/DateTimeParsingRows.h"
#include "tests/core/TLocalePeer.h"
#include "tests/support/RandomText.h"
#include "tests/support/ValuePrinters.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"

namespace {

DateTime DrawValue(test_support::RandomText & random)
{
    // Mostly of the years that print without ICU, now and then of any.
    if (random.Below(50) == 0)
        return DateTime::FromValue(random.Generator()() * 4294967296ULL + random.Generator()());
    unsigned long long const first = DateTime(400, 1, 1, 0, 0, 0, 0.0).GetRepresentation();
    unsigned long long const span = DateTime::maxGregorianDate - first + 10000;
    return DateTime::FromValue(first + (random.Generator()() * 4294967296ULL + random.Generator()()) % span);
}

std::u16string DrawPattern(test_support::RandomText & random)
{
    static constexpr std::u16string_view letters = u"yMdHhmsSyMdHms";
    static constexpr std::u16string_view between[] = {u"-", u"/", u" ",      u":", u".",   u"'T'", u"''", u"'it''s'",
                                                      u"",  u",", u"\u5E74", u"'", u"'y'", u"a",   u"E",  u"\u00E9"};
    std::u16string pattern;
    for (std::size_t n = random.Below(8); n > 0; --n) {
        std::size_t const most = random.Below(20) == 0 ? 12 : 4;
        pattern.append(1 + random.Below(most), letters[random.Below(letters.size())]);
        pattern += between[random.Below(random.Below(4) == 0 ? std::size(between) : 11)];
    }
    return pattern;
}

}  // namespace

TEST(DateDigits, ServePatternsOfDigitsOnly)
{
    DateTime const value(2020, 1, 2, 13, 4, 5, 0.0678);
    TString out;
    EXPECT_TRUE(detail::FormatDateDigits(value, u"yyyy-MM-dd'T'HH:mm:ss.SSS", out));
    EXPECT_EQ(out, TString(u"2020-01-02T13:04:05.067"));
    EXPECT_TRUE(detail::FormatDateDigits(value, u"yy y h S SS SSSSSS ''d'd'", out));
    EXPECT_EQ(out, TString(u"20 2020 1 0 06 067000 '2d"));
    EXPECT_TRUE(detail::FormatDateDigits(value, u"", out));
    EXPECT_EQ(out, TString());
    out = u"left alone";
    for (char16_t const * const pattern : {u"MMM", u"yyyy-MM-dd a", u"EEEE", u"HHHHHHHHHH", u"z", u"u"})
        EXPECT_FALSE(detail::FormatDateDigits(value, pattern, out)) << TString(pattern).toStdString();
    EXPECT_FALSE(detail::FormatDateDigits(value, std::u16string(65, u'-').c_str(), out));
    EXPECT_FALSE(detail::FormatDateDigits(value, nullptr, out));
    for (DateTime const & outside : {DateTime::FromValue(0), DateTime(400, 1, 1, 0, 0, 0, 0.0) - DateTimeSpan(1LL),
                                     DateTime(10000, 1, 1, 0, 0, 0, 0.0), DateTime::FromValue(~0ULL)})
        EXPECT_FALSE(detail::FormatDateDigits(outside, u"yyyy", out));
    EXPECT_EQ(out, TString(u"left alone"));
    EXPECT_TRUE(detail::FormatDateDigits(value, std::u16string(64, u'-').c_str(), out));
}

TEST(DateDigits, PrintAsIcuDoesInEveryLocale)
{
    auto const locales = VelICU::ICULocale::getAvailableLocales();
    test_support::RandomText random(35);
    std::size_t served = 0;
    for (auto const & icuLocale : locales) {
        TLocale const locale(TString::fromLatin1(icuLocale->getName()));
        for (int i = 0; i < 6; ++i) {
            DateTime const value = DrawValue(random);
            std::u16string const pattern = i == 0 ? u"yyyy-MM-dd HH:mm:ss.SSS" : DrawPattern(random);
            TString out;
            served += detail::FormatDateDigits(value, pattern.c_str(), out);
            ASSERT_EQ(locale.Format(value, pattern.c_str()), TLocalePeer::FormatByICU(locale, value, pattern.c_str()))
                << icuLocale->getName() << " " << TString::fromView(pattern).toStdString() << " " << value;
        }
    }
    EXPECT_GT(served, 2 * locales.size());
}

TEST(DateDigits, PrintAsIcuDoesByDrawnPatterns)
{
    TLocale const locale(u"en_US");
    test_support::RandomText random(36);
    for (int i = 0; i < 300; ++i) {
        std::u16string const pattern = DrawPattern(random);
        for (int k = 0; k < 20; ++k) {
            DateTime const value = DrawValue(random);
            ASSERT_EQ(locale.Format(value, pattern.c_str()), TLocalePeer::FormatByICU(locale, value, pattern.c_str()))
                << TString::fromView(pattern).toStdString() << " " << value;
        }
    }
    for (detail::DateTimeParsingRow const & row : detail::DateTimeParsingRows()) {
        for (int k = 0; k < 20; ++k) {
            DateTime const value = DrawValue(random);
            ASSERT_EQ(locale.Format(value, row.pattern), TLocalePeer::FormatByICU(locale, value, row.pattern));
        }
    }
}
