#include "velcoredata/core/StringUtils.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include <boost/container/small_vector.hpp>

#include "main/core/UnitHash.h"
#include "tests/support/ErrorMatchers.h"
#include "velsys/Hash.h"

namespace {

using Tokens = std::vector<TString>;

TString Units(std::initializer_list<char16_t> units)
{
    return TString::fromView({units.begin(), units.size()});
}

constexpr int tenMillion = 10'000'000;

// Time that a linear pass over ten million units stays far below, under sanitizers too.
class Bounded
{
public:
    ~Bounded() { EXPECT_LT(std::chrono::steady_clock::now() - m_start, std::chrono::seconds(60)); }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

}  // namespace

TEST(StringHash, IsTheBytesHashWithItsSeed)
{
    TString const text(u"a\u4E2D");
    EXPECT_EQ(StringHash(text), THash32(text.constData(), 4, 0xDEADBEEFu));
    EXPECT_EQ(StringHash(text), HashOf(text));
    EXPECT_EQ(StringHash(TString()), THash32(u"", 0, 0xDEADBEEFu));
    EXPECT_EQ(TStringHashCompare::hash(text), std::uint64_t{StringHash(text)});
    EXPECT_TRUE(TStringHashCompare::equal(text, TString(u"a\u4E2D")));
    EXPECT_FALSE(TStringHashCompare::equal(text, TString(u"A\u4E2D")));
}

TEST(StringHash128, IsTheBytesHashWithItsSeeds)
{
    TString const text(u"abc");
    EXPECT_EQ(StringHash128(text), THash128(text.constData(), 6, 0xDEADBEEFu, 0xCAFEBABEu));
    EXPECT_NE(StringHash128(text), StringHash128(TString(u"abd")));
}

TEST(StringHash128, AssertsThatTheLengthIsCountable)
{
    EXPECT_THAT([] { detail::UnitHash128(u"", -1); },
                ThrowsAssert("0 <= len", "LogicException_LogicAssert_0x9DD2957A"));
}

TEST(LocaleAwareCaseInsensitiveSort, LeavesCaseAside)
{
    EXPECT_TRUE(LocaleAwareCaseInsensitiveSort(u"a", u"B"));
    EXPECT_FALSE(LocaleAwareCaseInsensitiveSort(u"B", u"a"));
    EXPECT_FALSE(LocaleAwareCaseInsensitiveSort(u"A", u"a"));
    EXPECT_FALSE(LocaleAwareCaseInsensitiveSort(u"a", u"A"));
}

TEST(LookupString, GivesTheMappedTextOrTheEmptyOne)
{
    std::unordered_map<TString, TString> const map{{u"key", u"value"}};
    EXPECT_EQ(LookupString(map, TString(u"key")), u"value");
    EXPECT_EQ(LookupString(map, u"key"), u"value");
    EXPECT_EQ(LookupString(map, TString(u"KEY")), u"");
    EXPECT_EQ(LookupString(map, u"other"), u"");
}

TEST(HasAllAsciiCharacters, IsTrueUpTo127)
{
    EXPECT_TRUE(HasAllAsciiCharacters(u""));
    EXPECT_TRUE(HasAllAsciiCharacters(u"abc\u007F"));
    EXPECT_FALSE(HasAllAsciiCharacters(u"abc\u0080"));
}

TEST(BooleanToString, IsTrueOrFalse)
{
    EXPECT_EQ(BooleanToString(true), u"true");
    EXPECT_EQ(BooleanToString(false), u"false");
}

TEST(ReplaceLineFeedWithWhiteSpace, LeavesCarriageReturns)
{
    EXPECT_EQ(ReplaceLineFeedWithWhiteSpace(u"a\r\nb\n"), u"a\r b ");
    EXPECT_EQ(ReplaceLineFeedWithWhiteSpace(u"abc"), u"abc");
}

TEST(RemoveBytePadding, KeepsTheLowByte)
{
    EXPECT_EQ(RemoveBytePadding(u"\u0141"), "\x41");
    EXPECT_EQ(RemoveBytePadding(u"a\u00FF"), "a\xFF");
    EXPECT_EQ(RemoveBytePadding(TString()), "");
}

TEST(JoinString, AllFormsJoinAlike)
{
    std::vector<TString> const items{u"a", u"", u"b"};
    std::set<TString> const set(items.begin(), items.end());  // "", "a", "b"
    boost::container::small_vector<TString, 2> const small(items.begin(), items.end());
    EXPECT_EQ(JoinString(items, TString(u"--")), u"a----b");
    EXPECT_EQ(JoinString(items, u"--"), u"a----b");
    EXPECT_EQ(JoinString(items, u','), u"a,,b");
    EXPECT_EQ(JoinString(small, TString(u"--")), u"a----b");
    EXPECT_EQ(JoinString(small, u','), u"a,,b");
    EXPECT_EQ(JoinString(set, TString(u",")), u",a,b");
    EXPECT_EQ(JoinString(items.begin() + 1, items.end(), TString(u",")), u",b");
    EXPECT_EQ(JoinString(++set.begin(), set.end(), TString(u",")), u"a,b");
}

TEST(JoinString, NoItemsGiveTheEmptyTextAndOneItself)
{
    EXPECT_EQ(JoinString(std::vector<TString>(), TString(u",")), u"");
    EXPECT_EQ(JoinString(std::set<TString>(), TString(u",")), u"");
    EXPECT_EQ(JoinString(std::vector<TString>{u"a"}, TString(u",")), u"a");
}

TEST(JoinString, AResultOverTheLongestTextRaises)
{
    // One shared block of a million units, named 2,148 times.
    std::vector<TString> const items(2'148, TString(u'x', 1'000'000));
    EXPECT_THAT([&] { JoinString(items, TString()); },
                ThrowsError("VeltriaException_AutoGen_0xF43CCF25",
                            "JoinString: calculated length 2148000000 exceeds maximum length"));
    // The separators alone.
    std::vector<TString> const blanks(2'149);
    EXPECT_THAT([&] { JoinString(blanks, items[0]); },
                ThrowsError("VeltriaException_AutoGen_0xF43CCF25",
                            "JoinString: calculated length 2148000000 exceeds maximum length"));
}

TEST(SplitString, GivesAtLeastOneToken)
{
    EXPECT_EQ(SplitString(u"", u",", u""), (Tokens{u""}));
    EXPECT_EQ(SplitString(u"", u',', u"\""), (Tokens{u""}));
    EXPECT_EQ(SplitString(u"a,b,", u",", u""), (Tokens{u"a", u"b", u""}));
    EXPECT_EQ(SplitString(u"a--b-", u"--", u""), (Tokens{u"a", u"b-"}));
}

TEST(SplitString, KeepsASeparatorBetweenQuotesAndTheQuotes)
{
    EXPECT_EQ(SplitString(u"a,\"b,c\",d", u",", u"\""), (Tokens{u"a", u"\"b,c\"", u"d"}));
    EXPECT_EQ(SplitString(u"a,\"b,c\",d", u',', u"\""), (Tokens{u"a", u"\"b,c\"", u"d"}));
}

TEST(SplitString, HonoursOnlyTheFirstQuotedStretchOfAToken)
{
    EXPECT_EQ(SplitString(u"x'a,b'y,z", u",", u"'"), (Tokens{u"x'a,b'y", u"z"}));
    EXPECT_EQ(SplitString(u"'a,b''c'd,e'f'", u",", u"'"), (Tokens{u"'a,b''c'd", u"e'f'"}));
    EXPECT_THAT([] { SplitString(u"x'a,b'y'c,d',e", u",", u"'"); },
                ThrowsError("VeltriaException_AutoGen_0x79B9C33C", "Mismatched quote in '',e'"));
}

TEST(SplitString, ALoneQuoteRaises)
{
    EXPECT_THAT([] { SplitString(u"a,b\"c,d", u",", u"\""); },
                ThrowsError("VeltriaException_AutoGen_0x79B9C33C", "Mismatched quote in '\"c,d'"));
    EXPECT_THAT([] { SplitString(u"\"%1", u",", u"\""); },
                ThrowsError("VeltriaException_AutoGen_0x79B9C33C", "Mismatched quote in '\"%1'"));
}

TEST(SplitString, TheNextQuoteMayOverlapTheOneBefore)
{
    EXPECT_EQ(SplitString(u"''',a", u",", u"''"), (Tokens{u"'''", u"a"}));
}

TEST(SplitString, AnEmptySeparatorRaisesEvenForAnEmptyText)
{
    for (char16_t const * const text : {u"", u"a,b", u"'"})
        EXPECT_THAT([&] { SplitString(text, u"", u"'"); },
                    ThrowsError("VeltriaException_AutoGen_0xF6FE9A60", "Missing separator parameter"));
}

TEST(SplitString, LooksAtAHugeTextOnce)
{
    Bounded const bounded;
    TString commas(u',', tenMillion);
    EXPECT_EQ(SplitString(commas, u",", u"").size(), std::size_t{tenMillion} + 1);
    // The quotes stand behind all separators.
    EXPECT_EQ(SplitString(commas + u"''", u",", u"'").size(), std::size_t{tenMillion} + 1);
    EXPECT_EQ(SplitString(u"'" + commas + u"'", u",", u"'").size(), 1u);
    EXPECT_EQ(SplitString(TString(u'\'', tenMillion), u",", u"'").size(), 1u);
}

TEST(Escape, PrecedesEachOfTheCharacters)
{
    EXPECT_EQ(Escape(u"a\"b\\c", u"\"\\", u'\\'), u"a\\\"b\\\\c");
    EXPECT_EQ(Escape(u"a^b", u"\"", u'^'), u"a^b");
    EXPECT_EQ(Escape(u"abc", u"", u'^'), u"abc");
    EXPECT_EQ(Escape(Units({u'a', 0}), Units({0}), u'^'), Units({u'a', u'^', 0}));
}

TEST(CEscape, FollowsItsTable)
{
    struct
    {
        char16_t character;
        char16_t const * text;
    } const rows[] = {{0, u"\\0"},     {u'\a', u"\\a"}, {u'\b', u"\\b"}, {u'\t', u"\\t"}, {u'\n', u"\\n"},
                      {u'\v', u"\\v"}, {u'\f', u"\\f"}, {u'\r', u"\\r"}, {u'\'', u"\\'"}, {u'\\', u"\\\\"}};
    std::set<char16_t> listed;
    for (auto const & row : rows) {
        EXPECT_EQ(CEscape(row.character), row.text);
        EXPECT_EQ(CEscape(TString(row.character, 1)), row.text);
        EXPECT_EQ(CUnescape(row.text), TString(row.character, 1));
        listed.insert(row.character);
    }
    for (int c = 0; c <= 0xFFFF; ++c)
        if (!listed.count(static_cast<char16_t>(c))) {
            ASSERT_EQ(CEscape(static_cast<char16_t>(c)), TString(static_cast<char16_t>(c), 1));
        }
}

TEST(CUnescape, AnUnknownEscapeIsTheCharacterAndALastBackslashStays)
{
    EXPECT_EQ(CUnescape(u"a\\"), u"a\\");
    EXPECT_EQ(CUnescape(u"\\"), u"\\");
    EXPECT_EQ(CUnescape(u"\\q\\\"\\x41"), u"q\"x41");
    EXPECT_EQ(CUnescape(u"\\\\n"), u"\\n");
}

TEST(HexEncode, WritesUtf8InUpperCase)
{
    EXPECT_EQ(HexEncode(u""), u"x''");
    EXPECT_EQ(HexEncode(u"\u00E9a"), u"x'C3A961'");
    EXPECT_EQ(HexEncode(Units({u'a', 0, u'b'})), u"x'61'");
    EXPECT_EQ(HexEncode(Units({0xD800})), u"x'3F'");
}

TEST(HexDecode, StopsAsItsRulesSay)
{
    struct
    {
        char16_t const * text;
        bool good;
        char16_t const * result;
    } const rows[] = {
        {u"4142", true, u"AB"},  {u"41G2", false, u"A"},          {u"414", true, u"A"},
        {u"410042", true, u"A"}, {u"4100G", true, u"A"},          {u"", true, u""},
        {u"4g", false, u""},     {u"c3A9", true, u"\u00E9"},      {u"41FF42", true, u"A\uFFFDB"},
        {u"4 1", false, u""},    {u"EFBBBF41", true, u"\uFEFFA"},
    };
    for (auto const & row : rows) {
        TString result(u"before");
        EXPECT_EQ(HexDecode(row.text, result), row.good) << TString(row.text);
        EXPECT_EQ(result, row.result) << TString(row.text);
    }
}

TEST(HexDecode, ResultMayBeItsText)
{
    TString text(u"4142");
    EXPECT_TRUE(HexDecode(text, text));
    EXPECT_EQ(text, u"AB");
}

TEST(DecodeHexEncodedString, ReadsBothMarksAndTheTail)
{
    struct
    {
        char16_t const * text;
        bool good;
        char16_t const * result;
    } const rows[] = {
        {u"x'4142'zabc", true, u"ABabc"},
        {u"x_4142_zabc", true, u"ABabc"},
        {u"x'41", true, u"A"},
        {u"x'41'", true, u"A"},
        {u"x'41_", true, u"A"},
        {u"x'41'z41'z", false, u"A"},
        {u"x'41G2'zq", false, u"A"},
        {u"x'", true, u""},
        {u"x'41FF42'", true, u"AB"},
        {u"x'41EFBFBD42'z\uFFFD", true, u"AB\uFFFD"},
    };
    for (auto const & row : rows) {
        TString result(u"before");
        EXPECT_EQ(DecodeHexEncodedString(row.text, result), row.good) << TString(row.text);
        EXPECT_EQ(result, row.result) << TString(row.text);
    }
}

TEST(DecodeHexEncodedString, LeavesTheResultWithoutItsStart)
{
    for (char16_t const * const text : {u"abc", u"", u"x", u"X'41'", u"xz", u" x'41'"}) {
        TString result(u"before");
        EXPECT_FALSE(DecodeHexEncodedString(text, result)) << TString(text);
        EXPECT_EQ(result, u"before");
    }
}

TEST(DeleteBetween, KeepsTheDelimiters)
{
    auto const deleted = [](TString text, char16_t const * open, char16_t const * close) {
        DeleteBetween(text, open, close);
        return text;
    };
    EXPECT_EQ(deleted(u"{a} {b} {c}", u"{", u"}"), u"{} {} {}");
    EXPECT_EQ(deleted(u"<!--x-->y", u"<!--", u"-->"), u"<!---->y");
    EXPECT_EQ(deleted(u"none", u"(", u")"), u"none");
    EXPECT_EQ(deleted(u"(never closed", u"(", u")"), u"(never closed");
    EXPECT_EQ(deleted(u"BaE begin", u"b", u"e"), u"BaE begin");
}

TEST(DeleteBetween, TheNextSearchSkipsOneMoreLengthOfOpen)
{
    TString text(u"()(a)(b)");
    DeleteBetween(text, u"(", u")");
    EXPECT_EQ(text, u"()(a)()");
}

TEST(DeleteBetween, EmptyDelimitersComeToAnEnd)
{
    TString text(u"a)b)c");
    DeleteBetween(text, u"", u"");
    EXPECT_EQ(text, u"a)b)c");
    DeleteBetween(text, u"", u")");
    EXPECT_EQ(text, u"))c");
    text = u"(a(b";
    DeleteBetween(text, u"(", u"");
    EXPECT_EQ(text, u"(a(b");
}

TEST(DeleteBetween, LooksAtAHugeTextOnce)
{
    Bounded const bounded;
    std::u16string huge;
    while (huge.size() < tenMillion)
        huge += u"(abc) ";
    TString text = TString::fromStdU16String(huge);
    DeleteBetween(text, u"(", u")");
    EXPECT_EQ(text.length(), static_cast<int>(huge.size() / 2));
    TString open(u'(', tenMillion);
    DeleteBetween(open, u"(", u")");
    EXPECT_EQ(open.length(), tenMillion);
}

TEST(StringEscapes, TakeHugeTexts)
{
    Bounded const bounded;
    TString const backslashes(u'\\', tenMillion);
    EXPECT_EQ(CUnescape(backslashes).length(), tenMillion / 2);
    EXPECT_EQ(CUnescape(CEscape(backslashes)), backslashes);
    EXPECT_EQ(Escape(backslashes, u"\\", u'\\').length(), 2 * tenMillion);
    TString decoded;
    EXPECT_TRUE(DecodeHexEncodedString(HexEncode(backslashes), decoded));
    EXPECT_EQ(decoded, backslashes);
    EXPECT_TRUE(HexDecode(TString(u'F', tenMillion), decoded));
    EXPECT_EQ(decoded.length(), tenMillion / 2);
}
