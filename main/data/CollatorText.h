#pragma once

// Steps that both kinds of collators share: lengths, trims, terminated results.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace detail
{

// Null counts as empty.
inline std::u16string_view TextOf(char16_t const * text)
{
    return text == nullptr ? std::u16string_view() : std::u16string_view(text);
}

// The length an argument stands for: -1 means up to the terminator.
inline std::size_t LengthOf(char16_t const * text, int length)
{
    return length >= 0 ? static_cast<std::size_t>(length) : TextOf(text).size();
}

inline void AssignTerminated(std::vector<char16_t> & out, std::u16string_view text)
{
    out.assign(text.begin(), text.end());
    out.push_back(0);
}

template <class IsSpace>
std::u16string_view TrimmedLeft(std::u16string_view text, IsSpace isSpace)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    return text;
}

template <class IsSpace>
std::u16string_view TrimmedRight(std::u16string_view text, IsSpace isSpace)
{
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

}  // namespace detail
