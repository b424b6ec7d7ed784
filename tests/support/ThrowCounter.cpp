#include "tests/support/ThrowCounter.h"

#include <dlfcn.h>

#include <atomic>

namespace {

std::atomic<std::size_t> g_thrown{0};

using Allocate = void * (*)(std::size_t);

}  // namespace

extern "C" __attribute__((visibility("default"))) void * __cxa_allocate_exception(std::size_t size) noexcept
{
    static auto const next = reinterpret_cast<Allocate>(dlsym(RTLD_NEXT, "__cxa_allocate_exception"));
    g_thrown.fetch_add(1, std::memory_order_relaxed);
    return next(size);
}

ThrowCounter::ThrowCounter() noexcept : m_before(g_thrown.load(std::memory_order_relaxed)) {}

std::size_t ThrowCounter::Count() const noexcept
{
    return g_thrown.load(std::memory_order_relaxed) - m_before;
}
