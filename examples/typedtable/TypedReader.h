// TypedReader: the rows of a CSV file as values, one at a time.
#pragma once

#include <cstddef>
#include <vector>

#include "typedtable/ByteSource.h"
#include "typedtable/CsvReader.h"
#include "typedtable/Schema.h"
#include "velcoredata/data/Collation.h"

namespace typedtable {

/// The second reading of a file, with the types that the first one found. Memory for one record.
class TypedReader
{
public:
    /// Reads only the columns of these indices. Texts get the collation. The source stands at its first byte; source
    /// and schema outlive the reader.
    TypedReader(ByteSource & source, Schema const & schema, std::vector<std::size_t> columns,
                Collation const & collation = GetUnknownCollation());

    /// Reads the next row; false at the end. Throws TableError for what CsvReader refuses, and for a cell that is not
    /// of its column's type, or a row of another width: then the file changed since its first reading.
    bool Next();

    /// The value of a column, by its index in the file; a typeless null for columns that are not read.
    DataValue const & GetValue(std::size_t column) const { return m_values[column]; }

    /// The line, from 1, on which the row begins.
    long long GetLine() const noexcept { return m_reader.GetLine(); }

private:
    CsvReader m_reader;
    Schema const & m_schema;
    std::vector<std::size_t> m_columns;
    Collation m_collation;
    std::vector<DataValue> m_values;
};

}  // namespace typedtable
