// The decimal text of reals, written straight into the caller's buffer.
#pragma once

#include "velcoreplatform/Export.h"

namespace detail {

// Room for every text: "-1.7976931348623157e+308" has 24 code units.
inline constexpr int kLongestRealText = 24;

// The text that printf's "%.*g" gives, of `digits` significant digits, 1 to 17: without trailing zeros, with an
// exponent of two digits or more from 1e-5 down and from 10^digits up. Halves round away from zero, as QString::number
// rounds them; negative zero is "-0"; the others are "inf", "-inf" and "nan". Returns the end of the text, which is not
// terminated. Needs kLongestRealText code units at `out`. Any thread may call.
//
//   WriteReal(out, 0.1, 17)  // "0.10000000000000001"
//   WriteReal(out, 2.5, 1)   // "3"
VELCOREPLATFORM_API char16_t * WriteReal(char16_t * out, double value, int digits);

}  // namespace detail
