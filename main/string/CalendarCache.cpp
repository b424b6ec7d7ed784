#include "main/string/CalendarCache.h"

#include "velcoredata/core/TLocale.h"
#include "velcoreplatform/InitOnce.h"
#include "velsys/ThrowSite.h"

#if defined(__SANITIZE_ADDRESS__)
#define WITH_LEAK_CHECK 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define WITH_LEAK_CHECK 1
#endif
#endif
#if defined(WITH_LEAK_CHECK)
#include <sanitizer/lsan_interface.h>
#endif

namespace ICUUtils::detail {

namespace {

// What the queue holds at exit is reachable, but through oneTBB's own memory, where the leak checker does not look.
#if defined(WITH_LEAK_CHECK)
using NotALeak = __lsan::ScopedDisabler;
#else
struct NotALeak
{
    NotALeak() noexcept {}
};
#endif

// Ends a calendar's first use: gives it to the pool, from where it travels under a pointer that deletes it.
struct Return
{
    std::shared_ptr<tbb::concurrent_queue<std::shared_ptr<CalendarWrapper>>> queue;

    void operator()(CalendarWrapper * wrapper) const noexcept
    {
        std::unique_ptr<CalendarWrapper> owner(wrapper);
        if (owner->retired)
            return;
        owner->retired = true;
        try {
            NotALeak const scope;
            queue->push(std::shared_ptr<CalendarWrapper>(std::move(owner)));
        } catch (std::bad_alloc const &) {
            // The pool goes without it.
        }
    }
};

}  // namespace

CalendarWrapper::CalendarWrapper()
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    calendar = VelICU::ICUCalendar::createInstance(TLocale::GetISODefaultLocale().getICULocale(), status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0x724C7F0E);
    // A new calendar stands at the present moment; its milliseconds would stay in every date.
    calendar->clear();
}

CalendarWrapper::~CalendarWrapper() = default;

CalendarCache & CalendarCache::Get()
{
    static void * s_slot = nullptr;
    InitOnce(
        &s_slot, [](void *) { return new boost::any(std::make_shared<CalendarCache>()); }, nullptr,
        [](boost::any * made) -> void * { return boost::any_cast<std::shared_ptr<CalendarCache> &>(*made).get(); });
    return *static_cast<CalendarCache *>(s_slot);
}

CalendarCache::CalendarCache() : m_queue(std::make_shared<Queue>()) {}

CalendarCache::~CalendarCache() = default;

std::shared_ptr<CalendarWrapper> CalendarCache::Acquire()
{
    std::shared_ptr<CalendarWrapper> wrapper;
    if (!m_queue->try_pop(wrapper))
        wrapper.reset(new CalendarWrapper(), Return{m_queue});
    wrapper->retired = false;
    return wrapper;
}

std::size_t CalendarCache::CountWaiting() const
{
    return static_cast<std::size_t>(m_queue->unsafe_size());
}

}  // namespace ICUUtils::detail
