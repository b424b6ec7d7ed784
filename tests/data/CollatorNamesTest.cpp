#include "velcoredata/data/CollatorNames.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "main/data/CollatorAttributes.h"
#include "main/data/CollatorSpec.h"
#include "tests/data/CollationSamples.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/RandomCollationText.h"
#include "tests/support/RecordingLogger.h"
#include "velicu/ScopedStatusFault.h"

using namespace detail;
using Options = CollationOptions;

namespace {

TString Make(char16_t const * name, int caseOpt, int accentOpt, int sortOpt, int punctOpt)
{
    return MakeCollatorName(name, static_cast<Options::CaseOpt>(caseOpt), static_cast<Options::AccentOpt>(accentOpt),
                            static_cast<Options::SortOpt>(sortOpt), static_cast<Options::PunctOpt>(punctOpt));
}

TString MakeICU(std::string const & locale, bool approximate, int caseOpt, int accentOpt, int sortOpt, int punctOpt)
{
    return MakeICUCollatorName(locale, approximate, static_cast<Options::CaseOpt>(caseOpt),
                               static_cast<Options::AccentOpt>(accentOpt), static_cast<Options::SortOpt>(sortOpt),
                               static_cast<Options::PunctOpt>(punctOpt));
}

TString FromLocale(char const * locale, bool approximate, int caseOpt, int accentOpt, int sortOpt, int punctOpt)
{
    return CollatorNameFromLocaleName(locale, approximate, static_cast<Options::CaseOpt>(caseOpt),
                                      static_cast<Options::AccentOpt>(accentOpt),
                                      static_cast<Options::SortOpt>(sortOpt), static_cast<Options::PunctOpt>(punctOpt));
}

bool IsCanonical(TString const & name)
{
    char16_t last = 0;
    for (TString const & token : SplitCollatorName(name)) {
        if (token.isEmpty() || token.constData()[0] <= last)
            return false;
        last = token.constData()[0];
    }
    return true;
}

// A token list with letters that the parser knows, a language among them.
TString RandomParsableName(test_support::RandomCollationText & random)
{
    static constexpr char16_t const * tokens[] = {u"AS", u"AX", u"EO", u"EX",     u"HO", u"RUS", u"S1", u"S2",   u"S3",
                                                  u"S4", u"SI", u"SD", u"VPOSIX", u"WO", u"WX",  u"XO", u"ZLATN"};
    TString name = u"LEN";
    for (int n = random.Below(6); n > 0; --n) {
        name += u"_";
        name += tokens[random.Below(17)];
    }
    return name;
}

struct OptionDraw
{
    int caseOpt, accentOpt, sortOpt, punctOpt;
    explicit OptionDraw(test_support::RandomCollationText & random)
        : caseOpt(random.Below(4)),
          accentOpt(random.Below(2)),
          sortOpt(random.OneIn(3) ? 4 : random.Below(2)),
          punctOpt(random.Below(3))
    {}
};

}  // namespace

TEST(CollatorNames, OptionsMergeIntoAName)
{
    struct
    {
        char16_t const * name;
        int caseOpt, accentOpt, sortOpt, punctOpt;
        char16_t const * expected;
    } const rows[] = {
        {nullptr, 0, 0, 0, 0, u""},           {u"", 0, 0, 0, 0, u""},
        {u"LEN_S1", 0, 0, 0, 0, u"LEN"},      {u"LEN", 1, 1, 0, 0, u"LEN_S1"},
        {u"LEN", 0, 1, 0, 0, u"EO_LEN_S1"},   {u"LEN", 0, 0, 0, 1, u"AS_LEN"},
        {u"LEN", 0, 0, 4, 0, u"LEN_SI"},      {u"LEN", 0, 0, 0, 2, u"LEN_S4"},
        {u"LEN", 2, 0, 0, 0, u"CU_LEN"},      {u"LEN", 3, 0, 0, 0, u"CL_LEN"},
        {u"LEN", 0, 0, 1, 0, u"LEN_WO"},      {u"LEN", 9, 9, 9, 9, u"LEN"},
        {u"RUS_LEN", 0, 0, 0, 0, u"LEN_RUS"}, {u"LEN_XO_HO_FO", 0, 0, 0, 0, u"FO_HO_LEN_XO"},
        {u"LEN_LDE", 0, 0, 0, 0, u"LDE"},
    };
    for (auto const & row : rows)
        EXPECT_EQ(Make(row.name, row.caseOpt, row.accentOpt, row.sortOpt, row.punctOpt), TString(row.expected));
}

