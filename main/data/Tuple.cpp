#include "velcoredata/data/Tuple.h"

#include "main/data/ValuePayload.h"
#include "velcoredata/data/DataValueInspector.h"
#include "velsys/Hash.h"
#include "velsys/ThrowSite.h"

namespace {

int Order(Tuple const & a, Tuple const & b);

// -1 for a < b, 1 for b < a, else 0. Tuples within tuples are walked once: asking a < b and then b < a of each level
// would double the work with every level.
int Order(DataValue const & a, DataValue const & b)
{
    bool const tuples = a.GetDataType() == DataType::Tuple && b.GetDataType() == DataType::Tuple &&
                        a.GetSpecial() == b.GetSpecial() && a.GetAny() != 0 && b.GetAny() != 0;
    if (tuples)
        return Order(*detail::TuplePayload(a), *detail::TuplePayload(b));
    if (a < b)
        return -1;
    return b < a ? 1 : 0;
}

int Order(Tuple const & a, Tuple const & b)
{
    if (a.GetSize() != b.GetSize())
        return a.GetSize() < b.GetSize() ? -1 : 1;
    for (std::size_t i = 0; i < a.GetValues().size(); ++i)
        if (int const order = Order(a.GetValues()[i], b.GetValues()[i]))
            return order;
    return 0;
}

}  // namespace

Tuple::Tuple(std::vector<DataValue> && values) : m_values(std::move(values)) {}

Tuple::Tuple(std::vector<DataValue> const & values) : m_values(values) {}

Tuple::Tuple(DataValue && value)
{
    m_values.push_back(std::move(value));
}

Tuple::Tuple(unsigned size) : m_values(size) {}

Tuple::~Tuple() = default;

DataValue const & Tuple::GetDataValue(unsigned index) const
{
    VELTRIA_ASSERT(size_t(index) < m_values.size(), 0xC28664A1);
    return m_values[index];
}

void Tuple::SetDataValue(unsigned idx, DataValue const & value)
{
    VELTRIA_ASSERT(size_t(idx) < m_values.size(), 0x5E2C5F16);
    m_hash.store(0, std::memory_order_relaxed);
    m_values[idx] = value;
}

void Tuple::Accept(DataValueInspector & inspector) const
{
    for (DataValue const & value : m_values)
        value.Accept(inspector);
}

unsigned Tuple::Hash() const
{
    unsigned hash = m_hash.load(std::memory_order_relaxed);
    if (hash != 0)
        return hash;
    hash = 0xdeadbeefu;
    for (DataValue const & value : m_values)
        hash = THashCombine32(value.Hash(), hash);
    m_hash.store(hash, std::memory_order_relaxed);
    return hash;
}

bool operator==(Tuple const & a, Tuple const & b)
{
    return a.Hash() == b.Hash() && a.GetValues() == b.GetValues();
}

bool operator<(Tuple const & a, Tuple const & b)
{
    return Order(a, b) < 0;
}
