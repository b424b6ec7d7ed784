#include "velsys/Hash.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

#include <cstdint>
#include <random>

namespace {

TEST(THash32, IsTheSameForTheSameBytesAndSeed)
{
    std::string const text(1000, 'x');
    for (std::size_t length : {0u, 1u, 3u, 4u, 8u, 9u, 16u, 17u, 128u, 129u, 240u, 241u, 1000u}) {
        std::string const copy(text, 0, length);
        EXPECT_EQ(THash32(text.data(), length, 0xdeadbeef), THash32(copy.data(), length, 0xdeadbeef)) << length;
    }
}

TEST(THash32, AnswersForNoBytesAtANullPointer)
{
    EXPECT_EQ(THash32(nullptr, 0, 0xdeadbeef), THash32("", 0, 0xdeadbeef));
}

TEST(THash32, DependsOnTheSeed)
{
    std::set<unsigned> hashes;
    for (unsigned seed : {0u, 1u, 0xdeadbeefu, 0xcafebabeu, 0xFFFFFFFFu})
        hashes.insert(THash32("text", 4, seed));
    EXPECT_EQ(hashes.size(), 5u);
}

TEST(THash32, DependsOnEveryByteAndOnTheLength)
{
    for (std::size_t length : {1u, 7u, 64u, 200u, 500u}) {
        std::string text(length, 'a');
        std::set<unsigned> hashes{THash32(text.data(), length, 0xdeadbeef)};
        for (std::size_t i = 0; i < length; ++i) {
            text[i] = 'b';
            hashes.insert(THash32(text.data(), length, 0xdeadbeef));
            text[i] = 'a';
        }
        EXPECT_EQ(hashes.size(), length + 1) << length;
    }
    std::string const zeros(300, '\0');
    std::set<unsigned> hashes;
    for (std::size_t length = 0; length <= zeros.size(); ++length)
        hashes.insert(THash32(zeros.data(), length, 0xdeadbeef));
    EXPECT_EQ(hashes.size(), zeros.size() + 1);
}

TEST(THash32, SpreadsConsecutiveNumbersOverAllBits)
{
    // Of 100,000 random 32-bit hashes about one pair is equal.
    std::set<unsigned> hashes;
    unsigned ones = 0;
    unsigned common = 0xFFFFFFFFu;
    for (int i = 0; i < 100000; ++i) {
        unsigned const hash = THash32(&i, sizeof i, 0xdeadbeef);
        hashes.insert(hash);
        ones |= hash;
        common &= hash;
    }
    EXPECT_GE(hashes.size(), 99990u);
    EXPECT_EQ(ones, 0xFFFFFFFFu);
    EXPECT_EQ(common, 0u);
}

TEST(THashCombine, DependsOnTheOrder)
{
    EXPECT_NE(THashCombine32(1, 2), THashCombine32(2, 1));
    EXPECT_NE(THashCombine(1, 2), THashCombine(2, 1));
    EXPECT_EQ(THashCombine32(1, 2), THashCombine32(1, 2));
    EXPECT_EQ(THashCombine(1, 2), THashCombine(1, 2));
}

TEST(THashCombine, TellsPairsOfSmallNumbersApart)
{
    std::set<unsigned> narrow;
    std::set<unsigned long long> wide;
    for (unsigned a = 0; a < 100; ++a) {
        for (unsigned b = 0; b < 100; ++b) {
            narrow.insert(THashCombine32(a, b));
            wide.insert(THashCombine(a, b));
        }
    }
    EXPECT_GE(narrow.size(), 9900u);
    EXPECT_EQ(wide.size(), 10000u);
}

TEST(THashCombine, UsesTheHighHalfOfBothArguments)
{
    EXPECT_NE(THashCombine(1ull << 40, 5), THashCombine(1ull << 41, 5));
    EXPECT_NE(THashCombine(5, 1ull << 40), THashCombine(5, 1ull << 41));
}

TEST(THash128, DependsOnTheBytesAndOnBothSeeds)
{
    auto const hash = THash128("text", 4, 0xdeadbeef, 0xcafebabe);
    EXPECT_EQ(hash, THash128("text", 4, 0xdeadbeef, 0xcafebabe));
    EXPECT_NE(hash, THash128("texu", 4, 0xdeadbeef, 0xcafebabe));
    EXPECT_NE(hash, THash128("text", 4, 0xdeadbeee, 0xcafebabe));
    EXPECT_NE(hash, THash128("text", 4, 0xdeadbeef, 0xcafebabf));
    EXPECT_NE(hash, THash128("text", 4, 0xcafebabe, 0xdeadbeef));
    EXPECT_NE(hash.first, hash.second);
    EXPECT_EQ(THash128(nullptr, 0, 1, 2), THash128("", 0, 1, 2));
}

TEST(Hash, TheHashOfTwoWordsInLineIsThatOfTheirSixteenBytes)
{
    std::mt19937_64 random(5);
    for (int round = 0; round < 100000; ++round) {
        std::uint64_t const words[2] = {random(), round % 3 == 0 ? round : random()};
        auto const seed = static_cast<unsigned>(random());
        ASSERT_EQ(detail::HashTwoWords(words[0], words[1], seed), THash32(words, sizeof words, seed));
    }
    std::uint64_t const zeros[2] = {0, 0};
    EXPECT_EQ(detail::HashTwoWords(0, 0, 0xdeadbeefu), THash32(zeros, sizeof zeros, 0xdeadbeefu));
}

}  // namespace
