// The collators and string searches of ICU, each operation named after the published one ("t_" in front) and taking the
// same arguments.
//
// REQUIRES of every operation: the handle is not null unless said; a handle is used by one thread at a time; `status`
// is a success or warning on entry, else the operation does nothing. Texts are UTF-16, a length of -1 means up to the
// terminator. Attribute numbers and values are ICU's UColAttribute and UColAttributeValue.
#pragma once

#include <cstdint>

#include "velicu/Export.h"
#include "velicu/ErrorCode.h"

namespace VelICU_V2 {

class ICU_Collator;     // owned by the caller, released by t_ucol_close
class ICUStringSearch;  // owned by the caller, released by t_usearch_close

// The number of ICU's own attributes, and what a search gives for "no match".
enum : int
{
    UCOL_ATTRIBUTE_COUNT = 8,
    SEARCH_DONE = -1
};

// Where a rule text went wrong.
struct ICUParseError
{
    int line = 0;
    int offset = 0;
};

// Null on failure. An unknown locale falls back on its parents, at last on the root.
VELICU_API ICU_Collator * t_ucol_open(char const * locale, ICUErrorCode & status);
// `length` code units of rules, which may hold U+0000. -1 for normalisation or strength means the default.
VELICU_API ICU_Collator * t_ucol_openRules(char16_t const * rules,
                                           int length,
                                           int normalization,
                                           int strength,
                                           ICUParseError & parseError,
                                           ICUErrorCode & status);
// Null is allowed.
VELICU_API void t_ucol_close(ICU_Collator * collator);
// The tailoring rules, not terminated by their first U+0000. They live as long as the collator.
VELICU_API char16_t const * t_ucol_getRules(ICU_Collator const * collator, int & length);

// -1, 0 or 1.
VELICU_API int t_ucol_strcoll(
    ICU_Collator const * collator, char16_t const * a, int aLength, char16_t const * b, int bLength);
// Writes at most `capacity` bytes and returns the length of the whole key, its terminating zero included.
VELICU_API int t_ucol_getSortKey(
    ICU_Collator const * collator, char16_t const * text, int length, std::uint8_t * key, int capacity);

VELICU_API int t_ucol_getAttribute(ICU_Collator const * collator, int attribute, ICUErrorCode & status);
VELICU_API void t_ucol_setAttribute(ICU_Collator * collator, int attribute, int value, ICUErrorCode & status);

// The rule that makes the ten ASCII digits ignorable.
VELICU_API char16_t const * t_getIgnoreDigitsRule() noexcept;

// Resolves the escapes \uXXXX, \n and their kin into `out`, whose size bounds the result. Returns the length of the
// whole result, 0 if an escape is malformed.
VELICU_API int t_u_unescape(char const * text, char16_t * out, int size);

// Null on failure, also for an empty text or pattern. Text, pattern and collator are borrowed until the search is
// closed or gets another text.
VELICU_API ICUStringSearch * t_usearch_openFromCollator(char16_t const * pattern,
                                                        int patternLength,
                                                        char16_t const * text,
                                                        int textLength,
                                                        ICU_Collator const * collator,
                                                        ICUErrorCode & status);
// Null is allowed.
VELICU_API void t_usearch_close(ICUStringSearch * search);
VELICU_API void
t_usearch_setText(ICUStringSearch * search, char16_t const * text, int length, ICUErrorCode & status);

// Positions in code units, SEARCH_DONE for none.
VELICU_API int t_usearch_first(ICUStringSearch * search, ICUErrorCode & status);
VELICU_API int t_usearch_next(ICUStringSearch * search, ICUErrorCode & status);
VELICU_API int t_usearch_following(ICUStringSearch * search, int position, ICUErrorCode & status);
VELICU_API int t_usearch_preceding(ICUStringSearch * search, int position, ICUErrorCode & status);
// Code units of the last match, 0 if there was none.
VELICU_API int t_usearch_getMatchedLength(ICUStringSearch const * search);

}  // namespace VelICU_V2
