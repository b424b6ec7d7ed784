#include "typedtable/Distinct.h"

#include <algorithm>
#include <ostream>
#include <utility>

#include "typedtable/Table.h"
#include "typedtable/Texts.h"

namespace typedtable {

Distinct::Distinct(DistinctRequest const & request, Schema const & schema, Nulls nulls)
    : m_schema(schema), m_column(schema.Find(request.column)), m_items(request.items, schema, nulls)
{
    m_operators.SetSQLNullSemantics(nulls == Nulls::Spread);
}

std::vector<std::size_t> Distinct::GetColumns() const
{
    std::vector<std::size_t> columns{m_column};
    m_items.AppendIndices(columns);
    return columns;
}

void Distinct::Add(TypedReader const & row)
{
    ++m_rows;
    DataValue key = row.GetValue(m_column);
    // Equality of containers keeps 0.0 and -0.0 apart.
    if (key.GetDataType() == DataType::Real && !key.IsSpecial() && key.GetReal() == 0.0)
        key = DataValue(0.0);
    auto const [group, isNew] = m_groups.try_emplace(std::move(key));
    if (isNew)
        group->second = m_items.Start();
    m_items.Add(group->second, row);
}

void Distinct::Print(std::ostream & out)
{
    Table table;
    table.columns.push_back(
        {m_schema.columns[m_column].name, m_schema.columns[m_column].type, m_schema.columns[m_column].format});
    m_items.AppendTitles(table);
    for (auto const & [value, aggregates] : m_groups) {
        std::vector<DataValue> row{value};
        AggregateColumns::AppendResults(aggregates, row);
        table.rows.push_back(std::move(row));
    }
    std::sort(table.rows.begin(), table.rows.end(),
              [&](auto const & a, auto const & b) { return m_operators.Compare(a[0], b[0], false) < 0; });
    PrintTable(out, table);
    std::string const rows = CountOfRows(m_rows, m_schema.rows);
    out << (table.rows.size() == 1 ? Text("1 value in %1", rows)
                                   : Text("%1 different values in %2", table.rows.size(), rows))
        << '\n';
}

}  // namespace typedtable
