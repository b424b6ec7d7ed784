#include "main/core/MatchGuard.h"

#include <pthread.h>

namespace detail {

namespace {

char const * FindLowestStackAddress()
{
    // Room for the frames between two steps, for the exception's way out and for what runs after it.
    constexpr std::size_t reserve = 256 * 1024;
    // More frames than this allows are too many for the thread sanitizer's own stack records.
    constexpr std::size_t most = 3 * 1024 * 1024;

    auto const here = static_cast<char const *>(__builtin_frame_address(0));
    char const * lowest = here - reserve;
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) == 0) {
        void * base = nullptr;
        std::size_t size = 0;
        if (pthread_attr_getstack(&attributes, &base, &size) == 0 && base != nullptr)
            lowest = static_cast<char const *>(base) + reserve;
        pthread_attr_destroy(&attributes);
    }
    // An unlimited main stack also reports more than may be there.
    return here - lowest > static_cast<std::ptrdiff_t>(most) ? here - most : lowest;
}

}  // namespace

char const * LowestStackAddress()
{
    // Asking is slow on the main thread; the answer does not change in a thread's life.
    thread_local char const * const lowest = FindLowestStackAddress();
    return lowest;
}

}  // namespace detail
