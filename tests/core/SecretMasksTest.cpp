// ObfuscateSecretsInString: its rules, and that masking by hand is masking by the patterns.
#include <gtest/gtest.h>

#include <chrono>

#include "main/core/SecretMasks.h"
#include "tests/support/RandomText.h"
#include "velcoredata/core/StringUtils.h"

namespace {

TString T(std::u16string const & text)
{
    return TString::fromStdU16String(text);
}

std::u16string_view const pieces[] = {u"PASSWORD=",   u"password=", u"PassWord=",
                                      u"PWD=",        u"pwd=",      u"TOKEN=",
                                      u"token=",      u"RTK=",      u"rtk=",
                                      u"=",           u";",         u" ",
                                      u"\n",          u"\t",        u"\u00A0",
                                      u"\u0085",      u"\u2028",    u"\u3000",
                                      u"\u1680",      u"\u180E",    u"\u200B",
                                      u"\uFEFF",      u"abc",       u"X9",
                                      u"-._~+/",      u"*",         u"&",
                                      u"\u00E9",      u"\u017F",    u"\u212A",
                                      u"PAS",         u"SWORD=",    u"PW",
                                      u"D=",          u"TOKE",      u"N=",
                                      u"RT",          u"K=",        u"PA\u017F\u017FWORD=",
                                      u"TO\u212AEN=", u"\u4E2D",    u"\U0001F600",
                                      u"@WD=",        u"P7D=",      u",",
                                      u"_",           u"[TOKEN]=",  u"s3cr3t;"};

std::u16string_view const withoutGrowth[] = {u"PASSWORD=", u"pwd=",   u"Password=", u"PWD=",  u"=",  u";",
                                             u" ",         u"\n",     u"abc",       u"X9",    u"*",  u"&",
                                             u"\u00E9",    u"\u00A0", u"PAS",       u"WORD=", u"PW", u"D="};

}  // namespace

TEST(ObfuscateSecretsInString, MasksFourKeyWordsInAnyCase)
{
    struct
    {
        char16_t const * text;
        char16_t const * masked;
    } const rows[] = {
        {u"password=abc def", u"PASSWORD=******** def"},
        {u"PASSWORD=a;UID=b", u"PASSWORD=********"},
        {u"x;Pwd=a\u3000b", u"x;PWD=********\u3000b"},
        {u"token=a-b._~+/9;rest", u"TOKEN=********rest"},
        {u"token=abc", u"token=abc"},
        {u"token=a,b;", u"token=a,b;"},
        {u"rtk=abc9-x", u"RTK=********-x"},
        {u"rtk=", u"RTK=********"},
        {u"rtk=rtk=abc", u"RTK=********=abc"},
        {u"nothing here", u"nothing here"},
        {u"a=b;c=d", u"a=b;c=d"},
        {u"", u""},
        {u"mypassword=a", u"myPASSWORD=********"},
        {u"token=a;token=b;rtk=c pwd=d password=e",
         u"TOKEN=********TOKEN=********RTK=******** PWD=******** PASSWORD=********"},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(ObfuscateSecretsInString(row.text), row.masked);
        EXPECT_EQ(detail::ObfuscateSecretsByPatterns(row.text), row.masked);
    }
}

TEST(ObfuscateSecretsInString, AMaskedRtkGrowsWhenMaskedAgain)
{
    EXPECT_EQ(ObfuscateSecretsInString(u"RTK=********"), u"RTK=****************");
}

TEST(ObfuscateSecretsInString, DropsWhatFollowsAZeroOnceAKeyWordStandsThere)
{
    TString const zero(u'\0', 1);
    EXPECT_EQ(ObfuscateSecretsInString(TString(u"pwd=a") + zero + u"b"), u"PWD=********");
    EXPECT_EQ(ObfuscateSecretsInString(TString(u"a") + zero + u"pwd=b"), u"a");
    EXPECT_EQ(ObfuscateSecretsInString(TString(u"a=b") + zero + u"c"), TString(u"a=b") + zero + u"c");
}

TEST(ObfuscateSecretsInString, ByHandIsByPatterns)
{
    test_support::RandomText random(4200);
    for (int draw = 0; draw < 60'000; ++draw) {
        std::u16string text = draw % 3 == 0 ? random.Any(60) : random.Of(pieces, 16);
        if (draw % 3 == 0)
            text.insert(random.Below(text.size() + 1), random.Of(pieces, 3));
        if (draw % 50 == 0)
            text.insert(random.Below(text.size() + 1), 1, u'\0');
        ASSERT_EQ(ObfuscateSecretsInString(T(text)), detail::ObfuscateSecretsByPatterns(T(text))) << draw << T(text);
    }
}

TEST(ObfuscateSecretsInString, EveryCodeUnitEndsAValueByHandAsByPatterns)
{
    for (int c = 1; c <= 0xFFFF; ++c) {
        TString const unit(static_cast<char16_t>(c), 1);
        for (char16_t const * const start : {u"pwd=a", u"token=a", u"rtk=a"}) {
            if (c >= 0x300 && c % 8 != 0 && start[0] != u'p')
                continue;
            TString const text = start + unit + u"b;";
            ASSERT_EQ(ObfuscateSecretsInString(text), detail::ObfuscateSecretsByPatterns(text)) << c;
        }
    }
}

TEST(ObfuscateSecretsInString, IsIdempotentWithoutTokenAndRtk)
{
    test_support::RandomText random(42);
    for (int draw = 0; draw < 10'000; ++draw) {
        TString const text = T(random.Of(withoutGrowth, 14));
        TString const once = ObfuscateSecretsInString(text);
        ASSERT_EQ(ObfuscateSecretsInString(once), once) << draw;
    }
}

TEST(ObfuscateSecretsInString, NeverReturnsTheSecret)
{
    char16_t const * const keys[] = {u"PASSWORD=", u"password=", u"PWD=", u"pwD=", u"RTK=", u"Rtk="};
    test_support::RandomText random(421);
    for (int draw = 0; draw < 10'000; ++draw) {
        TString const text = T(random.Of(pieces, 6)) + u" " + keys[random.Below(std::size(keys))] + u"S3cretQ7" +
                             T(random.Of(pieces, 6));
        ASSERT_FALSE(ObfuscateSecretsInString(text).contains(TString(u"S3cretQ7"))) << draw << text;
    }
}

TEST(ObfuscateSecretsInString, LooksAtAHugeTextInBoundedTime)
{
    auto const before = std::chrono::steady_clock::now();
    std::u16string huge;
    while (huge.size() < 10'000'000)
        huge += u"token=aaaaaaaaaaaaaa rtk=x";
    TString const text = T(huge);
    EXPECT_FALSE(ObfuscateSecretsInString(text).isEmpty());
    EXPECT_EQ(ObfuscateSecretsInString(u"token=" + TString(u'a', 10'000'000)).length(), 10'000'006);
    EXPECT_EQ(detail::ObfuscateSecretsByPatterns(u"token=" + TString(u'a', 10'000'000)).length(), 10'000'006);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(60));
}
