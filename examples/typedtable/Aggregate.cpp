#include "typedtable/Aggregate.h"

#include <cmath>

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"

namespace typedtable {

char const * NameOf(AggregateKind kind) noexcept
{
    switch (kind) {
    case AggregateKind::Count: return "count";
    case AggregateKind::Sum: return "sum";
    case AggregateKind::Mean: return "mean";
    case AggregateKind::Min: return "min";
    case AggregateKind::Max: return "max";
    }
    return "";
}

bool CanAggregate(AggregateKind kind, DataType type) noexcept
{
    return (kind != AggregateKind::Sum && kind != AggregateKind::Mean) || IsNumeric(type);
}

DataType ResultType(AggregateKind kind, DataType type) noexcept
{
    if (kind == AggregateKind::Count)
        return DataType::Integer;
    return kind == AggregateKind::Mean ? DataType::Real : type;
}

Aggregate::Aggregate(AggregateKind kind, DataType type, Nulls nulls) : m_kind(kind), m_type(type), m_nulls(nulls)
{
    m_operators.SetSQLNullSemantics(nulls == Nulls::Spread);
    if (kind == AggregateKind::Sum || kind == AggregateKind::Mean)
        m_total = type == DataType::Integer ? DataValue(0) : DataValue(0.0);
}

void Aggregate::Add(DataValue const & value)
{
    if (m_kind != AggregateKind::Count && m_nulls == Nulls::Skip && value.IsSpecial())
        return;
    ++m_count;
    switch (m_kind) {
    case AggregateKind::Count: break;
    // Of equal values the operators give the right one: the first that came.
    case AggregateKind::Min: m_total = m_count == 1 ? value : m_operators.Min(value, m_total); break;
    case AggregateKind::Max: m_total = m_count == 1 ? value : m_operators.Max(value, m_total); break;
    case AggregateKind::Sum:
    case AggregateKind::Mean: m_type == DataType::Integer ? AddInteger(value) : AddReal(value);
    }
}

// The operators wrap in 64 bits; with the wraps counted, the sum is exact.
void Aggregate::AddInteger(DataValue const & number)
{
    DataValue const sum = m_operators.Add(m_total, number);
    if (!sum.IsSpecial() && number.GetInt() > 0 && sum.GetInt() < m_total.GetInt())
        ++m_wraps;
    if (!sum.IsSpecial() && number.GetInt() < 0 && sum.GetInt() > m_total.GetInt())
        --m_wraps;
    m_total = sum;
}

void Aggregate::AddReal(DataValue const & number)
{
    DataValue const sum = m_operators.Add(m_total, number);
    bool const totalIsLarger = std::abs(m_total.GetReal()) >= std::abs(number.GetReal());
    DataValue const & larger = totalIsLarger ? m_total : number;
    DataValue const & smaller = totalIsLarger ? number : m_total;
    m_lost = m_operators.Add(m_lost, m_operators.Add(m_operators.Subtract(larger, sum), smaller));
    m_total = sum;
}

DataValue Aggregate::GetResult() const
{
    if (m_kind == AggregateKind::Count)
        return DataValue(m_count);
    if (m_count == 0)
        return DataValue(DataValueTypes::Null, ResultType(m_kind, m_type));
    if (m_total.IsSpecial())
        return DataValue(m_total.GetSpecial(), ResultType(m_kind, m_type));
    if (m_kind == AggregateKind::Min || m_kind == AggregateKind::Max)
        return m_total;
    if (m_type == DataType::Integer && m_kind == AggregateKind::Sum) {
        if (m_wraps != 0)
            throw TableError(Text("a sum of integers is beyond 64 bits"));
        return m_total;
    }
    DataValueOperators operators;
    DataValue sum = m_total;
    if (m_type == DataType::Integer)
        sum = DataValue(
            static_cast<double>(static_cast<__int128>(m_wraps) * (static_cast<__int128>(1) << 64) + m_total.GetInt()));
    else if (std::isfinite(m_total.GetReal()))  // an infinite sum leaves no rounding error worth having
        sum = operators.Add(m_total, m_lost);
    return m_kind == AggregateKind::Sum ? sum : operators.Divide(sum, DataValue(m_count));
}

}  // namespace typedtable
