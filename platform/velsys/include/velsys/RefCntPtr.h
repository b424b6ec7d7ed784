// RefCntPtr: the intrusive smart pointer to a RefCntObject.
//
// Copying adds a reference, destruction removes one, null is allowed. Dereferencing a null one raises the logic
// assertion "Null pointer dereferenced" ("LogicException_LogicAssert_0x00BF554A"). T may be incomplete where the
// pointer is only named. The pointer itself is one writer or many readers; the count is atomic.
#pragma once

#include <cstddef>
#include <functional>
#include <type_traits>
#include <utility>

#include "velsys/Export.h"
#include "velsys/RefCntObject.h"

namespace detail {
[[noreturn]] VELSYS_API void ThrowNullPointerDereferenced();
}

template <class T, class Base = RefCntObject>
class RefCntPtr
{
public:
    RefCntPtr() noexcept = default;
    RefCntPtr(std::nullptr_t) noexcept {}
    // Adds a reference.
    RefCntPtr(T * object) noexcept : m_object(object) { Add(); }
    RefCntPtr(RefCntPtr const & other) noexcept : m_object(other.m_object) { Add(); }
    RefCntPtr(RefCntPtr && other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    template <class U, std::enable_if_t<std::is_convertible_v<U *, T *>, int> = 0>
    RefCntPtr(RefCntPtr<U, Base> const & other) noexcept : RefCntPtr(other.get())
    {}
    ~RefCntPtr() { Remove(); }

    RefCntPtr & operator=(RefCntPtr const & other) noexcept
    {
        RefCntPtr(other).swap(*this);
        return *this;
    }
    RefCntPtr & operator=(RefCntPtr && other) noexcept
    {
        RefCntPtr(std::move(other)).swap(*this);
        return *this;
    }

    // Takes over a reference that the caller owns.
    static RefCntPtr Adopt(T * object) noexcept
    {
        RefCntPtr result;
        result.m_object = object;
        return result;
    }
    // Gives the reference to the caller and becomes null.
    [[nodiscard]] T * Detach() noexcept { return std::exchange(m_object, nullptr); }

    T * get() const noexcept { return m_object; }
    T & operator*() const { return *Checked(); }
    T * operator->() const { return Checked(); }
    explicit operator bool() const noexcept { return m_object != nullptr; }

    void reset() noexcept { RefCntPtr().swap(*this); }
    void swap(RefCntPtr & other) noexcept { std::swap(m_object, other.m_object); }

    friend bool operator==(RefCntPtr const & a, RefCntPtr const & b) noexcept { return a.m_object == b.m_object; }
    friend bool operator==(RefCntPtr const & a, std::nullptr_t) noexcept { return a.m_object == nullptr; }
    friend bool operator<(RefCntPtr const & a, RefCntPtr const & b) noexcept
    {
        return std::less<T *>()(a.m_object, b.m_object);
    }

private:
    T * Checked() const
    {
        if (m_object == nullptr) [[unlikely]]
            detail::ThrowNullPointerDereferenced();
        return m_object;
    }
    void Add() const noexcept
    {
        if (m_object != nullptr)
            static_cast<Base const *>(m_object)->AddReference();
    }
    void Remove() const noexcept
    {
        if (m_object != nullptr)
            static_cast<Base const *>(m_object)->RemoveReference();
    }

    T * m_object = nullptr;
};
