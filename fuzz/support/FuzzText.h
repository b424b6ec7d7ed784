// From the bytes of a fuzzer to texts.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "velcoreplatform/TString.h"

namespace fuzz_support {

// Bytes to code units, so that seeds are readable and every code unit can come: a byte stands for itself, but 0xFF
// takes the next two bytes as a code unit, low byte first.
inline std::u16string Units(std::uint8_t const * data, std::size_t size)
{
    std::u16string units;
    units.reserve(size);
    for (std::size_t i = 0; i < size; ++i) {
        if (data[i] == 0xFF && i + 2 < size) {
            units += static_cast<char16_t>(data[i + 1] | data[i + 2] << 8);
            i += 2;
        } else {
            units += data[i];
        }
    }
    return units;
}

inline TString Text(std::uint8_t const * data, std::size_t size)
{
    return TString::fromStdU16String(Units(data, size));
}

// The input cut at its first `count - 1` line feeds; what is missing is empty.
inline std::vector<TString> Lines(std::uint8_t const * data, std::size_t size, std::size_t count)
{
    std::u16string const units = Units(data, size);
    std::u16string_view rest = units;
    std::vector<TString> lines;
    while (lines.size() + 1 < count) {
        std::size_t const end = rest.find(u'\n');
        lines.push_back(TString::fromView(rest.substr(0, end)));
        rest = end == rest.npos ? std::u16string_view() : rest.substr(end + 1);
    }
    lines.push_back(TString::fromView(rest));
    return lines;
}

// Ends the process on a broken law.
inline void Require(bool holds, char const * law)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", law);
    std::abort();
}

}  // namespace fuzz_support
