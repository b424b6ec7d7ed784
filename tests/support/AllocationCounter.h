// AllocationCounter: counts the heap blocks that the calling thread asks for while the object lives.
//
// Every request counts, whoever makes it: operator new, malloc, calloc, realloc and the aligned forms, from the test,
// the library, Qt or ICU. A test program that uses it lists tests/support/AllocationCounter.cpp among its sources; that
// file takes the place of the C library's allocation functions (under a sanitizer it listens to the sanitizer's own).
// The sizes are those asked for. Frees are not counted.
//
//   AllocationCounter allocations;
//   TString copy(text);
//   EXPECT_EQ(allocations.Count(), 0u);
#pragma once

#include <cstddef>

class AllocationCounter
{
public:
    AllocationCounter() noexcept;
    AllocationCounter(AllocationCounter const &) = delete;
    AllocationCounter & operator=(AllocationCounter const &) = delete;

    // Blocks, and bytes in them, that this thread asked for since the object was made or reset.
    std::size_t Count() const noexcept;
    std::size_t Bytes() const noexcept;
    void Reset() noexcept;

private:
    std::size_t m_count;
    std::size_t m_bytes;
};
