// Schema: the columns of a CSV file and their types.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "typedtable/ByteSource.h"
#include "typedtable/CastChoice.h"
#include "typedtable/ColumnName.h"
#include "typedtable/DateInference.h"
#include "typedtable/Table.h"
#include "velcoredata/data/Collation.h"

namespace typedtable {

/// What one reading of a whole file tells about it.
struct Schema
{
    /// A cell that a cast did not take, %error% or a null; or the one that made a column text, see ColumnTyping.
    struct Offence
    {
        long long line;    // on which its row begins
        std::string cell;  // its first bytes
    };

    static constexpr std::size_t kMostOffences = 3;  // a column

    struct Column
    {
        std::string name;                                      // UTF-8; "column 3" where the header has an empty cell
        DataType type;                                         // one of those that ReadCell reads
        long long nulls;                                       // cells that are nulls of the type
        std::shared_ptr<DateColumn const> dates = nullptr;     // of a column whose texts are dates: FindDates
        std::shared_ptr<NumberFormat const> format = nullptr;  // of a column of numbers: ApplyFormats
        bool isCast = false;                                   // to the type that the user named
        long long errors = 0;                                  // cells that are %error%; only a cast has them
        long long offending = 0;                               // cells with a text that the cast did not take
        std::vector<Offence> offences = {};                    // the first of them; of a text at most one
    };

    std::string source;  // the data source that a qualified name of a column may name
    std::vector<Column> columns;
    long long rows = 0;  // without the header
    Table firstRows;

    /// The index of the column of this name. Throws TableError if there is none, or more than one, or if the name has
    /// another data source.
    std::size_t Find(ColumnName const & column) const;
};

/// Reads a CSV file to its end, in memory for one record and the first `firstRows` rows. A column's type is known only
/// at the end, so values of more rows take a second reading (TypedReader). `casts` name the types of columns; `name` is
/// that of the data source. Throws TableError for what CsvReader refuses, for a file without a header, and for a cast
/// of a column that is missing or is cast twice.
Schema ReadSchema(ByteSource & source, std::size_t firstRows, std::vector<CastChoice> const & casts = {},
                  std::string name = {});

/// The value of a cell of a column, nothing if it is not of the column's type.
std::optional<DataValue> ReadValue(Schema::Column const & column, std::string_view cell,
                                   Collation const & collation = GetUnknownCollation());

/// "2922 rows"; "12 of 2922 rows" if the part is smaller than the whole.
std::string CountOfRows(long long part, long long whole);

/// The number of rows and columns, the columns with their types and counts of nulls, the cells that casts did not take,
/// and the first rows if there are any.
void PrintSchema(std::ostream & out, std::string const & fileName, Schema const & schema);

}  // namespace typedtable
