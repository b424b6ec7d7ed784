// The memory that the coordinates of spatial objects live in.
#pragma once

#include <memory_resource>
#include <vector>

#include "velgeo/Export.h"

namespace velgeo {

/// The allocator of every vector of a spatial object; made from GetMemoryResource(). Vectors that are moved keep it.
template <class T>
using ResourceAllocator = std::pmr::polymorphic_allocator<T>;

/// A vector with that allocator: ResourceVector<int> v(GetMemoryResource());
template <class T>
using ResourceVector = std::vector<T, ResourceAllocator<T>>;

/// One for the process, safe from any thread, never null; it outlives every object. std::pmr's own default resource,
/// which a program may replace, is not asked.
VELGEO_API std::pmr::memory_resource * GetMemoryResource() noexcept;

}  // namespace velgeo
