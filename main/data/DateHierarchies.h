#pragma once

#include "velcoredata/data/DateEnums.h"
#include "velcoredata/data/DateTimeHierarchy.h"

#include <map>
#include <stdexcept>
#include <utility>

namespace detail {

// The hierarchies of one calendar by what they are for.
using DateHierarchies = std::map<std::pair<DateDataType, DateComputationKind>, DateTimeHierarchy>;

inline DateTimeHierarchy const & FindHierarchy(DateHierarchies const & hierarchies, DateDataType dataType,
                                               DateComputationKind kind)
{
    auto const found = hierarchies.find({dataType, kind});
    if (found == hierarchies.end())
        throw std::out_of_range("invalid map<K, T> key");  // map::at has another text
    return found->second;
}

}  // namespace detail
