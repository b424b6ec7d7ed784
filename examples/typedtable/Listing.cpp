#include "typedtable/Listing.h"

#include <algorithm>
#include <ostream>
#include <utility>

#include "typedtable/Texts.h"

namespace typedtable {

Listing::Listing(ListingRequest const & request, Schema const & schema, bool sqlNulls)
    : m_schema(schema), m_most(request.rows), m_form(request.form)
{
    m_operators.SetSQLNullSemantics(sqlNulls);
    if (request.sort)
        m_sortColumn = schema.Find(*request.sort);
    if (m_form)
        CheckForm(*m_form, schema);
    for (auto const & column : schema.columns)
        m_table.columns.push_back({column.name, column.type, column.format});
}

std::vector<std::size_t> Listing::GetColumns() const
{
    std::vector<std::size_t> columns;
    for (std::size_t i = 0; i < m_schema.columns.size(); ++i)
        columns.push_back(i);
    return columns;
}

void Listing::Add(TypedReader const & row)
{
    static constexpr std::size_t kFewest = 1024;
    ++m_matching;
    if (!m_sortColumn && m_table.rows.size() >= m_most)
        return;
    std::vector<DataValue> values;
    values.reserve(m_schema.columns.size());
    for (std::size_t i = 0; i < m_schema.columns.size(); ++i)
        values.push_back(row.GetValue(i));
    m_table.rows.push_back(std::move(values));
    // Only the first rows of the order are wanted: the others go as soon as there are as many of them.
    if (m_table.rows.size() - std::min(m_table.rows.size(), m_most) > std::max(m_most, kFewest))
        Sort();
}

void Listing::Sort()
{
    std::size_t const column = *m_sortColumn;
    std::stable_sort(m_table.rows.begin(), m_table.rows.end(), [&](auto const & a, auto const & b) {
        return m_operators.Compare(a[column], b[column], false) < 0;
    });
    if (m_table.rows.size() > m_most)
        m_table.rows.resize(m_most);
}

void Listing::Print(std::ostream & out)
{
    if (m_sortColumn)
        Sort();
    if (m_form) {
        WriteRows(out, m_table, *m_form);
        return;
    }
    PrintTable(out, m_table);
    std::string const count = CountOfRows(m_matching, m_schema.rows);
    bool const isCut = m_table.rows.size() < static_cast<std::size_t>(m_matching);
    out << (isCut ? Text("%1, the first %2 shown", count, m_table.rows.size()) : count) << '\n';
}

}  // namespace typedtable
