#include "velnls/LocaleInfo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "velcoreplatform/TString.h"
#include "velnls/LocaleNames.h"

namespace {

std::u16string Ask(LCID lcid, LCTYPE type)
{
    std::u16string text(static_cast<std::size_t>(GetLocaleInfoW(lcid, type, nullptr, 0)), u'?');
    int const written = GetLocaleInfoW(lcid, type, text.data(), static_cast<int>(text.size()));
    EXPECT_EQ(written, static_cast<int>(text.size()));
    if (text.empty())
        return u"(none)";
    EXPECT_EQ(text.back(), u'\0');
    text.pop_back();
    return text;
}

constexpr LCTYPE textQueries[] = {LOCALE_SLIST,      LOCALE_SDECIMAL,       LOCALE_STHOUSAND,       LOCALE_SGROUPING,
                                  LOCALE_SCURRENCY,  LOCALE_SMONDECIMALSEP, LOCALE_SMONTHOUSANDSEP, LOCALE_SMONGROUPING,
                                  LOCALE_SSHORTDATE, LOCALE_SLONGDATE,      LOCALE_SNAME,           LOCALE_SSHORTTIME,
                                  LOCALE_STIMEFORMAT};

struct NumberQuery
{
    LCTYPE type;
    int highest;
};
constexpr NumberQuery numberQueries[] = {{LOCALE_IMEASURE, 1},  {LOCALE_IDIGITS, 9},          {LOCALE_ICURRDIGITS, 9},
                                         {LOCALE_ICURRENCY, 3}, {LOCALE_IFIRSTWEEKOFYEAR, 2}, {LOCALE_INEGNUMBER, 4}};

std::vector<std::u16string> g_walked;

bool Collect(char16_t * lcid)
{
    g_walked.emplace_back(lcid);
    return true;
}

bool StopAtThird(char16_t * lcid)
{
    g_walked.emplace_back(lcid);
    return g_walked.size() < 3;
}

std::vector<std::u16string> Walk(std::uint32_t flags)
{
    g_walked.clear();
    EXPECT_TRUE(EnumSystemLocalesW(&Collect, flags));
    return g_walked;
}

}  // namespace

TEST(LocaleInfo, TheQueriesHaveTheirPublishedNumbers)
{
    EXPECT_EQ(LOCALE_SLIST, 0xCu);
    EXPECT_EQ(LOCALE_IMEASURE, 0xDu);
    EXPECT_EQ(LOCALE_SDECIMAL, 0xEu);
    EXPECT_EQ(LOCALE_STHOUSAND, 0xFu);
    EXPECT_EQ(LOCALE_SGROUPING, 0x10u);
    EXPECT_EQ(LOCALE_IDIGITS, 0x11u);
    EXPECT_EQ(LOCALE_SCURRENCY, 0x14u);
    EXPECT_EQ(LOCALE_SMONDECIMALSEP, 0x16u);
    EXPECT_EQ(LOCALE_SMONTHOUSANDSEP, 0x17u);
    EXPECT_EQ(LOCALE_SMONGROUPING, 0x18u);
    EXPECT_EQ(LOCALE_ICURRDIGITS, 0x19u);
    EXPECT_EQ(LOCALE_ICURRENCY, 0x1Bu);
    EXPECT_EQ(LOCALE_INEGCURR, 0x1Cu);
    EXPECT_EQ(LOCALE_SSHORTDATE, 0x1Fu);
    EXPECT_EQ(LOCALE_SLONGDATE, 0x20u);
    EXPECT_EQ(LOCALE_SNAME, 0x5Cu);
    EXPECT_EQ(LOCALE_SSHORTTIME, 0x79u);
    EXPECT_EQ(LOCALE_STIMEFORMAT, 0x1003u);
    EXPECT_EQ(LOCALE_IFIRSTWEEKOFYEAR, 0x100Du);
    EXPECT_EQ(LOCALE_INEGNUMBER, 0x1010u);
}

