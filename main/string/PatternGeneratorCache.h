// The cache of pattern generators by locale.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/Locks.h"
#include "velcoreplatform/TString.h"
#include "velicu/ICUDateNames.h"
#include "velsys/RefCntObject.h"
#include "velsys/RefCntPtr.h"

namespace ICUUtils::detail {

// Used by one thread at a time under its mutex. Counted, so that an eviction leaves it to the threads that hold it.
struct DateTimePatternGeneratorWrapper : RefCntObject
{
    TRecursiveMutex mutex;
    std::unique_ptr<VelICU_V2::ICUDateTimePatternGenerator> generator;  // null if ICU could not build one
};

// At most five locales, in the order of their names; a sixth empties the cache before it enters. Any thread may call.
class VELCOREDATA_API DateTimePatternGeneratorCache
{
public:
    // The process's own; made at the first call, never destroyed.
    static DateTimePatternGeneratorCache & Get();

    DateTimePatternGeneratorCache();
    ~DateTimePatternGeneratorCache();

    // The generator of a locale ("en_US"), built if it is not here. Never null.
    RefCntPtr<DateTimePatternGeneratorWrapper, RefCntObject> Find(std::string const & locale);

    bool Holds(std::string const & locale) const;
    std::size_t Count() const;

private:
    mutable std::mutex m_mutex;
    std::map<std::string, RefCntPtr<DateTimePatternGeneratorWrapper, RefCntObject>> m_wrappers;
};

// The best pattern of a locale for a skeleton, "MMM d, y" for "yMMMd" in en_US; the skeleton itself if ICU fails.
VELCOREDATA_API TString FindBestPattern(TString const & skeleton, std::string const & locale);

}  // namespace ICUUtils::detail
