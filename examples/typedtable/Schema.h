// Schema: the columns of a CSV file and their types.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "typedtable/ByteSource.h"
#include "typedtable/ColumnName.h"
#include "typedtable/DateInference.h"
#include "typedtable/Table.h"

namespace typedtable {

/// What one reading of a whole file tells about it.
struct Schema
{
    struct Column
    {
        std::string name;  // UTF-8; "column 3" where the header has an empty cell
        DataType type;     // one of those that ReadCell reads
        long long nulls;
        std::shared_ptr<DateColumn const> dates = nullptr;  // of a column whose texts are dates: FindDates
    };

    std::string source;  // the data source that a qualified name of a column may name
    std::vector<Column> columns;
    long long rows = 0;  // without the header
    Table firstRows;

    /// The index of the column of this name. Throws TableError if there is none, or more than one, or if the name has
    /// another data source.
    std::size_t Find(ColumnName const & column) const;
};

/// Reads a CSV file to its end, in memory for one record and the first `firstRows` rows. The data source is left empty.
/// A column's type is known only
/// at the end, so values of more rows take a second reading (TypedReader). Throws TableError for what CsvReader refuses
/// and for a file without a header.
Schema ReadSchema(ByteSource & source, std::size_t firstRows);

/// "2922 rows"; "12 of 2922 rows" if the part is smaller than the whole.
std::string CountOfRows(long long part, long long whole);

/// The number of rows and columns, the columns with their types and counts of nulls, and the first rows if there are
/// any.
void PrintSchema(std::ostream & out, std::string const & fileName, Schema const & schema);

}  // namespace typedtable
