#include "velcoredata/data/Collator.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "main/data/ICUCollator.h"
#include "tests/data/CollationSamples.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/RandomCollationText.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/CollatorPools.h"
#include "velicu/ScopedStatusFault.h"

struct ICUCollatorTestAccess
{
    // The collator without its ICU handle while the object lives.
    explicit ICUCollatorTestAccess(ICUCollator const & collator)
        : m_collator(const_cast<ICUCollator &>(collator)), m_handle(m_collator.m_pUCollator)
    {
        m_collator.m_pUCollator = nullptr;
    }
    ~ICUCollatorTestAccess() { m_collator.m_pUCollator = m_handle; }

    void SetAttributeOfNull() const { m_collator.SetAttribute(nullptr, 5, 0); }
    static std::size_t SortKeyBufferSize(ICUCollator const & collator) { return collator.m_sortKeyBuffer.size(); }

private:
    ICUCollator & m_collator;
    VelICU::ICU_Collator * m_handle;
};

namespace {

Collator const & Of(char16_t const * name)
{
    return *Collation(name, 0).GetCollator();
}

ICUCollator const & IcuOf(char16_t const * name)
{
    return dynamic_cast<ICUCollator const &>(Of(name));
}

using Text = std::u16string;

Text TextOf(std::vector<char16_t> const & out)
{
    EXPECT_NE(std::find(out.begin(), out.end(), 0), out.end()) << "not terminated";
    return Text(out.data());
}

Text Replaced(Collator const & collator, Text const & text, Text const & pattern, Text const & with)
{
    std::vector<char16_t> out{u'x'};
    collator.Replace(out, text.c_str(), pattern.c_str(), with.c_str());
    return TextOf(out);
}

using Mapping = void (Collator::*)(std::vector<char16_t> &, char16_t const *) const;

Text Mapped(Collator const & collator, Mapping mapping, Text const & text)
{
    std::vector<char16_t> out;
    (collator.*mapping)(out, text.c_str());
    return TextOf(out);
}

int Sign(int value)
{
    return (value > 0) - (value < 0);
}

}  // namespace

TEST(Collator, ComparesUnderItsCollation)
{
    struct
    {
        char16_t const * name;
        char16_t const * a;
        char16_t const * b;
        int expected;
    } const rows[] = {
        {u"binary", u"a", u"B", 1},        {u"binary", u"abc", u"abcd", -1},
        {u"binary", u"", u"", 0},          {u"binary", u"\uFFFF", u"\xD800", 1},
        {u"LROOT", u"a", u"B", -1},        {u"LROOT", u"a", u"A", -1},
        {u"LEN_RUS_S2", u"a", u"A", 0},    {u"LEN_RUS_S2", u"a", u"á", -1},
        {u"LEN_RUS_S1", u"a", u"Á", 0},    {u"EO_LEN_S1", u"a", u"á", 0},
        {u"EO_LEN_S1", u"a", u"A", -1},    {u"AS_LEN", u"a-b", u"ab", 0},
        {u"LEN_WO", u"co-op", u"coop", 0}, {u"LEN_WO", u"it's", u"its", 0},
        {u"LEN", u"co-op", u"coop", -1},   {u"LEN_XO", u"a1b2", u"ab", 0},
        {u"LEN_XO", u"a", u"b1", -1},      {u"LEN_WO_XO", u"a-1", u"a", 0},
        {u"LEN_XO_WO", u"a-1", u"a", 0},   {u"LSV_RSE", u"z", u"ö", -1},
        {u"LDE_RDE", u"z", u"ö", 1},       {u"LCS", u"ch", u"h", 1},
        {u"LCS", u"ch", u"i", -1},         {u"LEN_S4", u"あ", u"ア", -1},
        {u"LEN_RUS_VWIN", u"#", u"@", -1}, {u"", u"a", u"A", -1},
    };
    for (auto const & row : rows) {
        Collator const & collator = Of(row.name);
        EXPECT_EQ(Sign(collator.Compare(row.a, row.b)), row.expected) << Text(row.name).size() << TString(row.a);
        EXPECT_EQ(Sign(collator.Compare(row.b, row.a)), -row.expected);
    }
}

