#include "tests/vectors/VectorCells.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>

using namespace velcoredata::vectors;

TEST(VectorCells, TextEscapesAreOneCodeUnitEach)
{
    EXPECT_EQ(DecodeText(""), u"");
    EXPECT_EQ(DecodeText("a\\u005Cb"), u"a\\b");
    EXPECT_EQ(DecodeText("\\u005Cu0041"), u"\\u0041");
    EXPECT_EQ(DecodeText("\\uD83D\\uDE00"), u"\U0001F600");
    EXPECT_EQ(DecodeText("\\uD83D"), std::u16string(1, char16_t{0xD83D}));
    EXPECT_EQ(DecodeText("\\u0000"), std::u16string(1, char16_t{0}));
}

TEST(VectorCells, TextIsUtf8)
{
    EXPECT_EQ(DecodeText("\xC3\xA4\xE4\xB8\xAD\xF0\x9F\x98\x80"), u"\u00E4\u4E2D\U0001F600");
    for (char const * bad :
         {"\x80", "\xC3", "\xC3(", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"})
        EXPECT_THROW(DecodeText(bad), std::runtime_error) << bad;
}

TEST(VectorCells, TextRejectsBrokenEscapes)
{
    for (char const * bad : {"\\", "\\u", "\\u12", "\\u12G4", "\\n"})
        EXPECT_THROW(DecodeText(bad), std::runtime_error) << bad;
}

TEST(VectorCells, EscapedTextReadsBack)
{
    std::u16string const text = u"a b\\\t\u00E4\U0001F600\uFFFF";
    EXPECT_EQ(EscapeText(text), "a b\\u005C\\u0009\\u00E4\\uD83D\\uDE00\\uFFFF");
    EXPECT_EQ(DecodeText(EscapeText(text)), text);
}

TEST(VectorCells, RealsKeepEveryBit)
{
    for (double const value : {0.0, -0.0, 1.5, -1.0 / 3, 1e-320, std::numeric_limits<double>::max(),
                               std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()})
        EXPECT_EQ(std::bit_cast<std::uint64_t>(DecodeReal(EncodeReal(value))), std::bit_cast<std::uint64_t>(value));
    EXPECT_TRUE(std::isnan(DecodeReal("nan")));
    EXPECT_EQ(EncodeReal(-std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(DecodeReal("0x1.8p+1"), 3.0);
    for (char const * bad : {"", " 1", "1 ", "0x", "one"})
        EXPECT_THROW(DecodeReal(bad), std::runtime_error) << bad;
}

TEST(VectorCells, IntegersReachBothEnds)
{
    EXPECT_EQ(DecodeInt("-9223372036854775808"), std::numeric_limits<long long>::min());
    EXPECT_EQ(DecodeInt("9223372036854775807"), std::numeric_limits<long long>::max());
    EXPECT_EQ(DecodeUInt("18446744073709551615"), std::numeric_limits<unsigned long long>::max());
    for (char const * bad : {"", "9223372036854775808", "1x", " 1", "+1", "1.0"})
        EXPECT_THROW(DecodeInt(bad), std::runtime_error) << bad;
    for (char const * bad : {"", "-1", "18446744073709551616"})
        EXPECT_THROW(DecodeUInt(bad), std::runtime_error) << bad;
}

TEST(VectorCells, BooleansHaveFourSpellings)
{
    EXPECT_TRUE(DecodeBool("1"));
    EXPECT_TRUE(DecodeBool("true"));
    EXPECT_FALSE(DecodeBool("0"));
    EXPECT_FALSE(DecodeBool("false"));
    for (char const * bad : {"", "2", "True"})
        EXPECT_THROW(DecodeBool(bad), std::runtime_error) << bad;
}

TEST(VectorCells, UlpDistanceCountsNeighbours)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(UlpDistance(1.0, 1.0), 0u);
    EXPECT_EQ(UlpDistance(1.0, std::nextafter(1.0, 2.0)), 1u);
    EXPECT_EQ(UlpDistance(-1.0, std::nextafter(-1.0, 0.0)), 1u);
    EXPECT_EQ(UlpDistance(0.0, -0.0), 1u);
    EXPECT_EQ(UlpDistance(nan, -nan), 0u);
    EXPECT_EQ(UlpDistance(nan, 1.0), std::numeric_limits<unsigned long long>::max());
}
