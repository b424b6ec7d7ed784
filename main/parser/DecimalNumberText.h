// The number style of value text for readers that take a number for a decimal of at most 38 digits.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

namespace detail {

// The text of a real with `digits` significant digits, of which the fraction has 16 at most: below 1 the last ones are
// lost, 0.00012345678901234567 has thirteen. With showTrailingZero a whole number ends in ".0".
VELCOREDATA_API TString DecimalNumberText(double value, int digits, bool showTrailingZero);

// Digits of the integer part of |value|: 1 below 1, 20 from 2^64 on and for NaN.
VELCOREDATA_API unsigned IntegerDigits(double value);

}  // namespace detail