TEST(Collator, ComparesWithLengths)
{
    for (char16_t const * name : lawCollations) {
        Collator const & collator = Of(name);
        EXPECT_EQ(collator.Compare(u"abcX", 3, u"abcY", 3), 0);
        EXPECT_EQ(Sign(collator.Compare(u"abc", -1, u"abd", -1)), -1);
        EXPECT_EQ(Sign(collator.Compare(u"abc", 3, u"ab", 2)), 1);
        EXPECT_EQ(collator.Compare(u"", 0, nullptr, 0), 0);
    }
    EXPECT_EQ(Of(u"binary").Compare(u"a\0b", 3, u"a\0c", 3), -1);
    EXPECT_EQ(Of(u"LROOT").Compare(u"a\0b", 3, u"ab", 2), 0);
}

TEST(Collator, NumberSignStandsDirectlyBeforeAtUnderTheWindowsEnglish)
{
    Collator const & collator = Of(u"LEN_RUS_VWIN");
    for (char16_t c = 0x20; c < 0x7F; ++c) {
        if (c == u'#' || c == u'@')
            continue;
        char16_t const text[] = {c, 0};
        EXPECT_EQ(Sign(collator.Compare(text, u"#")), Sign(collator.Compare(text, u"@"))) << static_cast<int>(c);
    }
    // Other Windows locales are opened as they are.
    EXPECT_EQ(Sign(Of(u"LDE_RDE_VWIN").Compare(u"#", u"@")), Sign(Of(u"LDE_RDE").Compare(u"#", u"@")));
}

TEST(Collator, SearchGivesPositionAndLength)
{
    struct
    {
        char16_t const * name;
        char16_t const * text;
        char16_t const * pattern;
        int start;
        int at;
        int length;
    } const rows[] = {
        {u"binary", u"banana", u"an", 0, 1, 2},
        {u"binary", u"banana", u"an", 2, 3, 2},
        {u"binary", u"banana", u"AN", 0, -1, 0},
        {u"binary", u"banana", u"an", 7, -1, 0},
        {u"LEN_RUS_S2", u"Banana", u"AN", 0, 1, 2},
        {u"LEN_RUS_S2", u"Banana", u"AN", 2, 3, 2},
        {u"LDE_S1", u"Straße", u"strasse", 0, 0, 6},
        {u"LEN_S1", u"xcafe\u0301x", u"café", 0, 1, 5},
        {u"LEN", u"abc", u"x", 0, -1, 0},
        {u"LEN", u"abc", u"a", 50, -1, 0},
    };
    for (auto const & row : rows) {
        int length = 0;
        EXPECT_EQ(Of(row.name).Search(row.text, row.pattern, row.start, &length), row.at) << TString(row.text);
        EXPECT_EQ(length, row.length) << TString(row.text);
        EXPECT_EQ(Of(row.name).Search(row.text, row.pattern, row.start, nullptr), row.at);
    }
}

TEST(Collator, SearchOfNothing)
{
    for (char16_t const * name : lawCollations) {
        Collator const & collator = Of(name);
        EXPECT_EQ(collator.Search(u"abc", u""), -1);
        EXPECT_EQ(collator.Search(u"", u""), -1);
        EXPECT_EQ(collator.Search(u"", u"a"), -1);
        EXPECT_EQ(collator.Search(nullptr, u"a"), -1);
        EXPECT_EQ(collator.Search(u"a", nullptr), -1);
        // The kept search survives an empty text.
        EXPECT_EQ(collator.Search(u"xa", u"a"), 1);
        EXPECT_EQ(collator.Search(u"", u"a"), -1);
        EXPECT_EQ(collator.Search(u"xxa", u"a"), 2);
    }
}

