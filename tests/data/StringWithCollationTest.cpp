#include "velcoredata/data/StringWithCollation.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

#include <utility>

#include "tests/support/RandomCollationText.h"

namespace {

StringWithCollation Under(char16_t const * name, char16_t const * text)
{
    return StringWithCollation(text, Collation(name, 0));
}

TEST(StringWithCollation, BinaryTextsCompareAsTheBinaryCollatorComparesThem)
{
    Collator const & collator = *GetBinaryCollation().GetCollator();
    std::mt19937 random(7);
    auto const unit = [&random] {
        constexpr char16_t units[] = {u'a', u'a', u'a', u'b', u'\0', u'\u00E9', 0xD83D, 0xDE00, 0xFFFF};
        return units[random() % std::size(units)];
    };
    for (int round = 0; round < 200000; ++round) {
        std::u16string a(random() % 14, u'a');
        std::generate(a.begin(), a.end(), unit);
        std::u16string b = a.substr(0, random() % (a.size() + 1));
        while (random() % 3 != 0)
            b += unit();
        StringWithCollation const x(TString::fromView(a), GetBinaryCollation());
        StringWithCollation const y(TString::fromView(b), GetBinaryCollation());
        int const order = collator.Compare(x.GetString(), y.GetString());
        ASSERT_EQ(x == y, order == 0) << round;
        ASSERT_EQ(x < y, order < 0) << round;
        ASSERT_EQ(y<x, order> 0) << round;
    }
}

}  // namespace

TEST(StringWithCollation, EqualityIsThatOfTheCollation)
{
    struct
    {
        char16_t const * aName;
        char16_t const * a;
        char16_t const * bName;
        char16_t const * b;
        bool equal;
        bool less;
    } const rows[] = {
        {u"LEN_RUS_S2", u"A", u"LEN_RUS_S2", u"a", true, false},
        {u"LEN_RUS", u"a", u"LEN_RUS", u"A", false, true},
        {u"binary", u"a", u"binary", u"A", false, false},
        {u"LEN_RUS_S2", u"A", u"LEN_RUS", u"A", false, false},  // by the names: "LEN_RUS" is a prefix
        {u"LEN_RUS", u"z", u"LEN_RUS_S2", u"a", false, true},
        {u"LEN_RUS", u"A", u"LEN_RUS_S3", u"A", true, false},  // equivalent under two names
        {u"LEN_RUS", u"a", u"LEN_RUS_S3", u"b", false, true},
    };
    for (bool hashed : {false, true})
        for (auto const & row : rows) {
            StringWithCollation const a = Under(row.aName, row.a), b = Under(row.bName, row.b);
            if (hashed) {
                a.GetHash();
                b.GetHash();
            }
            EXPECT_EQ(a == b, row.equal) << a.GetString() << b.GetString();
            EXPECT_EQ(a < b, row.less) << a.GetString() << b.GetString();
            EXPECT_EQ(a.HasHash(), hashed) << "comparing must not compute a hash";
        }
}

TEST(StringWithCollation, CharsetPlaysNoPart)
{
    StringWithCollation const a(u"x", Collation(u"LEN", 1)), b(u"x", Collation(u"LEN", 2));
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a < b);
}

TEST(StringWithCollation, TheHashIsComputedOnDemandAndCarriedOver)
{
    StringWithCollation first = Under(u"LEN_RUS_S2", u"Text");
    EXPECT_FALSE(first.HasHash());
    EXPECT_FALSE(StringWithCollation(first).HasHash());
    unsigned const hash = first.GetHash();
    EXPECT_EQ(hash, Collation(u"LEN_RUS_S2", 0).Hash(u"tEXT"));
    EXPECT_TRUE(first.HasHash());
    EXPECT_EQ(first.GetHash(), hash);

    StringWithCollation const copy(first);
    EXPECT_TRUE(copy.HasHash());
    EXPECT_EQ(copy.GetHash(), hash);
    StringWithCollation assigned = Under(u"binary", u"other");
    assigned = copy;
    EXPECT_TRUE(assigned.HasHash());
    EXPECT_EQ(assigned.GetString(), u"Text");
    EXPECT_EQ(assigned.GetCollation(), first.GetCollation());
    StringWithCollation moved(std::move(assigned));
    EXPECT_TRUE(moved.HasHash());
    EXPECT_EQ(moved.GetString(), u"Text");
    assigned = std::move(moved);
    EXPECT_TRUE(assigned.HasHash());
    EXPECT_EQ(assigned.GetHash(), hash);
    StringWithCollation & same = assigned;
    assigned = same;
    assigned = std::move(same);
    EXPECT_EQ(assigned.GetString(), u"Text");
    assigned = Under(u"LEN", u"fresh");
    EXPECT_FALSE(assigned.HasHash());
}

TEST(StringWithCollation, SharedByReferenceCounts)
{
    using Ptr = RefCntPtr<StringWithCollation, RefCntObject>;
    Ptr const a(new StringWithCollation(u"x", GetUnknownCollation()));
    Ptr const b(a);
    EXPECT_EQ(detail::RefCountAccess::Count(*a), 2);
    StringWithCollation const copy(*a);
    EXPECT_EQ(detail::RefCountAccess::Count(copy), 0);
}

TEST(StringWithCollationLaws, EqualTextsOfOneCollationHashEqually)
{
    test_support::RandomCollationText random(21);
    for (char16_t const * name : {u"binary", u"LROOT", u"LEN_RUS_S1", u"LEN_RUS_WO"}) {
        Collation const collation(name, 0);
        for (int i = 0; i < 2500; ++i) {
            std::u16string const text = random.Text(5);
            StringWithCollation const a(text.c_str(), collation), b(random.Near(text).c_str(), collation);
            EXPECT_EQ((a < b) + (b < a) + (a == b), 1);
            if (a == b) {
                EXPECT_EQ(a.GetHash(), b.GetHash());
            }
            bool const equal = a == b;
            a.GetHash();
            b.GetHash();
            EXPECT_EQ(a == b, equal);
        }
    }
}
