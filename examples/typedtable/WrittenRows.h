// WrittenRows: rows for other programs.
#pragma once

#include <iosfwd>
#include <string>

#include "typedtable/Schema.h"
#include "typedtable/Table.h"

namespace typedtable {

enum class RowForm
{
    Values,    // value text of documents: DataValueFormatter
    Literals,  // what a query language would read: DataValue::FormatAsLiteral
    Wkt        // value text with the shapes as WKT
};

/// The form of a name: values, literals or wkt. Throws UserError for another one.
RowForm ReadRowForm(std::string const & text);

/// Throws TableError if Wkt is asked for and no column is Spatial.
void CheckForm(RowForm form, Schema const & schema);

/// For value text a line for each column with its name and the attributes of its first value that is no marker, or else
/// of a null: `[wind] datatype="real"`. For literals one line of the names: `[date],[wind]`. Then a line for each row,
/// with commas between; a text may hold line breaks within its quotes. What has no literal, `%error%` and shapes, is
/// written as value text, a shape as WKT in quotes.
void WriteRows(std::ostream & out, Table const & table, RowForm form);

}  // namespace typedtable
