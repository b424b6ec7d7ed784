#include "velcoredata/string/NumberFormatEncoding.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/RandomText.h"
#include "velcoredata/core/LanguageCode.h"
#include "velcoredata/core/LanguageUtils.h"

namespace {

using Decoded = std::tuple<FormatCode, LCID, TString>;

Decoded Decode(TString const & encoded)
{
    // The outputs are set whatever they held.
    FormatCode code = FormatCodePercent;
    LCID lcid = 99;
    TString format(u"before");
    DecodeFormatString(encoded, code, lcid, format);
    EXPECT_EQ(IsAutoFormatString(encoded), code == FormatCodeAuto);
    return {code, lcid, format};
}

Decoded Expect(FormatCode code, LCID lcid, char16_t const * format)
{
    return {code, lcid, TString(format)};
}

}  // namespace

TEST(NumberFormatEncoding, CodesAreTheirLetters)
{
    static_assert(sizeof(FormatCode) == 4);
    static_assert(FormatCodeAuto == 0 && FormatCodeNamed == 42 && FormatCodeSystemCurrency == 67 &&
                  FormatCodeLongDate == 76 && FormatCodeSystemNumber == 78 && FormatCodeShortDate == 83 &&
                  FormatCodeTime == 84 && FormatCodeCurrency == 99 && FormatCodeScientific == 101 &&
                  FormatCodeCodeI == 105 && FormatCodeNumber == 110 && FormatCodePercent == 112);
}

TEST(NumberFormatEncoding, WhatIsNoCodeIsAutomaticAndDropsTheText)
{
    for (char16_t const * const text : {u"", u"  ", u"\u3000\t", u"0.00", u"x", u"#,##0", u"E0", u"\u4E2D"})
        EXPECT_EQ(Decode(text), Expect(FormatCodeAuto, 0, u"")) << TString(text).toStdString();
}

TEST(NumberFormatEncoding, ACodeOfZeroKeepsItsText)
{
    EXPECT_EQ(Decode(TString(u"\0abc", 4)), Expect(FormatCodeAuto, 0, u"abc"));
}

TEST(NumberFormatEncoding, BlanksStandBeforeAndAfterTheLetter)
{
    EXPECT_EQ(Decode(u" \t\u3000n \u00A0#,##0 "), Expect(FormatCodeNumber, 0, u"#,##0 "));
    EXPECT_EQ(Decode(u"C 1033%"), Expect(FormatCodeSystemCurrency, 1033, u""));
}

TEST(NumberFormatEncoding, TheLanguageStandsBetweenTwoMarks)
{
    EXPECT_EQ(Decode(u"n#,##0"), Expect(FormatCodeNumber, 0, u"#,##0"));
    EXPECT_EQ(Decode(u"n!en_US!#,##0"), Expect(FormatCodeNumber, 1033, u"#,##0"));
    EXPECT_EQ(Decode(u"c!de_DE!"), Expect(FormatCodeCurrency, 1031, u""));
    EXPECT_EQ(Decode(u"i!de_DE!a!b!"), Expect(FormatCodeCodeI, 1031, u"a!b!"));
    // A short code and one that nobody knows.
    EXPECT_EQ(Decode(u"*!de!Named"), Expect(FormatCodeNamed, 1031, u"Named"));
    EXPECT_EQ(Decode(u"*!qq_QQ!Named"), Expect(FormatCodeNamed, 0, u"Named"));
}

TEST(NumberFormatEncoding, ALanguageNeedsMoreThanSixCharactersAndTwoMarksApart)
{
    EXPECT_EQ(Decode(u"n!de!xy"), Expect(FormatCodeNumber, 0, u"!de!xy"));   // six
    EXPECT_EQ(Decode(u"n!de!xyz"), Expect(FormatCodeNumber, 1031, u"xyz"));  // seven
    EXPECT_EQ(Decode(u"n!!en_US!x"), Expect(FormatCodeNumber, 0, u"!!en_US!x"));
    EXPECT_EQ(Decode(u"n!en_US#,##0"), Expect(FormatCodeNumber, 0, u"!en_US#,##0"));
    EXPECT_EQ(Decode(u"nen_US!#,##0!"), Expect(FormatCodeNumber, 0, u"en_US!#,##0!"));
}

