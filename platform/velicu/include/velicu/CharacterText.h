// Case mapping, case folding and character properties.
//
// The text functions read `length` code units (-1: up to the terminator) and fill `text`; source and target must not
// overlap. They return the full length of the answer without terminator, with the failure U_BUFFER_OVERFLOW_ERROR if it
// did not fit; a null target with capacity 0 asks for the length. Safe from any thread.
#pragma once

#include "velicu/ErrorCode.h"

namespace VelICU_V2 {

// White space by ICU's own definition: blank, tab, line ends, U+2028, ideographic space and more, but not U+00A0.
VELICU_API bool t_u_isWhitespace(char32_t character) noexcept;

// Options of t_u_strFoldCase: 0 is the default folding, 1 leaves out the mappings of dotted and dotless I, for Turkic
// text: "I" folds to "i" with 0 and to "ı" with 1.
VELICU_API int t_u_strFoldCase(char16_t * text, int capacity, char16_t const * source, int length, unsigned options,
                               ICUErrorCode & status) noexcept;

// In the manner of `locale`, a name as "tr"; null is the default locale, "" the root: "i" to "İ" in "tr".
VELICU_API int t_u_strToUpper(char16_t * text, int capacity, char16_t const * source, int length, char const * locale,
                              ICUErrorCode & status) noexcept;
VELICU_API int t_u_strToLower(char16_t * text, int capacity, char16_t const * source, int length, char const * locale,
                              ICUErrorCode & status) noexcept;

}  // namespace VelICU_V2
