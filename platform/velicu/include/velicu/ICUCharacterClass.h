// Properties of single characters, as a regular-expression engine asks for them. Safe from any thread.
#pragma once

#include "velicu/Export.h"

namespace VelICU_V2 {

// One bit per class; a mask of several asks for any of them. The classes are those of the C library, over Unicode.
enum ICUCharacterClass : unsigned
{
    CharacterClassAlpha = 0x1,  // alphabetic
    CharacterClassDigit = 0x2,  // decimal digit of any script
    CharacterClassLower = 0x4,
    CharacterClassUpper = 0x8,
    CharacterClassSpace = 0x10,  // White_Space: U+0085, U+00A0, U+3000 and the like included
    CharacterClassBlank = 0x20,  // blank, tab and their like, no line ends
    CharacterClassControl = 0x40,
    CharacterClassPunct = 0x80,
    CharacterClassHexDigit = 0x100,
    CharacterClassGraph = 0x200,
    CharacterClassPrint = 0x400
};

// Half of a surrogate pair is in no class.
VELICU_API bool t_hasCharacterClass(char32_t character, unsigned mask) noexcept;

// Simple mappings, one character to one: the sharp s folds to itself.
VELICU_API char32_t t_u_foldCase(char32_t character) noexcept;
VELICU_API char32_t t_u_tolower(char32_t character) noexcept;
VELICU_API char32_t t_u_toupper(char32_t character) noexcept;

}  // namespace VelICU_V2
