// How the process's instance of a string table cache is reached.
#pragma once

#include <boost/any.hpp>

#include "velcoreplatform/InitOnce.h"
#include "velsys/ThrowSite.h"

namespace CoreData::detail {

// Where an instance is asked for, as its assertion names it.
struct InstanceSite
{
    char const * file;
    int line;
    unsigned code;
    char16_t const * name;
};

// The instance in *slot, which has static storage and is filled by the first call. Raises "s_cache" with the site's
// error if `create` or `extract` gave none.
template <class Cache>
Cache & InstanceOf(void ** slot, boost::any * (*create)(void *), void * (*extract)(boost::any *),
                   InstanceSite const & site)
{
    InitOnce(slot, create, nullptr, extract);
    if (*slot == nullptr)
        ThrowLogicException(site.file, site.line, "s_cache", VeltriaError::MakeError(site.code, site.name));
    return *static_cast<Cache *>(*slot);
}

}  // namespace CoreData::detail