TEST(LocaleInfo, KnownAnswers)
{
    struct
    {
        LCID lcid;
        LCTYPE type;
        char16_t const * answer;
    } const rows[] = {
        {0x409, LOCALE_SNAME, u"en-US"},
        {0x409, LOCALE_SDECIMAL, u"."},
        {0x409, LOCALE_STHOUSAND, u","},
        {0x409, LOCALE_SLIST, u","},
        {0x409, LOCALE_SGROUPING, u"3;0"},
        {0x409, LOCALE_SMONGROUPING, u"3;0"},
        {0x409, LOCALE_SCURRENCY, u"$"},
        {0x409, LOCALE_ICURRENCY, u"0"},
        {0x409, LOCALE_INEGCURR, u"1"},
        {0x409, LOCALE_INEGNUMBER, u"1"},
        {0x409, LOCALE_ICURRDIGITS, u"2"},
        {0x409, LOCALE_IDIGITS, u"2"},
        {0x409, LOCALE_IMEASURE, u"1"},
        {0x409, LOCALE_IFIRSTWEEKOFYEAR, u"0"},
        {0x409, LOCALE_SSHORTDATE, u"M/d/yyyy"},
        {0x409, LOCALE_SLONGDATE, u"dddd, MMMM d, yyyy"},
        {0x409, LOCALE_STIMEFORMAT, u"h:mm:ss tt"},
        {0x409, LOCALE_SSHORTTIME, u"h:mm tt"},
        {0x407, LOCALE_SDECIMAL, u","},
        {0x407, LOCALE_STHOUSAND, u"."},
        {0x407, LOCALE_SLIST, u";"},
        {0x407, LOCALE_SCURRENCY, u"\u20AC"},
        {0x407, LOCALE_ICURRENCY, u"3"},
        {0x407, LOCALE_INEGCURR, u"8"},
        {0x407, LOCALE_IMEASURE, u"0"},
        {0x407, LOCALE_IFIRSTWEEKOFYEAR, u"2"},
        {0x407, LOCALE_SSHORTDATE, u"dd.MM.yyyy"},
        {0x407, LOCALE_SLONGDATE, u"dddd, d. MMMM yyyy"},
        {0x407, LOCALE_STIMEFORMAT, u"HH:mm:ss"},
        {0x809, LOCALE_IMEASURE, u"0"},
        {0x439, LOCALE_SGROUPING, u"3;2;0"},
        {0x411, LOCALE_ICURRDIGITS, u"0"},
        {0x411, LOCALE_SSHORTDATE, u"yyyy/MM/dd"},
        {0x411, LOCALE_SLONGDATE, u"yyyy'\u5E74'M'\u6708'd'\u65E5'dddd"},
        {0x413, LOCALE_INEGCURR, u"12"},  // the Netherlands
        {0x807, LOCALE_INEGCURR, u"2"},   // Switzerland
        {0x404, LOCALE_STIMEFORMAT, u"tth:mm:ss"},
        {0x404, LOCALE_SNAME, u"zh-TW"},
        {0x41E, LOCALE_SSHORTDATE, u"d/M/yyyy"},  // the Gregorian calendar
        {0x816, LOCALE_SLONGDATE, u"dddd, d 'de' MMMM 'de' yyyy"},
        {0x402, LOCALE_SSHORTDATE, u"d.MM.yyyy '\u0433'."},
        {0x401, LOCALE_SSHORTDATE, u"d/M/yyyy"},  // without marks of direction
        {9, LOCALE_SCURRENCY, u"$"},              // a language without a region has its likely one
        {7, LOCALE_SCURRENCY, u"\u20AC"},
        {0x7C04, LOCALE_SNAME, u"zh-Hant"},
        {0x10407, LOCALE_SNAME, u"de-DE_phoneb"},
        {0x10407, LOCALE_SDECIMAL, u","},
        {0x48C, LOCALE_SNAME, u"prs-AF"},
        {0x46B, LOCALE_SCURRENCY, u"Bs"},
        {0x467, LOCALE_SCURRENCY, u"\u20A6"},  // ff-NG, whose data ICU keeps as ff_Latn_NG
        // Without data of the language or script: the root locale, never the process's default.
        {0x47C, LOCALE_SLONGDATE, u"yyyy MMMM d, dddd"},
        {0x105F, LOCALE_SSHORTDATE, u"yyyy-MM-dd"},
        {0x466, LOCALE_SCURRENCY, u"NGN"},
    };
    for (auto const & row : rows)
        EXPECT_EQ(Ask(row.lcid, row.type), row.answer) << std::hex << row.lcid << ' ' << row.type;
}

