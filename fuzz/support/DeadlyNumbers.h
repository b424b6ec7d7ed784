// Texts that plain ICU must not see.
#pragma once

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <cstddef>
#include <string_view>

namespace fuzz_support {

// ICU's date formats divide by zero on fractions of a second of 35 digits or more, exponents counted in; the library
// refuses such texts before ICU sees them.
inline bool HasDeadlyNumbers(std::u16string_view text)
{
    std::size_t digits = 0;
    for (std::size_t at = 0; at < text.size();) {
        UChar32 character = 0;
        U16_NEXT(text.data(), at, text.size(), character);
        digits += u_isdigit(character) ? 1 : 0;
    }
    return digits >= 35;
}

}  // namespace fuzz_support
