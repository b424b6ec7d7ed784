#include "tests/support/AllocationCounter.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <thread>

#include <gtest/gtest.h>

#include "velcoreplatform/TString.h"

TEST(AllocationCounter, CountsOneBlockForEachOperatorNew)
{
    AllocationCounter allocations;
    auto const first = std::make_unique<long long>(1);
    EXPECT_EQ(allocations.Count(), 1u);
    EXPECT_EQ(allocations.Bytes(), sizeof(long long));
    auto const second = std::make_unique<long long[]>(100);
    EXPECT_EQ(allocations.Count(), 2u);
    EXPECT_EQ(allocations.Bytes(), 101 * sizeof(long long));
    EXPECT_NE(first.get(), second.get());
}

TEST(AllocationCounter, CountsOverAlignedBlocks)
{
    struct alignas(64) Line
    {
        char bytes[64];
    };
    AllocationCounter allocations;
    auto const line = std::make_unique<Line>();
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(line.get()) % 64, 0u);
    EXPECT_EQ(allocations.Count(), 1u);
}

TEST(AllocationCounter, CountsTheBlocksOfOtherLibraries)
{
    AllocationCounter allocations;
    TString text(u'x', 100);
    EXPECT_EQ(allocations.Count(), 1u);
    EXPECT_GE(allocations.Bytes(), 200u);
}

TEST(AllocationCounter, CountsMallocCallocAndReallocOnceEach)
{
    AllocationCounter allocations;
    void * volatile block = std::malloc(10);
    EXPECT_EQ(allocations.Count(), 1u);
    void * volatile zeroed = std::calloc(3, 7);
    EXPECT_EQ(allocations.Count(), 2u);
    EXPECT_EQ(allocations.Bytes(), 31u);
    block = std::realloc(block, 5000);
    EXPECT_EQ(allocations.Count(), 3u);
    std::free(zeroed);
    std::free(block);
    EXPECT_EQ(allocations.Count(), 3u);
}

TEST(AllocationCounter, StartsAgainAtZeroAfterReset)
{
    AllocationCounter allocations;
    auto const value = std::make_unique<int>(1);
    allocations.Reset();
    EXPECT_EQ(allocations.Count(), 0u);
    EXPECT_EQ(allocations.Bytes(), 0u);
    EXPECT_EQ(*value, 1);
}

TEST(AllocationCounter, CountsTheCallingThreadAlone)
{
    std::size_t inThread = 0;
    std::thread other([&inThread] {
        AllocationCounter allocations;
        for (int i = 0; i < 50; ++i)
            TString const text(u'x', 10);
        inThread = allocations.Count();
    });
    AllocationCounter allocations;
    other.join();
    EXPECT_EQ(allocations.Count(), 0u);
    EXPECT_EQ(inThread, 50u);
}