TEST(Collator, PrefixesAndSuffixes)
{
    struct
    {
        char16_t const * name;
        char16_t const * text;
        char16_t const * pattern;
        bool starts;
        bool ends;
    } const rows[] = {
        {u"binary", u"", u"", true, true},
        {u"LEN", u"", u"", true, true},
        {u"binary", u"abcab", u"ab", true, true},
        {u"binary", u"abc", u"AB", false, false},
        {u"LEN_S2", u"abcAB", u"AB", true, true},
        {u"LEN", u"abcAB", u"AB", false, true},
        {u"LEN", u"ab", u"abc", false, false},
        {u"binary", u"ab", u"abc", false, false},
        {u"LEN", u"", u"a", false, false},
        {u"LEN_S1", u"Äpfel", u"a", true, false},
        {u"LEN", u"abcd", u"bc", false, false},
        {u"LEN", u"x", u"", true, true},
        // A match may be shorter than the pattern.
        {u"LDE_S1", u"ßx", u"ss", true, false},
        {u"LDE_S1", u"xß", u"ss", false, true},
        {u"LDE_S1", u"ß", u"ss", false, false},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(Of(row.name).StartsWith(row.text, row.pattern), row.starts) << TString(row.text);
        EXPECT_EQ(Of(row.name).EndsWith(row.text, row.pattern), row.ends) << TString(row.text);
    }
    for (char16_t const * name : {u"LROOT", u"LEN_RUS_S2"}) {
        EXPECT_FALSE(Of(name).StartsWith(nullptr, u""));
        EXPECT_FALSE(Of(name).StartsWith(u"a", nullptr));
        EXPECT_FALSE(Of(name).EndsWith(nullptr, u"a"));
        EXPECT_FALSE(Of(name).EndsWith(u"a", nullptr));
    }
}

TEST(Collator, ReplacesEveryMatch)
{
    EXPECT_EQ(Replaced(Of(u"binary"), u"aXbXc", u"X", u"--"), u"a--b--c");
    EXPECT_EQ(Replaced(Of(u"binary"), u"aaa", u"aa", u"b"), u"ba");
    EXPECT_EQ(Replaced(Of(u"LEN_S2"), u"aXbxc", u"X", u"--"), u"a--b--c");
    EXPECT_EQ(Replaced(Of(u"LEN_S2"), u"XxX", u"x", u""), u"");
    EXPECT_EQ(Replaced(Of(u"LDE_S1"), u"Straße und Strasse", u"STRASSE", u"Weg"), u"Weg und Weg");
    EXPECT_EQ(Replaced(Of(u"LEN"), u"abc", u"x", u"y"), u"abc");
    EXPECT_EQ(Replaced(Of(u"LEN"), u"", u"x", u"y"), u"");
    EXPECT_EQ(Replaced(Of(u"binary"), u"", u"x", u"y"), u"");
}

TEST(Collator, ReplaceWithoutAPattern)
{
    std::vector<char16_t> out{u'k', u'e', u'p', u't'};
    Of(u"LEN").Replace(out, u"abc", u"", u"x");
    Of(u"LEN").Replace(out, nullptr, u"a", u"x");
    Of(u"LEN").Replace(out, u"abc", nullptr, u"x");
    Of(u"LEN").Replace(out, u"abc", u"a", nullptr);
    EXPECT_EQ(out, (std::vector<char16_t>{u'k', u'e', u'p', u't'}));
    Of(u"binary").Replace(out, u"abc", u"", u"x");
    EXPECT_TRUE(out.empty());
}

