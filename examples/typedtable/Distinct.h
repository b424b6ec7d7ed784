// Distinct: rows gathered by equal values of a column.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "typedtable/AggregateColumns.h"
#include "typedtable/ColumnName.h"
#include "typedtable/RowSink.h"
#include "typedtable/Schema.h"
#include "typedtable/Texts.h"
#include "velcoredata/utility/DataValueOperators.h"

namespace typedtable {

struct DistinctRequest
{
    ColumnName column;
    std::vector<AggregateItem> items;
};

/// Adds rows to the group of their value; texts are equal if their collation says so. Memory grows with the number of
/// different values, not of rows.
class Distinct : public RowSink
{
public:
    /// Throws TableError if a column is missing or of a type that the request cannot be met for. The schema outlives
    /// the object.
    Distinct(DistinctRequest const & request, Schema const & schema, Nulls nulls);

    std::vector<std::size_t> GetColumns() const override;
    std::string GetDoing() const override { return Text("%1 rows grouped"); }
    void Add(TypedReader const & row) override;

    /// One row a group, by rising value, nulls first: the first of the equal values that the file has, the aggregates;
    /// then "57 different values in 3376 rows".
    void Print(std::ostream & out) override;

private:
    Schema const & m_schema;
    std::size_t m_column;
    AggregateColumns m_items;
    std::unordered_map<DataValue, std::vector<Aggregate>> m_groups;
    long long m_rows = 0;
    DataValueOperators m_operators;
};

}  // namespace typedtable
