#include "velcoredata/core/ReStringParser.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <exception>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "main/core/RegExPatternCache.h"
#include "tests/support/ErrorMatchers.h"

namespace {

using Parser = RefCntPtr<ReStringParser>;
using Texts = std::vector<TString>;

Parser Make(char16_t const * pattern, RegExParserDefs dialect, bool caseSensitive = true)
{
    return Parser(new ReStringParser(pattern, caseSensitive, dialect));
}

// For subclasses: no back end.
class Bare : public ReStringParser
{};

class BothDialects : public testing::TestWithParam<RegExParserDefs>
{};

INSTANTIATE_TEST_SUITE_P(ReStringParser, BothDialects, testing::Values(RegExParserICU, RegExParserXpressive),
                         [](auto const & info) { return info.param == RegExParserXpressive ? "Xpressive" : "ICU"; });

}  // namespace

TEST_P(BothDialects, MatchTakesTheWholeText)
{
    Parser const parser = Make(u"a+b", GetParam());
    EXPECT_TRUE(parser->match(u"aab"));
    EXPECT_FALSE(parser->match(u"aabc"));
    EXPECT_FALSE(parser->match(u""));
}

TEST_P(BothDialects, SearchFindsAPart)
{
    Parser const parser = Make(u"b+", GetParam());
    EXPECT_TRUE(parser->search(u"aabbcc"));
    EXPECT_FALSE(parser->search(u"ac"));
    EXPECT_FALSE(parser->search(u""));
    EXPECT_TRUE(Make(u"x*", GetParam())->search(u""));
}

TEST_P(BothDialects, SearchGivesTheGroupsFromOneOn)
{
    Parser const parser = Make(u"(\\d+)-(\\d+)(z)?", GetParam());
    Texts groups{u"old"};
    EXPECT_TRUE(parser->search(u"on 10-15", groups));
    EXPECT_EQ(groups, (Texts{u"10", u"15", u""}));
}

TEST_P(BothDialects, SearchClearsTheGroupsEvenWhenNothingMatches)
{
    Texts groups{u"old"};
    EXPECT_FALSE(Make(u"(a)", GetParam())->search(u"b", groups));
    EXPECT_EQ(groups, Texts());
}

TEST_P(BothDialects, SearchAllGivesPositionsInCodeUnits)
{
    std::vector<ReStringParserMatches> matches(3);
    Make(u"([a-z])(\\d)?", GetParam())->searchAll(u"\U0001F600a1 b", matches);
    ASSERT_EQ(matches.size(), 2u);
    EXPECT_EQ(matches[0].position, 2);
    EXPECT_EQ(matches[0].groups, (Texts{u"a", u"1"}));
    EXPECT_EQ(matches[1].position, 5);
    EXPECT_EQ(matches[1].groups, (Texts{u"b", u""}));
}

TEST_P(BothDialects, SearchAllClearsWhenNothingMatches)
{
    std::vector<ReStringParserMatches> matches(3);
    Make(u"x", GetParam())->searchAll(u"abc", matches);
    EXPECT_TRUE(matches.empty());
}

TEST_P(BothDialects, SearchAllComesToAnEndOnEmptyMatches)
{
    std::vector<ReStringParserMatches> matches;
    Make(u"x*", GetParam())->searchAll(u"axb", matches);
    ASSERT_EQ(matches.size(), 4u);
    EXPECT_EQ(matches[0].position, 0);
    EXPECT_EQ(matches[1].position, 1);
    EXPECT_EQ(matches[2].position, 2);
    EXPECT_EQ(matches[3].position, 3);
}

TEST_P(BothDialects, CaseCountsOnDemand)
{
    EXPECT_FALSE(Make(u"stra\u00DFe \u03A3", GetParam(), true)->match(u"STRA\u00DFE \u03C3"));
    EXPECT_TRUE(Make(u"stra\u00DFe \u03A3", GetParam(), false)->match(u"STRA\u00DFE \u03C3"));
    EXPECT_TRUE(Make(u"[a-f]+", GetParam(), false)->match(u"AbCdeF"));
    EXPECT_FALSE(Make(u"[a-f]+", GetParam(), true)->match(u"AbCdeF"));
    EXPECT_TRUE(Make(u"[[:upper:]]+", GetParam(), false)->match(u"aB"));
}

