#include "velicu/CharacterText.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include "StatusScope.h"
#include "velicu/LocaleNames.h"

namespace VelICU_V2 {

bool t_u_isWhitespace(char32_t character) noexcept
{
    return u_isWhitespace(static_cast<UChar32>(character));
}

int t_u_strFoldCase(char16_t * text, int capacity, char16_t const * source, int length, unsigned options,
                    ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return u_strFoldCase(text, capacity, source, length, options, &scope);
}

int t_u_strToUpper(char16_t * text, int capacity, char16_t const * source, int length, char const * locale,
                   ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return u_strToUpper(text, capacity, source, length, locale == nullptr ? t_uloc_getDefault() : locale, &scope);
}

int t_u_strToLower(char16_t * text, int capacity, char16_t const * source, int length, char const * locale,
                   ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return u_strToLower(text, capacity, source, length, locale == nullptr ? t_uloc_getDefault() : locale, &scope);
}

}  // namespace VelICU_V2
