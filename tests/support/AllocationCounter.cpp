#include "tests/support/AllocationCounter.h"

#include <cerrno>
#include <cstdlib>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define COUNT_THROUGH_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define COUNT_THROUGH_SANITIZER 1
#endif
#endif

#if defined(COUNT_THROUGH_SANITIZER)
// g++ has the function but not sanitizer/allocator_interface.h.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*)(void const volatile *, std::size_t),
                                                         void (*)(void const volatile *));
#endif

namespace {

thread_local std::size_t t_count = 0;
thread_local std::size_t t_bytes = 0;

#if defined(__clang__) || defined(__GNUC__)
__attribute__((no_sanitize("thread", "address")))
#endif
void Note(std::size_t bytes) noexcept
{
    ++t_count;
    t_bytes += bytes;
}

}  // namespace

#if defined(COUNT_THROUGH_SANITIZER)

namespace {

__attribute__((no_sanitize("thread", "address"))) void OnMalloc(void const volatile *, std::size_t bytes)
{
    Note(bytes);
}

__attribute__((no_sanitize("thread", "address"))) void OnFree(void const volatile *) {}

[[maybe_unused]] int const g_installed = __sanitizer_install_malloc_and_free_hooks(OnMalloc, OnFree);

}  // namespace

#else

// The C library's own functions under the names that stay reachable when the usual ones are replaced.
extern "C" {
void * __libc_malloc(std::size_t bytes);
void * __libc_calloc(std::size_t count, std::size_t bytes);
void * __libc_realloc(void * block, std::size_t bytes);
void * __libc_memalign(std::size_t alignment, std::size_t bytes);

__attribute__((visibility("default"))) void * malloc(std::size_t bytes)
{
    Note(bytes);
    return __libc_malloc(bytes);
}

__attribute__((visibility("default"))) void * calloc(std::size_t count, std::size_t bytes)
{
    Note(count * bytes);
    return __libc_calloc(count, bytes);
}

__attribute__((visibility("default"))) void * realloc(void * block, std::size_t bytes)
{
    Note(bytes);
    return __libc_realloc(block, bytes);
}

__attribute__((visibility("default"))) void * memalign(std::size_t alignment, std::size_t bytes)
{
    Note(bytes);
    return __libc_memalign(alignment, bytes);
}

__attribute__((visibility("default"))) void * aligned_alloc(std::size_t alignment, std::size_t bytes)
{
    Note(bytes);
    return __libc_memalign(alignment, bytes);
}

__attribute__((visibility("default"))) int posix_memalign(void ** block, std::size_t alignment, std::size_t bytes)
{
    if (alignment < sizeof(void *) || (alignment & (alignment - 1)) != 0)
        return EINVAL;
    Note(bytes);
    void * const made = __libc_memalign(alignment, bytes);
    if (made == nullptr)
        return ENOMEM;
    *block = made;
    return 0;
}
}

#endif

AllocationCounter::AllocationCounter() noexcept : m_count(t_count), m_bytes(t_bytes) {}

std::size_t AllocationCounter::Count() const noexcept
{
    return t_count - m_count;
}

std::size_t AllocationCounter::Bytes() const noexcept
{
    return t_bytes - m_bytes;
}

void AllocationCounter::Reset() noexcept
{
    m_count = t_count;
    m_bytes = t_bytes;
}