TEST_P(BothDialects, ClassesFollowUnicode)
{
    EXPECT_TRUE(Make(u"\\d+", GetParam())->match(u"1\u0661"));
    EXPECT_TRUE(Make(u"\\w+", GetParam())->match(u"a_\u00E9\u4E2D"));
    EXPECT_TRUE(Make(u"[[:alpha:]]+", GetParam())->match(u"a\u00E9"));
    EXPECT_FALSE(Make(u"\\S", GetParam())->match(u"\u3000"));
}

TEST_P(BothDialects, NothingAfterAZeroIsSeen)
{
    static constexpr char16_t text[] = u"ab\0cd";
    EXPECT_TRUE(Make(u"ab", GetParam())->match(text));
    EXPECT_FALSE(Make(u"c", GetParam())->search(text));
}

TEST_P(BothDialects, NullTextsAreEmpty)
{
    Texts groups;
    EXPECT_FALSE(Make(u"a", GetParam())->match(nullptr));
    EXPECT_FALSE(Make(u"a", GetParam())->search(nullptr, groups));
    EXPECT_EQ(Make(u"a", GetParam())->replaceAll(nullptr, nullptr), u"");
}

TEST_P(BothDialects, OneObjectServesTextAfterText)
{
    Parser const parser = Make(u"(\\w)$", GetParam());
    for (int i = 0; i < 100; ++i) {
        Texts groups;
        TString const text(static_cast<char16_t>(u'a' + i % 26), 1 + i);
        ASSERT_TRUE(parser->search(text, groups));
        ASSERT_EQ(groups, (Texts{text.right(1)}));
    }
}

TEST(ReStringParser, EmptyTextMatchesByTheDialect)
{
    EXPECT_FALSE(Make(u"x*", RegExParserXpressive)->match(u""));
    EXPECT_TRUE(Make(u"x*", RegExParserICU)->match(u""));
}

TEST(ReStringParser, EveryDialectButOneIsIcu)
{
    for (unsigned const dialect : {0u, 2u, 17u, 0xFFFFFFFFu})
        EXPECT_TRUE(Make(u"x*", static_cast<RegExParserDefs>(dialect))->match(u"")) << dialect;
}

TEST(ReStringParser, XpressiveReplacesInItsDefaultFormat)
{
    EXPECT_EQ(Make(u"(\\d)(\\d)", RegExParserXpressive)->replaceAll(u"a12b34", u"<$2$1|$&>"), u"a<21|12>b<43|34>");
    EXPECT_EQ(Make(u"x*", RegExParserXpressive)->replaceAll(u"", u"y"), u"");
    EXPECT_EQ(Make(u"z", RegExParserXpressive)->replaceAll(u"abc", u"y"), u"abc");
    EXPECT_EQ(Make(u"b", RegExParserXpressive)->replaceAll(u"abc", nullptr), u"ac");
}

TEST(ReStringParser, IcuReplacesNothing)
{
    EXPECT_EQ(Make(u"a", RegExParserICU)->replaceAll(u"abc", u"y"), u"");
    EXPECT_EQ(Make(u"a", RegExParserICU)->replaceAll(u"", u""), u"");
}

TEST(ReStringParser, StaticReplaceAllIsCaseSensitiveXpressive)
{
    EXPECT_EQ(ReStringParser::ReplaceAll(u"aAa", u"a", u"<$&>"), u"<a>A<a>");
}

TEST(ReStringParser, ADotMatchesLineEndsInBothDialects)
{
    EXPECT_TRUE(Make(u"a.b", RegExParserICU)->match(u"a\nb"));
    EXPECT_TRUE(Make(u"a.b", RegExParserXpressive)->match(u"a\nb"));
}

TEST(ReStringParser, XpressiveCountsCodeUnitsAndIcuCharacters)
{
    EXPECT_TRUE(Make(u"..", RegExParserXpressive)->match(u"\U0001F600"));
    EXPECT_TRUE(Make(u".", RegExParserICU)->match(u"\U0001F600"));
}

