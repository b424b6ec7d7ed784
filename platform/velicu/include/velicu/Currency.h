#pragma once

#include "velicu/ErrorCode.h"

namespace VelICU_V2 {

// Fills `code` with the three letters of the currency in use in the locale's country, "USD" for "en_US", and a
// terminator. Returns the length 3, or 0 with a failure if the locale has no country. Safe from any thread.
VELICU_API int t_ucurr_forLocale(char const * locale, char16_t * code, int capacity, ICUErrorCode & status) noexcept;

}  // namespace VelICU_V2
