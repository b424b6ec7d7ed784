#include "velcoredata/core/LanguageCode.h"

#include <gtest/gtest.h>

#include "main/core/BiDiPseudoOption.h"
#include "main/core/LanguageTables.h"
#include "tests/support/MemorySettings.h"
#include "velcoredata/core/LanguageUtils.h"

namespace {

struct BiDiPseudoScope
{
    BiDiPseudoScope() { CoreData::detail::SetUseBiDiPseudo(true); }
    ~BiDiPseudoScope() { CoreData::detail::SetUseBiDiPseudo(false); }
};

}  // namespace

TEST(LanguageCode, Texts)
{
    struct
    {
        char16_t const * text;
        char16_t const * isoString;
        char16_t const * market;
        LCID lcid;
        char16_t const * full;
        char16_t const * web;
    } const rows[] = {
        {u"de", u"de_DE", u"EU", 0x407, u"de_DE-EU", u"de-de"},
        {u"de_DE-EU", u"de_DE", u"EU", 0x407, u"de_DE-EU", u"de-de"},
        {u"en", u"en_US", u"US", 0x409, u"en_US-US", u"en-us"},
        {u"en_US-APAC", u"en_US", u"APAC", 0x409, u"en_US-APAC", u"en-us"},
        {u"en_US-EU", u"en_GB", u"EU", 0x809, u"en_GB-EU", u"en-gb"},
        {u"de_AT", u"de_AT", u"EU", 0xC07, u"de_AT-EU", u"de-at"},
        {u"de_AT-X-Y", u"de_AT", u"X-Y", 0xC07, u"de_AT-X-Y", u"de-at"},
        {u"zh_Hant_TW", u"zh_TW", u"China", 0x404, u"zh_TW-China", u"zh-tw"},
        {u"zh_TW-APAC", u"zh_TW", u"APAC", 0x404, u"zh_TW-APAC", u"zh-tw"},
        {u"sv_SE", u"sv_SE", u"", 0x41D, u"sv_SE", u"sv-se"},
        {u"xx_YY-EU", u"root", u"EU", 0, u"root-EU", u"root"},
        {u"-EU", u"root", u"", 0, u"root", u"root"},
        {u"de_AT-", u"de_AT", u"EU", 0xC07, u"de_AT-EU", u"de-at"},  // an empty market is none
        {u"ar_YE-US", u"ar_YE", u"US", 0x2401, u"ar_YE-US", u"ar-ye"},
        {u"", u"", u"", 0, u"", u""},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(TString(row.text).toStdString());
        LanguageCode const code{TString(row.text)};
        EXPECT_EQ(code.GetISOString(), row.isoString);
        EXPECT_EQ(static_cast<TString const &>(code), row.isoString);
        EXPECT_EQ(code.GetMarketString(), row.market);
        EXPECT_EQ(code.GetLCID(), row.lcid);
        EXPECT_EQ(code.GetFullString(), row.full);
        EXPECT_EQ(code.GetWebLanguageCode(), row.web);
        EXPECT_EQ(code.GetShortLanguageCode(), TString(row.isoString).left(2));
    }
}

TEST(LanguageCode, AnLcidStaysAsItIsGiven)
{
    EXPECT_EQ(LanguageCode().GetLCID(), 1024u);
    EXPECT_EQ(LanguageCode().GetISOString(), u"en_US");
    EXPECT_EQ(LanguageCode().GetMarketString(), u"US");
    for (LCID lcid : {0u, 7u, 127u, 1024u, 2048u, 4096u, 0x407u, 0x10407u, 0xFFFFu, 0xFFFFFFFFu})
        EXPECT_EQ(LanguageCode(lcid).GetLCID(), lcid);
    EXPECT_EQ(LanguageCode(LCID(7)).GetISOString(), u"de_DE");  // by the table of supported codes
    EXPECT_EQ(LanguageCode(LCID(0)).GetISOString(), u"root");
    EXPECT_EQ(LanguageCode(LCID(4096)).GetISOString(), u"ar_YE");
    EXPECT_EQ(LanguageCode(LCID(0x10407)).GetLangID(), 0x407);
}

