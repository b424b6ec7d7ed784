// CellShape: which cells a column may be typed by.
#pragma once

#include <string_view>

#include "velcoredata/data/DataType.h"

namespace typedtable {

/// Whether a cell without blanks around it is written as a type that is looked for without being asked for. The cast
/// reads more than this: `007` as 7, `inf` as a number, `1.5` as the integer 1, `007` even as a day; a column that
/// nobody named is not typed by that. Integers fit 64 signed bits, reals a double; days and clocks are written in
/// digits, and need not exist.
bool HasShapeOf(std::string_view text, DataType type);

/// The cell without blanks and tabs around it.
std::string_view WithoutBlanks(std::string_view cell) noexcept;

}  // namespace typedtable
