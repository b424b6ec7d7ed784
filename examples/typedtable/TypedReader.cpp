#include "typedtable/TypedReader.h"

#include <algorithm>
#include <utility>

#include "typedtable/ColumnTyping.h"
#include "typedtable/UserError.h"

namespace typedtable {

TypedReader::TypedReader(ByteSource & source, Schema const & schema, std::vector<std::size_t> columns,
                         Collation const & collation)
    : m_reader(source),
      m_schema(schema),
      m_columns(std::move(columns)),
      m_collation(collation),
      m_values(schema.columns.size())
{
    std::sort(m_columns.begin(), m_columns.end());
    m_columns.erase(std::unique(m_columns.begin(), m_columns.end()), m_columns.end());
    m_reader.Next();  // the header
}

bool TypedReader::Next()
{
    static constexpr char const * kChanged = "the file changed while it was read";
    if (!m_reader.Next())
        return false;
    auto const & cells = m_reader.GetCells();
    if (cells.size() != m_values.size())
        throw TableError(m_reader.GetLine(), kChanged);
    for (std::size_t const column : m_columns) {
        auto value = ReadCell(cells[column], m_schema.columns[column].type, m_collation);
        if (!value)
            throw TableError(m_reader.GetLine(), kChanged);
        m_values[column] = std::move(*value);
    }
    return true;
}

}  // namespace typedtable
