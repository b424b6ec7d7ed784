// A text that is to be a date, with what can be told of it before a pattern is tried.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

namespace detail {

class VELCOREDATA_API DateText
{
public:
    // The view must outlive the object. Trimmed is without white space at both ends; null is empty.
    explicit DateText(std::u16string_view text) noexcept : m_text(text) { Judge(); }
    static DateText Trimmed(char16_t const * text) noexcept;

    std::u16string_view View() const noexcept { return m_text; }
    bool IsEmpty() const noexcept { return m_text.empty(); }
    // Nothing but ASCII digits, letters, blanks and / . , : - in such an order that every number is plain digits: up to
    // nine of them, without a sign before and an exponent behind. Texts of more than 100 code units are not plain.
    bool IsPlain() const noexcept { return m_plain; }
    bool HasLetters() const noexcept { return m_letters; }
    // Of a plain text: how many numbers it has, and how many of each mark, eight bits for each (see SignatureOf).
    std::uint64_t GetSignature() const noexcept { return m_signature; }
    // Made at the first call.
    TString const & AsTString() const;

    // What one number, or one mark, adds to a signature; 0 for other units.
    static constexpr std::uint64_t ONE_NUMBER = 1;
    static constexpr std::uint64_t SignatureOf(char16_t mark) noexcept
    {
        switch (mark) {
        case u'/': return 1ULL << 8;
        case u'-': return 1ULL << 16;
        case u'.': return 1ULL << 24;
        case u':': return 1ULL << 32;
        case u',': return 1ULL << 40;
        default: return 0;
        }
    }

private:
    void Judge() noexcept;

    std::u16string_view m_text;
    std::uint64_t m_signature = 0;
    bool m_plain = false;
    bool m_letters = false;
    mutable std::optional<TString> m_copy;
};

}  // namespace detail
