#include "velcoreplatform/RealText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>

#include <QString>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// A real is m * 2^e. Multiplied by the power of ten that brings it between 10^(digits-1) and 10^digits it is the digits
// and a fraction that says how to round. The power has 128 bits, so the product is exact or too low by less than one
// part in 2^127; where that could turn the rounding, Qt's exact conversion is asked.

namespace {

using Wide = unsigned __int128;

constexpr int kMinPower = -308;
constexpr int kMaxPower = 340;
constexpr int kMaxExactPower = 55;  // 5^55 < 2^128

// The top 128 bits of a power of ten.
struct Mantissa
{
    std::uint64_t high, low;
};

constexpr std::size_t kLimbs = 19;
using BigNumber = std::array<std::uint64_t, kLimbs>;  // least significant first

constexpr Mantissa TopBits(BigNumber const & number)
{
    std::size_t top = kLimbs - 1;
    while (number[top] == 0)
        --top;
    auto const limb = [&](std::size_t below) { return below <= top ? number[top - below] : 0; };
    int const shift = std::countl_zero(number[top]);
    if (shift == 0)
        return {limb(0), limb(1)};
    return {limb(0) << shift | limb(1) >> (64 - shift), limb(1) << shift | limb(2) >> (64 - shift)};
}

constexpr auto MakePowers()
{
    std::array<Mantissa, kMaxPower - kMinPower + 1> powers{};
    BigNumber number{};
    number[0] = 1;
    for (int power = 0; power <= kMaxPower; ++power) {
        powers[static_cast<std::size_t>(power - kMinPower)] = TopBits(number);
        std::uint64_t carry = 0;
        for (std::uint64_t & limb : number) {
            Wide const product = static_cast<Wide>(limb) * 10 + carry;
            limb = static_cast<std::uint64_t>(product);
            carry = static_cast<std::uint64_t>(product >> 64);
        }
    }
    // floor(floor(x / 10) / 10) is floor(x / 100): the quotients stay exact, and the last has more than 128 bits.
    number = {};
    number[kLimbs - 1] = 1;
    for (int power = -1; power >= kMinPower; --power) {
        std::uint64_t rest = 0;
        for (std::size_t i = kLimbs; i-- > 0;) {
            Wide const dividend = static_cast<Wide>(rest) << 64 | number[i];
            number[i] = static_cast<std::uint64_t>(dividend / 10);
            rest = static_cast<std::uint64_t>(dividend % 10);
        }
        powers[static_cast<std::size_t>(power - kMinPower)] = TopBits(number);
    }
    return powers;
}

constexpr auto kPowers = MakePowers();

constexpr auto MakePowersOfTen()
{
    std::array<std::uint64_t, 20> powers{};
    std::uint64_t power = 1;
    for (std::uint64_t & p : powers) {
        p = power;
        power *= 10;
    }
    return powers;
}

constexpr auto kPowersOfTen = MakePowersOfTen();

struct Decimal
{
    std::uint64_t digits;  // of as many digits as were asked for
    int exponent;          // of the first one
};

// floor(x * log10(2)) and floor(x * log2(10)), exact for all exponents of doubles.
constexpr int FloorLog10OfPower2(int x)
{
    return (x * 78913) >> 18;
}
constexpr int FloorLog2OfPower10(int x)
{
    return (x * 217706) >> 16;
}

// False if the rounding is in doubt. The value is finite and above zero.
bool RoundTo(double value, int digits, Decimal & out)
{
    std::uint64_t const bits = std::bit_cast<std::uint64_t>(value);
    auto const biased = static_cast<int>(bits >> 52);
    std::uint64_t mantissa = bits & 0xFFFFFFFFFFFFFull;
    int exponent;
    if (biased == 0) {
        int const shift = std::countl_zero(mantissa);
        mantissa <<= shift;
        exponent = -1074 - shift;
    } else {
        mantissa = (mantissa | 0x10000000000000ull) << 11;
        exponent = biased - 1075 - 11;
    }

    // At most one too low.
    int decimalExponent = FloorLog10OfPower2(exponent + 63);
    int const power = digits - 1 - decimalExponent;
    bool const exact = power >= 0 && power <= kMaxExactPower;
    Mantissa const & ten = kPowers[static_cast<std::size_t>(power - kMinPower)];
    Wide const low = static_cast<Wide>(mantissa) * ten.low;
    Wide const high = static_cast<Wide>(mantissa) * ten.high + static_cast<std::uint64_t>(low >> 64);
    auto const top = static_cast<std::uint64_t>(high >> 64);
    auto const middle = static_cast<std::uint64_t>(high);

    // The product has its point below bit `shift` of the top word, 2 to 63.
    int const shift = -(exponent + FloorLog2OfPower10(power) - 127) - 128;
    std::uint64_t const one = 1ull << shift;
    std::uint64_t integer = top >> shift;
    std::uint64_t const fraction = top & (one - 1);
    // Either may be one digit more than asked for, which then goes into the fraction. Without branches: numbers differ
    // in this as a coin does.
    bool const more = integer >= kPowersOfTen[static_cast<std::size_t>(digits)];
    std::uint64_t const tenth = integer / 10;
    std::uint64_t const last = integer - 10 * tenth;
    integer = more ? tenth : integer;
    decimalExponent += more ? 1 : 0;
    bool const up = more ? last >= 5 : fraction >= one >> 1;
    // What the product lacks could lift it to the half.
    std::uint64_t const bound = more ? one : one >> 1;
    bool const mayReach = fraction + 1 == bound && middle == ~0ull && (!more || last == 4);
    if (mayReach && !exact)
        return false;
    integer += up ? 1 : 0;
    if (integer == kPowersOfTen[static_cast<std::size_t>(digits)]) {
        integer = kPowersOfTen[static_cast<std::size_t>(digits - 1)];
        ++decimalExponent;
    }
    out = {integer, decimalExponent};
    return true;
}

char16_t * Copy(char16_t * out, std::u16string_view text)
{
    return std::copy(text.begin(), text.end(), out);
}

// Eight digits as bytes, the first one lowest: halves, quarters and eighths are divided side by side.
[[gnu::always_inline]] inline std::uint64_t EightDigits(std::uint64_t number)
{
    std::uint64_t const halves = (number / 10000) | (number % 10000) << 32;
    std::uint64_t const hundreds = (halves * 10486 >> 20) & 0x7F0000007Full;
    std::uint64_t const quarters = hundreds | (halves - 100 * hundreds) << 16;
    std::uint64_t const tens = (quarters * 103 >> 10) & 0xF000F000F000Full;
    return tens | (quarters - 10 * tens) << 8;
}

// Eight bytes as code units.
void WriteEight(char16_t * out, std::uint64_t digits)
{
    digits |= 0x3030303030303030ull;
#if defined(__SSE2__)
    __m128i const bytes = _mm_cvtsi64_si128(static_cast<long long>(digits));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(out), _mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
#else
    for (int i = 0; i < 8; ++i)
        out[i] = static_cast<char16_t>(digits >> 8 * i & 0xFF);
#endif
}

char16_t * WriteExponent(char16_t * out, int exponent)
{
    *out++ = u'e';
    *out++ = exponent < 0 ? u'-' : u'+';
    int rest = std::abs(exponent);
    if (rest >= 100) {
        *out++ = static_cast<char16_t>(u'0' + rest / 100);
        rest %= 100;
    }
    *out++ = static_cast<char16_t>(u'0' + rest / 10);
    *out++ = static_cast<char16_t>(u'0' + rest % 10);
    return out;
}

constexpr int kDigits = 17;

// The digits, more than there are: a copy of fixed size is a few moves.
void CopyDigits(char16_t * out, char16_t const * digits)
{
    std::memcpy(out, digits, 2 * kDigits);
}

char16_t * WriteDecimal(char16_t * out, Decimal const & decimal, int digits, bool keepPoint)
{
    // All 17 of them: asked for fewer, those behind are zeros.
    std::uint64_t const number = decimal.digits * kPowersOfTen[static_cast<std::size_t>(kDigits - digits)];
    std::uint64_t const first = number / 10000000000000000ull;
    std::uint64_t const high = EightDigits(number / 100000000 % 100000000), low = EightDigits(number % 100000000);
    char16_t text[2 * kDigits];
    text[0] = static_cast<char16_t>(u'0' + first);
    WriteEight(text + 1, high);
    WriteEight(text + 9, low);
    int const lowZeros = std::countl_zero(low) / 8;
    int const zeros = lowZeros + (lowZeros == 8 ? std::countl_zero(high) / 8 : 0);
    int const count = kDigits - zeros;

    if (decimal.exponent < -4 || decimal.exponent >= digits) {
        CopyDigits(out + 1, text);
        out[0] = text[0];
        out[1] = u'.';
        return WriteExponent(out + (count > 1 ? count + 1 : 1), decimal.exponent);
    }
    if (decimal.exponent < 0) {
        static constexpr char16_t zero[] = u"0.000";
        std::memcpy(out, zero, sizeof zero);
        out += 1 - decimal.exponent;
        CopyDigits(out, text);
        return out + count;
    }
    int const whole = decimal.exponent + 1;
    CopyDigits(out, text);
    out[whole] = u'.';
    if (count <= whole)
        return out + whole + (keepPoint ? 1 : 0);
    CopyDigits(out + whole + 1, text + whole);
    return out + count + 1;
}

}  // namespace

char16_t * detail::WriteReal(char16_t * out, double value, int digits, bool keepPoint)
{
    if (std::isnan(value))
        return Copy(out, u"nan");
    if (std::signbit(value)) {
        *out++ = u'-';
        value = -value;
    }
    if (std::isinf(value))
        return Copy(out, u"inf");
    if (value == 0.0)
        return Copy(out, keepPoint ? u"0." : u"0");
    Decimal decimal;
    if (RoundTo(value, digits, decimal))
        return WriteDecimal(out, decimal, digits, keepPoint);
    QString const text = QString::number(value, 'g', digits);
    out = Copy(out, std::u16string_view(reinterpret_cast<char16_t const *>(text.constData()),
                                        static_cast<std::size_t>(text.size())));
    if (keepPoint && !text.contains(u'.') && !text.contains(u'e'))
        *out++ = u'.';
    return out;
}
