#include "velcoredata/data/CollatorPools.h"

#include <memory>
#include <utility>

#include <oneapi/tbb/concurrent_unordered_map.h>

#include "main/data/BinaryCollator.h"
#include "main/data/CollatorAttributes.h"
#include "main/data/ICUCollatorPool.h"
#include "velsys/NoDestructor.h"

namespace
{

struct KeyHash
{
    std::size_t operator()(CollatorPoolKey const & key) const { return key.GetHashCode(); }
};

using PoolTable = oneapi::tbb::concurrent_unordered_map<CollatorPoolKey, std::shared_ptr<ICUCollatorPool>, KeyHash>;

// Built on first use, destroyed at process exit; entries are never removed before.
PoolTable & GetPoolTable()
{
    struct Table
    {
        PoolTable pools;
        Table() { pools.max_load_factor(4.0f); }
    };
    static Table table;
    return table.pools;
}

}  // namespace

CollatorPool & GetBinaryCollatorPool()
{
    static detail::NoDestructor<BinaryCollatorPool> pool;
    return *pool;
}

CollatorPool & GetICUCollatorPool(CollatorPoolKey const & key)
{
    PoolTable & table = GetPoolTable();
    detail::ColAttributeTable::Get();
    auto const found = table.find(key);
    if (found != table.end())
        return *found->second;
    // Outside any lock: of two threads that build the same pool, the later one drops its own.
    auto made = std::make_shared<ICUCollatorPool>(key);
    return *table.insert(std::make_pair(key, std::move(made))).first->second;
}
