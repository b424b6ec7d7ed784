#include "velicu/ICUCharacterClass.h"

#include <unicode/uchar.h>

namespace VelICU_V2 {

bool t_hasCharacterClass(char32_t character, unsigned mask) noexcept
{
    UChar32 const c = static_cast<UChar32>(character);
    // ICU counts a lone surrogate as printable by its category; it stands for no character here.
    if (u_charType(c) == U_SURROGATE)
        return false;
    auto const asked = [mask](ICUCharacterClass bit) { return (mask & bit) != 0; };
    return (asked(CharacterClassAlpha) && u_isUAlphabetic(c)) || (asked(CharacterClassDigit) && u_isdigit(c)) ||
           (asked(CharacterClassLower) && u_isULowercase(c)) || (asked(CharacterClassUpper) && u_isUUppercase(c)) ||
           (asked(CharacterClassSpace) && u_isUWhiteSpace(c)) || (asked(CharacterClassBlank) && u_isblank(c)) ||
           (asked(CharacterClassControl) && u_charType(c) == U_CONTROL_CHAR) ||
           (asked(CharacterClassPunct) && u_ispunct(c)) || (asked(CharacterClassHexDigit) && u_isxdigit(c)) ||
           (asked(CharacterClassGraph) && u_isgraph(c)) || (asked(CharacterClassPrint) && u_isprint(c));
}

char32_t t_u_foldCase(char32_t character) noexcept
{
    return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(character), U_FOLD_CASE_DEFAULT));
}

char32_t t_u_tolower(char32_t character) noexcept
{
    return static_cast<char32_t>(u_tolower(static_cast<UChar32>(character)));
}

char32_t t_u_toupper(char32_t character) noexcept
{
    return static_cast<char32_t>(u_toupper(static_cast<UChar32>(character)));
}

}  // namespace VelICU_V2
