// Where the "]" of a text stand, 64 code units at a time. Own code: the standard search goes unit by unit, and names
// are too short for a call of Qt's.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace detail {

class BracketScan
{
public:
    explicit BracketScan(std::u16string_view text) noexcept : m_text(text) { Fill(); }

    // The first "]" at or behind `from`; npos if there is none. `from` never falls, and is at most the length.
    std::size_t Next(std::size_t from) noexcept
    {
        while (from >= m_start + kWindow) {
            m_start += kWindow;
            Fill();
        }
        std::uint64_t found = m_brackets & (~std::uint64_t{0} << (from - m_start));
        while (found == 0) {
            if (m_text.size() - m_start <= kWindow)
                return m_text.npos;
            m_start += kWindow;
            Fill();
            found = m_brackets;
        }
        return m_start + static_cast<std::size_t>(std::countr_zero(found));
    }

private:
    static constexpr std::size_t kWindow = 64;

    // Bit i: "]" stands at m_start + i.
    void Fill() noexcept
    {
        std::size_t const left = m_start < m_text.size() ? m_text.size() - m_start : 0;
        m_brackets = Brackets(m_text.data() + m_start, left < kWindow ? left : kWindow);
    }

    static std::uint64_t Brackets(char16_t const * units, std::size_t count) noexcept
    {
#if defined(__SSE2__)
        if (count >= 8) {
            std::uint64_t brackets = EightBrackets(units + count - 8) << (count - 8);
            for (std::size_t i = 0; i + 8 < count; i += 8)
                brackets |= EightBrackets(units + i) << i;
            return brackets;
        }
#endif
        std::uint64_t brackets = 0;
        for (std::size_t i = 0; i < count; ++i)
            brackets |= static_cast<std::uint64_t>(units[i] == u']') << i;
        return brackets;
    }

#if defined(__SSE2__)
    static std::uint64_t EightBrackets(char16_t const * units) noexcept
    {
        __m128i const equal =
            _mm_cmpeq_epi16(_mm_loadu_si128(reinterpret_cast<__m128i const *>(units)), _mm_set1_epi16(u']'));
        return static_cast<std::uint64_t>(_mm_movemask_epi8(_mm_packs_epi16(equal, _mm_setzero_si128())));
    }
#endif

    std::u16string_view m_text;
    std::size_t m_start = 0;
    std::uint64_t m_brackets = 0;
};

}  // namespace detail
