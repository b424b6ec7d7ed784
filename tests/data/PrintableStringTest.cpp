#include "velcoredata/data/PrintableString.h"

#include <gtest/gtest.h>

#include "tests/support/RandomText.h"

namespace {

TEST(PrintableString, EscapesWhatIsNotPrintableAscii)
{
    struct Row
    {
        TString text;
        char const * printable;
    };
    Row const rows[] = {
        {u"", "\"\""},
        {u"abc ~", "\"abc ~\""},
        {u"\t", "\"\\t\""},
        {u"\n\r\\\"'", "\"\\n\\r\\\\\\\"\\'\""},
        {u"\u00E9", "\"\\x00E9\""},
        {u"\u007F", "\"\\x007F\""},
        {u"\u001F", "\"\\x001F\""},
        {TString(u"a\0b", 3), "\"a\\x0000b\""},
        {u"\u4E2D", "\"\\x4E2D\""},
        {u"\xD83D\xDE00", "\"\\xD83D\\xDE00\""},
        {TString(u"\xD83D", 1), "\"\\xD83D\""},
    };
    for (Row const & row : rows)
        EXPECT_EQ(toPrintableString(row.text), row.printable);
}

TEST(PrintableString, AnyTextBecomesPrintableAsciiInQuotes)
{
    test_support::RandomText random(51);
    for (int i = 0; i < 10'000; ++i) {
        std::string const out = toPrintableString(TString::fromStdU16String(random.Any(40)));
        ASSERT_GE(out.size(), 2u);
        ASSERT_EQ(out.front(), '"');
        ASSERT_EQ(out.back(), '"');
        for (char const c : out)
            ASSERT_TRUE(c >= 32 && c <= 126) << out;
    }
}

}  // namespace
