#include "velcoredata/string/StandardNumberFormats.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/ErrorMatchers.h"

TEST(StandardNumberFormats, HaveThatManyZerosBehindThePoint)
{
    EXPECT_EQ(GetPercentFormatStringOfSize(0), TString(u"0%"));
    EXPECT_EQ(GetPercentFormatStringOfSize(1), TString(u"0.0%"));
    EXPECT_EQ(GetPercentFormatStringOfSize(3), TString(u"0.000%"));
    EXPECT_EQ(GetScientificFormatStringOfSize(0), TString(u"0e+00"));
    EXPECT_EQ(GetScientificFormatStringOfSize(2), TString(u"0.00e+00"));
}

TEST(StandardNumberFormats, FewerThanNoDecimalsAreNone)
{
    for (int const decimals : {-1, -17, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(GetPercentFormatStringOfSize(decimals), TString(u"0%"));
        EXPECT_EQ(GetScientificFormatStringOfSize(decimals), TString(u"0e+00"));
    }
}

// The laws of the header.
TEST(StandardNumberFormats, DecimalsReadBackUpToSixteen)
{
    for (int n = 0; n <= 16; ++n) {
        EXPECT_EQ(GetDecimalsFromPercentString(GetPercentFormatStringOfSize(n), 77), std::make_pair(n, false));
        EXPECT_EQ(GetDecimalsFromScientificString(GetScientificFormatStringOfSize(n), 77), n);
    }
    for (int const n : {17, 18, 1000}) {
        EXPECT_EQ(GetDecimalsFromPercentString(GetPercentFormatStringOfSize(n), 77), std::make_pair(77, true));
        EXPECT_EQ(GetDecimalsFromScientificString(GetScientificFormatStringOfSize(n), 77), 77);
    }
}

TEST(StandardNumberFormats, OtherTextsGiveTheDefault)
{
    for (char16_t const * const text : {u"", u"0", u" 0%", u"0% ", u"0.%", u"0.0e+0", u"0.00E+00", u"#,##0%"}) {
        EXPECT_EQ(GetDecimalsFromPercentString(text, -5), std::make_pair(-5, true));
        EXPECT_EQ(GetDecimalsFromScientificString(text, -5), -5);
    }
    EXPECT_EQ(GetDecimalsFromPercentString(u"0.0e+00", 3), std::make_pair(3, true));
    EXPECT_EQ(GetDecimalsFromScientificString(u"0.0%", 3), 3);
}
