// Bucket and MultiBucket: the keys by which a grouped result refers to one value or to a row of values.
//
//   a == b implies a.Hash() == b.Hash()
//   MultiBucket: [1] < [1, 2] < [2], so a longer row can be the lesser one, unlike Tuple
#pragma once

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataValue.h"

// One value. Equality, order and hash are those of DataValue.
class Bucket
{
public:
    // A null of type Unknown.
    Bucket() noexcept : m_value(DataValueTypes::Null, DataType::Unknown) {}
    Bucket(DataValue const & value) : m_value(value) {}
    Bucket(DataValue && value) noexcept : m_value(std::move(value)) {}

    DataValue const & GetValue() const noexcept { return m_value; }
    DataValue & GetValueMutable() noexcept { return m_value; }

    unsigned Hash() const { return m_value.Hash(); }
    bool IsEqual(Bucket const & other) const { return m_value == other.m_value; }
    bool IsLess(Bucket const & other) const { return m_value < other.m_value; }

    friend bool operator==(Bucket const & a, Bucket const & b) { return a.IsEqual(b); }
    friend bool operator<(Bucket const & a, Bucket const & b) { return a.IsLess(b); }

private:
    DataValue m_value;
};

class VELCOREDATA_API MultiBucket
{
public:
    MultiBucket() = default;
    MultiBucket(std::vector<Bucket> && buckets) noexcept : m_buckets(std::move(buckets)) {}

    void AddBucket(Bucket const & bucket) { m_buckets.push_back(bucket); }
    void Clear() noexcept { m_buckets.clear(); }
    void Reserve(unsigned count) { m_buckets.reserve(count); }
    std::vector<Bucket> const & GetBuckets() const noexcept { return m_buckets; }

    // As Tuple::Hash over the buckets; nothing is stored.
    unsigned Hash() const;
    bool IsEqual(MultiBucket const & other) const;
    bool IsLess(MultiBucket const & other) const;

    friend bool operator==(MultiBucket const & a, MultiBucket const & b) { return a.IsEqual(b); }
    friend bool operator<(MultiBucket const & a, MultiBucket const & b) { return a.IsLess(b); }

private:
    std::vector<Bucket> m_buckets;
};

template <>
struct std::hash<Bucket>
{
    std::size_t operator()(Bucket const & bucket) const { return bucket.Hash(); }
};

template <>
struct std::hash<MultiBucket>
{
    std::size_t operator()(MultiBucket const & bucket) const { return bucket.Hash(); }
};
