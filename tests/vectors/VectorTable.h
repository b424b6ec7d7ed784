#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace velcoredata::vectors {

/// One acceptance table in memory: UTF-8, LF, tab separated, the first line names the columns.
/// Cells are kept as they stand, empty trailing ones included; nothing is trimmed.
struct Table
{
    std::vector<std::string> columns;
    std::vector<std::vector<std::string>> rows;

    /// Reads to the end of the stream. Throws std::runtime_error on a stream without a header line.
    /// A row may have more or fewer cells than there are columns; the caller judges.
    static Table Read(std::istream & in);

    /// Index of a column, or -1.
    int Column(std::string_view name) const;
};

}  // namespace velcoredata::vectors
