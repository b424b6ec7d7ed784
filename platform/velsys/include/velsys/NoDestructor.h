// NoDestructor: a function-local static that is never destroyed, so that code which runs at process exit may still use
// it.
#pragma once

#include <new>
#include <utility>

namespace detail {

template <class T>
class NoDestructor
{
public:
    template <class... Args>
    explicit NoDestructor(Args &&... args)
    {
        ::new (static_cast<void *>(m_storage)) T(std::forward<Args>(args)...);
    }

    NoDestructor(NoDestructor const &) = delete;
    NoDestructor & operator=(NoDestructor const &) = delete;

    T & Get() { return *std::launder(reinterpret_cast<T *>(m_storage)); }
    T & operator*() { return Get(); }
    T * operator->() { return &Get(); }

private:
    alignas(T) unsigned char m_storage[sizeof(T)];
};

}  // namespace detail
