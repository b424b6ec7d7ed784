#pragma once

#include "velcoredata/data/Collator.h"
#include "velcoredata/data/CollatorPool.h"

// The handle through which a thread reaches its own collator. Making or copying one fetches the collator of the thread
// that does so; a handle must not be used on a thread other than the one that made it.
class CollatorRef
{
public:
    explicit CollatorRef(CollatorPool & pool) : m_pool(&pool), m_collator(pool.GetCollator()) {}
    CollatorRef(CollatorRef const & other) : CollatorRef(*other.m_pool) {}
    CollatorRef & operator=(CollatorRef const & other)
    {
        m_pool = other.m_pool;
        m_collator = m_pool->GetCollator();
        return *this;
    }

    Collator const * operator->() const { return m_collator; }
    Collator const & operator*() const { return *m_collator; }

private:
    CollatorPool * m_pool;
    Collator const * m_collator;
};
