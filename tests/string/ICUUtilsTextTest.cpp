#include <thread>
#include <vector>

#include "tests/support/AllocationCounter.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/string/ICUUtils.h"
#include "velicu/ScopedStatusFault.h"

namespace {

using VelICU::ScopedStatusFault;

TString Repeated(TString const & text, int times)
{
    TString result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

}  // namespace

TEST(ICUUtilsText, BlanksAndPunctuationAreNoWords)
{
    EXPECT_EQ(0, ICUUtils::CountWords(TString(), "en"));
    EXPECT_EQ(0, ICUUtils::CountWords(u" ,.;! ", "en"));
    EXPECT_EQ(2, ICUUtils::CountWords(u"  one , two  ", "en"));
    EXPECT_EQ(3, ICUUtils::CountWords(u"it's 3.14 times", "en"));
    EXPECT_EQ(1, ICUUtils::CountWords(u"gr\u00FC\u00DF", "de"));
}

TEST(ICUUtilsText, WordsAreFoundInTheLocalesWay)
{
    EXPECT_EQ(2, ICUUtils::CountWords(u"\u0E2A\u0E27\u0E31\u0E2A\u0E14\u0E35\u0E04\u0E23\u0E31\u0E1A", "th"));
    EXPECT_EQ(1, ICUUtils::CountWords(u"hello", ""));
    EXPECT_EQ(1, ICUUtils::CountWords(u"hello", "no_such_locale"));
}

TEST(ICUUtilsText, AFailureCountsNoWords)
{
    for (int operation = 0; operation < 3; ++operation) {
        ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR, operation);
        EXPECT_EQ(0, ICUUtils::CountWords(u"one two", "en")) << operation;
        EXPECT_TRUE(fault.HasStruck());
    }
}

TEST(ICUUtilsText, FoldingTakesTheTurkicOption)
{
    EXPECT_EQ(TString(u"strasse i"), ICUUtils::StrFoldCase(u"Stra\u00DFe I", false));
    EXPECT_EQ(TString(u"strasse \u0131"), ICUUtils::StrFoldCase(u"Stra\u00DFe I", true));
    EXPECT_EQ(TString(), ICUUtils::StrFoldCase(TString(), false));
    EXPECT_EQ(TString(u"a\0b", 3), ICUUtils::StrFoldCase(TString(u"A\0B", 3), false));
    EXPECT_EQ(TString(u"\xD800"), ICUUtils::StrFoldCase(u"\xD800", false));
}

TEST(ICUUtilsText, UpperCaseFollowsTheLocale)
{
    EXPECT_EQ(TString(u"STRASSE"), ICUUtils::StrToUpper(u"stra\u00DFe", "de"));
    EXPECT_EQ(TString(u"\u0130I"), ICUUtils::StrToUpper(u"i\u0131", "tr"));
    EXPECT_EQ(TString(u"I"), ICUUtils::StrToUpper(u"i", nullptr));
    EXPECT_EQ(TString(), ICUUtils::StrToUpper(TString(), "en"));
}

TEST(ICUUtilsText, LongTextsAreConvertedAsShortOnes)
{
    for (int length : {1, 254, 255, 256, 257, 300, 5000}) {
        EXPECT_EQ(TString(u'A', length), ICUUtils::StrToUpper(TString(u'a', length), "en")) << length;
        EXPECT_EQ(TString(u'a', length), ICUUtils::StrFoldCase(TString(u'A', length), false)) << length;
    }
    EXPECT_EQ(Repeated(u"SS", 300), ICUUtils::StrToUpper(TString(u'\u00DF', 300), "de"));
    EXPECT_EQ(Repeated(u"SS", 200), ICUUtils::StrToUpper(TString(u'\u00DF', 200), "de"));
}

TEST(ICUUtilsText, ShortTextsTakeNoHeapButForTheResult)
{
    TString const shortText(u'a', 255);
    TString const longText(u'a', 256);
    ICUUtils::StrToUpper(shortText, "en");
    ICUUtils::StrFoldCase(shortText, false);
    AllocationCounter allocations;
    TString const upper = ICUUtils::StrToUpper(shortText, "en");
    EXPECT_EQ(1u, allocations.Count());
    allocations.Reset();
    TString const folded = ICUUtils::StrFoldCase(shortText, false);
    EXPECT_EQ(1u, allocations.Count());
    allocations.Reset();
    TString const longUpper = ICUUtils::StrToUpper(longText, "en");
    EXPECT_EQ(2u, allocations.Count());
}

TEST(ICUUtilsText, AFailureGivesTheTextBack)
{
    // With the first operation failing there is no length, with the second no text.
    for (int length : {10, 300})
        for (int operation : {0, 1}) {
            TString const text(u'a', length);
            {
                ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR, operation);
                EXPECT_EQ(text, ICUUtils::StrToUpper(text, "en"));
                EXPECT_TRUE(fault.HasStruck());
            }
            TString const upper(u'A', length);
            ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR, operation);
            EXPECT_EQ(upper, ICUUtils::StrFoldCase(upper, false));
        }
}

TEST(ICUUtilsText, ThreadsAnswerAsOneThreadDoes)
{
    std::vector<std::thread> running;
    std::vector<int> wrong(8);
    for (std::size_t t = 0; t < wrong.size(); ++t)
        running.emplace_back([&wrong, t] {
            for (int i = 0; i < 200; ++i) {
                if (ICUUtils::CountWords(u"one, two three", "en") != 3)
                    ++wrong[t];
                if (!(ICUUtils::StrToUpper(u"stra\u00DFe", "de") == u"STRASSE"))
                    ++wrong[t];
            }
        });
    for (std::thread & thread : running)
        thread.join();
    EXPECT_EQ(std::vector<int>(8), wrong);
}
