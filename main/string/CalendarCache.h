// The pool of calendars behind the date conversions.
#pragma once

#include <tbb/concurrent_queue.h>

#include <cstddef>
#include <memory>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/Locks.h"
#include "velicu/ICUCalendar.h"

namespace ICUUtils::detail {

// A calendar of en_US with cleared fields, used by one thread at a time under its mutex.
struct VELCOREDATA_API CalendarWrapper
{
    // Raises LogicException_LogicAssert_0x724C7F0E.
    CalendarWrapper();
    ~CalendarWrapper();

    TRecursiveMutex mutex;
    bool retired = false;  // waits in the pool, or has been there
    std::unique_ptr<VelICU_V2::ICUCalendar> calendar;
};

// A calendar lives for two uses: built for the first, it goes into the pool when its user lets it go; taken from there,
// it is deleted after the second. Any thread may call.
class VELCOREDATA_API CalendarCache
{
public:
    // The process's own; made at the first call, never destroyed.
    static CalendarCache & Get();

    CalendarCache();
    ~CalendarCache();

    // From the pool, or new if the pool is empty. Lock the wrapper's mutex for the length of the use.
    std::shared_ptr<CalendarWrapper> Acquire();

    // How many wait. Exact only while no other thread takes or gives.
    std::size_t CountWaiting() const;

private:
    using Queue = tbb::concurrent_queue<std::shared_ptr<CalendarWrapper>>;

    // Shared with the calendars that are out for their first use.
    std::shared_ptr<Queue> m_queue;
};

}  // namespace ICUUtils::detail
