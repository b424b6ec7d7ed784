#pragma once

#include <cstddef>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

// What a pool is made for: a collator name and Windows compare flags. Equal when both parts are.
struct VELCOREDATA_API CollatorPoolKey
{
    TString name;
    unsigned flags = 0;

    friend bool operator==(CollatorPoolKey const & a, CollatorPoolKey const & b)
    {
        return a.flags == b.flags && a.name == b.name;
    }
    std::size_t GetHashCode() const;
};
