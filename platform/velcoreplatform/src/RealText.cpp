#include "velcoreplatform/RealText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>

#include <QString>

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

// "00" to "99".
constexpr auto MakePairs()
{
    std::array<char16_t, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char16_t>(u'0' + i / 10);
        pairs[2 * i + 1] = static_cast<char16_t>(u'0' + i % 10);
    }
    return pairs;
}

constexpr auto kPairs = MakePairs();

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
    // Whether what the product lacks could lift a fraction to `bound`, a multiple of the top word's unit.
    auto const mayReach = [&](std::uint64_t bound) { return !exact && fraction + 1 == bound && middle == ~0ull; };
    bool up;
    if (integer >= kPowersOfTen[static_cast<std::size_t>(digits)]) {
        std::uint64_t const last = integer % 10;
        if (last == 4 && mayReach(one))
            return false;
        integer /= 10;
        ++decimalExponent;
        up = last >= 5;
    } else {
        if (mayReach(one >> 1))
            return false;
        up = fraction >= one >> 1;
    }
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

char16_t * WriteZeros(char16_t * out, int count)
{
    return std::fill_n(out, count, u'0');
}

void WritePair(char16_t * out, std::uint64_t number)
{
    std::memcpy(out, &kPairs[2 * number], 4);
}

// Eight digits with leading zeros.
void WriteEight(char16_t * out, std::uint64_t number)
{
    std::uint64_t const high = number / 10000, low = number % 10000;
    WritePair(out, high / 100);
    WritePair(out + 2, high % 100);
    WritePair(out + 4, low / 100);
    WritePair(out + 6, low % 100);
}

// 18 digits with leading zeros.
void WriteEighteen(char16_t * out, std::uint64_t number)
{
    std::uint64_t const high = number / 100000000;
    WritePair(out, high / 100000000);
    WriteEight(out + 2, high % 100000000);
    WriteEight(out + 10, number % 100000000);
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
    WritePair(out, static_cast<std::uint64_t>(rest));
    return out + 2;
}

char16_t * WriteDecimal(char16_t * out, Decimal const & decimal, int digits)
{
    char16_t buffer[18];
    WriteEighteen(buffer, decimal.digits);
    char16_t const * const first = buffer + 18 - digits;
    int count = digits;
    while (count > 1 && first[count - 1] == u'0')
        --count;
    std::u16string_view const text(first, static_cast<std::size_t>(count));

    if (decimal.exponent < -4 || decimal.exponent >= digits) {
        *out++ = text[0];
        if (count > 1) {
            *out++ = u'.';
            out = Copy(out, text.substr(1));
        }
        return WriteExponent(out, decimal.exponent);
    }
    if (decimal.exponent < 0) {
        out = Copy(out, u"0.");
        out = WriteZeros(out, -1 - decimal.exponent);
        return Copy(out, text);
    }
    int const whole = decimal.exponent + 1;
    if (count <= whole)
        return WriteZeros(Copy(out, text), whole - count);
    out = Copy(out, text.substr(0, static_cast<std::size_t>(whole)));
    *out++ = u'.';
    return Copy(out, text.substr(static_cast<std::size_t>(whole)));
}

}  // namespace

char16_t * detail::WriteReal(char16_t * out, double value, int digits)
{
    if (std::isnan(value))
        return Copy(out, u"nan");
    if (std::signbit(value)) {
        *out++ = u'-';
        value = -value;
    }
    if (std::isinf(value))
        return Copy(out, u"inf");
    if (value == 0.0) {
        *out++ = u'0';
        return out;
    }
    Decimal decimal;
    if (RoundTo(value, digits, decimal))
        return WriteDecimal(out, decimal, digits);
    QString const text = QString::number(value, 'g', digits);
    return Copy(out, std::u16string_view(reinterpret_cast<char16_t const *>(text.constData()),
                                         static_cast<std::size_t>(text.size())));
}
