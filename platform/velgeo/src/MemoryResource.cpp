#include "velgeo/MemoryResource.h"

std::pmr::memory_resource * velgeo::GetMemoryResource() noexcept
{
    return std::pmr::new_delete_resource();
}
