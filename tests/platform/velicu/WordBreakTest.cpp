#include "velicu/WordBreak.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace VelICU_V2 {

namespace {

std::vector<int> Boundaries(ICUBreakType type, char const * locale, std::string const & utf8, bool wordsOnly)
{
    ICUErrorCode status = U_ZERO_ERROR;
    ICUText * const text = t_utext_openUTF8(nullptr, utf8.data(), static_cast<std::int64_t>(utf8.size()), status);
    ICUBreakIterator * const iterator = t_ubrk_open(type, locale, nullptr, 0, status);
    t_ubrk_setUText(iterator, text, status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    std::vector<int> result;
    for (int at = t_ubrk_next(iterator); at != ICU_BREAK_DONE; at = t_ubrk_next(iterator))
        if (!wordsOnly || t_ubrk_getRuleStatus(iterator) != 0)
            result.push_back(at);
    t_ubrk_close(iterator);
    t_utext_close(text);
    return result;
}

}  // namespace

TEST(WordBreak, WordsEndWhereTheirBytesEnd)
{
    EXPECT_EQ((std::vector<int>{6, 7, 8, 13}), Boundaries(UBRK_WORD, "en", "gr\xC3\xBC\xC3\x9F, hello", false));
    EXPECT_EQ((std::vector<int>{6, 13}), Boundaries(UBRK_WORD, "en", "gr\xC3\xBC\xC3\x9F, hello", true));
}

TEST(WordBreak, ThaiWordsAreFoundByDictionary)
{
    EXPECT_EQ(2u, Boundaries(UBRK_WORD, "th",
                             "\xE0\xB8\xAA\xE0\xB8\xA7\xE0\xB8\xB1\xE0\xB8\xAA\xE0\xB8\x94\xE0\xB8\xB5"
                             "\xE0\xB8\x84\xE0\xB8\xA3\xE0\xB8\xB1\xE0\xB8\x9A",
                             true)
                      .size());
}

TEST(WordBreak, KindsOfBreaksDiffer)
{
    EXPECT_EQ(3u, Boundaries(UBRK_CHARACTER, "en", "abc", false).size());
    EXPECT_EQ(2u, Boundaries(UBRK_SENTENCE, "en", "One. Two.", false).size());
    EXPECT_EQ(2u, Boundaries(UBRK_LINE, nullptr, "One two", false).size());
}

TEST(WordBreak, AnIteratorOverUtf16GivesItsIndexes)
{
    ICUErrorCode status = U_ZERO_ERROR;
    ICUBreakIterator * const iterator = t_ubrk_open(UBRK_WORD, "en", u"\u00FC x", 3, status);
    ASSERT_TRUE(ICU_SUCCESS(status));
    EXPECT_EQ(1, t_ubrk_next(iterator));
    t_ubrk_close(iterator);
}

TEST(WordBreak, NullHandlesFailQuietly)
{
    ICUErrorCode status = U_ZERO_ERROR;
    t_ubrk_setUText(nullptr, nullptr, status);
    EXPECT_EQ(U_ILLEGAL_ARGUMENT_ERROR, status);
    t_ubrk_close(nullptr);
    t_utext_close(nullptr);
    EXPECT_EQ(nullptr, t_utext_openUTF8(nullptr, "x", 1, status));
    EXPECT_EQ(nullptr, t_ubrk_open(UBRK_WORD, "en", nullptr, 0, status));
}

}  // namespace VelICU_V2
