// Arithmetic with the processor's answer where C++ leaves the result undefined.
//
// Callers rely on what the hardware does: integer sums wrap, a real that does not fit an integer becomes the lowest
// integer, and an integer division that has no result ends the process. All functions are pure and may be called from
// any thread.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <type_traits>

namespace detail {

// a + b, a - b, a * b and -a modulo 2^N, read back as T. Example: WrapAdd(INT64_MAX, 1) == INT64_MIN.
template <class T>
constexpr T WrapAdd(T a, T b) noexcept
{
    using U = std::make_unsigned_t<T>;
    return static_cast<T>(static_cast<U>(static_cast<U>(a) + static_cast<U>(b)));
}

template <class T>
constexpr T WrapSub(T a, T b) noexcept
{
    using U = std::make_unsigned_t<T>;
    return static_cast<T>(static_cast<U>(static_cast<U>(a) - static_cast<U>(b)));
}

template <class T>
constexpr T WrapMul(T a, T b) noexcept
{
    static_assert(sizeof(T) >= sizeof(int), "a narrower product would be formed in signed int");
    using U = std::make_unsigned_t<T>;
    return static_cast<T>(static_cast<U>(static_cast<U>(a) * static_cast<U>(b)));
}

template <class T>
constexpr T WrapNeg(T a) noexcept
{
    return WrapSub(T{0}, a);
}

// |a| as an unsigned number; exact for the lowest value too. Example: Magnitude(INT64_MIN) == 2^63.
template <class T>
constexpr std::make_unsigned_t<T> Magnitude(T a) noexcept
{
    using U = std::make_unsigned_t<T>;
    return a < 0 ? static_cast<U>(U{0} - static_cast<U>(a)) : static_cast<U>(a);
}

// Truncation toward zero. NaN, infinities and everything outside the range give the lowest integer, as the x86-64
// conversion instructions (CVTTSD2SI) do.
constexpr long long RealToInt64(double value) noexcept
{
    return value >= -9223372036854775808.0 && value < 9223372036854775808.0 ? static_cast<long long>(value)
                                                                            : std::numeric_limits<long long>::min();
}

constexpr std::int32_t RealToInt32(double value) noexcept
{
    return value > -2147483649.0 && value < 2147483648.0 ? static_cast<std::int32_t>(value)
                                                         : std::numeric_limits<std::int32_t>::min();
}

// Truncation to an unsigned 64-bit integer by way of the signed conversion: a value of 2^63 and above is split into the
// high bit and the rest; a negative one wraps. NaN gives 2^63.
constexpr unsigned long long RealToUInt64(double value) noexcept
{
    constexpr double highBit = 9223372036854775808.0;
    if (value >= highBit)
        return static_cast<unsigned long long>(RealToInt64(value - highBit)) ^ 0x8000000000000000ull;
    return static_cast<unsigned long long>(RealToInt64(value));
}

// a / b and a % b truncated toward zero. A zero divisor and lowest / -1 end the process at once: no value is returned.
template <class T>
inline T DivideOrDie(T a, T b) noexcept
{
    if (b == 0 || (std::is_signed_v<T> && b == static_cast<T>(-1) && a == std::numeric_limits<T>::min()))
        std::abort();
    return static_cast<T>(a / b);
}

template <class T>
inline T RemainderOrDie(T a, T b) noexcept
{
    if (b == 0 || (std::is_signed_v<T> && b == static_cast<T>(-1) && a == std::numeric_limits<T>::min()))
        std::abort();
    return static_cast<T>(a % b);
}

}  // namespace detail
