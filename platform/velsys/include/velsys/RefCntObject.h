// RefCntObject: base of the shared heap objects, with an atomic reference count.
//
// A new object starts at count zero; RemoveReference deletes it when the count falls to zero. Counting is safe from any
// thread. The object itself is to be treated as immutable once it is shared.
#pragma once

#include <atomic>

#include "velsys/Export.h"

namespace detail {
struct RefCountAccess;
}

// The count without a virtual table of its own; Derived is the class that RemoveReference deletes.
template <class Derived>
class RefCntObjectNonVirtualBase
{
public:
    // Both return the new count.
    int AddReference() const noexcept { return m_count.fetch_add(1, std::memory_order_relaxed) + 1; }
    int RemoveReference() const noexcept
    {
        int const left = m_count.fetch_sub(1, std::memory_order_acq_rel) - 1;
        if (left == 0)
            delete static_cast<Derived const *>(this);
        return left;
    }

protected:
    RefCntObjectNonVirtualBase() noexcept = default;
    // The count belongs to the object, not to its value: a copy starts at zero, an assignment keeps it.
    RefCntObjectNonVirtualBase(RefCntObjectNonVirtualBase const &) noexcept {}
    RefCntObjectNonVirtualBase & operator=(RefCntObjectNonVirtualBase const &) noexcept { return *this; }
    ~RefCntObjectNonVirtualBase() = default;

private:
    friend struct detail::RefCountAccess;
    void SetRefCountToOne() const noexcept { m_count.store(1, std::memory_order_relaxed); }

    mutable std::atomic<int> m_count{0};
};

class VELSYS_API RefCntObject : public RefCntObjectNonVirtualBase<RefCntObject>
{
protected:
    RefCntObject() noexcept = default;
    RefCntObject(RefCntObject const &) noexcept = default;
    RefCntObject & operator=(RefCntObject const &) noexcept = default;
    virtual ~RefCntObject();

    friend class RefCntObjectNonVirtualBase<RefCntObject>;
};

namespace detail {

// Door to the private part of the count, for code that moves an object into fresh storage and owns it alone.
struct RefCountAccess
{
    static void SetRefCountToOne(RefCntObject const & object) noexcept { object.SetRefCountToOne(); }
    static int Count(RefCntObject const & object) noexcept { return object.m_count.load(std::memory_order_relaxed); }
};

}  // namespace detail
