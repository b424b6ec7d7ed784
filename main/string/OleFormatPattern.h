// ParseOleFormatString as it is defined: by a regular expression, compiled and searched for at each call. The reader of
// OleFormatString.cpp answers alike, many times as fast. Only on texts of some hundred thousand code units and more do
// they part: there the engine's limit on work may end the search, and this one answers false.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/string/NumberFormatOptions.h"

namespace detail {

VELCOREDATA_API bool ParseOleFormatStringByPattern(char16_t const * format, NumberFormatOptions * options);

}  // namespace detail
