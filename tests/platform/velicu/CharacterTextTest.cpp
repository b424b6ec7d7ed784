#include "velicu/CharacterText.h"

#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include <string>

namespace VelICU_V2 {

namespace {

template <class Convert>
std::u16string Converted(std::u16string const & text, Convert convert)
{
    ICUErrorCode status = U_ZERO_ERROR;
    int const length = convert(nullptr, 0, text.data(), static_cast<int>(text.size()), status);
    std::u16string result(static_cast<std::size_t>(length), u'?');
    status = U_ZERO_ERROR;
    convert(result.data(), length, text.data(), static_cast<int>(text.size()), status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    return result;
}

std::u16string Folded(std::u16string const & text, unsigned options)
{
    return Converted(text, [=](char16_t * to, int room, char16_t const * from, int length, ICUErrorCode & status) {
        return t_u_strFoldCase(to, room, from, length, options, status);
    });
}

std::u16string Upper(std::u16string const & text, char const * locale)
{
    return Converted(text, [=](char16_t * to, int room, char16_t const * from, int length, ICUErrorCode & status) {
        return t_u_strToUpper(to, room, from, length, locale, status);
    });
}

std::u16string Lower(std::u16string const & text, char const * locale)
{
    return Converted(text, [=](char16_t * to, int room, char16_t const * from, int length, ICUErrorCode & status) {
        return t_u_strToLower(to, room, from, length, locale, status);
    });
}

}  // namespace

TEST(CharacterText, CaseFollowsTheLocale)
{
    EXPECT_EQ(u"ISTANBUL", Upper(u"istanbul", "en_US"));
    EXPECT_EQ(u"\u0130STANBUL", Upper(u"istanbul", "tr"));
    EXPECT_EQ(u"STRASSE", Upper(u"stra\u00DFe", "de"));
    EXPECT_EQ(u"\u0131", Lower(u"I", "tr"));
    EXPECT_EQ(u"i", Lower(u"I", ""));
    EXPECT_EQ(u"I", Upper(u"i", nullptr));
}

TEST(CharacterText, FoldingTakesTheTurkicOption)
{
    EXPECT_EQ(u"i", Folded(u"I", 0));
    EXPECT_EQ(u"\u0131", Folded(u"I", 1));
    EXPECT_EQ(u"ss", Folded(u"\u00DF", 0));
}

TEST(CharacterText, ABufferTooSmallTellsTheLength)
{
    ICUErrorCode status = U_ZERO_ERROR;
    char16_t small[2];
    EXPECT_EQ(7, t_u_strToUpper(small, 2, u"stra\u00DFe", -1, "de", status));
    EXPECT_EQ(U_BUFFER_OVERFLOW_ERROR, status);
}

TEST(CharacterText, WhiteSpaceIsIcus)
{
    EXPECT_TRUE(t_u_isWhitespace(U' '));
    EXPECT_TRUE(t_u_isWhitespace(U'\u3000'));
    EXPECT_TRUE(t_u_isWhitespace(U'\u2028'));
    EXPECT_FALSE(t_u_isWhitespace(U'\u00A0'));
    EXPECT_FALSE(t_u_isWhitespace(U'a'));
    for (char32_t c = 0; c < 0x11000; ++c)
        ASSERT_EQ(static_cast<bool>(u_isWhitespace(static_cast<UChar32>(c))), t_u_isWhitespace(c))
            << static_cast<unsigned>(c);
}

}  // namespace VelICU_V2