TEST(Collator, CaseAndTrim)
{
    EXPECT_EQ(Mapped(Of(u"LEN"), &Collator::Upper, u"straße"), u"STRASSE");
    EXPECT_EQ(Mapped(Of(u"LTR"), &Collator::Upper, u"i"), u"İ");
    EXPECT_EQ(Mapped(Of(u"LTR"), &Collator::Lower, u"I"), u"ı");
    EXPECT_EQ(Mapped(Of(u"LEN"), &Collator::Lower, u"ΑΣ"), u"ας");
    EXPECT_EQ(Mapped(Of(u"LEN"), &Collator::Trim, u"\u2003 a b\t\u3000"), u"a b");
    EXPECT_EQ(Mapped(Of(u"LEN"), &Collator::LTrim, u"  a "), u"a ");
    EXPECT_EQ(Mapped(Of(u"LEN"), &Collator::RTrim, u"  a "), u"  a");
    EXPECT_EQ(Mapped(Of(u"LEN"), &Collator::Trim, u"\u00A0a"), u"\u00A0a");
    EXPECT_EQ(Mapped(Of(u"binary"), &Collator::Upper, u"straße1"), u"STRAßE1");
    EXPECT_EQ(Mapped(Of(u"binary"), &Collator::Lower, u"ABCxyz"), u"abcxyz");
    EXPECT_EQ(Mapped(Of(u"binary"), &Collator::Trim, u" \t\n a b \r\v\f"), u"a b");
    EXPECT_EQ(Mapped(Of(u"binary"), &Collator::LTrim, u"  a "), u"a ");
    EXPECT_EQ(Mapped(Of(u"binary"), &Collator::RTrim, u"  a "), u"  a");
    std::vector<char16_t> out{u'x'};
    for (Mapping mapping : {&Collator::Lower, &Collator::Upper, &Collator::Trim, &Collator::LTrim, &Collator::RTrim})
        for (char16_t const * name : {u"LEN", u"binary"}) {
            (Of(name).*mapping)(out, nullptr);
            EXPECT_EQ(TextOf(out), u"");
            EXPECT_EQ(Mapped(Of(name), mapping, u""), u"");
        }
}

TEST(Collator, AFailedCaseMappingGivesTheEmptyText)
{
    for (Mapping mapping : {&Collator::Lower, &Collator::Upper}) {
        Collator const & collator = Of(u"LEN");
        VelICU::ScopedStatusFault fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
        EXPECT_EQ(Mapped(collator, mapping, u"abc"), u"");
        EXPECT_TRUE(fault.HasStruck());
    }
}

TEST(Collator, AFailedSearchIsNoError)
{
    Collator const & collator = Of(u"LEN");
    for (int step : {0, 1}) {
        VelICU::ScopedStatusFault fault(VelICU::U_MEMORY_ALLOCATION_ERROR, step);
        EXPECT_EQ(collator.Search(u"xa", u"a"), -1);
        EXPECT_TRUE(fault.HasStruck());
    }
    for (int step : {0, 1}) {
        VelICU::ScopedStatusFault fault(VelICU::U_MEMORY_ALLOCATION_ERROR, step);
        EXPECT_FALSE(collator.StartsWith(u"xa", u"x"));
        EXPECT_TRUE(fault.HasStruck());
    }
    for (int step : {0, 1}) {
        VelICU::ScopedStatusFault fault(VelICU::U_MEMORY_ALLOCATION_ERROR, step);
        EXPECT_FALSE(collator.EndsWith(u"xb", u"b"));
        EXPECT_TRUE(fault.HasStruck());
    }
    for (int step : {0, 1}) {
        VelICU::ScopedStatusFault fault(VelICU::U_MEMORY_ALLOCATION_ERROR, step);
        EXPECT_EQ(Replaced(collator, u"xc", u"c", u"y"), u"xc");
        EXPECT_TRUE(fault.HasStruck());
    }
    EXPECT_EQ(collator.Search(u"xa", u"a"), 1);
}

TEST(Collator, HashOfALongSortKeyGrowsTheBufferAndStays)
{
    ICUCollator const & collator = IcuOf(u"LEN_RUS_S2");
    Text const text(2000, u'q');
    unsigned const first = collator.Hash(text.c_str());
    EXPECT_GE(ICUCollatorTestAccess::SortKeyBufferSize(collator), 4000u);
    EXPECT_EQ(collator.Hash(text.c_str()), first);
    EXPECT_EQ(collator.Hash(Text(2000, u'Q').c_str()), first);
    Text const around[] = {Text(255, u'q'), Text(506, u'q'), Text(507, u'q'), Text(508, u'q'), Text(600, u'中')};
    for (Text const & each : around)
        EXPECT_EQ(collator.Hash(each.c_str()), IcuOf(u"LEN_S2").Hash(each.c_str()));
}

