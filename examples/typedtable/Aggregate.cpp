#include "typedtable/Aggregate.h"

#include <cmath>
#include <limits>

#include "typedtable/UserError.h"

namespace typedtable {

namespace {

// Both of the same type, not null. Integer, Real, Date or DateTime.
bool IsLess(DataValue const & a, DataValue const & b)
{
    switch (a.GetDataType()) {
    case DataType::Integer: return a.GetInt() < b.GetInt();
    case DataType::Real: return a.GetReal() < b.GetReal();
    case DataType::Date: return a.GetDate() < b.GetDate();
    default: return a.GetDatetime() < b.GetDatetime();
    }
}

}  // namespace

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
    switch (kind) {
    case AggregateKind::Count: return true;
    case AggregateKind::Sum:
    case AggregateKind::Mean: return IsNumeric(type);
    case AggregateKind::Min:
    case AggregateKind::Max: return IsQuantitative(type);
    }
    return false;
}

DataType ResultType(AggregateKind kind, DataType type) noexcept
{
    if (kind == AggregateKind::Count)
        return DataType::Integer;
    return kind == AggregateKind::Mean ? DataType::Real : type;
}

void Aggregate::Add(DataValue const & value)
{
    if (m_kind == AggregateKind::Count) {
        ++m_count;
        return;
    }
    if (value.IsNull())
        return;
    ++m_count;
    if (m_kind == AggregateKind::Min || m_kind == AggregateKind::Max) {
        bool const isMin = m_kind == AggregateKind::Min;
        if (m_count == 1 || (isMin ? IsLess(value, m_extreme) : IsLess(m_extreme, value)))
            m_extreme = value;
    } else if (m_type == DataType::Integer) {
        m_integerSum += value.GetInt();
    } else {
        double const number = value.GetReal();
        double const sum = m_realSum + number;
        m_lostSum += std::abs(m_realSum) >= std::abs(number) ? (m_realSum - sum) + number : (number - sum) + m_realSum;
        m_realSum = sum;
    }
}

DataValue Aggregate::GetResult() const
{
    if (m_kind == AggregateKind::Count)
        return DataValue(m_count);
    if (m_count == 0)
        return DataValue(DataValueTypes::Null, ResultType(m_kind, m_type));
    if (m_kind == AggregateKind::Min || m_kind == AggregateKind::Max)
        return m_extreme;
    if (m_type == DataType::Integer && m_kind == AggregateKind::Sum) {
        if (m_integerSum < std::numeric_limits<long long>::min() ||
            m_integerSum > std::numeric_limits<long long>::max())
            throw TableError("a sum of integers is beyond 64 bits");
        return DataValue(static_cast<long long>(m_integerSum));
    }
    // An infinite sum leaves no rounding error worth having.
    double const realSum = std::isfinite(m_realSum) ? m_realSum + m_lostSum : m_realSum;
    double const sum = m_type == DataType::Integer ? static_cast<double>(m_integerSum) : realSum;
    return DataValue(m_kind == AggregateKind::Sum ? sum : sum / static_cast<double>(m_count));
}

}  // namespace typedtable