TEST(NumberFormatEncoding, OtherCodesTakeTheMarksAsTheyAre)
{
    EXPECT_EQ(Decode(u"T!en_US!h"), Expect(FormatCodeTime, 0, u"!en_US!h"));
    EXPECT_EQ(Decode(u"p!en_US!0%"), Expect(FormatCodePercent, 0, u"!en_US!0%"));
    EXPECT_EQ(Decode(u"e!en_US!0"), Expect(FormatCodeScientific, 0, u"!en_US!0"));
}

TEST(NumberFormatEncoding, AScientificFormatGetsASmallLetter)
{
    EXPECT_EQ(Decode(u"e0.00E+00"), Expect(FormatCodeScientific, 0, u"0.00e+00"));
    EXPECT_EQ(Decode(u"eE+00E+00E-00E+0"), Expect(FormatCodeScientific, 0, u"e+00e+00E-00E+0"));
    EXPECT_EQ(Decode(u"p0.00E+00"), Expect(FormatCodePercent, 0, u"0.00E+00"));
}

TEST(NumberFormatEncoding, TheNumberOfALocaleIsDecimal)
{
    EXPECT_EQ(Decode(u"C1033%"), Expect(FormatCodeSystemCurrency, 1033, u""));
    EXPECT_EQ(Decode(u"L1031%%%"), Expect(FormatCodeLongDate, 1031, u""));
    EXPECT_EQ(Decode(u"N1031"), Expect(FormatCodeSystemNumber, 1031, u""));
    EXPECT_EQ(Decode(u"S"), Expect(FormatCodeShortDate, 0, u""));
    for (char16_t const * const text : {u"Sx%", u"S10%33", u"S4294967295%", u"S0x409%", u"S#,##0", u"S%"})
        EXPECT_EQ(Decode(text), Expect(FormatCodeShortDate, 0, u"")) << TString(text).toStdString();
    EXPECT_EQ(Decode(u"S-1%"), Expect(FormatCodeShortDate, 0xFFFFFFFF, u""));
}

TEST(NumberFormatEncoding, WritesWhatEachCodeStores)
{
    struct Case
    {
        FormatCode code;
        LCID lcid;
        char16_t const * expected;
    };
    for (auto const & [code, lcid, expected] : {
             Case{FormatCodeAuto, 1033, u""},
             Case{FormatCodeSystemCurrency, 0, u"C"},
             Case{FormatCodeSystemCurrency, 1033, u"C1033%"},
             Case{FormatCodeLongDate, 1031, u"L1031%"},
             Case{FormatCodeSystemNumber, 0xFFFFFFFF, u"N4294967295%"},
             Case{FormatCodeShortDate, 1031, u"S1031%"},
             Case{FormatCodeTime, 1033, u"Tf"},
             Case{FormatCodeScientific, 1033, u"ef"},
             Case{FormatCodePercent, 1033, u"pf"},
             Case{FormatCodeNumber, 0, u"nf"},
             Case{FormatCodeNumber, 1033, u"n!en_US!f"},
             Case{FormatCodeCurrency, 1031, u"c!de_DE!f"},
             Case{FormatCodeCodeI, 1031, u"i!de_DE!f"},
             Case{FormatCodeNamed, 1031, u"*!de_DE!f"},
             Case{static_cast<FormatCode>(u'x'), 1033, u"xf"},
         })
        EXPECT_EQ(EncodeFormatString(code, lcid, u"f"), TString(expected));
}

