// Dates printed by patterns of digits and marks, without ICU.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

class DateTime;

namespace VelICU_V2 {
class ICULocale;
}

namespace detail {

// Whether ICU prints numbers of dates in this locale with ASCII digits and no further marks. Asks ICU.
bool HasASCIIDigits(VelICU_V2::ICULocale const & gregorianLocale);

// The text that ICU prints in a locale with ASCII digits: by y, M and MM, d, H, h, m, s, S, up to nine of a letter, and
// literals, quoted ones too. False, with `out` as it was, for other letters (M in threes), for patterns of more than 64
// code units and for values outside 0400-01-01 to 9999-12-31.
VELCOREDATA_API bool FormatDateDigits(DateTime const & value, char16_t const * pattern, TString & out);

}  // namespace detail
