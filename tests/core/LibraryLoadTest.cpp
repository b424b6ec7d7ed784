// Loading the library builds no table that is not asked for, and a text by key outside a session takes no lock.
//
// A program of its own, which links what the library stands on but not the library, and takes the C library's place for
// allocations and locks.

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <pthread.h>

#include <cstdint>

#include "tests/support/AllocationCounter.h"

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define SANITIZED 1
#endif
#endif

namespace {

thread_local int t_locks = 0;

}  // namespace

#if !defined(SANITIZED)

// The locks of std::mutex and std::shared_mutex come by here; so do those of Qt that find their mutex taken.
extern "C" {
__attribute__((visibility("default"))) int pthread_mutex_lock(pthread_mutex_t * mutex)
{
    static auto const real = reinterpret_cast<int (*)(pthread_mutex_t *)>(dlsym(RTLD_NEXT, "pthread_mutex_lock"));
    ++t_locks;
    return real(mutex);
}

__attribute__((visibility("default"))) int pthread_rwlock_rdlock(pthread_rwlock_t * lock)
{
    static auto const real = reinterpret_cast<int (*)(pthread_rwlock_t *)>(dlsym(RTLD_NEXT, "pthread_rwlock_rdlock"));
    ++t_locks;
    return real(lock);
}
}

#endif

namespace {

// CoreData::LookupTStrExported gives a TString, which is as large as a QString and more than two registers: the caller
// passes the place for it first.
struct TextPlace
{
    alignas(8) unsigned char bytes[64];
};
using Lookup = void (*)(TextPlace *, std::uint32_t id);

constexpr char const * lookupName = "_ZN8CoreData18LookupTStrExportedENS_8StringIdE";

struct Library
{
    Library()
    {
        AllocationCounter const allocations;
        handle = dlopen(VELCOREDATA_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        blocks = allocations.Count();
        bytes = allocations.Bytes();
    }
    void * handle;
    std::size_t blocks;
    std::size_t bytes;
};

Library const & Loaded()
{
    static Library const library;
    return library;
}

}  // namespace

TEST(LibraryLoad, BuildsNoTables)
{
    Library const & library = Loaded();
    ASSERT_NE(library.handle, nullptr) << dlerror();
#if defined(SANITIZED)
    GTEST_SKIP() << "a sanitizer allocates too";
#endif
    // The loader's own records, the registered translations and a few names.
    EXPECT_LT(library.blocks, 120u);
    EXPECT_LT(library.bytes, 40'000u);
    RecordProperty("blocks", static_cast<int>(library.blocks));
    RecordProperty("bytes", static_cast<int>(library.bytes));
}

TEST(LibraryLoad, ATextByKeyOutsideASessionTakesNoLock)
{
    ASSERT_NE(Loaded().handle, nullptr) << dlerror();
#if defined(SANITIZED)
    GTEST_SKIP() << "a sanitizer locks itself";
#endif
    auto const lookup = reinterpret_cast<Lookup>(dlsym(Loaded().handle, lookupName));
    ASSERT_NE(lookup, nullptr);
    constexpr std::uint32_t automatic = 0x12C45CA4;
    pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
    t_locks = 0;
    pthread_mutex_lock(&mutex);
    pthread_mutex_unlock(&mutex);
    ASSERT_EQ(t_locks, 1) << "locks are counted";
    for (int round = 0; round < 3; ++round) {
        TextPlace text;  // its block is left behind
        t_locks = 0;
        AllocationCounter const allocations;
        lookup(&text, automatic);
        EXPECT_EQ(t_locks, 0);
        EXPECT_EQ(allocations.Count(), 1u);
    }
}
