#include "velcoreplatform/TFormatString.h"

#include <limits>
#include <type_traits>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

TString Text(TFormatString const & format)
{
    return format;
}

TEST(TFormatString, IsMadeFromTextAndConvertsBack)
{
    EXPECT_EQ(Text(TFormatString(TString(u"%1"))), u"%1");
    EXPECT_EQ(Text(TFormatString(u"%1")), u"%1");
    TFormatString format(u"%1");
    format.arg(TString(u"x"));
    TFormatStringCore const & core = format;
    EXPECT_EQ(core.Text(), u"x");
    static_assert(std::is_convertible_v<TFormatString, TString>);
    static_assert(std::is_convertible_v<TFormatString, TFormatStringCore>);
}

TEST(TFormatString, EachCallFillsTheLowestPlaceLeft)
{
    EXPECT_EQ(Text(TFormatString(u"%3 %1 %2").arg(u"a").arg(u"b").arg(u"c")), u"c a b");
    EXPECT_EQ(Text(TFormatString(u"%1%1").arg(7)), u"77");
    EXPECT_EQ(Text(TFormatString(u"%1 %10 %2").arg(u"a").arg(u"b").arg(u"c")), u"a c b");
}

TEST(TFormatString, TextThatWasPutInIsNeverLookedAtAgain)
{
    EXPECT_EQ(Text(TFormatString(u"%1 %2").arg(u"%2").arg(u"%1")), u"%2 %1");
    EXPECT_EQ(Text(TFormatString(u"%1 %2").arg(TString(u"%2"), TString(u"%1"))), u"%2 %1");
    EXPECT_EQ(Text(TFormatString(TString(u"%1"))), u"%1");
}

TEST(TFormatString, TwoToFiveValuesFillTheirPlacesAtOnce)
{
    TString const a(u"a");
    TString const b(u"b");
    TString const c(u"c");
    TString const d(u"d");
    TString const e(u"%1");
    char16_t const * const pattern = u"%1%2%3%4%5%6";
    EXPECT_EQ(Text(TFormatString(pattern).arg(a, b)), u"ab%3%4%5%6");
    EXPECT_EQ(Text(TFormatString(pattern).arg(a, b, c)), u"abc%4%5%6");
    EXPECT_EQ(Text(TFormatString(pattern).arg(a, b, c, d)), u"abcd%5%6");
    EXPECT_EQ(Text(TFormatString(pattern).arg(a, b, c, d, e)), u"abcd%1%6");
    EXPECT_EQ(Text(TFormatString(pattern).arg(a, b).arg(c, d)), u"abcd%5%6");
    EXPECT_EQ(Text(TFormatString(u"%1").arg(a, b, c)), u"a");
}

TEST(TFormatString, WritesNumbers)
{
    EXPECT_EQ(Text(TFormatString(u"%1").arg(-42, 0, 10, u' ')), u"-42");
    EXPECT_EQ(Text(TFormatString(u"%1").arg(42, 5, 10, u' ')), u"   42");
    EXPECT_EQ(Text(TFormatString(u"%1").arg(255, 4, 16, u'0')), u"00ff");
    EXPECT_EQ(Text(TFormatString(u"%1").arg(static_cast<unsigned short>(65535), 0, 10, u' ')), u"65535");
    EXPECT_EQ(Text(TFormatString(u"%1").arg(std::numeric_limits<long long>::min(), 0, 10, u' ')),
              u"-9223372036854775808");
    EXPECT_EQ(Text(TFormatString(u"%1").arg(1.5, 0, 'g', 6, u' ', true)), u"1.5");
    EXPECT_EQ(Text(TFormatString(u"%1").arg(3.0, 0, 'g', 6, u' ', false)), u"3.");
    EXPECT_EQ(Text(TFormatString(u"%1").arg(1.5, 6, 'f', 2, u' ', true)), u"  1.50");
    EXPECT_EQ(Text(TFormatString(u"%1").arg(-1.5, 6, 'f', 1, u'0', true)), u"-001.5");
}

TEST(TFormatString, PadsText)
{
    EXPECT_EQ(Text(TFormatString(u"<%1>").arg(TString(u"ab"), 4, u'*')), u"<**ab>");
    EXPECT_EQ(Text(TFormatString(u"<%1>").arg(TString(u"ab"), -4, u'*')), u"<ab**>");
    EXPECT_EQ(Text(TFormatString(u"<%1>").arg(TString(u"ab"), 1, u'*')), u"<ab>");
}

template <class T>
concept Fillable = requires(TFormatString format, T value)
{
    format.arg(value);
};

TEST(TFormatString, TakesNoBareCharacter)
{
    static_assert(Fillable<int> && Fillable<long long> && Fillable<double> && Fillable<TString>);
    static_assert(!Fillable<char16_t>);
}

}  // namespace
