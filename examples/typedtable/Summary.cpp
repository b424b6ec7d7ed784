#include "typedtable/Summary.h"

#include <ostream>

#include "typedtable/Table.h"

namespace typedtable {

Summary::Summary(SummaryRequest const & request, Schema const & schema, Nulls nulls)
    : m_schema(schema), m_items(request.items, schema, nulls), m_aggregates(m_items.Start())
{}

std::vector<std::size_t> Summary::GetColumns() const
{
    std::vector<std::size_t> columns;
    m_items.AppendIndices(columns);
    return columns;
}

void Summary::Add(TypedReader const & row)
{
    ++m_rows;
    m_items.Add(m_aggregates, row);
}

void Summary::Print(std::ostream & out)
{
    Table table;
    m_items.AppendTitles(table);
    AggregateColumns::AppendResults(m_aggregates, table.rows.emplace_back());
    PrintTable(out, table);
    out << CountOfRows(m_rows, m_schema.rows) << '\n';
}

}  // namespace typedtable
