#pragma once

namespace detail {

// "A" to "Z" and "a" to "z": the letters that stand for a field in a pattern.
constexpr bool IsLetter(char16_t unit) noexcept
{
    return static_cast<unsigned>((unit | 0x20) - u'a') < 26;
}

}  // namespace detail
