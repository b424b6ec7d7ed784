// The hash functions of the platform. All are pure, thread-safe and stable within one process; no value leaves it.
//
// Algorithm: XXH3 (xxHash 0.8), folded to 32 bits as low ^ high.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "velsys/Export.h"

// Hash of `bytes` bytes at `data`. A null pointer is allowed with zero bytes.
VELSYS_API unsigned THash32(void const * data, std::size_t bytes, unsigned seed);

// Folds one hash into another. The order of the arguments matters: THashCombine32(a, b) != THashCombine32(b, a).
constexpr unsigned THashCombine32(unsigned value, unsigned seed) noexcept
{
    unsigned h = seed ^ (value + 0x9e3779b9u + (seed << 6) + (seed >> 2));
    h ^= h >> 16;
    h *= 0x85ebca6bu;
    h ^= h >> 13;
    return h;
}

constexpr unsigned long long THashCombine(unsigned long long value, unsigned long long seed) noexcept
{
    unsigned long long h = seed ^ (value + 0x9e3779b97f4a7c15ull + (seed << 12) + (seed >> 4));
    h ^= h >> 32;
    h *= 0xff51afd7ed558ccdull;
    h ^= h >> 29;
    return h;
}

// 128-bit hash under two seeds; first is the low half.
VELSYS_API std::pair<std::uint64_t, std::uint64_t> THash128(void const * data, std::size_t bytes, std::uint64_t seed1,
                                                            std::uint64_t seed2);