TEST(ReStringParser, AnythingOnAParserWithoutBackEndIsAnAssertion)
{
    Parser const parser(new Bare);
    auto const assertion = ThrowsAssert("m_backEnd", "LogicException_LogicAssert_0x4B7D13A8");
    Texts groups;
    std::vector<ReStringParserMatches> matches;
    EXPECT_THAT([&] { parser->match(u"a"); }, assertion);
    EXPECT_THAT([&] { parser->search(u"a"); }, assertion);
    EXPECT_THAT([&] { parser->search(u"a", groups); }, assertion);
    EXPECT_THAT([&] { parser->searchAll(u"a", matches); }, assertion);
    EXPECT_THAT([&] { parser->replaceAll(u"a", u"b"); }, assertion);
}

TEST(ReStringParser, ABadIcuPatternIsAnAssertionOnUse)
{
    auto const assertion = ThrowsAssert("m_matcher", "LogicException_LogicAssert_0x9F2C6E14");
    for (char16_t const * const pattern : {u"(", u"[", u"*", u"a{2,1}", u"\\"}) {
        Parser const parser = Make(pattern, RegExParserICU);
        Texts groups{u"old"};
        EXPECT_THAT([&] { parser->match(u"a"); }, assertion);
        EXPECT_THAT([&] { parser->search(u"a", groups); }, assertion);
        EXPECT_EQ(groups, Texts());
        EXPECT_EQ(parser->replaceAll(u"a", u"b"), u"");
    }
}

TEST(ReStringParser, ABadIcuPatternIsRememberedAsNull)
{
    detail::RegExPatternKey const key(u"(remembered", 32u);
    Make(u"(remembered", RegExParserICU);
    ASSERT_TRUE(detail::GetRegExPatternCache().Contains(key));
    EXPECT_FALSE(detail::GetRegExPattern(key));
}

TEST(ReStringParser, ABadXpressivePatternThrowsTheEnginesException)
{
    for (char16_t const * const pattern : {u"(", u")", u"[", u"*", u"a{2,1}", u"\\", u"[z-a]", u"(?<", u"[[:none:]]"})
        EXPECT_THROW(Make(pattern, RegExParserXpressive), std::exception) << TString(pattern);
}

TEST(ReStringParser, FlagsArePartOfTheCacheKey)
{
    Make(u"flags-in-key", RegExParserICU, true);
    EXPECT_TRUE(detail::GetRegExPatternCache().Contains({u"flags-in-key", 32u}));
    EXPECT_FALSE(detail::GetRegExPatternCache().Contains({u"flags-in-key", 34u}));
    Make(u"flags-in-key", RegExParserICU, false);
    EXPECT_TRUE(detail::GetRegExPatternCache().Contains({u"flags-in-key", 34u}));
    EXPECT_EQ(detail::GetRegExPatternCache().GetCapacity(), 4096u);
    EXPECT_EQ(detail::RegExPatternKeyHash()({u"abc", 32u}), THashCombine32(32u, HashOf(u"abc")));
}

TEST(ReStringParser, ParsersOfOnePatternShareItCompiled)
{
    Parser const one = Make(u"shared-pattern", RegExParserICU);
    Parser const other = Make(u"shared-pattern", RegExParserICU);
    auto const held = detail::GetRegExPattern({u"shared-pattern", 32u});
    EXPECT_EQ(held.use_count(), 4);  // the cache, both parsers, and this one
    detail::GetRegExPatternCache().Remove({u"shared-pattern", 32u});
    EXPECT_TRUE(one->match(u"shared-pattern"));
}

