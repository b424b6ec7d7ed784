// The laws that StringUtils.h states, on random texts.
#include "velcoredata/core/StringUtils.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/RandomText.h"
#include "velsys/VeltriaException.h"

namespace {

constexpr int draws = 10'000;

TString T(std::u16string const & text)
{
    return TString::fromStdU16String(text);
}

std::u16string_view const separators[] = {u",", u";", u"--", u"aa", u"\u00E9", u"'"};
std::u16string_view const pieces[] = {u",", u";", u"-", u"a", u"'", u"\"", u"\u00E9", u"b ", u"\u4E2D"};
std::u16string_view const quotes[] = {u"\"", u"'", u"''", u"a"};

std::size_t Occurrences(TString const & text, TString const & part)
{
    std::size_t count = 0;
    for (int at = text.indexOf(part); at >= 0; at = text.indexOf(part, at + part.length()))
        ++count;
    return count;
}

// As the rules are written: one removal after the other, in place.
void DeleteBetweenStepByStep(TString & text, TString const & open, TString const & close)
{
    int position = 0;
    for (int i = text.indexOf(open, position); i >= 0; i = text.indexOf(open, position)) {
        int const start = i + open.length();
        text.removeAt(start, text.indexOf(close, start) - start);
        position = start + open.length() + close.length();
    }
}

}  // namespace

TEST(StringUtilsLaws, JoiningUndoesSplitting)
{
    test_support::RandomText random(40);
    for (int draw = 0; draw < draws; ++draw) {
        TString const text = T(draw % 2 == 0 ? random.Of(pieces, 20) : random.Any(30));
        TString const separator = TString::fromView(separators[random.Below(std::size(separators))]);
        auto const tokens = SplitString(text, separator, u"");
        ASSERT_EQ(JoinString(tokens, separator), text) << draw;
        ASSERT_EQ(tokens.size(), Occurrences(text, separator) + 1) << draw;
    }
}

TEST(StringUtilsLaws, WithAQuoteSplittingRaisesOrJoiningUndoesIt)
{
    test_support::RandomText random(400);
    int raised = 0;
    for (int draw = 0; draw < draws; ++draw) {
        TString const text = T(random.Of(pieces, 20));
        TString const separator = TString::fromView(separators[random.Below(std::size(separators))]);
        TString const quote = TString::fromView(quotes[random.Below(std::size(quotes))]);
        try {
            ASSERT_EQ(JoinString(SplitString(text, separator, quote), separator), text) << draw;
        } catch (VeltriaException const &) {
            ++raised;
        }
    }
    EXPECT_GT(raised, 500);
    EXPECT_LT(raised, draws - 500);
}

TEST(StringUtilsLaws, CUnescapeUndoesCEscape)
{
    test_support::RandomText random(41);
    for (int draw = 0; draw < draws; ++draw) {
        TString const text = T(random.Any(40));
        ASSERT_EQ(CUnescape(CEscape(text)), text) << draw;
    }
}

TEST(StringUtilsLaws, HexDecodeUndoesHexEncode)
{
    test_support::RandomText random(411);
    for (int draw = 0; draw < draws; ++draw) {
        TString text = T(random.WellFormed(40));
        if (draw % 16 == 0)
            text.push_front(u'\uFEFF');
        TString const encoded = HexEncode(text);
        TString decoded;
        ASSERT_TRUE(HexDecode(encoded.mid(2, encoded.length() - 3), decoded)) << draw;
        ASSERT_EQ(decoded, text) << draw;
        ASSERT_TRUE(DecodeHexEncodedString(encoded, decoded)) << draw;
        ASSERT_EQ(decoded, text) << draw;
    }
}

TEST(StringUtilsLaws, DeleteBetweenRemovesOnlyWhatLiesBetween)
{
    std::u16string_view const parts[] = {u"(", u")", u"<<", u">>", u"<", u">", u"a", u"b"};
    std::pair<char16_t const *, char16_t const *> const delimiters[] = {{u"(", u")"}, {u"<<", u">>"}, {u"a", u"a"}};
    test_support::RandomText random(43);
    for (int draw = 0; draw < draws; ++draw) {
        TString const text = T(draw % 4 == 0 ? random.Any(40) : random.Of(parts, 24));
        auto const [open, close] = delimiters[random.Below(std::size(delimiters))];
        TString result = text;
        DeleteBetween(result, open, close);
        ASSERT_LE(result.length(), text.length());
        if (text.indexOf(TString(open)) < 0) {
            ASSERT_EQ(result, text);
        }

        TString expected = text;
        DeleteBetweenStepByStep(expected, open, close);
        ASSERT_EQ(result, expected) << draw << ": " << text;

        // The result is the text without some of its characters, and none goes that stands before the first `open` or
        // behind the last `close`.
        std::u16string_view rest = text.View();
        for (char16_t const c : result.View()) {
            std::size_t const at = rest.find(c);
            ASSERT_NE(at, rest.npos) << draw;
            rest.remove_prefix(at + 1);
        }
        int const first = text.indexOf(TString(open));
        if (first >= 0) {
            ASSERT_EQ(result.left(first), text.left(first));
        }
        std::size_t const last = text.View().rfind(close);
        if (last != std::u16string_view::npos) {
            ASSERT_TRUE(result.endsWith(text.mid(static_cast<int>(last)))) << draw;
        }
    }
}
