#include "velcoredata/data/Collation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "tests/data/CollationSamples.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/RandomCollationText.h"

TEST(Collation, TheDefaultIsTheRootWithoutACharset)
{
    for (Collation const & collation : {Collation(), Collation(nullptr, 0), Collation(u"LROOT", 0),
                                        Collation::Create(nullptr, 0, 0), GetUnknownCollation()})
    {
        EXPECT_EQ(collation, GetUnknownCollation());
        EXPECT_EQ(collation.GetName(), u"LROOT");
        EXPECT_FALSE(collation.HasCharsetID());
        EXPECT_EQ(&*collation.GetCollator(), &*GetUnknownCollation().GetCollator());
    }
    EXPECT_EQ(&GetUnknownCollation(), &GetUnknownCollation());
    EXPECT_TRUE(CollationType::s_unknown == TString(u"LROOT") && CollationType::s_binary == TString(u"binary"));
    EXPECT_EQ(CollationType::s_unknownCharset, 0);
}

TEST(Collation, BinaryFacts)
{
    Collation const & binary = GetBinaryCollation();
    EXPECT_EQ(binary.GetName(), u"binary");
    EXPECT_TRUE(binary.IsCaseSensitive());
    EXPECT_EQ(binary.GetCmpFlags(), 0u);
    EXPECT_EQ(binary.GetLocale(), 0xFFFFFFFFu);
    EXPECT_EQ(binary.GetLanguage(), u"binary");
    EXPECT_TRUE(binary.GetDisplayLanguage().isEmpty());
    EXPECT_TRUE(binary.GetDisplayCountry().isEmpty());
    EXPECT_FALSE(binary.HasWordSort());
    EXPECT_FALSE(binary.IsApproximation());
    EXPECT_FALSE(binary.IsWindowsSpecific());
    EXPECT_EQ(binary.GetDescription(), u"charset=0x0 BINARY (binary)");
    EXPECT_EQ(Collation(0xFFFFFFFFu, 0, 0), binary);
    EXPECT_EQ(Collation(0xFFFFFFFFu, 7, 0), binary);
    EXPECT_EQ(Collation::Create(u"binary", 7, 0).GetCmpFlags(), 0u);

    Collation const withCharset(u"binary", 5);
    EXPECT_NE(withCharset, binary);
    EXPECT_TRUE(withCharset.IsEquivalent(binary));
    EXPECT_TRUE(Equivalent(withCharset, binary));
    EXPECT_EQ(withCharset.GetCharsetID(), 5);
    EXPECT_TRUE(withCharset.HasCharsetID());
}

TEST(Collation, OnlyTheExactTextIsBinary)
{
    EXPECT_THAT([] { Collation(u"BINARY", 0); },
                ThrowsError("StringException_AutoGen_0x5EA10C35", "String comparison error."));
}

TEST(Collation, FactsOfAnIcuCollation)
{
    struct
    {
        char16_t const * name;
        LCID lcid;
        unsigned flags;
        bool caseSensitive, wordSort, windows;
        char16_t const * language;
        char16_t const * description;
    } const rows[] = {
        {u"LEN_RUS", 0x409, 0, true, false, false, u"en", u"charset=0x4e4 en_US (LEN_RUS)"},
        {u"LEN_RUS_S1", 0x409, 0x3, false, false, false, u"en", u"charset=0x4e4 en_US (LEN_RUS_S1)"},
        {u"LEN_RUS_S2", 0x409, 0x1, false, false, false, u"en", u"charset=0x4e4 en_US (LEN_RUS_S2)"},
        {u"AS_LEN_S2", 0x9, 0x5, false, false, false, u"en", u"charset=0x4e4 en (AS_LEN_S2)"},
        {u"AS_LEN_S1", 0x9, 0x7, false, false, false, u"en", u"charset=0x4e4 en (AS_LEN_S1)"},
        {u"AS_LEN", 0x9, 0x4, true, false, false, u"en", u"charset=0x4e4 en (AS_LEN)"},
        {u"AS_LEN_S4", 0x9, 0, true, false, false, u"en", u"charset=0x4e4 en (AS_LEN_S4)"},
        {u"LEN_SI", 0x9, 0, true, false, false, u"en", u"charset=0x4e4 en (LEN_SI)"},
        {u"LSV_RSE_WO", 0x41D, 0, true, true, false, u"sv", u"charset=0x4e4 sv_SE (LSV_RSE_WO)"},
        {u"LDE_RDE_S2_VWIN", 0x407, 0x80000001u, false, false, true, u"de",
         u"charset=0x4e4 de_DE_WIN (LDE_RDE_S2_VWIN)"},
        {u"AS_LEN_S4_VWIN", 0x9, 0x80000000u, true, false, true, u"en", u"charset=0x4e4 en_WIN (AS_LEN_S4_VWIN)"},
        {u"LXX_RYY", 0x400, 0, true, false, false, u"xx", u"charset=0x4e4 xx_YY (LXX_RYY)"},
    };
    for (auto const & row : rows) {
        Collation const collation(row.name, 0x4E4);
        EXPECT_EQ(collation.GetLocale(), row.lcid) << collation.GetName();
        EXPECT_EQ(collation.GetCmpFlags(), row.flags) << collation.GetName();
        EXPECT_EQ(collation.IsCaseSensitive(), row.caseSensitive) << collation.GetName();
        EXPECT_EQ(collation.HasWordSort(), row.wordSort);
        EXPECT_EQ(collation.IsApproximation(), row.wordSort);
        EXPECT_EQ(collation.IsWindowsSpecific(), row.windows);
        EXPECT_EQ(collation.GetLanguage(), TString(row.language));
        EXPECT_EQ(collation.GetDescription(), TString(row.description));
    }
    EXPECT_EQ(Collation(u"LSV_RSE", 0).GetDisplayLanguage(), u"Swedish");
    EXPECT_EQ(Collation(u"LSV_RSE", 0).GetDisplayCountry(), u"Sweden");
}

