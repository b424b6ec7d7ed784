#include "velcoredata/data/Bucket.h"

#include <algorithm>

#include "velsys/Hash.h"

unsigned MultiBucket::Hash() const
{
    unsigned hash = 0xdeadbeefu;
    for (Bucket const & bucket : m_buckets)
        hash = THashCombine32(bucket.Hash(), hash);
    return hash;
}

bool MultiBucket::IsEqual(MultiBucket const & other) const
{
    return m_buckets == other.m_buckets;
}

bool MultiBucket::IsLess(MultiBucket const & other) const
{
    std::size_t const common = std::min(m_buckets.size(), other.m_buckets.size());
    for (std::size_t i = 0; i < common; ++i)
        if (!(m_buckets[i] == other.m_buckets[i]))
            return m_buckets[i] < other.m_buckets[i];
    return m_buckets.size() < other.m_buckets.size();
}
