// Numbers to text and back.
#include "velcoreplatform/TString.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(TStringNumber, WritesIntegersOfEveryWidth)
{
    EXPECT_EQ(TString::number(0), u"0");
    EXPECT_EQ(TString::number(std::numeric_limits<int>::min()), u"-2147483648");
    EXPECT_EQ(TString::number(std::numeric_limits<unsigned>::max()), u"4294967295");
    EXPECT_EQ(TString::number(std::numeric_limits<long long>::min()), u"-9223372036854775808");
    EXPECT_EQ(TString::number(std::numeric_limits<long>::min()), u"-9223372036854775808");
    EXPECT_EQ(TString::number(std::numeric_limits<unsigned long long>::max()), u"18446744073709551615");
    EXPECT_EQ(TString::number(std::numeric_limits<unsigned long>::max()), u"18446744073709551615");
}

TEST(TStringNumber, PadsToTheWidth)
{
    struct Row
    {
        int value;
        int width;
        char16_t fill;
        char16_t const * expected;
    };
    Row const rows[] = {
        {7, 2, u'0', u"07"},   {7, 0, u'0', u"7"},      {123, 2, u'0', u"123"}, {7, 3, u' ', u"  7"},
        {7, -3, u' ', u"7  "}, {-7, 4, u'0', u"-007"},  {-7, 4, u' ', u"  -7"}, {-7, 2, u'0', u"-7"},
        {-7, 1, u'0', u"-7"},  {-7, -4, u' ', u"-7  "}, {7, 3, u'*', u"**7"},
    };
    for (Row const & row : rows)
        EXPECT_EQ(TString::number(row.value, row.width, 10, row.fill), row.expected) << row.value << " " << row.width;
}

TEST(TStringNumber, WritesInEveryBase)
{
    EXPECT_EQ(TString::number(255u, 0, 16), u"ff");
    EXPECT_EQ(TString::number(255u, 4, 16, u'0'), u"00ff");
    EXPECT_EQ(TString::number(5, 0, 2), u"101");
    EXPECT_EQ(TString::number(35, 0, 36), u"z");
    EXPECT_EQ(TString::number(-255, 0, 16), u"-ff");
    EXPECT_EQ(TString::number(std::numeric_limits<long long>::min(), 0, 2).length(), 65);
    EXPECT_EQ(TString::number(12, 0, 1), u"12");
    EXPECT_EQ(TString::number(12, 0, 37), u"12");
    EXPECT_EQ(TString::number(12LL, 10, 0, u' '), u"        12");
}

TEST(TStringNumber, WritesReals)
{
    struct Row
    {
        double value;
        char format;
        int precision;
        char16_t const * expected;
    };
    Row const rows[] = {
        {0.1, 'g', 17, u"0.10000000000000001"},
        {0.1, 'g', 15, u"0.1"},
        {1e17, 'g', 17, u"1e+17"},
        {123456.0, 'g', 17, u"123456"},
        {1e-5, 'g', 6, u"1e-05"},
        {1.5, 'f', 3, u"1.500"},
        {2.5, 'f', 0, u"3"},
        {-0.0, 'g', 6, u"-0"},
        {1234.5, 'e', 2, u"1.23e+03"},
        {kInfinity, 'g', 6, u"inf"},
        {-kInfinity, 'f', 6, u"-inf"},
        {kNaN, 'g', 6, u"nan"},
        {5e-324, 'g', 17, u"4.9406564584124654e-324"},
    };
    for (Row const & row : rows) {
        EXPECT_EQ(TString::number(row.value, row.format, row.precision, true), row.expected) << row.value;
        TString text;
        EXPECT_EQ(text.setNum(row.value, row.format, row.precision, true), row.expected) << row.value;
    }
}

TEST(TStringNumber, KeepsThePointOfAWholeNumberWhenAsked)
{
    EXPECT_EQ(TString::number(3.0, 'g', 17, true), u"3");
    EXPECT_EQ(TString::number(3.0, 'g', 17, false), u"3.");
    EXPECT_EQ(TString::number(-3.0, 'g', 17, false), u"-3.");
    EXPECT_EQ(TString::number(0.0, 'g', 17, false), u"0.");
    EXPECT_EQ(TString::number(3.0, 'f', 0, false), u"3.");
    EXPECT_EQ(TString::number(3.5, 'g', 17, false), u"3.5");
    EXPECT_EQ(TString::number(1e17, 'g', 17, false), u"1e+17");
    EXPECT_EQ(TString::number(kInfinity, 'g', 17, false), u"inf");
    EXPECT_EQ(TString::number(kNaN, 'g', 17, false), u"nan");
}

TEST(TStringNumber, SetNumReplacesTheText)
{
    TString text(u"before");
    EXPECT_EQ(&text.setNum(-255LL, 16), &text);
    EXPECT_EQ(text, u"-ff");
    text.setNum(18446744073709551615ull, 10);
    EXPECT_EQ(text, u"18446744073709551615");
    text.setNum(3.0, 'g', 17, false);
    EXPECT_EQ(text, u"3.");
}

