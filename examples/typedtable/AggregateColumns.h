// AggregateColumns: the sums, means, extremes and counts that the user asked for.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "typedtable/Aggregate.h"
#include "typedtable/ColumnName.h"
#include "typedtable/Schema.h"
#include "typedtable/Table.h"
#include "typedtable/TypedReader.h"

namespace typedtable {

struct AggregateItem
{
    AggregateKind kind;
    ColumnName column;  // empty for a count
};

/// The items of a request, each with its column in a file.
class AggregateColumns
{
public:
    /// Throws TableError if a column is missing or of a type that cannot be aggregated so.
    AggregateColumns(std::vector<AggregateItem> const & items, Schema const & schema, Nulls nulls);

    /// Appends the indices of the columns that a row needs.
    void AppendIndices(std::vector<std::size_t> & indices) const;

    /// Appends the columns of the results: "sum(rain)", "count".
    void AppendTitles(Table & table) const;

    /// One empty aggregate an item, for the two functions below.
    std::vector<Aggregate> Start() const;
    void Add(std::vector<Aggregate> & aggregates, TypedReader const & row) const;
    /// Throws TableError as Aggregate::GetResult does.
    static void AppendResults(std::vector<Aggregate> const & aggregates, std::vector<DataValue> & row);

private:
    struct Item
    {
        AggregateKind kind;
        std::size_t column;  // any for a count
        DataType type;
        std::string title;
        std::shared_ptr<NumberFormat const> format = nullptr;  // that of the column
    };

    std::vector<Item> m_items;
    Nulls m_nulls;
};

}  // namespace typedtable
