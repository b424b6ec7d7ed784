#include "velsys/Hash.h"

#define XXH_INLINE_ALL
#include <xxhash.h>

unsigned THash32(void const * data, std::size_t bytes, unsigned seed)
{
    XXH64_hash_t const hash = XXH3_64bits_withSeed(data, bytes, seed);
    return static_cast<unsigned>(hash) ^ static_cast<unsigned>(hash >> 32);
}

std::pair<std::uint64_t, std::uint64_t> THash128(void const * data, std::size_t bytes, std::uint64_t seed1,
                                                 std::uint64_t seed2)
{
    std::uint64_t const rotated = (seed2 << 32) | (seed2 >> 32);
    XXH128_hash_t const hash = XXH3_128bits_withSeed(data, bytes, seed1 ^ rotated);
    return {hash.low64, hash.high64};
}
