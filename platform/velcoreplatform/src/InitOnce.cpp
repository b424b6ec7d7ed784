#include "velcoreplatform/InitOnce.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <utility>
#include <vector>

#include "velsys/NoDestructor.h"
#include "velsys/ThrowSite.h"

namespace {

struct Entry
{
    // Recursive, so that a create function which asks for its own slot is told so instead of waiting for itself.
    std::recursive_mutex mutex;
    bool creating = false;
    // The object was made, but extract gave null for it.
    bool madeNull = false;
    // Never destroyed; kept so that leak checkers see an owner.
    std::vector<std::unique_ptr<boost::any>> objects;
};

// Says while it lives that the entry's object is being made.
class Creating
{
public:
    explicit Creating(Entry & entry) : m_entry(entry) { m_entry.creating = true; }
    ~Creating() { m_entry.creating = false; }
    Creating(Creating const &) = delete;
    Creating & operator=(Creating const &) = delete;

private:
    Entry & m_entry;
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
    Entry & entry = EntryOf(slot);
    std::lock_guard const lock(entry.mutex);
    if (entry.madeNull || published.load(std::memory_order_relaxed) != nullptr)
        return;
    VELTRIA_ASSERT_TEXT(!entry.creating, "InitOnce asked for a slot from its own create function", 0x1F0D5C2E);
    Creating const creating(entry);
    std::unique_ptr<boost::any> made(create(context));
    void * const object = extract(made.get());
    entry.objects.push_back(std::move(made));
    entry.madeNull = object == nullptr;
    published.store(object, std::memory_order_release);
}
