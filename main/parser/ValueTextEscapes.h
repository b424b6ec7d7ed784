// Which characters of a string are escaped in value text, and where the next one stands.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "velcoreplatform/CorePlatformUtils.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace detail {

// Classes of characters, as bits.
inline constexpr unsigned kInvalidCharacter = 1;  // may not stand in a document
inline constexpr unsigned kDelimiter = 2;         // " # % and the backslash
inline constexpr unsigned kTupleMark = 4;         // , and )

constexpr bool IsValueTextDelimiter(char16_t c)
{
    return c >= 34 && c <= 92 && (0x40000000000000Bull >> (c - 34) & 1) != 0;
}

constexpr unsigned ValueTextClassOf(char16_t c)
{
    return (CorePlatformUtils::IsValidCharacter(c) ? 0u : kInvalidCharacter) |
           (IsValueTextDelimiter(c) ? kDelimiter : 0u) | (c == u',' || c == u')' ? kTupleMark : 0u);
}

inline constexpr auto kValueTextClasses = [] {
    std::array<unsigned char, 128> classes{};
    for (char16_t c = 0; c < classes.size(); ++c)
        classes[c] = static_cast<unsigned char>(ValueTextClassOf(c));
    return classes;
}();

// The classes of a character among those of the mask.
inline unsigned ValueTextClassOf(char16_t c, unsigned mask)
{
    return (c < kValueTextClasses.size() ? kValueTextClasses[c] : ValueTextClassOf(c)) & mask;
}

// Copies from `from` until `end` or a character of the mask's classes; may write seven code units more than it copies.
// Returns how many were copied.
inline std::size_t CopyPlain(char16_t const * from, char16_t const * end, char16_t * to, unsigned mask)
{
    char16_t const * const start = from;
#if defined(__SSE2__)
    // Eight at a time. Tabs and line ends stop the fast loop and are looked at one by one.
    __m128i const bias = _mm_set1_epi16(static_cast<short>(0x8000));
    __m128i const belowBlank = _mm_set1_epi16(static_cast<short>(0x8000 + 0x20));
    __m128i const lastValid = _mm_set1_epi16(static_cast<short>(0x8000 ^ 0xFFFD));
    auto const specials = [=](__m128i units) {
        __m128i const biased = _mm_xor_si128(units, bias);
        __m128i found = _mm_or_si128(_mm_cmplt_epi16(biased, belowBlank), _mm_cmpgt_epi16(biased, lastValid));
        auto const equals = [&](char16_t c) { return _mm_cmpeq_epi16(units, _mm_set1_epi16(static_cast<short>(c))); };
        if ((mask & kDelimiter) != 0)
            found = _mm_or_si128(_mm_or_si128(_mm_or_si128(equals(u'"'), equals(u'#')), found),
                                 _mm_or_si128(equals(u'%'), equals(u'\\')));
        if ((mask & kTupleMark) != 0)
            found = _mm_or_si128(_mm_or_si128(equals(u','), equals(u')')), found);
        return static_cast<unsigned>(_mm_movemask_epi8(found));
    };
    while (end - from >= 8) {
        __m128i const units = _mm_loadu_si128(reinterpret_cast<__m128i const *>(from));
        _mm_storeu_si128(reinterpret_cast<__m128i *>(to), units);
        unsigned const bits = specials(units);
        if (bits == 0) {
            from += 8;
            to += 8;
            continue;
        }
        int const plain = std::countr_zero(bits) / 2;
        from += plain;
        if (ValueTextClassOf(*from, mask) != 0)
            return static_cast<std::size_t>(from - start);
        to += plain;
        *to++ = *from++;
    }
    // What is left, together with plain characters before it that are written once more.
    if (from != end && end - start >= 8) {
        std::ptrdiff_t const again = 8 - (end - from);
        __m128i const units = _mm_loadu_si128(reinterpret_cast<__m128i const *>(from - again));
        if (specials(units) >> 2 * again == 0) {
            _mm_storeu_si128(reinterpret_cast<__m128i *>(to - again), units);
            return static_cast<std::size_t>(end - start);
        }
    }
#endif
    while (from != end && ValueTextClassOf(*from, mask) == 0)
        *to++ = *from++;
    return static_cast<std::size_t>(from - start);
}

}  // namespace detail