TEST(Collation, ConstructorsBuildNames)
{
    EXPECT_EQ(Collation(0x409, 0x1, 3).GetName(), u"LEN_RUS_S2");
    EXPECT_EQ(Collation(0x409, 0x1, 3).GetCharsetID(), 3);
    EXPECT_EQ(Collation(0x409, 0x4, 0).GetCmpFlags(), 0x4u);
    // Flags that the name cannot say stay with the pool.
    EXPECT_EQ(Collation::Create(u"LEN", 0x10, 0).GetCmpFlags(), 0x10u);
    EXPECT_EQ(Collation::Create(u"LEN", 0x10, 0), Collation(u"LEN", 0));
    EXPECT_NE(&*Collation::Create(u"LEN", 0x10, 0).GetCollator(), &*Collation(u"LEN", 0).GetCollator());
    Collation const german("de-AT", false, Collation::CaseInsensitive, Collation::AccentDefault, Collation::SortDefault,
                           Collation::PunctDefault, 9);
    EXPECT_EQ(german.GetName(), u"LDE_RAT_S2");
    EXPECT_EQ(german.GetCharsetID(), 9);
    EXPECT_EQ(CollationAdapter::GetCollation(0x407, 0x1, 2), Collation(u"LDE_RDE_S2", 2));
    EXPECT_EQ(CollationAdapter::GetCollation(u"LDE", Collation::CaseInsensitive, Collation::AccentDefault,
                                             Collation::SortWord, Collation::PunctDefault, 1),
              Collation(u"LDE_S2_WO", 1));
}

TEST(Collation, BadNamesRaiseAndStayBad)
{
    // Each attempt fails anew: a pool left behind would answer the second one.
    for (int attempt = 0; attempt < 3; ++attempt) {
        EXPECT_THAT([] { Collation(u"RUS", 0); },
                    ThrowsAssert("!locale.isEmpty()", "LogicException_LogicAssert_0xCDB3EB65"));
        EXPECT_THAT([] { Collation(u"S9", 0); },
                    ThrowsAssert("(*i)[1] >= (L'1') && (*i)[1] <= (L'4')", "LogicException_LogicAssert_0xEC4A8574"));
        for (char16_t const * name : {u"CU_LEN", u"LEN_Q1"})
            EXPECT_THAT([&] { Collation(name, 0); }, ThrowsError("StringException_AutoGen_0x5EA10C35"));
    }
}

TEST(Collation, CloneKeepsWhatLcidAndFlagsCanSay)
{
    Collation const windows(u"LEN_RUS_S2_VWIN", 7);
    EXPECT_EQ(windows.Clone(false).GetCmpFlags(), 0x1u);
    EXPECT_EQ(windows.Clone(false).GetName(), u"LEN_RUS_S2");
    EXPECT_EQ(windows.Clone(true).GetName(), u"LEN_RUS_S2_VWIN");
    EXPECT_EQ(windows.Clone(true).GetCmpFlags(), 0x80000001u);
    EXPECT_EQ(windows.Clone(true).GetCharsetID(), 7);
    EXPECT_EQ(Collation(u"LEN_RUS_WO_XO", 0).Clone(true).GetName(), u"LEN_RUS");
    EXPECT_EQ(GetBinaryCollation().Clone(false), GetBinaryCollation());
}

TEST(Collation, LcidOfALocaleName)
{
    EXPECT_EQ(Collation::LCIDFromLocale(u"C", 0x400), 0xFFFFFFFFu);
    EXPECT_EQ(Collation::LCIDFromLocale(u"binary", 0x400), 0xFFFFFFFFu);
    EXPECT_EQ(Collation::LCIDFromLocale(u"Binary", 0x400), 0x400u);
    EXPECT_EQ(Collation::LCIDFromLocale(u"xx_YY", 0x400), 0x400u);
    EXPECT_EQ(Collation::LCIDFromLocale(u"en-US", 0x400), 0x409u);
    EXPECT_EQ(CollationAdapter::LCIDFromLocale(u"sv_SE", 0), 0x41Du);
}

