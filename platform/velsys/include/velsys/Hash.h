// The hash functions of the platform. All are pure, thread-safe and stable within one process; no value leaves it.
//
// Algorithm: XXH3 (xxHash 0.8), folded to 32 bits as low ^ high.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "velsys/Export.h"

// Hash of `bytes` bytes at `data`. A null pointer is allowed with zero bytes.
VELSYS_API unsigned THash32(void const * data, std::size_t bytes, unsigned seed);

namespace detail {

// THash32 of the sixteen bytes of two little-endian words, in line: the step of XXH3 for that length. Own code, since
// callers of public headers need not have xxHash; equal to THash32 on every input.
inline unsigned HashTwoWords(std::uint64_t low, std::uint64_t high, unsigned seed) noexcept
{
    std::uint64_t const a = low ^ ((0x1f67b3b7a4a44072u ^ 0x78e5c0cc4ee679cbu) + seed);
    std::uint64_t const b = high ^ ((0x2172ffcc7dd05a82u ^ 0x8e2443f7744608b8u) - seed);
    __extension__ using Product = unsigned __int128;
    Product const product = static_cast<Product>(a) * b;
    std::uint64_t hash = 16 + __builtin_bswap64(a) + b +
                         (static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64));
    hash ^= hash >> 37;
    hash *= 0x165667919E3779F9u;
    hash ^= hash >> 32;
    return static_cast<unsigned>(hash) ^ static_cast<unsigned>(hash >> 32);
}

}  // namespace detail

// Folds one hash into another. The order of the arguments matters: THashCombine32(a, b) != THashCombine32(b, a). Small
// numbers are as good as hashes: the value is spread over all bits before it meets the seed (the block step of
// MurmurHash3).
constexpr unsigned THashCombine32(unsigned value, unsigned seed) noexcept
{
    unsigned const spread = std::rotl(value * 0xcc9e2d51u, 15) * 0x1b873593u;
    unsigned h = std::rotl(seed ^ spread, 13) * 5u + 0xe6546b64u;
    h ^= h >> 16;
    h *= 0x85ebca6bu;
    h ^= h >> 13;
    return h;
}

constexpr unsigned long long THashCombine(unsigned long long value, unsigned long long seed) noexcept
{
    unsigned long long const spread = std::rotl(value * 0x87c37b91114253d5ull, 31) * 0x4cf5ad432745937full;
    unsigned long long h = std::rotl(seed ^ spread, 27) * 5u + 0x52dce729u;
    h ^= h >> 32;
    h *= 0xff51afd7ed558ccdull;
    h ^= h >> 29;
    return h;
}

// 128-bit hash under two seeds; first is the low half.
VELSYS_API std::pair<std::uint64_t, std::uint64_t> THash128(void const * data, std::size_t bytes, std::uint64_t seed1,
                                                            std::uint64_t seed2);