TEST(LocaleInfo, EveryPublishedLocaleAnswersEveryQueryInItsForm)
{
    for (VelNLS::PublishedLocaleName const & row : VelNLS::GetPublishedLocaleNames()) {
        SCOPED_TRACE(row.name);
        for (LCTYPE const type : textQueries)
            EXPECT_NE(Ask(row.lcid, type), u"(none)") << std::hex << type;
        for (NumberQuery const & query : numberQueries) {
            std::u16string const answer = Ask(row.lcid, query.type);
            ASSERT_EQ(answer.size(), 1u) << std::hex << query.type;
            EXPECT_GE(answer[0], u'0');
            EXPECT_LE(answer[0], u'0' + query.highest);
        }
        std::uint32_t layout = 99;
        char16_t room[2];
        ASSERT_EQ(GetLocaleInfoW(row.lcid, LOCALE_INEGCURR | LOCALE_RETURN_NUMBER, room, 2), 2);
        std::memcpy(&layout, room, sizeof layout);
        EXPECT_LE(layout, 15u);
        EXPECT_NE(Ask(row.lcid, LOCALE_SSHORTDATE).find(u"yyyy"), std::u16string::npos);
        EXPECT_EQ(Ask(row.lcid, LOCALE_SSHORTDATE).find(u"yyyyy"), std::u16string::npos);
    }
}

TEST(LocaleInfo, AnAnswerLongerThanTheBufferIsAFailureAndWritesNothing)
{
    char16_t buffer[10];
    std::fill(std::begin(buffer), std::end(buffer), u'#');
    EXPECT_EQ(GetLocaleInfoW(0x409, LOCALE_SSHORTDATE, nullptr, 0), 9);
    EXPECT_EQ(GetLocaleInfoW(0x409, LOCALE_SSHORTDATE, buffer, 8), 0);
    EXPECT_EQ(buffer[0], u'#');
    EXPECT_EQ(GetLocaleInfoW(0x409, LOCALE_SSHORTDATE, buffer, 9), 9);
    EXPECT_EQ(std::u16string(buffer), u"M/d/yyyy");
    EXPECT_EQ(buffer[9], u'#');
    EXPECT_EQ(GetLocaleInfoW(0x409, LOCALE_SSHORTDATE, buffer, -1), 0);
    EXPECT_EQ(GetLocaleInfoW(0x409, LOCALE_SSHORTDATE, nullptr, 9), 0);

    char narrow[8];
    EXPECT_EQ(GetLocaleInfoA(0x409, LOCALE_SNAME, nullptr, 0), 6);
    EXPECT_EQ(GetLocaleInfoA(0x409, LOCALE_SNAME, narrow, 5), 0);
    EXPECT_EQ(GetLocaleInfoA(0x409, LOCALE_SNAME, narrow, 6), 6);
    EXPECT_STREQ(narrow, "en-US");
    EXPECT_EQ(GetLocaleInfoA(0x407, LOCALE_SCURRENCY, narrow, 8), 4);
    EXPECT_STREQ(narrow, "\xE2\x82\xAC");
    EXPECT_EQ(GetLocaleInfoA(0x407, LOCALE_SCURRENCY, narrow, -8), 0);
}

TEST(LocaleInfo, ANumberCanBeAskedForAsANumber)
{
    char16_t room[2] = {};
    std::uint32_t number = 0;
    EXPECT_EQ(GetLocaleInfoW(0x407, LOCALE_INEGCURR | LOCALE_RETURN_NUMBER, nullptr, 0), 2);
    EXPECT_EQ(GetLocaleInfoW(0x407, LOCALE_INEGCURR | LOCALE_RETURN_NUMBER, room, 1), 0);
    EXPECT_EQ(GetLocaleInfoW(0x407, LOCALE_INEGCURR | LOCALE_RETURN_NUMBER | LOCALE_NOUSEROVERRIDE, room, 2), 2);
    std::memcpy(&number, room, sizeof number);
    EXPECT_EQ(number, 8u);
    EXPECT_EQ(GetLocaleInfoA(0x413, LOCALE_INEGCURR | LOCALE_RETURN_NUMBER, reinterpret_cast<char *>(&number), 4), 4);
    EXPECT_EQ(number, 12u);
    EXPECT_EQ(GetLocaleInfoW(0x407, LOCALE_SDECIMAL | LOCALE_RETURN_NUMBER, room, 2), 0);
}