TEST(LanguageCode, FromAnLcidTheNameIsNotMadeCanonical)
{
    LanguageCode code(LCID(0x41D));
    code.SetLanguageCode(u"zh_Hant_TW", true);
    EXPECT_EQ(code.GetISOString(), u"zh_Hant_TW");
    EXPECT_EQ(code.GetMarketString(), u"China");
    EXPECT_EQ(code.GetLCID(), 0x41Du);
    code.SetLanguageCode(u"de", true);  // the table comes before all
    EXPECT_EQ(code.GetFullString(), u"de_DE-EU");
    EXPECT_EQ(code.GetLCID(), 0x41Du);
    code.SetLanguageCode(u"%2-%1", true);
    EXPECT_EQ(code.GetFullString(), u"%2-%1");
    code.SetLanguageCode(u"", true);
    EXPECT_EQ(code.GetLCID(), 0u);
    EXPECT_EQ(code.GetISOString(), u"");
    EXPECT_EQ(code.GetMarketString(), u"");
}

TEST(LanguageCode, MayBeSetFromItsOwnString)
{
    LanguageCode code{TString(u"de_AT")};
    code.SetLanguageCode(code.GetISOString(), false);
    EXPECT_EQ(code.GetFullString(), u"de_AT-EU");
    code.SetLanguageCode(code.GetMarketString(), false);
    EXPECT_EQ(code.GetISOString(), u"eu");  // which is Basque as well
}

TEST(LanguageCode, ThePseudoLocaleOfBidirectionalText)
{
    // The LCID 4096 takes the option and the full code.
    BiDiPseudoScope const scope;
    LanguageCode const pseudo{TString(u"ar_YE-US")};
    EXPECT_EQ(pseudo.GetLCID(), 4096u);
    EXPECT_EQ(pseudo.GetISOString(), u"ar_YE");
    EXPECT_EQ(pseudo.GetMarketString(), u"US");
    EXPECT_EQ(pseudo.GetWebLanguageCode(), u"ar-ye");
    EXPECT_EQ(LanguageCode(TString(u"ar_YE")).GetLCID(), 0x2401u);
    EXPECT_EQ(LanguageCode(TString(u"de")).GetLCID(), 0x407u);
    EXPECT_EQ(LanguageCode(TString(u"de")).GetWebLanguageCode(), u"de-de");
}

TEST(LanguageCode, NamesAndMaps)
{
    LanguageCode const code{TString(u"de_DE-EU")};
    EXPECT_EQ(code.GetCountryName(), u"DE");
    EXPECT_EQ(code.GetLanguageName(), u"de");
    EXPECT_EQ(code.GetDisplayName(0x409), u"German (Germany)");
    EXPECT_EQ(code.GetDisplayName(0x407), u"Deutsch (Deutschland)");
    EXPECT_EQ(code.GetDisplayName(1024), u"German (Germany)");
    EXPECT_EQ(code.GetMapCode(), MapCodeUS);
    EXPECT_EQ(LanguageCode(TString(u"zh_CN")).GetMapCode(), MapCodeCN);
    EXPECT_EQ(LanguageCode(TString(u"hi_IN")).GetMapCode(), MapCodeIN);
    EXPECT_EQ(LanguageCode(TString()).GetCountryName(), u"");
}

TEST(LanguageCode, TheUserInterfaceLanguage)
{
    test_support::MemorySettings settings;
    settings.values[u"veltria/velcoredata/35/LanguageCode"] = u"fr_CA";
    EXPECT_EQ(LanguageCode::GetUILanguageCode().GetFullString(), u"fr_CA-USCA");
    EXPECT_EQ(LanguageCode::GetUILanguageCode().GetLCID(), 0xC0Cu);
}

TEST(LanguageCode, CopiesAreEqualAndApart)
{
    LanguageCode const original{TString(u"ja")};
    LanguageCode copy(original);
    EXPECT_EQ(copy.GetFullString(), u"ja_JP-Japan");
    copy.SetLCID(0x407);
    EXPECT_EQ(original.GetFullString(), u"ja_JP-Japan");
    copy = original;
    EXPECT_EQ(copy.GetLCID(), 0x411u);
}

// LanguageCode(x.GetFullString()) is x for every full code.
TEST(LanguageCode, FullStringsReadBack)
{
    for (TString const & full : LanguageUtils::GetSupportedLanguages()) {
        LanguageCode const code(full);
        LanguageCode const again(code.GetFullString());
        EXPECT_EQ(code.GetFullString(), full);
        EXPECT_EQ(again.GetISOString(), code.GetISOString());
        EXPECT_EQ(again.GetMarketString(), code.GetMarketString());
        EXPECT_EQ(again.GetLCID(), code.GetLCID());
    }
}