TEST(CollatorNames, UnhandledSortOptionsLogAndAssert)
{
    for (int sortOpt : {2, 3}) {
        test_support::RecordingLogger log;
        EXPECT_THAT([&] { Make(u"LEN", 0, 0, sortOpt, 0); },
                    ThrowsAssert("false", "LogicException_LogicAssert_0x8E052837"));
        EXPECT_THAT([&] { MakeICU("en", false, 0, 0, sortOpt, 0); },
                    ThrowsAssert("false", "LogicException_LogicAssert_0xBC905FDE"));
        auto const records = log.GetRecords();
        ASSERT_EQ(records.size(), 2u);
        std::string const text = "Collation sort option not handled: " + std::to_string(sortOpt);
        EXPECT_NE(records[0].text.find(text), std::string::npos);
        EXPECT_NE(records[1].text.find(text), std::string::npos);
    }
}

TEST(CollatorNames, AnEmptyTokenAsserts)
{
    EXPECT_THAT([] { Make(u"LEN__RUS", 0, 0, 0, 0); },
                ThrowsAssert("!i->isEmpty()", "LogicException_LogicAssert_0x930903CF"));
    EXPECT_EQ(ParseCollatorName(u"LEN__RUS").locale, "en_US");
}

TEST(CollatorNames, LcidAndCompareFlagsMakeAName)
{
    struct
    {
        LCID lcid;
        unsigned flags;
        bool wordSort;
        char16_t const * expected;
    } const rows[] = {
        {0x409, 0x1, false, u"LEN_RUS_S2"},
        {0x400, 0, false, u"LROOT"},
        {0, 0, false, u"LROOT"},
        {0x409, 0x2, false, u"EO_LEN_RUS_S1"},
        {0x409, 0x3, false, u"LEN_RUS_S1"},
        {0x409, 0x4, false, u"AS_LEN_RUS_S3"},
        {0x409, 0x5, false, u"AS_LEN_RUS_S2"},
        {0x409, 0x80000000u, false, u"LEN_RUS_VWIN"},
        {0x409, 0x80000001u, true, u"LEN_RUS_S2_VWIN_WO"},
        {0x48C, 0, false, u"LFA_RAF"},  // prs-AF
        {0x46B, 0, false, u"LQU_RBO"},  // quz-BO
        {0x404, 0, false, u"LZH_RTW"},  // zh-TW, without ICU's script
        {0x241A, 0, false, u"LSR_RRS_ZLATN"},
        {0xFFFF, 0, false, u""},  // nobody's: "root", whose language is shown for 0 and 0x400 only
    };
    for (auto const & row : rows)
        EXPECT_EQ(MakeCollatorName(row.lcid, row.flags, row.wordSort), TString(row.expected)) << row.lcid;
}

TEST(CollatorNames, ApproximateDiffersBetweenTheTwoRoutes)
{
    EXPECT_EQ(MakeICU("en_US", true, 1, 1, 0, 1), u"LEN_RUS_S2_XO");
    EXPECT_EQ(FromLocale("en_US", true, 0, 0, 0, 0), u"AS_EO_LEN_RUS_S1_XO");
    EXPECT_EQ(FromLocale("en-US", false, 0, 0, 0, 0), u"LEN_RUS");
    EXPECT_EQ(FromLocale(nullptr, false, 0, 0, 0, 0), u"LROOT");
    EXPECT_EQ(MakeICU("en_US", false, 0, 0, 4, 0), u"LEN_RUS");
    EXPECT_EQ(MakeICU("sr_Latn_RS", false, 0, 0, 0, 0), u"LSR_RRS_ZLATN");
}

TEST(CollatorNames, ALocaleThatIcuRefusesRaisesTheIcuException)
{
    std::string const tooLong = "en_" + std::string(40, 'A') + "_" + std::string(40, 'B');
    EXPECT_EQ(MakeICU(tooLong, false, 0, 0, 0, 0), u"LEN");
    for (int step : {0, 1, 2}) {
        VelICU::ScopedStatusFault fault(VelICU::U_ILLEGAL_ARGUMENT_ERROR, step);
        EXPECT_THAT([] { MakeICU("en_US", false, 0, 0, 0, 0); },
                    ThrowsError("StringException_AutoGen_0x5EA10C35", "String comparison error."));
    }
}

