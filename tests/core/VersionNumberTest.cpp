#include "velcoredata/core/VersionNumber.h"

#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(VersionNumber, IsMadeOfNumbers)
{
    VersionNumber const three(1, 2, 3);
    EXPECT_EQ(three.GetAsString(), u"1.2.3");
    EXPECT_THAT(three.GetNumbers(), ElementsAre(1, 2, 3));
    EXPECT_THAT(three.GetDescriptors(), IsEmpty());
    VersionNumber const four(0, 4294967295, 2, 10);
    EXPECT_EQ(four.GetAsString(), u"0.4294967295.2.10");
    EXPECT_THAT(four.GetNumbers(), ElementsAre(0, 4294967295, 2, 10));
}

TEST(VersionNumber, IsMadeOfTheVersionOfAFile)
{
    EXPECT_THAT(VersionNumber::FromFileVersion(0x00010002, 0x00030004).GetNumbers(), ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(VersionNumber::FromFileVersion(0xFFFFFFFE, 0x7FFF8000).GetAsString(), u"65535.65534.32767.32768");
}

TEST(VersionNumber, IsMadeOfText)
{
    struct
    {
        char16_t const * text;
        char16_t numberSeparator;
        char16_t descriptorSeparator;
        unsigned long long index;
        std::vector<unsigned> numbers;
        std::vector<TString> descriptors;
        char16_t const * asString;
    } const rows[] = {
        {u"1.2.3", u'.', u'-', 0, {1, 2, 3}, {}, u"1.2.3"},
        {u"1.2.3-beta-4", u'.', u'-', 0, {1, 2, 3}, {u"beta", u"4"}, u"1.2.3-beta-4"},
        {u"beta-1.2.3-4", u'.', u'-', 1, {1, 2, 3}, {u"beta", u"4"}, u"1.2.3-beta-4"},
        {u"a-b-1_2", u'_', u'-', 2, {1, 2}, {u"a", u"b"}, u"1_2-a-b"},
        // Without the piece all are descriptors, and the empty text of the numbers is one piece that cannot be read.
        {u"1.2-beta", u'.', u'-', 2, {0}, {u"1.2", u"beta"}, u"0-1.2-beta"},
        {u"1.2", u'.', u'-', ~0ull, {0}, {u"1.2"}, u"0-1.2"},
        {u"", u'.', u'-', 0, {0}, {}, u"0"},
        {u"", u'.', u'-', 1, {0}, {u""}, u"0-"},
        {u"1.2.", u'.', u'-', 0, {1, 2, 0}, {}, u"1.2.0"},
        {u"..", u'.', u'-', 0, {0, 0, 0}, {}, u"0.0.0"},
        {u"1-", u'.', u'-', 0, {1}, {u""}, u"1-"},
        {u"007.010", u'.', u'-', 0, {7, 10}, {}, u"7.10"},
        // Pieces that are no number.
        {u"3beta.4", u'.', u'-', 0, {3, 4}, {}, u"3.4"},
        {u"3beta4.4", u'.', u'-', 0, {3, 4}, {}, u"3.4"},
        {u"beta3.4", u'.', u'-', 0, {0, 4}, {}, u"0.4"},
        {u"b3b.4", u'.', u'-', 0, {0, 4}, {}, u"0.4"},
        {u"beta.x", u'.', u'-', 0, {0, 0}, {}, u"0.0"},
        {u"4294967295.4294967296", u'.', u'-', 0, {4294967295, 0}, {}, u"4294967295.0"},
        {u"4294967295x.4294967296x", u'.', u'-', 0, {4294967295, 0}, {}, u"4294967295.0"},
        {u" 3 .\t4x. x", u'.', u'-', 0, {3, 4, 0}, {}, u"3.4.0"},
        {u"+3.0x10", u'.', u'-', 0, {3, 0}, {}, u"3.0"},
        {u"1٣.٣", u'.', u'-', 0, {1, 0}, {}, u"1.0"},
        {u"-3", u'.', u'_', 0, {0}, {}, u"0"},
        // Any separators, one for both too.
        {u"1.2.3", u'.', u'.', 1, {2}, {u"1", u"3"}, u"2.1.3"},
        {u"1\xD800"
         u"2\xDC00"
         u"x",
         u'\xD800',
         u'\xDC00',
         0,
         {1, 2},
         {u"x"},
         u"1\xD800"
         u"2\xDC00"
         u"x"},
        {u"112", u'1', u'x', 0, {0, 0, 2}, {}, u"01012"},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(TString(row.text).toStdString());
        VersionNumber const version(row.text, row.numberSeparator, row.descriptorSeparator, row.index);
        EXPECT_EQ(version.GetNumbers(), row.numbers);
        EXPECT_EQ(version.GetDescriptors(), row.descriptors);
        EXPECT_EQ(version.GetAsString(), row.asString);
    }
}

TEST(VersionNumber, SeparatorsMayBeZero)
{
    TString const text(u"1\0"
                       u"2,x",
                       5);
    VersionNumber const version(text, u'\0', u',', 0);
    EXPECT_THAT(version.GetNumbers(), ElementsAre(1, 2));
    EXPECT_EQ(version.GetAsString(), text);
    EXPECT_THAT(VersionNumber(text, u',', u'\0', 1).GetDescriptors(), ElementsAre(TString(u"1")));
}

TEST(VersionNumber, DotAndHyphenAreTheUsualSeparators)
{
    VersionNumber const version(u"1.10-beta-3");
    EXPECT_THAT(version.GetNumbers(), ElementsAre(1, 10));
    EXPECT_THAT(version.GetDescriptors(), ElementsAre(TString(u"beta"), TString(u"3")));
    EXPECT_GT(version, VersionNumber(u"1.9"));
}

TEST(VersionNumber, TextsMayBeOfAnyLength)
{
    int const length = 1'000'000;
    EXPECT_THAT(VersionNumber(TString(u'7', length)).GetNumbers(), ElementsAre(0));
    EXPECT_EQ(VersionNumber(TString(u'.', length)).GetNumbers().size(), std::size_t{length} + 1);
    EXPECT_EQ(VersionNumber(TString(u'-', length)).GetDescriptors().size(), std::size_t{length});
    EXPECT_THAT(VersionNumber(u"5" + TString(u'x', length)).GetNumbers(), ElementsAre(5));
    EXPECT_THAT(VersionNumber(TString(u'0', length) + u"5").GetNumbers(), ElementsAre(5));
}

TEST(VersionNumber, ComparesTheNumbersOnly)
{
    struct
    {
        char16_t const * a;
        char16_t const * b;
        int expected;
    } const rows[] = {
        {u"1.2", u"1.2", 0},          {u"1.2", u"1.2.0", 0},        {u"1.2", u"1.2.0.0", 0},
        {u"1.2", u"1.2.1", -1},       {u"1.10", u"1.9", 1},         {u"1.2.0.0.1", u"1.2", 1},
        {u"0.9", u"1", -1},           {u"2", u"1.9.9", 1},          {u"0", u"", 0},
        {u"1.2-beta", u"1.2-rc", 0},  {u"1.2-beta", u"1.2", 0},     {u"4294967295", u"0", 1},
        {u"1.2.0.1", u"1.2.1.0", -1}, {u"0.0.0", u"0.0.0.0.1", -1},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(TString(row.a).toStdString() + " and " + TString(row.b).toStdString());
        VersionNumber const a{TString(row.a)};
        VersionNumber const b{TString(row.b)};
        EXPECT_EQ(a.compare(b), row.expected);
        EXPECT_EQ(b.compare(a), -row.expected);
        EXPECT_EQ(a == b, row.expected == 0);
        EXPECT_EQ(a != b, row.expected != 0);
        EXPECT_EQ(a < b, row.expected < 0);
        EXPECT_EQ(a <= b, row.expected <= 0);
        EXPECT_EQ(a > b, row.expected > 0);
        EXPECT_EQ(a >= b, row.expected >= 0);
    }
}

TEST(VersionNumber, WritesItsNumbers)
{
    VersionNumber const version(u"1.2.3-x");
    EXPECT_EQ(version.GetNumbersAsString(u':'), u"1:2:3");
    EXPECT_EQ(version.GetMajorAndMinorAsString(u':'), u"1:2");
    VersionNumber one(u"7");
    EXPECT_EQ(one.GetNumbersAsString(u':'), u"7");
    EXPECT_EQ(one.GetMajorAndMinorAsString(u'.'), u"7.0");
    one.Truncate(0);
    EXPECT_EQ(one.GetNumbersAsString(u':'), u"");
    EXPECT_EQ(one.GetMajorAndMinorAsString(u'.'), u"0.0");
}

TEST(VersionNumber, TruncateKeepsTheText)
{
    VersionNumber version(1, 2, 3);
    version.Truncate(4);
    version.Truncate(3);
    version.Truncate(~0ull);
    EXPECT_THAT(version.GetNumbers(), ElementsAre(1, 2, 3));
    version.Truncate(2);
    EXPECT_EQ(version.GetNumbersAsString(u'.'), u"1.2");
    EXPECT_EQ(version.GetAsString(), u"1.2.3");
    EXPECT_LT(version, VersionNumber(1, 2, 3));
    version.Truncate(0);
    EXPECT_THAT(version.GetNumbers(), IsEmpty());
    EXPECT_EQ(version, VersionNumber(0, 0, 0));
    EXPECT_EQ(version.GetAsString(), u"1.2.3");
}

TEST(VersionNumber, IsAValue)
{
    VersionNumber version(u"1.2-a");
    VersionNumber const copy(version);
    version.Truncate(1);
    EXPECT_THAT(copy.GetNumbers(), ElementsAre(1, 2));
    version = copy;
    EXPECT_THAT(version.GetNumbers(), ElementsAre(1, 2));
    EXPECT_THAT(version.GetDescriptors(), ElementsAre(TString(u"a")));
    EXPECT_EQ(version.GetAsString(), u"1.2-a");
}

// Small numbers, so that much is equal.
VersionNumber Random(std::mt19937 & random)
{
    TString text;
    for (std::size_t n = random() % 5; n > 0; --n)
        text += TString::number(static_cast<unsigned>(random() % 3)) + (n > 1 ? u"." : u"");
    VersionNumber version(text);
    version.Truncate(random() % 6);
    return version;
}

TEST(VersionNumberLaws, CompareIsAnOrder)
{
    std::mt19937 random(49);
    for (int i = 0; i < 10'000; ++i) {
        VersionNumber const a = Random(random);
        VersionNumber const b = Random(random);
        VersionNumber const c = Random(random);
        ASSERT_EQ(a.compare(a), 0);
        ASSERT_EQ(a.compare(b), -b.compare(a));
        if (a.compare(b) <= 0 && b.compare(c) <= 0) {
            ASSERT_LE(a.compare(c), 0);
        }
        if (a.compare(b) == 0) {
            ASSERT_EQ(a.compare(c), b.compare(c));
        }
        VersionNumber const longer(a.GetNumbersAsString(u'.') + u".0.0");
        if (!a.GetNumbers().empty()) {
            ASSERT_EQ(longer, a);
            ASSERT_EQ(longer.compare(b), a.compare(b));
        }
        VersionNumber cut(b);
        cut.Truncate(random() % 5);
        ASSERT_EQ(cut.GetAsString(), b.GetAsString());
        ASSERT_LE(cut.compare(b), 0);
    }
}

}  // namespace
