#include "typedtable/TypedReader.h"

#include <algorithm>
#include <utility>

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"

namespace typedtable {

namespace {

[[noreturn]] void ThrowChanged(long long line)
{
    throw TableError(line, Text("the file changed while it was read"));
}

}  // namespace

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
    if (!m_reader.Next())
        return false;
    auto const & cells = m_reader.GetCells();
    if (cells.size() != m_values.size())
        ThrowChanged(m_reader.GetLine());
    for (std::size_t const column : m_columns) {
        auto value = ReadValue(m_schema.columns[column], cells[column], m_collation);
        if (!value)
            ThrowChanged(m_reader.GetLine());
        m_values[column] = std::move(*value);
    }
    return true;
}

}  // namespace typedtable
