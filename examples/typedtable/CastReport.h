// CastReport: the cells that a cast did not take.
#pragma once

#include <iosfwd>
#include <string>

#include "typedtable/Schema.h"

namespace typedtable {

/// A blank line and a table of the first offending cells of each column, with their lines; nothing if there are none.
void PrintOffences(std::ostream & out, Schema const & schema);

/// A line for each column that was cast with such cells: how many there are and the first of them.
void WarnOfOffences(std::ostream & out, std::string const & fileName, Schema const & schema);

}  // namespace typedtable
