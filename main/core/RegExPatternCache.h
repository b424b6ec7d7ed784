// The process-wide cache of compiled ICU patterns.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>

#include "velcoredata/core/Export.h"
#include "velcoredata/core/RandomCache.h"
#include "velcoreplatform/TString.h"
#include "velicu/ICURegex.h"
#include "velsys/Hash.h"

namespace detail {

// Pattern and flags.
using RegExPatternKey = std::pair<TString, unsigned>;

struct RegExPatternKeyHash
{
    std::size_t operator()(RegExPatternKey const & key) const noexcept
    {
        return THashCombine32(key.second, HashOf(key.first));
    }
};

// Null for a pattern that does not compile: that is remembered too.
using SharedRegExPattern = std::shared_ptr<VelICU_V2::ICURegexPattern const>;
using RegExPatternCache = RandomCache<RegExPatternKey, SharedRegExPattern, RegExPatternKeyHash>;

// One for the process, of 4096 patterns, made on first use and destroyed at exit.
VELCOREDATA_API RegExPatternCache & GetRegExPatternCache();

// The pattern of the cache, compiled on a miss.
VELCOREDATA_API SharedRegExPattern GetRegExPattern(RegExPatternKey const & key);

}  // namespace detail
