// How the process's instance of a string table cache is reached.
#pragma once

#include <memory>

#include <boost/any.hpp>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/InitOnce.h"
#include "velsys/ThrowSite.h"

class StringTableCache;

namespace CoreData {

class LocalStringTableCache;

namespace detail {

// Where an instance is asked for, as its assertion names it.
struct InstanceSite
{
    char const * file;
    int line;
    unsigned code;
    char16_t const * name;
};

// The instance in *slot, which has static storage and is filled by the first call with the std::shared_ptr<Cache> that
// `create` makes. Raises "s_cache" with the site's error if that is null.
template <class Cache>
Cache & InstanceOf(void ** slot, boost::any * (*create)(void *), InstanceSite const & site)
{
    InitOnce(slot, create, nullptr,
             [](boost::any * made) -> void * { return boost::any_cast<std::shared_ptr<Cache> &>(*made).get(); });
    if (*slot == nullptr)
        ThrowLogicException(site.file, site.line, "s_cache", VeltriaError::MakeError(site.code, site.name));
    return *static_cast<Cache *>(*slot);
}

// The same for each cache, with its own error.
VELCOREDATA_API StringTableCache & StringTableCacheIn(void ** slot, boost::any * (*create)(void *));
VELCOREDATA_API LocalStringTableCache & LocalStringTableCacheIn(void ** slot, boost::any * (*create)(void *));

}  // namespace detail

}  // namespace CoreData