TEST(TStringToNumber, ReadsIntegers)
{
    struct Row
    {
        char16_t const * text;
        int base;
        bool ok;
        long long expected;
    };
    Row const rows[] = {
        {u"12", 10, true, 12},
        {u" 12 ", 10, true, 12},
        {u"\t7\n", 10, true, 7},
        {u"+12", 10, true, 12},
        {u"-12", 10, true, -12},
        {u"-0", 10, true, 0},
        {u"9223372036854775807", 10, true, std::numeric_limits<long long>::max()},
        {u"-9223372036854775808", 10, true, std::numeric_limits<long long>::min()},
        {u"9223372036854775808", 10, false, 0},
        {u"-9223372036854775809", 10, false, 0},
        {u"", 10, false, 0},
        {u"  ", 10, false, 0},
        {u"1.0", 10, false, 0},
        {u"12a", 10, false, 0},
        {u"1,000", 10, false, 0},
        {u"--1", 10, false, 0},
        {u"+ 1", 10, false, 0},
        {u"+", 10, false, 0},
        {u"inf", 10, false, 0},
        {u"nan", 10, false, 0},
        {u"0x1F", 10, false, 0},
        {u"0x1F", 16, true, 31},
        {u"ff", 16, true, 255},
        {u"FF", 16, true, 255},
        {u"0x1F", 0, true, 31},
        {u"017", 0, true, 15},
        {u" 10", 0, true, 10},
        {u"101", 2, true, 5},
        {u"2", 2, false, 0},
    };
    for (Row const & row : rows) {
        TString const text(row.text);
        bool ok = !row.ok;
        EXPECT_EQ(text.toLongLong(&ok, row.base), row.expected) << text << " base " << row.base;
        EXPECT_EQ(ok, row.ok) << text << " base " << row.base;
        EXPECT_EQ(text.toLongLong(nullptr, row.base), row.expected);
    }
}

TEST(TStringToNumber, ReadsWithinTheRangeOfTheType)
{
    struct Row
    {
        char16_t const * text;
        bool intOk;
        int asInt;
        bool unsignedOk;
        unsigned asUnsigned;
    };
    Row const rows[] = {
        {u"2147483647", true, 2147483647, true, 2147483647u},
        {u"2147483648", false, 0, true, 2147483648u},
        {u"-2147483648", true, std::numeric_limits<int>::min(), false, 0},
        {u"-2147483649", false, 0, false, 0},
        {u"4294967295", false, 0, true, 4294967295u},
        {u"4294967296", false, 0, false, 0},
        {u" 5 ", true, 5, true, 5},
        {u"x", false, 0, false, 0},
    };
    for (Row const & row : rows) {
        TString const text(row.text);
        bool ok = !row.intOk;
        EXPECT_EQ(text.toInt(&ok, 10), row.asInt) << text;
        EXPECT_EQ(ok, row.intOk) << text;
        ok = !row.unsignedOk;
        EXPECT_EQ(text.toUInt(&ok, 10), row.asUnsigned) << text;
        EXPECT_EQ(ok, row.unsignedOk) << text;
    }
}

TEST(TStringToNumber, ReadsReals)
{
    struct Row
    {
        char16_t const * text;
        bool ok;
        double expected;
    };
    Row const rows[] = {
        {u"1.5", true, 1.5},
        {u" 1.5 ", true, 1.5},
        {u"+1.5", true, 1.5},
        {u"-1.5", true, -1.5},
        {u".5", true, 0.5},
        {u"5.", true, 5.0},
        {u"1e5", true, 1e5},
        {u"1E-5", true, 1e-5},
        {u"inf", true, kInfinity},
        {u"INF", true, kInfinity},
        {u"+inf", true, kInfinity},
        {u"-Inf", true, -kInfinity},
        {u"infinity", false, 0},
        {u"nan", true, kNaN},
        {u"NaN", true, kNaN},
        {u"-nan", false, 0},
        {u"1e400", false, kInfinity},
        {u"-1e400", false, -kInfinity},
        {u"1e-400", false, 0},
        {u"", false, 0},
        {u"  ", false, 0},
        {u"1,5", false, 0},
        {u"1,000", false, 0},
        {u"0x10", false, 0},
        {u"- 1", false, 0},
        {u"1d", false, 0},
        {u"1_0", false, 0},
        {u"e5", false, 0},
        {u"9007199254740993", true, 9007199254740992.0},
    };
    for (Row const & row : rows) {
        TString const text(row.text);
        bool ok = !row.ok;
        double const value = text.toDouble(&ok);
        EXPECT_EQ(ok, row.ok) << text;
        if (std::isnan(row.expected))
            EXPECT_TRUE(std::isnan(value)) << text;
        else
            EXPECT_EQ(value, row.expected) << text;
    }
}

TEST(TStringToNumber, SeventeenDigitsComeBackExactly)
{
    for (double value : {0.1, 1.0 / 3.0, 1e300, 5e-324, 123456789.123456789, -2.2250738585072014e-308})
        EXPECT_EQ(TString::number(value, 'g', 17).toDouble(), value);
}

}  // namespace