TEST(NumberFormatEncoding, TheFirstStepGivesAnyCharacterAsACode)
{
    EXPECT_EQ(GetFormatStringAndCodeFromEncodedFormatString(u" x  y "),
              std::make_pair(TString(u"y "), static_cast<FormatCode>(u'x')));
    EXPECT_EQ(GetFormatStringAndCodeFromEncodedFormatString(u" "), std::make_pair(TString(), FormatCodeAuto));
    EXPECT_EQ(GetFormatStringAndCodeFromEncodedFormatString(u"n  "), std::make_pair(TString(), FormatCodeNumber));
}

TEST(NumberFormatEncoding, TheOutputMayBeTheInput)
{
    TString text(u"n!en_US!#,##0");
    FormatCode code;
    LCID lcid;
    DecodeFormatString(text, code, lcid, text);
    EXPECT_EQ(text, TString(u"#,##0"));
}

// The laws of the header, with random formats.
TEST(NumberFormatEncoding, DecodingGivesBackWhatWasEncoded)
{
    std::vector<LCID> lcids;
    for (TString const & language : LanguageUtils::GetSupportedLanguages())
        lcids.push_back(LanguageCode(language).GetLCID());
    ASSERT_GE(lcids.size(), 10u);

    test_support::RandomText random(35);
    static constexpr std::u16string_view pieces[] = {u"#,##0", u"0", u".00",   u"E+00", u"!", u"!en_US!",
                                                     u"%",     u" ", u"\"$\"", u";",    u"K", u"Percent"};
    int draws = 0;
    while (draws < 10000) {
        TString const format = TString::fromStdU16String(draws % 2 == 0 ? random.Any(12) : random.Of(pieces, 6));
        TString trimmed(format);
        if (trimmed.trimLeft() != format)
            continue;
        ++draws;
        LCID const lcid = lcids[random.Below(lcids.size())];
        for (auto const code : {FormatCodeCurrency, FormatCodeCodeI, FormatCodeNumber, FormatCodeNamed}) {
            ASSERT_EQ(Decode(EncodeFormatString(code, lcid, format)), Decoded(code, lcid, format));
            if (!format.startsWith(u"!")) {
                ASSERT_EQ(Decode(EncodeFormatString(code, 0, format)), Decoded(code, 0, format));
            }
        }
        for (auto const code :
             {FormatCodeSystemCurrency, FormatCodeLongDate, FormatCodeSystemNumber, FormatCodeShortDate}) {
            LCID const any = static_cast<LCID>(random.Generator()()) >> 1;
            ASSERT_EQ(Decode(EncodeFormatString(code, any, format)), Decoded(code, any, TString()));
        }
        for (auto const code : {FormatCodeTime, FormatCodePercent})
            ASSERT_EQ(Decode(EncodeFormatString(code, lcid, format)), Decoded(code, 0, format));
        if (!format.contains(TString(u"E+00"))) {
            ASSERT_EQ(Decode(EncodeFormatString(FormatCodeScientific, lcid, format)),
                      Decoded(FormatCodeScientific, 0, format));
        }
    }
}

TEST(NumberFormatEncoding, AMillionCharactersAreDecoded)
{
    TString const marks(u'!', 1000000);
    EXPECT_EQ(Decode(u'n' + marks), Decoded(FormatCodeNumber, 0, marks));
    TString const digits(u'1', 1000000);
    EXPECT_EQ(Decode(u'C' + digits), Decoded(FormatCodeSystemCurrency, 0, TString()));
    TString const language = u"!" + TString(u'a', 1000000) + u"!x";
    EXPECT_EQ(Decode(u'n' + language), Decoded(FormatCodeNumber, 0, TString(u"x")));
    TString scientific;
    for (int i = 0; i < 200000; ++i)
        scientific += u"E+00";
    EXPECT_EQ(Decode(u'e' + scientific), Decoded(FormatCodeScientific, 0, scientific.toLower()));
}
