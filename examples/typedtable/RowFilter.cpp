#include "typedtable/RowFilter.h"

#include <utility>

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "typedtable/ValueText.h"
#include "velcoreplatform/TString.h"

namespace typedtable {

RowFilter::RowFilter(FilterRequest const & request, Schema const & schema, Collation const & collation, bool sqlNulls)
    : m_collation(collation), m_sqlNulls(sqlNulls)
{
    m_operators.SetSQLNullSemantics(sqlNulls);
    if (request.where) {
        Condition const & condition = *request.where;
        std::size_t const column = schema.Find(condition.column);
        DataType const type = schema.columns[column].type;
        DataValue literal = condition.literal;
        if (!m_operators.CanPromote(type, literal.GetDataType()))
            throw TableError(Text("--where: column \"%1\" is %2 and does not compare with the %3 %4",
                                  condition.column.name, DataValue::DataTypeToString(type).toStdString(),
                                  DataValue::DataTypeToString(literal.GetDataType()).toStdString(),
                                  ValueText(literal)));
        if (literal.IsNull())
            literal.MakeSpecial(DataValueTypes::Null, type);
        else if (literal.GetDataType() == DataType::String)
            literal = DataValue(collation, TString(literal.GetString()));
        m_where = Where{column, condition.comparison, std::move(literal)};
    }
    if (request.find) {
        m_pattern = TString::fromStdString(*request.find);
        for (std::size_t i = 0; i < schema.columns.size(); ++i) {
            if (schema.columns[i].type == DataType::String)
                m_textColumns.push_back(i);
        }
        if (m_textColumns.empty())
            throw TableError(Text("--find: no column is STRING"));
    }
}

void RowFilter::AppendIndices(std::vector<std::size_t> & indices) const
{
    if (m_where)
        indices.push_back(m_where->column);
    indices.insert(indices.end(), m_textColumns.begin(), m_textColumns.end());
}

bool RowFilter::Matches(TypedReader const & row) const
{
    return (!m_where || Satisfies(row.GetValue(m_where->column))) && (m_pattern.isEmpty() || FindsText(row));
}

bool RowFilter::Satisfies(DataValue const & value) const
{
    if (m_sqlNulls && (value.IsSpecial() || m_where->literal.IsNull()))
        return false;
    if (value.IsSpecial() && !value.IsNull())  // %error%: nothing is known of it
        return false;
    return Holds(m_where->comparison, m_operators.Compare(value, m_where->literal, false));
}

bool RowFilter::FindsText(TypedReader const & row) const
{
    for (std::size_t const column : m_textColumns) {
        DataValue const & text = row.GetValue(column);
        if (!text.IsNull() && m_collation.Search(text.GetStringRaw(), m_pattern.GetString()) >= 0)
            return true;
    }
    return false;
}

}  // namespace typedtable
