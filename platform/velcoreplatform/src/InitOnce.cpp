#include "velcoreplatform/InitOnce.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <unordered_map>

#include "velsys/NoDestructor.h"

namespace {

struct Entry
{
    // Recursive, so that a create function which asks for its own slot faults by endless recursion, not by a silent
    // hang.
    std::recursive_mutex mutex;
};

// One mutex a slot: a slow creation holds up only the callers of its own slot, and creations may nest.
Entry & EntryOf(void ** slot)
{
    static detail::NoDestructor<std::mutex> s_mutex;
    static detail::NoDestructor<std::unordered_map<void **, std::unique_ptr<Entry>>> s_entries;
    std::lock_guard const lock(*s_mutex);
    auto & entry = (*s_entries)[slot];
    if (entry == nullptr)
        entry = std::make_unique<Entry>();
    return *entry;
}

}  // namespace

void InitOnce(void ** slot, boost::any * (*create)(void *), void * context, void * (*extract)(boost::any *))
{
    std::atomic_ref<void *> const published(*slot);
    if (published.load(std::memory_order_acquire) != nullptr)
        return;
    std::lock_guard const lock(EntryOf(slot).mutex);
    if (published.load(std::memory_order_relaxed) != nullptr)
        return;
    std::unique_ptr<boost::any> made(create(context));
    void * const object = extract(made.get());
    made.release();
    published.store(object, std::memory_order_release);
}