TEST(Collation, WordSortIsSwitchedInTheName)
{
    Collation collation(u"LEN_RUS_S2", 4);
    collation.GetHashCode();
    collation.UseWordSort(false);
    EXPECT_EQ(collation.GetName(), u"LEN_RUS_S2");
    collation.UseWordSort(true);
    EXPECT_EQ(collation.GetName(), u"LEN_RUS_S2_WO");
    EXPECT_TRUE(collation.HasWordSort());
    EXPECT_EQ(collation.GetCharsetID(), 4);
    EXPECT_EQ(collation.GetHashCode(), Collation(u"LEN_RUS_S2_WO", 0).GetHashCode());
    EXPECT_EQ(collation.Compare(u"co-op", u"COOP"), 0);

    Collation binary = GetBinaryCollation();
    binary.UseWordSort(false);
    EXPECT_EQ(binary, GetBinaryCollation());
    EXPECT_THAT([&] { binary.UseWordSort(true); },
                ThrowsAssert("TString(name).compare(CollationType::s_binary, TString::CaseInsensitive) != 0",
                             "LogicException_LogicAssert_0x9B62A87D"));
    EXPECT_EQ(binary, GetBinaryCollation());
}

TEST(Collation, OrderLooksAtTheCharsetFirst)
{
    EXPECT_LT(Collation(u"binary", 1), Collation(u"LEN", 2));
    EXPECT_LT(Collation(u"LEN", 2), Collation(u"LSV", 2));
    EXPECT_LT(Collation(u"LEN", 2), Collation(u"binary", 2));
    EXPECT_FALSE(Collation(u"LEN", 2) < Collation(u"LEN", 2));
    EXPECT_TRUE(Collation(u"LEN", 2).IsLess(Collation(u"LEN", 3)));
    EXPECT_TRUE(Collation(u"LEN", 2).IsEqual(Collation(u"LEN", 2)));
}

TEST(Collation, ForwardsToTheThreadsCollator)
{
    Collation const collation(u"LEN_RUS_S2", 0);
    std::vector<char16_t> out;
    EXPECT_EQ(collation.Compare(u"a", u"A"), 0);
    EXPECT_EQ(collation.Compare(u"a1", 1, u"A2", 1), 0);
    EXPECT_EQ(collation.Search(u"xA", u"a"), 1);
    int length = 0;
    EXPECT_EQ(collation.Search(u"axA", u"a", 1, &length), 2);
    EXPECT_EQ(length, 1);
    EXPECT_TRUE(collation.StartsWith(u"Ab", u"a"));
    EXPECT_TRUE(collation.EndsWith(u"aB", u"b"));
    collation.Replace(out, u"aXb", u"x", u"-");
    EXPECT_EQ(std::u16string(out.data()), u"a-b");
    collation.Lower(out, u"AB");
    EXPECT_EQ(std::u16string(out.data()), u"ab");
    collation.Upper(out, u"ab");
    EXPECT_EQ(std::u16string(out.data()), u"AB");
    collation.LTrim(out, u" a ");
    EXPECT_EQ(std::u16string(out.data()), u"a ");
    collation.RTrim(out, u" a ");
    EXPECT_EQ(std::u16string(out.data()), u" a");
    collation.Trim(out, u" a ");
    EXPECT_EQ(std::u16string(out.data()), u"a");
    EXPECT_EQ(collation.Hash(u"a"), collation.Hash(u"A"));
}

// Laws.

TEST(CollationLaws, EqualityHashAndOrder)
{
    std::vector<Collation> all;
    for (int charset : {0, 1, 65535})
        for (char16_t const * name : lawCollations)
            all.emplace_back(name, static_cast<unsigned short>(charset));
    for (Collation const & a : all) {
        EXPECT_NE(a, a.CopyWithCharset(77));
        EXPECT_EQ(a.GetHashCode(), a.CopyWithCharset(77).GetHashCode());
        EXPECT_EQ(CollationHashFunc()(a), a.GetHashCode());
        for (Collation const & b : all) {
            EXPECT_EQ(a == b, a.GetCharsetID() == b.GetCharsetID() && a.GetName() == b.GetName());
            EXPECT_EQ((a < b) + (b < a) + (a == b), 1);
            if (a.GetCharsetID() < b.GetCharsetID()) {
                EXPECT_LT(a, b);
            }
            if (a == b) {
                EXPECT_EQ(a.GetHashCode(), b.GetHashCode());
            }
        }
    }
    std::sort(all.begin(), all.end());
    EXPECT_TRUE(std::is_sorted(all.begin(), all.end()));
}

TEST(CollationLaws, SwitchingWordSortOnAndOffGivesTheFirstName)
{
    for (char const * locale : sampleLocales) {
        Collation const first(locale, false, Collation::CaseInsensitive, Collation::AccentDefault,
                              Collation::SortDefault, Collation::PunctDefault, 3);
        Collation collation = first;
        collation.UseWordSort(true);
        EXPECT_NE(collation, first);
        EXPECT_TRUE(collation.HasWordSort());
        collation.UseWordSort(false);
        EXPECT_EQ(collation, first);
        EXPECT_FALSE(collation.HasWordSort());
    }
}