TEST(Collator, EveryOperationAssertsItsHandle)
{
    ICUCollator const & collator = IcuOf(u"LFR");
    std::vector<char16_t> out;
    ICUCollatorTestAccess const nulled(collator);
    struct
    {
        char const * error;
        std::function<void()> call;
    } const rows[] = {
        {"LogicException_LogicAssert_0x5F14D391", [&] { collator.Compare(u"a", 1, u"b", 1); }},
        {"LogicException_LogicAssert_0x5F14D391", [&] { collator.Compare(u"a", u"b"); }},
        {"LogicException_LogicAssert_0x8AB385B9", [&] { collator.Search(u"a", u"b"); }},
        {"LogicException_LogicAssert_0x8AB385B9", [&] { collator.Search(nullptr, nullptr, 0, nullptr); }},
        {"LogicException_LogicAssert_0x80A3E088", [&] { collator.Replace(out, u"a", u"b", u"c"); }},
        {"LogicException_LogicAssert_0xEA2FBB2E", [&] { collator.StartsWith(u"a", u"b"); }},
        {"LogicException_LogicAssert_0x549359F8", [&] { collator.EndsWith(u"a", u"b"); }},
        {"LogicException_LogicAssert_0x843AAD7A", [&] { collator.Lower(out, u"a"); }},
        {"LogicException_LogicAssert_0xB0CF0C15", [&] { collator.Upper(out, u"a"); }},
        {"LogicException_LogicAssert_0xAF6C523C", [&] { collator.LTrim(out, u"a"); }},
        {"LogicException_LogicAssert_0xDD0CFB72", [&] { collator.RTrim(out, u"a"); }},
        {"LogicException_LogicAssert_0xEF708586", [&] { collator.Trim(out, u"a"); }},
        {"LogicException_LogicAssert_0x2FCDB475", [&] { collator.Hash(u"a"); }},
        {"LogicException_LogicAssert_0xD78D8E46", [&] { collator.GetAttribute(5); }},
    };
    for (auto const & row : rows)
        EXPECT_THAT(row.call, ThrowsAssert("m_pUCollator", row.error));
    EXPECT_THAT([&] { nulled.SetAttributeOfNull(); },
                ThrowsAssert("collator", "LogicException_LogicAssert_0x4E01E9CE"));
}

TEST(Collator, AnAttributeBeyondIcuAsserts)
{
    Collation const english(u"LEN", 0);
    for (int attribute : {8, 11})
        EXPECT_THAT(
            [&] {
                ICUCollator(GetICUCollatorPool({u"LEN", 0}), {u"LEN", 0}, {"en", {{attribute, 17}}});
            },
            ThrowsAssert("(attr) < VelICU::UCOL_ATTRIBUTE_COUNT", "LogicException_LogicAssert_0xABF34D3D"));
    EXPECT_THAT(
        [&] {
            ICUCollator(GetICUCollatorPool({u"LEN", 0}), {u"LEN", 0}, {"en", {{5, 99}}});
        },
        ThrowsError("StringException_AutoGen_0x5EA10C35"));
    EXPECT_THAT([&] { IcuOf(u"LEN").GetAttribute(99); }, ThrowsError("StringException_AutoGen_0x5EA10C35"));
}

TEST(Collator, ComparingAllocatesNothingOnceTheCollatorExists)
{
    Text const texts[] = {u"apple", u"Apfel", u"zebra crossing", u"été", u"中文", u"co-op"};
    for (char16_t const * name : lawCollations) {
        Collation const collation(name, 0);
        collation.Compare(u"a", u"b");
        AllocationCounter allocations;
        int sum = 0;
        for (Text const & a : texts)
            for (Text const & b : texts)
                sum += collation.Compare(a.c_str(), b.c_str()) +
                       collation.Compare(a.c_str(), static_cast<int>(a.size()), b.c_str(), static_cast<int>(b.size()));
        EXPECT_EQ(allocations.Count(), 0u) << TString(name);
        EXPECT_EQ(sum, 0);
    }
}

