// Listing: rows as they are, in an order.
#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "typedtable/ColumnName.h"
#include "typedtable/RowSink.h"
#include "typedtable/Schema.h"
#include "typedtable/Table.h"
#include "typedtable/Texts.h"
#include "typedtable/WrittenRows.h"
#include "velcoredata/utility/DataValueOperators.h"

namespace typedtable {

struct ListingRequest
{
    std::optional<ColumnName> sort;  // a column; without it the order of the file
    std::size_t rows = std::numeric_limits<std::size_t>::max();
    std::optional<RowForm> form;  // for programs; without it a table
};

/// Keeps the rows that it will print, since the widest cell sets the width of a column, and while it sorts about twice
/// as many. Memory grows with their number: with that of all matching rows, if `rows` does not limit it.
class Listing : public RowSink
{
public:
    /// Throws TableError if the column is missing, or the form does not go with the columns. The schema outlives the
    /// object.
    Listing(ListingRequest const & request, Schema const & schema, bool sqlNulls);

    std::vector<std::size_t> GetColumns() const override;
    std::string GetDoing() const override { return Text("%1 rows listed"); }
    void Add(TypedReader const & row) override;

    /// The rows by rising value of the sorted column as DataValueOperators::Compare has it, nulls first, equal ones in
    /// the order of the file; then "12 of 2922 rows, the first 5 shown". With a form the rows alone.
    void Print(std::ostream & out) override;

private:
    void Sort();

    Schema const & m_schema;
    std::optional<std::size_t> m_sortColumn;
    std::size_t m_most;
    std::optional<RowForm> m_form;
    long long m_matching = 0;
    Table m_table;
    DataValueOperators m_operators;
};

}  // namespace typedtable
