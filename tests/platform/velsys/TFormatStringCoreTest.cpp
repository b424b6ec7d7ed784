#include "velsys/TFormatStringCore.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::string Fill(char16_t const * pattern, std::vector<char16_t const *> const & values)
{
    TFormatStringCore format(pattern);
    for (char16_t const * value : values)
        format.arg(value);
    return format.Text().toQString().toStdString();
}

TEST(TFormatStringCore, EachValueFillsTheLowestPlaceLeft)
{
    struct Row
    {
        char16_t const * pattern;
        std::vector<char16_t const *> values;
        char const * expected;
    };
    Row const rows[] = {
        {u"", {}, ""},
        {u"plain", {u"x"}, "plain"},
        {u"%1", {u"x"}, "x"},
        {u"%1 of %2", {u"3", u"4"}, "3 of 4"},
        {u"%2 of %1", {u"3", u"4"}, "4 of 3"},
        {u"%7-%3-%5", {u"a", u"b", u"c"}, "c-a-b"},
        {u"%1 and %1", {u"x"}, "x and x"},
        {u"%2%1%2", {u"x", u"y"}, "yxy"},
        {u"%1%2", {u"x"}, "x%2"},
        {u"%1", {u"x", u"y"}, "x"},
        {u"%1 %10 %2", {u"a", u"b", u"c"}, "a c b"},
        {u"%10%1", {u"a", u"b"}, "ba"},
        {u"%99", {u"x"}, "x"},
        {u"%100", {u"x"}, "x0"},
        {u"%01 %1", {u"x"}, "%01 x"},
        {u"%0 %1", {u"x"}, "%0 x"},
        {u"100% %1 %", {u"x"}, "100% x %"},
        {u"%%1", {u"x"}, "%x"},
        {u"%a%1%", {u"x"}, "%ax%"},
    };
    for (Row const & row : rows)
        EXPECT_EQ(Fill(row.pattern, row.values), row.expected);
}

TEST(TFormatStringCore, TextThatWasPutInIsNeverLookedAtAgain)
{
    EXPECT_EQ(Fill(u"%1 %2", {u"%2", u"b"}), "%2 b");
    EXPECT_EQ(Fill(u"%1 %2", {u"%1", u"%1"}), "%1 %1");
    EXPECT_EQ(Fill(u"%1%2", {u"%", u"1"}), "%1");
    EXPECT_EQ(Fill(u"%1", {u"%1", u"x"}), "%1");
}

TEST(TFormatStringCore, SeveralValuesFillTheirPlacesAtOnce)
{
    TStringCore const a(u"%2");
    TStringCore const b(u"%3");
    TStringCore const c(u"c");
    std::array<TStringCore const *, 3> const values{&a, &b, &c};
    EXPECT_EQ(TFormatStringCore(u"%1 %2 %3 %4").args(values.data(), 3).Text(), u"%2 %3 c %4");
    EXPECT_EQ(TFormatStringCore(u"%1").args(values.data(), 3).Text(), u"%2");
    EXPECT_EQ(TFormatStringCore(u"%9%8").args(values.data(), 2).Text(), u"%3%2");
    EXPECT_EQ(TFormatStringCore(u"%1").args(values.data(), 0).Text(), u"%1");
}

TEST(TFormatStringCore, IsMadeFromALiteralWithALength)
{
    EXPECT_EQ(TFormatStringCore(u"%1 of %2", 2).arg(u"x").Text(), u"x");
    EXPECT_EQ(TFormatStringCore().arg(u"x").Text(), u"");
}

TEST(TFormatStringCore, ACopyIsFilledOnItsOwn)
{
    TFormatStringCore const pattern(u"%1");
    TFormatStringCore first(pattern);
    TFormatStringCore second(pattern);
    EXPECT_EQ(first.arg(u"a").Text(), u"a");
    EXPECT_EQ(second.arg(u"b").Text(), u"b");
    EXPECT_EQ(pattern.Text(), u"%1");
}

}  // namespace
