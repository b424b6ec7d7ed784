#include "platform/nls/src/LocaleAnswers.h"

#include <gtest/gtest.h>

#include "velcoreplatform/TString.h"

using namespace VelNLS::detail;

TEST(LocaleAnswers, NegativeNumbers)
{
    struct
    {
        char16_t const * printed;
        int layout;
    } const rows[] = {{u"(1)", 0},    {u"-1", 1},       {u"\u22121", 1}, {u"\u200E-\u200E\u06F1", 1},
                      {u"- 1,5", 2},  {u"-\u00A01", 2}, {u"1-", 3},      {u"1 -", 4},
                      {u"minus 1", 1}};
    for (auto const & row : rows)
        EXPECT_EQ(NegativeNumberLayout(row.printed), row.layout) << TString(row.printed);
}

TEST(LocaleAnswers, Amounts)
{
    struct
    {
        char16_t const * printed;
        char16_t const * symbol;
        int layout;
    } const rows[] = {{u"$1.00", u"$", 0},           {u"1,00\u20AC", u"\u20AC", 1},        {u"kr 1,00", u"kr", 2},
                      {u"1,00\u00A0kr.", u"kr.", 3}, {u"\u200F1.00 \u20AA", u"\u20AA", 3}, {u"1$00", u"\u200B", 0}};
    for (auto const & row : rows)
        EXPECT_EQ(CurrencyLayout(row.printed, row.symbol), row.layout) << TString(row.printed);
}

TEST(LocaleAnswers, NegativeAmountsInAllSixteenLayouts)
{
    char16_t const * const printed[] = {u"($1.1)", u"-$1.1",  u"$-1.1",   u"$1.1-",  u"(1.1$)", u"-1.1$",
                                        u"1.1-$",  u"1.1$-",  u"-1.1 $",  u"-$ 1.1", u"1.1 $-", u"$ 1.1-",
                                        u"$ -1.1", u"1.1- $", u"($ 1.1)", u"(1.1 $)"};
    for (int layout = 0; layout < 16; ++layout)
        EXPECT_EQ(NegativeCurrencyLayout(printed[layout], u"$"), layout);
    EXPECT_EQ(NegativeCurrencyLayout(u"-\u200Fkr\u00A01,00", u"kr"), 9);
    EXPECT_EQ(NegativeCurrencyLayout(u"\u2212kr 1,00", u"kr"), 9);
    EXPECT_EQ(NegativeCurrencyLayout(u"no amount", u"$"), 1);
}

TEST(LocaleAnswers, PicturesInTheNotationOfWindows)
{
    struct
    {
        char16_t const * pattern;
        char16_t const * picture;
    } const rows[] = {
        {u"M/d/yy", u"M/d/yyyy"},
        {u"EEEE, d 'de' MMMM 'de' y", u"dddd, d 'de' MMMM 'de' yyyy"},
        {u"EEE dd LLL u", u"ddd dd MMM yyyy"},
        {u"cccc d. MMMMM y G", u"dddd d. MMMM yyyy gg"},
        {u"h:mm:ss\u202Fa", u"h:mm:ss tt"},
        {u"Bh:mm", u"tth:mm"},
        {u"kk.mm KK bbbb", u"HH.mm hh tt"},
        {u"d\u200F/M\u200F/y", u"d/M/yyyy"},
        {u"y\u5E74M\u6708d\u65E5", u"yyyy'\u5E74'M'\u6708'd'\u65E5'"},
        {u"d 'd''octubre' y", u"d 'd''octubre' yyyy"},
        {u"d ''yy", u"d ''''yyyy"},
        {u"H 'h' mm", u"H 'h' mm"},
        {u"y('e')'ko' MMMM", u"yyyy('e)ko' MMMM"},
        {u"HH:mm zzzz", u"HH:mm "},
        {u"'open", u"'open'"},
        {u"", u""},
    };
    for (auto const & row : rows)
        EXPECT_EQ(TString::fromStdU16String(WindowsPicture(row.pattern)), row.picture) << TString(row.pattern);
}
