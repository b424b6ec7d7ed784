// Numbers from and to UTF-16 text, without a detour over narrow text. Both readers answer as TString::toLongLong and
// TString::toDouble do; what they cannot decide quickly (blanks, characters beyond ASCII, the words of infinity and
// NaN, numbers beyond a double, very long texts) they leave to those.
#pragma once

#include <bit>
#include <string_view>

#include "velcoreplatform/Export.h"

namespace detail {

enum class NumberVerdict : unsigned char
{
    Number,     // the value is set
    NoNumber,   // the text is refused
    Undecided,  // ask TString
};

// Any thread may call; nothing is allocated.
//
//   ReadReal(u"-1.5e3", x)    Number, x is -1500; to the nearest double
//   ReadReal(u"12abc", x)     NoNumber
//   ReadReal(u" 1 ", x)       Number: blanks of every kind are skipped at both ends
//   ReadReal(u"inf", x)       Undecided
VELCOREPLATFORM_API NumberVerdict ReadReal(std::u16string_view text, double & value) noexcept;
// Base 10. A number that does not fit is NoNumber.
VELCOREPLATFORM_API NumberVerdict ReadInteger(std::u16string_view text, long long & value) noexcept;

// How many decimal digits a number has: 1 to 20.
inline int DigitCount(unsigned long long value) noexcept
{
    // 1233 / 4096 is the logarithm of 2 to the base 10, near enough for 64 bits; `table` corrects by one.
    static constexpr unsigned long long table[] = {0ull,
                                                   10ull,
                                                   100ull,
                                                   1000ull,
                                                   10000ull,
                                                   100000ull,
                                                   1000000ull,
                                                   10000000ull,
                                                   100000000ull,
                                                   1000000000ull,
                                                   10000000000ull,
                                                   100000000000ull,
                                                   1000000000000ull,
                                                   10000000000000ull,
                                                   100000000000000ull,
                                                   1000000000000000ull,
                                                   10000000000000000ull,
                                                   100000000000000000ull,
                                                   1000000000000000000ull,
                                                   10000000000000000000ull};
    unsigned const digits = static_cast<unsigned>(std::bit_width(value | 1)) * 1233 >> 12;
    return static_cast<int>(digits + (value >= table[digits] ? 1 : 0));
}

// Writes the decimal digits that end before `end`. Needs DigitCount(value) code units there.
VELCOREPLATFORM_API void WriteInteger(char16_t * end, unsigned long long value) noexcept;

}  // namespace detail
