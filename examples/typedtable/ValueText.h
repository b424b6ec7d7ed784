// ValueText: how the program prints a value.
#pragma once

#include <string>
#include <string_view>

#include "velcoredata/data/DataValue.h"

namespace typedtable {

/// UTF-8 text of a value: `42`, `12.8` (15 significant digits), `true`, `2012-01-31`, `2012-01-31 06:30:00`,
/// `2012-01-31 06:30:00.2500`, a text as OnOneLine has it, a shape as WKT,
/// `%null%` and `%error%`. Dates have the form of the DatePrinting that
/// lives, if any.
std::string ValueText(DataValue const & value);

/// A text with its control characters as \n, \r, \t or \x1B, so that it keeps to one line and a terminal to its state.
std::string OnOneLine(std::string_view text);

}  // namespace typedtable
