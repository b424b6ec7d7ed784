#include "main/data/BracketScan.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/RandomText.h"

namespace {

// Walks the text as a parser does, now and then past a bracket.
void ExpectAsFind(std::u16string const & text, test_support::RandomText & random)
{
    detail::BracketScan scan(text);
    for (std::size_t from = 0; from <= text.size();) {
        std::size_t const found = scan.Next(from);
        ASSERT_EQ(found, text.find(u']', from)) << text.size() << " units from " << from;
        if (found == text.npos)
            return;
        ASSERT_EQ(scan.Next(found), found);
        from = found + 1 + random.Below(2);
    }
}

}  // namespace

TEST(BracketScan, FindsEveryBracketOfEveryLength)
{
    for (std::size_t length = 0; length < 200; ++length) {
        for (std::size_t at = 0; at < length; ++at) {
            std::u16string text(length, u'a');
            text[at] = u']';
            detail::BracketScan scan(text);
            ASSERT_EQ(scan.Next(0), at);
            ASSERT_EQ(scan.Next(at), at);
            ASSERT_EQ(scan.Next(at + 1), text.npos);
        }
        std::u16string const none(length, u'[');
        ASSERT_EQ(detail::BracketScan(none).Next(0), none.npos);
        ASSERT_EQ(detail::BracketScan(none).Next(length), none.npos);
    }
}

TEST(BracketScan, AgreesWithThePlainSearch)
{
    test_support::RandomText random(1);
    // U+005D alone is the bracket: not U+5D00, U+FF3D or a unit with its low byte.
    char16_t const units[] = {u']', u'[', u'a', 0x5D00, 0x5D5D, 0xFF3D, 0, 0xFFFF, 0x015D};
    for (int i = 0; i < 20000; ++i) {
        std::u16string text(random.Below(i % 10 == 0 ? 400 : 40), u'a');
        std::size_t const density = 1 + random.Below(30);
        for (char16_t & unit : text) {
            if (random.Below(density) == 0)
                unit = units[random.Below(std::size(units))];
        }
        ExpectAsFind(text, random);
    }
}