TEST(Collator, EquivalenceLooksAtLocaleAttributesAndWordSort)
{
    struct
    {
        char16_t const * a;
        char16_t const * b;
        bool ab;
        bool ba;
    } const rows[] = {
        {u"binary", u"binary", true, true},
        {u"binary", u"LROOT", false, false},
        {u"LEN_RUS", u"LEN_RUS", true, true},
        {u"LEN_RUS", u"LEN_RUS_S3", true, true},
        {u"LEN_RUS", u"LEN_RUS_S2", false, false},
        {u"LEN_RUS", u"LEN_RGB", false, false},
        {u"LEN_RUS", u"LEN_RUS_WO", false, false},
        {u"LEN_RUS", u"LEN_RUS_XO", true, true},  // ignored digits are not looked at
        {u"LEN_RUS_VWIN", u"LEN_RUS", true, true},
        {u"LEN_RUS_VWIN", u"LDE_RDE", false, false},
        {u"LEN_RUS_VWIN", u"LEN", true, true},
        {u"LEN_VWIN", u"LEN_RUS_VWIN", false, false},
        {u"LEN_RUS_VWIN", u"LEN_RUS_VWINX", false, true},  // both Windows: only the first one's locale is searched
    };
    for (auto const & row : rows) {
        EXPECT_EQ(Of(row.a).IsEquivalent(Of(row.b)), row.ab) << TString(row.a) << TString(row.b);
        EXPECT_EQ(Of(row.b).IsEquivalent(Of(row.a)), row.ba) << TString(row.a) << TString(row.b);
    }
}

// Bad input: nothing crashes, nothing hangs.

TEST(Collator, IgnorablePatternsEnd)
{
    auto const start = std::chrono::steady_clock::now();
    Text const text = u"a-b-c 12-34.56 ---";
    struct
    {
        char16_t const * name;
        char16_t const * pattern;
    } const rows[] = {{u"LEN_WO", u"-"},   {u"LEN_XO", u"7"},   {u"AS_LEN", u"."},     {u"LEN_RUS_WO", u"'-'"},
                      {u"LEN", u"\u200D"}, {u"LEN", u"\u00AD"}, {u"LROOT", u"\u0001"}, {u"AS_LEN_S1", u" -"}};
    for (auto const & row : rows) {
        Collator const & collator = Of(row.name);
        EXPECT_LE(Replaced(collator, text, row.pattern, u"").size(), text.size());
        EXPECT_LE(Replaced(collator, row.pattern, row.pattern, u"x").size(), 10u);
        int length = 0;
        int const at = collator.Search(text.c_str(), row.pattern, 0, &length);
        EXPECT_LE(at + length, static_cast<int>(text.size()));
        collator.StartsWith(text.c_str(), row.pattern);
        collator.EndsWith(text.c_str(), row.pattern);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(Collator, TenMillionUnits)
{
    auto const start = std::chrono::steady_clock::now();
    Text text(10'000'000, u'x');
    text.back() = u'y';
    Text const other(10'000'000, u'x');
    for (char16_t const * name : {u"binary", u"LEN_RUS_S2"}) {
        Collator const & collator = Of(name);
        EXPECT_EQ(Sign(collator.Compare(text.c_str(), other.c_str())), 1);
        EXPECT_EQ(collator.Search(text.c_str(), u"y"), 9'999'999);
        EXPECT_EQ(collator.Hash(text.c_str()), collator.Hash(text.c_str()));
        EXPECT_EQ(Mapped(collator, &Collator::Upper, text).size(), text.size());
        EXPECT_EQ(Mapped(collator, &Collator::Trim, text), text);
        EXPECT_EQ(Replaced(collator, text, u"y", u"").size(), text.size() - 1);
        EXPECT_TRUE(collator.EndsWith(text.c_str(), u"xy"));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(120));
}

TEST(Collator, LoneSurrogatesAnywhere)
{
    Text const odd[] = {Text(1, 0xD800), Text(1, 0xDC00), Text(u"a") + char16_t(0xDBFF), Text(1, 0xDFFF) + u"b"};
    for (char16_t const * name : lawCollations)
        for (Text const & a : odd)
            for (Text const & b : odd) {
                Collator const & collator = Of(name);
                EXPECT_EQ(Sign(collator.Compare(a.c_str(), b.c_str())), -Sign(collator.Compare(b.c_str(), a.c_str())));
                collator.Search(a.c_str(), b.c_str());
                Replaced(collator, a, b, a);
                Mapped(collator, &Collator::Upper, a);
                collator.Hash(a.c_str());
            }
}