// Any exception of the engine, in bounded time: neither a crash nor a hang.
TEST(ReStringParser, HostilePatternsOfXpressiveEndInItsException)
{
    TString const manyAs = TString(u'a', 100) + u"b";
    EXPECT_THROW(Make(u"(a+)+$", RegExParserXpressive)->search(manyAs), std::exception);
    EXPECT_THROW(Make(u"(.*)*(.*)*(.*)*x", RegExParserXpressive)->search(manyAs), std::exception);

    TString const million(u'a', 1'000'000);
    EXPECT_THROW(Make(u"(a|b)*", RegExParserXpressive)->match(million), std::exception);
    EXPECT_THROW(Make(u"(.)*", RegExParserXpressive)->match(million), std::exception);
    EXPECT_TRUE(Make(u".*", RegExParserXpressive)->match(million));

    EXPECT_THROW(Make(u"(?#*)", RegExParserXpressive), std::exception);
    EXPECT_THROW(Make(u"a(?#9-.{1,3}", RegExParserXpressive), std::exception);
    EXPECT_TRUE(Make(u"a(?#note)b", RegExParserXpressive)->match(u"ab"));

    std::u16string const deep = std::u16string(100'000, u'(') + std::u16string(100'000, u')');
    EXPECT_THROW(Make(deep.c_str(), RegExParserXpressive), std::exception);
    EXPECT_THROW(Make(std::u16string(2049, u'a').c_str(), RegExParserXpressive), std::exception);
    EXPECT_TRUE(Make(std::u16string(2048, u'a').c_str(), RegExParserXpressive)->match(TString(u'a', 2048)));
}

TEST(ReStringParser, TheLongestPatternsOfXpressiveNeedNoMoreStackThanAThreadHas)
{
    for (char16_t const * const piece : {u"a?", u"\\b", u".", u"^", u"()", u"|", u"[a]", u"a{9}", u"a|"}) {
        std::u16string pattern;
        while (pattern.size() + TString::length(piece) <= 2048)
            pattern += piece;
        try {
            Make(pattern.c_str(), RegExParserXpressive)->search(TString(u'a', 3000));
        } catch (std::exception const &) {
        }
    }
    std::u16string const nested = std::u16string(128, u'(') + u'a' + std::u16string(128, u')') + u"*";
    EXPECT_TRUE(Make(nested.c_str(), RegExParserXpressive)->search(u"aaa"));
}

TEST(ReStringParser, HostilePatternsOfIcuMatchNothing)
{
    TString const manyAs = TString(u'a', 100) + u"b";
    EXPECT_FALSE(Make(u"(a+)+$", RegExParserICU)->search(manyAs));
    EXPECT_FALSE(Make(u"(?:ab|c)*", RegExParserICU)->match(TString(u"ab") + TString(u'c', 3'000'000)));
    std::vector<ReStringParserMatches> matches;
    Make(u"(a+)+$", RegExParserICU)->searchAll(manyAs, matches);
    EXPECT_TRUE(matches.empty());
}

TEST_P(BothDialects, ATextOfTenMillionUnitsIsSearchedInBoundedTime)
{
    std::u16string huge(10'000'000, u'a');
    for (std::size_t i = 0; i < huge.size(); i += 1000)
        huge[i] = static_cast<char16_t>(0xD800 + i / 1000 % 0x800);
    huge.back() = u'7';
    auto const before = std::chrono::steady_clock::now();
    Texts groups;
    EXPECT_TRUE(Make(u"(\\d)", GetParam())->search(huge.c_str(), groups));
    EXPECT_EQ(groups, (Texts{u"7"}));
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(60));
}

TEST_P(BothDialects, LoneSurrogatesMatchThemselves)
{
    static constexpr char16_t text[] = {u'a', 0xD800, u'b', 0xDC00, 0};
    EXPECT_TRUE(Make(u"a.b.", GetParam())->match(text));
    EXPECT_TRUE(Make(u"b", GetParam())->search(text));
}

TEST(ReStringParser, EightThreadsShareTheCacheOfPatterns)
{
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (unsigned t = 0; t < 8; ++t)
        threads.emplace_back([&wrong, t] {
            std::mt19937 random(t);
            for (int draw = 0; draw < 1500; ++draw) {
                unsigned const key = static_cast<unsigned>(random() % 5000);
                TString const word = TString(u"k") + TString::number(key) + u"-";
                Parser const parser = Make(word + u"(\\d+)", RegExParserICU);
                Texts groups;
                if (!parser->search(word + TString::number(draw), groups) || groups != Texts{TString::number(draw)})
                    ++wrong;
                auto const pattern = detail::GetRegExPattern({word + u"(\\d+)", 32u});
                if (!pattern || pattern->pattern() != word + u"(\\d+)")
                    ++wrong;
            }
        });
    for (auto & thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_LE(detail::GetRegExPatternCache().Size(), 4096u);
    for (unsigned key = 0; key < 5000; ++key)
        detail::GetRegExPattern({TString::number(key), 32u});
    EXPECT_EQ(detail::GetRegExPatternCache().Size(), 4096u);
}