TEST(LocaleInfo, UnknownQueriesAndLocalesAreRefused)
{
    for (LCTYPE const type : {0u, 0x1u, 0x5Bu, 0x1FFFu, 0x100Cu})
        EXPECT_EQ(GetLocaleInfoW(0x409, type, nullptr, 0), 0) << type;
    for (LCID lcid : {0xFFFFu, 0xFFFFFFFFu, 0x3FFu, 0x80409u})
        EXPECT_EQ(GetLocaleInfoW(lcid, LOCALE_SDECIMAL, nullptr, 0), 0) << lcid;
}

TEST(LocaleInfo, TheDefaultsStandForTheUsersLocale)
{
    EXPECT_EQ(GetUserDefaultLCID(), 0x409u);
    for (LCID lcid : {127u, 1024u, 2048u, 3072u, 4096u, 5120u}) {
        EXPECT_EQ(ConvertDefaultLocale(lcid), 0x409u) << lcid;
        EXPECT_EQ(Ask(lcid, LOCALE_SNAME), u"en-US") << lcid;
    }
    for (LCID lcid : {0u, 9u, 0x407u, 126u, 1023u, 1025u, 0xFFFFFFFFu})
        EXPECT_EQ(ConvertDefaultLocale(lcid), lcid);
    EXPECT_EQ(Ask(0, LOCALE_SNAME), u"en-US");
}

TEST(LocaleInfo, TheWalkIsInAscendingOrderAndLeavesOutWhatAUserCannotChoose)
{
    std::vector<std::u16string> const lcids = Walk(LCID_SUPPORTED);
    ASSERT_GT(lcids.size(), 230u);
    EXPECT_EQ(lcids.front(), u"00000401");
    EXPECT_TRUE(std::is_sorted(lcids.begin(), lcids.end()));
    std::set<std::u16string> const all(lcids.begin(), lcids.end());
    for (char16_t const * in : {u"00000409", u"00000804", u"0000241a", u"00006009", u"00006409", u"00000460"})
        EXPECT_EQ(all.count(in), 1u) << TString(in).toStdString();
    for (char16_t const * out : {u"00000009", u"00007804", u"0000781a", u"00000501", u"000009ff", u"00000811",
                                 u"00004401", u"0001007f", u"00010407", u"0000641a", u"00000400"})
        EXPECT_EQ(all.count(out), 0u) << TString(out).toStdString();

    EXPECT_EQ(Walk(LCID_INSTALLED), lcids);
    std::vector<std::u16string> const withSorts = Walk(LCID_SUPPORTED | LCID_ALTERNATE_SORTS);
    EXPECT_TRUE(std::equal(lcids.begin(), lcids.end(), withSorts.begin()));
    EXPECT_EQ(std::count(withSorts.begin(), withSorts.end(), u"00010407"), 1);
    EXPECT_EQ(std::count(withSorts.begin(), withSorts.end(), u"0001007f"), 0);
}

TEST(LocaleInfo, TheWalkEndsWhenTheCallbackSaysSoOrThrows)
{
    g_walked.clear();
    EXPECT_TRUE(EnumSystemLocalesW(&StopAtThird, LCID_SUPPORTED));
    EXPECT_EQ(g_walked.size(), 3u);
    EXPECT_THROW(EnumSystemLocalesW([](char16_t *) -> bool { throw 1; }, LCID_SUPPORTED), int);
    g_walked.clear();
    EXPECT_FALSE(EnumSystemLocalesW(nullptr, LCID_SUPPORTED));
    for (std::uint32_t flags : {0u, LCID_ALTERNATE_SORTS, 8u | LCID_SUPPORTED})
        EXPECT_FALSE(EnumSystemLocalesW(&Collect, flags)) << flags;
    EXPECT_TRUE(g_walked.empty());
}
