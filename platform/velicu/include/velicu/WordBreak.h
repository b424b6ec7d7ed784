// Break iteration over UTF-8 text. Each handle belongs to one thread at a time and to the code that opened it.
#pragma once

#include <cstdint>

#include "velicu/ErrorCode.h"

namespace VelICU_V2 {

struct ICUText;           // an opened text
struct ICUBreakIterator;  // an opened iterator

enum ICUBreakType : int
{
    UBRK_CHARACTER = 0,
    UBRK_WORD = 1,
    UBRK_LINE = 2,
    UBRK_SENTENCE = 3,
};

// What t_ubrk_next gives at the end.
inline constexpr int ICU_BREAK_DONE = -1;

// Opens a view of `length` bytes of UTF-8 (-1: up to the terminator); the bytes must outlive it. `reuse` is null or an
// open text that is set anew and returned. Null on failure.
VELICU_API ICUText * t_utext_openUTF8(ICUText * reuse, char const * utf8, std::int64_t length,
                                      ICUErrorCode & status) noexcept;
// Accepts null.
VELICU_API void t_utext_close(ICUText * text) noexcept;

// An iterator of one kind in the rules of `locale` (null: the default locale), without a text if `text` is null. Null
// on failure. Words of languages without blanks are found by dictionary.
VELICU_API ICUBreakIterator * t_ubrk_open(ICUBreakType type, char const * locale, char16_t const * text, int length,
                                          ICUErrorCode & status) noexcept;
// Accepts null.
VELICU_API void t_ubrk_close(ICUBreakIterator * iterator) noexcept;
// The bytes behind the text must stay while the iterator runs. A null handle is U_ILLEGAL_ARGUMENT_ERROR.
VELICU_API void t_ubrk_setUText(ICUBreakIterator * iterator, ICUText * text, ICUErrorCode & status) noexcept;
// The next boundary in units of the text, ICU_BREAK_DONE behind the last.
VELICU_API int t_ubrk_next(ICUBreakIterator * iterator) noexcept;
// What kind of piece ends at the boundary reached: 0 for blanks and punctuation, 100 and up for numbers, 200 letters,
// 300 kana, 400 ideographs.
VELICU_API int t_ubrk_getRuleStatus(ICUBreakIterator * iterator) noexcept;

}  // namespace VelICU_V2