TEST(CollatorNames, ParsingReadsEveryToken)
{
    struct
    {
        char16_t const * name;
        std::string locale;
        ColAttributeList attributes;
    } const rows[] = {
        {u"LROOT", "root", {}},
        {u"LEN_RUS_VWIN", "en_US_WIN", {}},
        {u"", "", {}},
        {u"LZH_RCN_ZHANS", "zh_CN_HANS", {}},
        {u"LEN_LDE", "de", {}},
        {u"AS_AX", "", {{1, 20}, {1, -1}}},
        {u"EO_EX_ED", "", {{3, 17}, {3, 16}, {3, -1}}},
        {u"HO_HX", "", {{6, 17}, {6, -1}}},
        {u"SD_SI_S1_S2_S3_S4", "", {{5, -1}, {5, 15}, {5, 0}, {5, 1}, {5, 2}, {5, 3}}},
        {u"WO_WX_W1", "", {{9, 17}, {9, 16}, {9, 16}}},
        {u"XO_XX_XS", "", {{10, 17}, {10, 16}, {10, 16}}},
    };
    for (auto const & row : rows) {
        CollatorSpec const spec = ParseCollatorName(row.name);
        EXPECT_EQ(spec.locale, row.locale);
        EXPECT_EQ(spec.attributes, row.attributes);
    }
}

TEST(CollatorNames, MalformedTokensRaiseTheirOwnErrors)
{
    struct
    {
        char16_t const * name;
        char const * text;
        char const * error;
    } const rows[] = {
        {u"HOO_LEN", "i->length() == 2", "LogicException_LogicAssert_0x49944190"},
        {u"A", "i->length() == 2", "LogicException_LogicAssert_0xE687D8D8"},
        {u"EOO", "i->length() == 2", "LogicException_LogicAssert_0xADB2FEC6"},
        {u"S", "i->length() == 2", "LogicException_LogicAssert_0xB25D7AEC"},
        {u"WIN", "i->length() == 2", "LogicException_LogicAssert_0x5578E62F"},
        {u"X", "i->length() == 2", "LogicException_LogicAssert_0x3CCC1F54"},
        {u"S5", "(*i)[1] >= (L'1') && (*i)[1] <= (L'4')", "LogicException_LogicAssert_0xEC4A8574"},
        {u"S0", "(*i)[1] >= (L'1') && (*i)[1] <= (L'4')", "LogicException_LogicAssert_0xEC4A8574"},
        {u"RUS", "!locale.isEmpty()", "LogicException_LogicAssert_0xCDB3EB65"},
        {u"ZLATN", "!locale.isEmpty()", "LogicException_LogicAssert_0x9DDD9F39"},
        {u"VWIN", "!locale.isEmpty()", "LogicException_LogicAssert_0x54A0A9A9"},
    };
    for (auto const & row : rows)
        EXPECT_THAT([&] { ParseCollatorName(row.name); }, ThrowsAssert(row.text, row.error));
}

TEST(CollatorNames, UnknownLettersAreUnhandledSpecifiers)
{
    for (char16_t const * name : {u"BINARY", u"CU_LEN", u"CL", u"LEN_FO", u"IO", u"NO", u"LEN_lde", u"Q"}) {
        test_support::RecordingLogger log;
        EXPECT_THAT([&] { ParseCollatorName(name); },
                    ThrowsError("StringException_AutoGen_0x5EA10C35", "String comparison error."));
        ASSERT_EQ(log.GetRecords().size(), 1u);
        EXPECT_NE(log.GetRecords()[0].text.find("Unhandled specifier"), std::string::npos);
    }
}

TEST(CollatorNames, RewritingOneAttribute)
{
    EXPECT_EQ(WithCollatorAttribute(u"LEN_RUS", WORDSORT, ON), u"LEN_RUS_WO");
    EXPECT_EQ(WithCollatorAttribute(u"LEN_RUS_WO", WORDSORT, OFF), u"LEN_RUS");
    EXPECT_EQ(WithCollatorAttribute(u"LEN_S1", STRENGTH, TERTIARY), u"LEN");
    for (char16_t const * name : {u"binary", u"BINARY", u"Binary"})
        EXPECT_THAT([&] { WithCollatorAttribute(name, WORDSORT, ON); },
                    ThrowsAssert("TString(name).compare(CollationType::s_binary, TString::CaseInsensitive) != 0",
                                 "LogicException_LogicAssert_0x9B62A87D"));
    for (int attribute : {-1, 8, 11, 1000})
        EXPECT_THAT([&] { WithCollatorAttribute(u"LEN", attribute, ON); },
                    ThrowsAssert("a.attr.enumVal == i->first.enumVal", "LogicException_LogicAssert_0x1E0FC030"));
    for (int value : {-2, 4, 14, 18, 19, 22, 26, 1000})
        EXPECT_THAT([&] { WithCollatorAttribute(u"LEN", STRENGTH, value); },
                    ThrowsAssert("v.value == i->second", "LogicException_LogicAssert_0x7FDA70DD"));
}

