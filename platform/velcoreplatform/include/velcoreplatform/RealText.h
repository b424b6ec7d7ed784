// The decimal text of reals, written straight into the caller's buffer. Any thread may call.
#pragma once

#include "velcoreplatform/Export.h"

namespace detail {

// The longest text: "-1.7976931348623157e+308".
inline constexpr int kLongestRealText = 24;
// What WriteReal needs to write it, more than it leaves.
inline constexpr int kRealTextRoom = 40;

// The text that printf's "%.*g" gives, of `digits` significant digits, 1 to 17: without trailing zeros, with an
// exponent of two digits or more from 1e-5 down and from 10^digits up. Halves round away from zero, as QString::number
// rounds them; negative zero is "-0"; the others are "inf", "-inf" and "nan". Returns the end of the text, which is not
// terminated. Writes up to kRealTextRoom code units at `out`.
//
//   WriteReal(out, 0.1, 17)  // "0.10000000000000001"
//   WriteReal(out, 2.5, 1)   // "3"
//
// With `keepPoint` a text that would be digits alone ends in a point, "3.".
VELCOREPLATFORM_API char16_t * WriteReal(char16_t * out, double value, int digits, bool keepPoint = false);

}  // namespace detail
