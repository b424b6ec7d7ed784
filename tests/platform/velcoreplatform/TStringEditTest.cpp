// Changing a text, its parts and pieces.
#include "velcoreplatform/TString.h"

#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

using testing::ElementsAre;

constexpr auto kNoCase = TString::CaseInsensitive;
constexpr auto kCase = TString::CaseSensitive;

TEST(TStringEdit, AppendsTextLiteralsAndCharacters)
{
    TString text(u"a");
    text += TString(u"b");
    text += u"c";
    text += u'd';
    text.append(TString(u"e")).append(u"f").append(u'g').append(u"hij", 1).append(u"i", -1);
    EXPECT_EQ(text, u"abcdefghi");
    text.append(static_cast<char16_t const *>(nullptr));
    EXPECT_EQ(text, u"abcdefghi");
}

TEST(TStringEdit, AppendsTheFirstUnitsOfAText)
{
    TString text(u"a");
    text.Append(u"bcd", 2);
    EXPECT_EQ(text, u"abc");
    text.Append(u"d", 99).Append(u"x", 0).Append(u"x", -1);
    EXPECT_EQ(text, u"abcd");
    text.Append(text, 3);
    EXPECT_EQ(text, u"abcdabc");
    text.append(text);
    EXPECT_EQ(text, u"abcdabcabcdabc");
}

TEST(TStringEdit, PrependsAndPushes)
{
    TString text(u"b");
    text.prepend(u'a');
    text.push_back(u'c');
    text.push_back(TString(u"de"));
    text.push_front(u'_');
    text.push_front(TString(u"<>"));
    EXPECT_EQ(text, u"<>_abcde");
    *std::back_inserter(text) = u'!';
    EXPECT_EQ(text, u"<>_abcde!");
}

TEST(TStringEdit, IndexesByEveryIntegerType)
{
    TString text(u"abc");
    text[1] = u'B';
    text[2L] = u'C';
    EXPECT_EQ(text, u"aBC");
    TString const constant(text);
    EXPECT_EQ(constant[0], u'a');
    EXPECT_EQ(constant[1u], u'B');
    EXPECT_EQ(constant[std::size_t{2}], u'C');
    EXPECT_EQ(constant[2LL], u'C');
}

TEST(TStringEdit, AddsAllPairsOfTextLiteralAndCharacter)
{
    TString const a(u"a");
    TString const b(u"b");
    EXPECT_EQ(a + b, u"ab");
    EXPECT_EQ(a + u"b", u"ab");
    EXPECT_EQ(a + u'b', u"ab");
    EXPECT_EQ(u"a" + b, u"ab");
    EXPECT_EQ(u'a' + b, u"ab");
    EXPECT_EQ(a + u"-" + b + u'-' + a, u"a-b-a");
    EXPECT_EQ(a, u"a");
}

TEST(TStringEdit, TakesParts)
{
    TString const text(u"abcd");
    struct Row
    {
        int n;
        char16_t const * left;
        char16_t const * right;
        char16_t const * mid;
    };
    Row const rows[] = {
        {0, u"", u"", u"abcd"},     {1, u"a", u"d", u"bcd"},     {3, u"abc", u"bcd", u"d"},
        {4, u"abcd", u"abcd", u""}, {99, u"abcd", u"abcd", u""}, {-1, u"abcd", u"abcd", u"abcd"},
    };
    for (Row const & row : rows) {
        EXPECT_EQ(text.left(row.n), row.left) << row.n;
        EXPECT_EQ(text.right(row.n), row.right) << row.n;
        EXPECT_EQ(text.mid(row.n), row.mid) << row.n;
    }
    EXPECT_EQ(text.mid(1, 2), u"bc");
    EXPECT_EQ(text.mid(1, 99), u"bcd");
    EXPECT_EQ(text.mid(1, 0), u"");
    EXPECT_EQ(text.mid(-1, 3), u"ab");
}

