#include "velcoredata/data/StringWithCollation.h"

#include <utility>

StringWithCollation::StringWithCollation(TString const & text, Collation const & collation)
    : m_hash(0), m_string(text), m_collation(collation)
{}

StringWithCollation::StringWithCollation(StringWithCollation const & other)
    : RefCntObject(other),
      m_hash(other.m_hash.load(std::memory_order_relaxed)),
      m_string(other.m_string),
      m_collation(other.m_collation)
{}

StringWithCollation::StringWithCollation(StringWithCollation && other)
    : RefCntObject(other),
      m_hash(other.m_hash.exchange(0, std::memory_order_relaxed)),
      m_string(std::move(other.m_string)),
      m_collation(other.m_collation)
{}

StringWithCollation & StringWithCollation::operator=(StringWithCollation const & other)
{
    if (this != &other) {
        m_string = other.m_string;
        m_collation = other.m_collation;
        m_hash.store(other.m_hash.load());
    }
    return *this;
}

StringWithCollation & StringWithCollation::operator=(StringWithCollation && other)
{
    if (this != &other) {
        m_string = std::move(other.m_string);
        m_collation = other.m_collation;
        m_hash.store(other.m_hash.exchange(0));
    }
    return *this;
}

StringWithCollation::~StringWithCollation() = default;

unsigned StringWithCollation::ComputeHash() const
{
    unsigned const hash = m_collation.Hash(m_string);
    m_hash.exchange(hash);
    return hash;
}

bool operator==(StringWithCollation const & a, StringWithCollation const & b)
{
    if (a.HasHash() && b.HasHash() && a.GetHash() != b.GetHash())
        return false;
    if (!a.GetCollation().IsEquivalent(b.GetCollation()))
        return false;
    return a.GetCollation().Compare(a.GetString(), b.GetString()) == 0;
}

bool operator<(StringWithCollation const & a, StringWithCollation const & b)
{
    if (Equivalent(a.GetCollation(), b.GetCollation()))
        return a.GetCollation().Compare(a.GetString(), b.GetString()) < 0;
    return a.GetCollation() < b.GetCollation();
}