TEST(CollatorNames, TheAttributeTablesAssertTheirBounds)
{
    ColAttributeTable table;
    EXPECT_THAT([&] { table.SetAttribute({-1, u'Q', 0}); }, ThrowsAssert("attr.enumVal >= 0"));
    EXPECT_THAT([&] { table.SetAttribute({11, u'Q', 0}); }, ThrowsAssert("size_t(attr.enumVal) < N"));
    EXPECT_THAT([&] { table.SetValue({-2, u'Q'}); }, ThrowsAssert("i >= 0"));
    EXPECT_THAT([&] { table.SetValue({26, u'Q'}); }, ThrowsAssert("size_t(i) < N"));
    ColAttributeCounter counter;
    for (int i = 0; i < 9; ++i)
        ++counter;
    EXPECT_EQ(counter.enumVal, 9);
    EXPECT_THAT([&] { ++counter; }, ThrowsAssert("enumVal <= WORDSORT", "LogicException_LogicAssert_0x09163940"));
}

TEST(CollatorNames, LocaleNamesOfLcids)
{
    struct
    {
        LCID lcid;
        char const * expected;
    } const rows[] = {{0, "root"},      {0x400, "root"},        {0x409, "en_US"},
                      {0x404, "zh_TW"}, {0x48C, "fa_AF"},       {0x86B, "qu_EC"},
                      {0xFFFF, "root"}, {0x241A, "sr_Latn_RS"}, {0x10407, "de_DE_phoneb"}};
    for (auto const & row : rows) {
        char buffer[157];
        LocaleNameFromLCID(row.lcid, buffer, sizeof buffer);
        EXPECT_STREQ(buffer, row.expected) << row.lcid;
    }
    EXPECT_EQ(LCIDFromLocaleName("en-US", 7), 0x409u);
    EXPECT_EQ(LCIDFromLocaleName("xx_YY", 7), 7u);
    EXPECT_EQ(LCIDFromLocaleName("", 7), 7u);
}

// Laws.

TEST(CollatorNamesLaws, BuiltNamesAreCanonicalAndNormalisingThemChangesNothing)
{
    test_support::RandomCollationText random(1);
    for (int i = 0; i < 10000; ++i) {
        OptionDraw const o(random);
        TString const byName = Make(RandomParsableName(random), o.caseOpt, o.accentOpt, o.sortOpt, o.punctOpt);
        TString const byLocale = MakeICU(sampleLocales[random.Below(std::size(sampleLocales))], random.OneIn(2),
                                         o.caseOpt, o.accentOpt, o.sortOpt, o.punctOpt);
        for (TString const & name : {byName, byLocale}) {
            EXPECT_TRUE(IsCanonical(name)) << name;
            std::vector<TString> tokens = SplitCollatorName(name);
            NormalizeCollatorTokens({}, tokens);
            EXPECT_EQ(JoinCollatorTokens(tokens), name);
        }
    }
}

TEST(CollatorNamesLaws, ApplyingTheSameOptionsAgainChangesNothing)
{
    test_support::RandomCollationText random(2);
    for (int i = 0; i < 10000; ++i) {
        OptionDraw const o(random);
        TString const name = Make(RandomParsableName(random), o.caseOpt, o.accentOpt, o.sortOpt, o.punctOpt);
        EXPECT_EQ(Make(name, o.caseOpt, o.accentOpt, o.sortOpt, o.punctOpt), name);
    }
}

TEST(CollatorNamesLaws, BuiltNamesParseUnlessCaseFirstIsAsked)
{
    test_support::RandomCollationText random(3);
    test_support::RecordingLogger quiet;
    for (int i = 0; i < 10000; ++i) {
        TString const given = RandomParsableName(random);
        EXPECT_NO_THROW(ParseCollatorName(Make(given, 0, 0, 0, 0)));
        OptionDraw const o(random);
        TString const name = Make(given, 2 + random.Below(2), o.accentOpt, o.sortOpt, o.punctOpt);
        EXPECT_THAT([&] { ParseCollatorName(name); }, ThrowsError("StringException_AutoGen_0x5EA10C35"));
    }
    for (char const * locale : sampleLocales)
        EXPECT_EQ(ParseCollatorName(MakeICU(locale, false, 0, 0, 0, 0)).locale, locale);
}