TEST(TStringEdit, Removes)
{
    TString text(u"abcabc");
    EXPECT_EQ(text.removeAt(1, 2), u"aabc");
    EXPECT_EQ(text.removeAt(3), u"aab");
    EXPECT_EQ(text.removeAt(2, 99), u"aa");
    EXPECT_EQ(text.removeAt(99, 1), u"aa");
    EXPECT_EQ(text.removeAt(-1, 1), u"aa");
    EXPECT_EQ(text.removeAt(0, -1), u"aa");
    EXPECT_EQ(text.removeAll(u'a'), u"");
    text = u"xAbyabz";
    EXPECT_EQ(text.removeAll(u"ab", -1, kCase), u"xAbyz");
    EXPECT_EQ(text.removeAll(u"abc", 2, kNoCase), u"xyz");
    EXPECT_EQ(text.removeAll(u"", -1, kCase), u"xyz");
}

TEST(TStringEdit, Replaces)
{
    TString text(u"a.b.c");
    EXPECT_EQ(text.replace(u'.', u','), u"a,b,c");
    EXPECT_EQ(text.replace(u',', TString(u"--")), u"a--b--c");
    EXPECT_EQ(text.replace(u"--", u"", kCase), u"abc");
    EXPECT_EQ(text.replace(u"B", u"x", kCase), u"abc");
    EXPECT_EQ(text.replace(u"B", u"x", kNoCase), u"axc");
    EXPECT_EQ(text.replace(u"", u"y", kCase), u"axc");
    EXPECT_EQ(text.replace(u"x", u"xx", kCase), u"axxc");
}

TEST(TStringEdit, TrimsInPlace)
{
    TString text(u" \t\u00A0 a b \n");
    TString both(text);
    EXPECT_EQ(both.trim(), u"a b");
    TString left(text);
    EXPECT_EQ(left.trimLeft(), u"a b \n");
    TString right(text);
    EXPECT_EQ(right.trimRight(), u" \t\u00A0 a b");
    TString zeros(u"1000");
    EXPECT_EQ(zeros.trimRight(u'0'), u"1");
    TString blank(u"   ");
    EXPECT_EQ(TString(blank).trim(), u"");
    EXPECT_EQ(TString(blank).trimLeft(), u"");
    EXPECT_EQ(TString(blank).trimRight(), u"");
    EXPECT_EQ(TString().trimRight(u'0'), u"");
}

TEST(TStringEdit, ChangesCaseInCopiesWithoutALocale)
{
    TString const text(u"I\u00FC\u00DF");
    EXPECT_EQ(text.toLower(), u"i\u00FC\u00DF");
    EXPECT_EQ(text.toUpper(), u"I\u00DCSS");
    EXPECT_EQ(text, u"I\u00FC\u00DF");
}

TEST(TStringEdit, Splits)
{
    EXPECT_THAT(TString(u"a,b,,c").split(u",", TString::KeepEmptyParts, kCase), ElementsAre(u"a", u"b", u"", u"c"));
    EXPECT_THAT(TString(u"a,b,,c,").split(u",", TString::SkipEmptyParts, kCase), ElementsAre(u"a", u"b", u"c"));
    EXPECT_THAT(TString(u"1x2X3").split(u"x", TString::KeepEmptyParts, kCase), ElementsAre(u"1", u"2X3"));
    EXPECT_THAT(TString(u"1x2X3").split(u"x", TString::KeepEmptyParts, kNoCase), ElementsAre(u"1", u"2", u"3"));
    EXPECT_THAT(TString(u"a::b").split(u"::"), ElementsAre(u"a", u"b"));
    EXPECT_THAT(TString(u"").split(u","), ElementsAre(u""));
    EXPECT_THAT(TString(u"").split(u",", TString::SkipEmptyParts), ElementsAre());
    EXPECT_THAT(TString(u"ab").split(u""), ElementsAre(u"", u"a", u"b", u""));
}

}  // namespace
