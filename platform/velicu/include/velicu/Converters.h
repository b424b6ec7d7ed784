// Names of character sets. The returned texts are in 8 bits and live until the process ends. Safe from any thread.
#pragma once

#include "velicu/ErrorCode.h"

namespace VelICU_V2 {

// The name of a character set under a standard such as "IANA" or "MIME": "ISO-8859-1" for "latin1" under "IANA". Null
// if the set or the standard is not known or has no such name; an unknown set is U_ZERO_ERROR or a failure, as ICU has
// it.
VELICU_API char const * t_ucnv_getStandardName(char const * name, char const * standard,
                                               ICUErrorCode & status) noexcept;
// The converter's own name for the set that `standard` calls `alias`: "ibm-5348_P100-1997" for "windows-1252" under
// "WINDOWS". Null if there is none.
VELICU_API char const * t_ucnv_getCanonicalName(char const * alias, char const * standard,
                                                ICUErrorCode & status) noexcept;

// The converters that can be opened, by index from 0.
VELICU_API int t_ucnv_countAvailable() noexcept;
// Null if the index is out of range.
VELICU_API char const * t_ucnv_getAvailableName(int index) noexcept;

}  // namespace VelICU_V2
