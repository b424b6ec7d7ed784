// Aggregate: one number or date out of many values.
#pragma once

#include "velcoredata/data/DataType.h"
#include "velcoredata/data/DataValue.h"

namespace typedtable {

enum class AggregateKind
{
    Count,  ///< rows
    Sum,
    Mean,
    Min,
    Max
};

/// "sum", as the option is called.
char const * NameOf(AggregateKind kind) noexcept;

/// Whether values of a type can be aggregated so: sums and means of numbers, extremes of numbers and dates, counts of
/// anything.
bool CanAggregate(AggregateKind kind, DataType type) noexcept;

/// The type of the result: Integer for counts and sums of integers, Real for means, else the type of the values.
DataType ResultType(AggregateKind kind, DataType type) noexcept;

/// Takes values of one type, one after the other. Nulls are passed over, except that a count counts them.
class Aggregate
{
public:
    /// CanAggregate(kind, type) holds.
    Aggregate(AggregateKind kind, DataType type) noexcept : m_kind(kind), m_type(type) {}

    void Add(DataValue const & value);

    /// A null, except for a count, if there was nothing but nulls. Sums and means of integers are exact before the last
    /// rounding; those of reals carry their rounding errors along (Neumaier's summation). Throws TableError if the sum
    /// of integers passes 64 bits.
    DataValue GetResult() const;

private:
    AggregateKind m_kind;
    DataType m_type;
    long long m_count = 0;
    __int128 m_integerSum = 0;
    double m_realSum = 0.0;
    double m_lostSum = 0.0;  // what rounding took from m_realSum
    DataValue m_extreme;
};

}  // namespace typedtable
