// Summary: aggregates over all rows.
#pragma once

#include <vector>

#include "typedtable/AggregateColumns.h"
#include "typedtable/RowSink.h"
#include "typedtable/Schema.h"
#include "typedtable/Texts.h"

namespace typedtable {

struct SummaryRequest
{
    std::vector<AggregateItem> items;
};

/// Memory for one row.
class Summary : public RowSink
{
public:
    /// Throws TableError as AggregateColumns does. The schema outlives the object.
    Summary(SummaryRequest const & request, Schema const & schema, Nulls nulls);

    std::vector<std::size_t> GetColumns() const override;
    std::string GetDoing() const override { return Text("%1 rows summed up"); }
    void Add(TypedReader const & row) override;

    /// One line of results, then "12 of 2922 rows".
    void Print(std::ostream & out) override;

private:
    Schema const & m_schema;
    AggregateColumns m_items;
    std::vector<Aggregate> m_aggregates;
    long long m_rows = 0;
};

}  // namespace typedtable
