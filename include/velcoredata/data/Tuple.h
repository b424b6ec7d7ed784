// Tuple: a row of values as one shared object.
//
//   a == b implies a.Hash() == b.Hash()
//   a < b  <=>  a is shorter, or of the same size and lexicographically less by < of DataValue
//
// Order is transitive as far as that of the members is: tuples that hold Integers and Reals above 2^53 in the same
// place need not be.
//
// Tuples may hold tuples. Destruction, hash, equality and order descend once a level and cost stack for it: a thousand
// levels are safe in every build on a stack of 8 MiB.
//
// The length is fixed. Once a value or another thread holds it, a tuple is not changed; its hash is filled in on the
// first call, by whichever thread comes first, always with the same number.
#pragma once

#include <atomic>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataValue.h"
#include "velsys/RefCntObject.h"

class DataValueInspector;

namespace detail {
class TupleBuilder;
}

class VELCOREDATA_API Tuple : public RefCntObject
{
public:
    explicit Tuple(std::vector<DataValue> && values);
    explicit Tuple(std::vector<DataValue> const & values);
    // One member.
    explicit Tuple(DataValue && value);

    unsigned GetSize() const noexcept { return static_cast<unsigned>(m_values.size()); }
    std::vector<DataValue> const & GetValues() const noexcept { return m_values; }
    // Raises "size_t(index) < m_values.size()", "LogicException_LogicAssert_0xC28664A1", for an index at or past the
    // end.
    DataValue const & GetDataValue(unsigned index) const;

    // Visits each member in order; no call is made for the tuple itself.
    void Accept(DataValueInspector & inspector) const;

    // THashCombine32 over the members, from 0xdeadbeef, the hash of the empty tuple.
    unsigned Hash() const;

protected:
    Tuple() = default;
    ~Tuple() override;

private:
    friend class detail::TupleBuilder;
    // `size` default members, for a builder to fill in before the tuple is shared.
    explicit Tuple(unsigned size);
    // Raises "size_t(idx) < m_values.size()", "LogicException_LogicAssert_0x5E2C5F16".
    void SetDataValue(unsigned idx, DataValue const & value);

    std::vector<DataValue> m_values;
    mutable std::atomic<unsigned> m_hash{0};  // 0: not computed
};

VELCOREDATA_API bool operator==(Tuple const & a, Tuple const & b);
VELCOREDATA_API bool operator<(Tuple const & a, Tuple const & b);

namespace detail {

// Fills a tuple member by member, while nobody else holds it.
class TupleBuilder
{
public:
    explicit TupleBuilder(unsigned size) : m_tuple(new Tuple(size)) {}
    void Set(unsigned index, DataValue const & value) { m_tuple->SetDataValue(index, value); }
    RefCntPtr<Tuple, RefCntObject> Build() const { return m_tuple; }

private:
    RefCntPtr<Tuple, RefCntObject> m_tuple;
};

}  // namespace detail
