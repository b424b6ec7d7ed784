// The parts of a locale name, and names of LCIDs.
//
// A name is ICU's, "zh_Hant_TW", in 8 bits with a terminator; null means the process's default locale. The functions
// that fill a buffer return the full length without terminator, in units of the buffer, and the failure
// U_BUFFER_OVERFLOW_ERROR if it did not fit; a null buffer with capacity 0 asks for the length. An answer that fits but
// for its terminator is a warning, so give a buffer one unit more than the text.
// A part that the name does not have is the empty text and no failure. Safe from any thread.
#pragma once

#include <cstdint>

#include "velicu/ErrorCode.h"

namespace VelICU_V2 {

// "en_US_POSIX" to "en", "" (no script), "US".
VELICU_API int t_uloc_getLanguage(char const * locale, char * language, int capacity, ICUErrorCode & status) noexcept;
VELICU_API int t_uloc_getScript(char const * locale, char * script, int capacity, ICUErrorCode & status) noexcept;
VELICU_API int t_uloc_getCountry(char const * locale, char * country, int capacity, ICUErrorCode & status) noexcept;

// The LCID of a name, 0x409 for "en_US"; 0 if it has none.
VELICU_API std::uint32_t t_uloc_getLCID(char const * locale) noexcept;
// The name of an LCID, "en_US" for 0x409. An unknown LCID is U_ILLEGAL_ARGUMENT_ERROR.
VELICU_API int t_uloc_getLocaleForLCID(std::uint32_t lcid, char * locale, int capacity, ICUErrorCode & status) noexcept;

// Texts for people in the language of `displayLocale`: "Russian", "United States" for "ru" and "en_US" in "en". A part
// that has no translation comes back as its code, with U_USING_DEFAULT_WARNING.
VELICU_API int t_uloc_getDisplayLanguage(char const * locale, char const * displayLocale, char16_t * text, int capacity,
                                         ICUErrorCode & status) noexcept;
VELICU_API int t_uloc_getDisplayCountry(char const * locale, char const * displayLocale, char16_t * text, int capacity,
                                        ICUErrorCode & status) noexcept;

// The process's default locale. The locale "C" of a bare environment, which ICU calls "en_US_POSIX", counts as "en_US".
VELICU_API char const * t_uloc_getDefault() noexcept;

}  // namespace VelICU_V2
