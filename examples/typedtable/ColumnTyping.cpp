#include "typedtable/ColumnTyping.h"

#include <array>

#include "typedtable/CellShape.h"
#include "velcoredata/utility/DataValueOperators.h"
#include "velcoreplatform/TString.h"

namespace typedtable {

namespace {

TString TextOf(std::string_view cell)
{
    return TString::fromUtf8(cell.data(), static_cast<int>(cell.size()));
}

// Types from the narrowest reading of a cell to the widest.
constexpr std::array kReadings = {DataType::Integer, DataType::Real, DataType::Boolean, DataType::Date,
                                  DataType::DateTime};

bool CanRead(std::string_view cell, DataType type)
{
    return ReadCell(cell, type).has_value();
}

}  // namespace

DataValue CastCell(std::string_view cell, DataType type, Collation const & collation)
{
    std::string_view const text = WithoutBlanks(cell);
    if (text.empty())
        return DataValue(DataValueTypes::Null, type);
    if (type == DataType::String)
        return DataValue(collation, TextOf(cell));
    return DataValueOperators().ExplicitCast(DataValue::FromString(TextOf(text)), type);
}

std::optional<DataValue> ReadCell(std::string_view cell, DataType type, Collation const & collation)
{
    std::string_view const text = WithoutBlanks(cell);
    if (!text.empty() && !HasShapeOf(text, type))
        return std::nullopt;
    // Nothing casts to Boolean.
    if (!text.empty() && type == DataType::Boolean)
        return DataValue(text.size() == std::string_view("true").size());
    DataValue value = CastCell(cell, type, collation);
    // A day that does not exist is %error%, one behind the calendar's end a null.
    if (!text.empty() && value.IsSpecial())
        return std::nullopt;
    return value;
}

void ColumnTyping::Add(std::string_view cell, long long line)
{
    if (WithoutBlanks(cell).empty()) {
        ++m_nulls;
        return;
    }
    if (m_type == DataType::String || (m_type != DataType::Unknown && CanRead(cell, m_type)))
        return;
    // Not of the type so far: the one type that may take over is the wider one.
    if (m_type == DataType::Integer && CanRead(cell, DataType::Real)) {
        m_type = DataType::Real;
    } else if (m_type == DataType::Date && CanRead(cell, DataType::DateTime)) {
        m_type = DataType::DateTime;
    } else if (m_type != DataType::Unknown) {
        m_type = DataType::String;
        m_breaker = Breaker{line, std::string(cell)};
    } else {
        m_type = DataType::String;
        for (DataType const type : kReadings) {
            if (CanRead(cell, type)) {
                m_type = type;
                break;
            }
        }
    }
}

}  // namespace typedtable
