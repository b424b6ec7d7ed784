#include "velcoredata/data/CollatorPoolKey.h"

#include "velsys/Hash.h"

std::size_t CollatorPoolKey::GetHashCode() const
{
    return THashCombine32(HashOf(name), flags);
}
