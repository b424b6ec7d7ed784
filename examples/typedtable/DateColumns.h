// DateColumns: the columns of texts that are dates as people write them.
#pragma once

#include <iosfwd>

#include "typedtable/InputFile.h"
#include "typedtable/Schema.h"
#include "velcoredata/core/TLocale.h"

namespace typedtable {

/// Reads the file twice more, and makes columns of dates out of those text columns whose cells are all dates in the
/// locale (DateInference); the first rows change with them. The file was read to its end for the schema.
void FindDates(InputFile & file, Schema & schema, TLocale const & locale);

/// A line for each such column: the pattern that won, "(own styles)" if it was the platform's parser, how many cells it
/// reads and how many are written in another way; where day and month stand before the year, how many cells are dates
/// with the day first and with the month first. Nothing where there is no such column.
void PrintDates(std::ostream & out, Schema const & schema);

/// A line for each such column with cells that are written in another way than the others, where PrintDates does not
/// tell it.
void WarnOfDates(std::ostream & out, std::string const & fileName, Schema const & schema);

}  // namespace typedtable
