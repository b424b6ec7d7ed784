#include "velcoredata/data/StringWithCollationCache.h"

#include <atomic>
#include <utility>

#include "main/data/InternTable.h"

namespace {

using StringPtr = RefCntPtr<StringWithCollation, RefCntObject>;

std::atomic<unsigned long long> stringPoolThreadLocalCacheSize{1000};

}  // namespace

struct StringWithCollationCache::Impl
{
    Collation collation;
    detail::InternTable strings;
};

StringWithCollationCache::StringWithCollationCache(Collation const & collation, unsigned long long maximum)
    : m_impl(new Impl{collation, detail::InternTable(maximum)})
{}

StringWithCollationCache::~StringWithCollationCache()
{
    m_impl->strings.Clear();
}

StringPtr StringWithCollationCache::Lookup(TString const & text)
{
    // The same answer as by the collation hash, without computing one.
    if (StringPtr known = m_impl->strings.LookupText(text))
        return known;
    StringWithCollation candidate(text, m_impl->collation);
    unsigned const hash = candidate.GetHash();
    StringPtr found;
    if (m_impl->strings.Lookup(hash, found) && found->GetString() == text)
        return found;
    auto * const object = new StringWithCollation(std::move(candidate));
    detail::RefCountAccess::SetRefCountToOne(*object);
    StringPtr const made = StringPtr::Adopt(object);
    m_impl->strings.Put(hash, made, 1);
    return made;
}

unsigned long long StringWithCollationCache::GetStringPoolThreadLocalCacheSize()
{
    return stringPoolThreadLocalCacheSize.load(std::memory_order_relaxed);
}

void StringWithCollationCache::SetStringPoolThreadLocalCacheSize(unsigned long long size)
{
    stringPoolThreadLocalCacheSize.store(size, std::memory_order_relaxed);
}
