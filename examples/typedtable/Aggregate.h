// Aggregate: one value out of many.
#pragma once

#include "velcoredata/data/DataType.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/utility/DataValueOperators.h"

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

/// Whether values of a type can be aggregated so: sums and means of numbers, extremes and counts of anything.
bool CanAggregate(AggregateKind kind, DataType type) noexcept;

/// The type of the result: Integer for counts and sums of integers, Real for means, else the type of the values.
DataType ResultType(AggregateKind kind, DataType type) noexcept;

/// What a null among the values does to a sum, a mean or an extreme.
enum class Nulls
{
    Skip,   ///< it takes no part
    Spread  ///< it makes the result null, as the operators with SQL semantics have it
};

/// Takes values of one type, one after the other, and combines them by DataValueOperators. A count counts nulls too.
class Aggregate
{
public:
    /// CanAggregate(kind, type) holds.
    Aggregate(AggregateKind kind, DataType type, Nulls nulls = Nulls::Skip);

    void Add(DataValue const & value);

    /// A null, except for a count, if there was nothing but nulls or nothing at all. Sums and means of integers are
    /// exact before the last rounding; those of reals carry their rounding errors along (Neumaier's summation). Texts
    /// have the extremes of their collation; of equal values the first one counts. Throws TableError if the sum of
    /// integers passes 64 bits.
    DataValue GetResult() const;

private:
    void AddInteger(DataValue const & number);
    void AddReal(DataValue const & number);

    AggregateKind m_kind;
    DataType m_type;
    Nulls m_nulls;
    DataValueOperators m_operators;
    long long m_count = 0;
    DataValue m_total;       // sum or extreme so far
    DataValue m_lost = 0.0;  // what rounding took from a sum of reals
    long long m_wraps = 0;   // how often a sum of integers passed the top of 64 bits, less how often the bottom
};

}  // namespace typedtable
