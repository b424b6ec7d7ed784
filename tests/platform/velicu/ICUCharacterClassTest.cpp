#include "velicu/ICUCharacterClass.h"

#include <gtest/gtest.h>

using namespace VelICU_V2;

TEST(ICUCharacterClass, HoldsTheCharactersOfUnicode)
{
    struct
    {
        unsigned mask;
        char32_t in;
        char32_t out;
    } const rows[] = {
        {CharacterClassAlpha, 0x4E2D, U'1'},
        {CharacterClassDigit, 0x0661, U'a'},
        {CharacterClassLower, 0x00E9, 0x00C9},
        {CharacterClassUpper, 0x00C9, 0x00E9},
        {CharacterClassSpace, 0x00A0, 0x200B},
        {CharacterClassSpace, U'\n', U'_'},
        {CharacterClassBlank, U'\t', U'\n'},
        {CharacterClassControl, 0x0085, U' '},
        {CharacterClassPunct, U'!', U'a'},
        {CharacterClassHexDigit, U'f', U'g'},
        {CharacterClassGraph, U'a', U' '},
        {CharacterClassPrint, U' ', U'\n'},
        {CharacterClassAlpha | CharacterClassDigit, U'7', U'-'},
    };
    for (auto const & row : rows) {
        EXPECT_TRUE(t_hasCharacterClass(row.in, row.mask)) << row.mask;
        EXPECT_FALSE(t_hasCharacterClass(row.out, row.mask)) << row.mask;
    }
}

TEST(ICUCharacterClass, HalfOfASurrogatePairIsInNone)
{
    EXPECT_FALSE(t_hasCharacterClass(0xD83D, 0xFFFFFFFFu));
    EXPECT_FALSE(t_hasCharacterClass(0xDE00, 0xFFFFFFFFu));
}

TEST(ICUCharacterClass, NothingIsInTheEmptyMask)
{
    EXPECT_FALSE(t_hasCharacterClass(U'a', 0));
}

TEST(ICUCharacterClass, MapsOneCharacterToOne)
{
    EXPECT_EQ(t_u_foldCase(U'\u00DF'), U'\u00DF');
    EXPECT_EQ(t_u_foldCase(U'\u03A3'), U'\u03C3');
    EXPECT_EQ(t_u_foldCase(U'\u03C2'), U'\u03C3');
    EXPECT_EQ(t_u_tolower(U'\u00C9'), U'\u00E9');
    EXPECT_EQ(t_u_toupper(U'\u00E9'), U'\u00C9');
}
