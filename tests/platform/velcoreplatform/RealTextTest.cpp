#include "velcoreplatform/RealText.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include <QString>

#include <gtest/gtest.h>

namespace {

std::u16string Text(double value, int digits = 17, bool keepPoint = false)
{
    char16_t text[detail::kRealTextRoom];
    return std::u16string(text, detail::WriteReal(text, value, digits, keepPoint));
}

// Qt's conversion is exact and rounds halves away from zero; of zero it drops the sign.
std::u16string Plain(double value, int digits = 17)
{
    std::u16string text = QString::number(value, 'g', digits).toStdU16String();
    if (value == 0.0 && std::signbit(value) && !text.starts_with(u'-'))
        text.insert(0, u"-");
    return text;
}

void ExpectAlike(double value, int digits = 17)
{
    std::u16string plain = Plain(value, digits);
    ASSERT_EQ(Text(value, digits), plain)
        << std::hex << std::bit_cast<std::uint64_t>(value) << std::dec << ' ' << digits;
    if (plain.find_first_not_of(u"-0123456789") == plain.npos)
        plain += u'.';
    ASSERT_EQ(Text(value, digits, true), plain) << std::hex << std::bit_cast<std::uint64_t>(value);
}

// Random draws by default; VELCOREDATA_REAL_DRAWS sets another number, 20000000 for the full proof.
long Draws(long usual)
{
    char const * const asked = std::getenv("VELCOREDATA_REAL_DRAWS");
    return asked != nullptr ? std::atol(asked) : usual;
}

}  // namespace

TEST(RealText, IsThatOfSeventeenDigits)
{
    using Limits = std::numeric_limits<double>;
    struct Row
    {
        double value;
        int digits;
        char16_t const * expected;
    };
    Row const rows[] = {
        {0.0, 17, u"0"},
        {-0.0, 17, u"-0"},
        {1.0, 17, u"1"},
        {-1.5, 17, u"-1.5"},
        {0.1, 17, u"0.10000000000000001"},
        {0.1, 16, u"0.1"},
        {1e16, 17, u"10000000000000000"},
        {99999999999999984.0, 17, u"99999999999999984"},
        {1e17, 17, u"1e+17"},
        {123456.0, 3, u"1.23e+05"},
        {123.0, 3, u"123"},
        {1e22, 17, u"1e+22"},
        {1e23, 17, u"9.9999999999999992e+22"},
        {0.0001, 17, u"0.0001"},
        {0.00001, 17, u"1.0000000000000001e-05"},
        {0.00012345, 2, u"0.00012"},
        {9.99, 2, u"10"},
        {9.99e-5, 1, u"0.0001"},
        {2.5, 1, u"3"},
        {-2.5, 1, u"-3"},
        {0.125, 2, u"0.13"},
        {Limits::max(), 17, u"1.7976931348623157e+308"},
        {Limits::lowest(), 17, u"-1.7976931348623157e+308"},
        {Limits::min(), 17, u"2.2250738585072014e-308"},
        {Limits::denorm_min(), 17, u"4.9406564584124654e-324"},
        {Limits::denorm_min(), 1, u"5e-324"},
        {Limits::infinity(), 17, u"inf"},
        {-Limits::infinity(), 17, u"-inf"},
        {Limits::quiet_NaN(), 17, u"nan"},
        {-Limits::quiet_NaN(), 17, u"nan"},
    };
    for (Row const & row : rows) {
        EXPECT_EQ(Text(row.value, row.digits), row.expected) << row.value;
        ExpectAlike(row.value, row.digits);
    }
}

TEST(RealText, AgreesWithTheExactConversionOnRandomBits)
{
    std::mt19937_64 random(17);
    for (long n = Draws(300000); n > 0; --n) {
        ExpectAlike(std::bit_cast<double>(random()));
        if (HasFatalFailure())
            return;
    }
}

TEST(RealText, AgreesWithTheExactConversionOnNumbersOfPeople)
{
    std::mt19937_64 random(18);
    for (long n = Draws(300000); n > 0; --n) {
        auto const integer = static_cast<double>(random() >> (random() % 60));
        double const scale = std::pow(10.0, static_cast<double>(random() % 24));
        ExpectAlike(integer);
        ExpectAlike(integer / scale);
        ExpectAlike(integer * scale);
        ExpectAlike(-integer / scale, 1 + static_cast<int>(random() % 17));
        if (HasFatalFailure())
            return;
    }
}

TEST(RealText, AgreesWithTheExactConversionForEveryExponentAndNumberOfDigits)
{
    std::mt19937_64 random(19);
    for (std::uint64_t exponent = 0; exponent < 2047; ++exponent) {
        for (int digits = 1; digits <= 17; ++digits) {
            for (std::uint64_t const mantissa :
                 {std::uint64_t{0}, std::uint64_t{1}, (std::uint64_t{1} << 52) - 1, random() >> 12})
                ExpectAlike(std::bit_cast<double>(exponent << 52 | mantissa), digits);
            if (HasFatalFailure())
                return;
        }
    }
}

TEST(RealText, AgreesWithTheExactConversionAroundPowersOfTen)
{
    for (int power = -323; power <= 308; ++power) {
        double const ten = std::strtod(("1e" + std::to_string(power)).c_str(), nullptr);
        double below = ten, above = ten;
        for (int i = 0; i < 50; ++i) {
            for (int const digits : {1, 2, 15, 16, 17}) {
                ExpectAlike(below, digits);
                ExpectAlike(above, digits);
            }
            if (HasFatalFailure())
                return;
            below = std::nextafter(below, 0.0);
            above = std::nextafter(above, std::numeric_limits<double>::infinity());
        }
    }
}

// Halves, and what lies next to them: the places where the rounding turns.
TEST(RealText, AgreesWithTheExactConversionOnHalves)
{
    std::mt19937_64 random(20);
    for (long n = Draws(20000); n > 0; --n) {
        int const digits = 1 + static_cast<int>(random() % 15);
        auto const odd = static_cast<double>(2 * (random() % static_cast<std::uint64_t>(std::pow(10.0, digits))) + 1);
        double const half = std::ldexp(odd, -static_cast<int>(1 + random() % 6));
        for (int d = 1; d <= 17; d += 2) {
            ExpectAlike(half, d);
            ExpectAlike(std::nextafter(half, 0.0), d);
            ExpectAlike(half * 1e10, d);
        }
        if (HasFatalFailure())
            return;
    }
    // Whole numbers above 10^17 that end in 5, 50, 500, ...
    for (double value : {1e17 + 16, 123456789012345680.0 + 48, 1e18 + 1280, 4503599627370497.5, 9007199254740995.0})
        ExpectAlike(value);
}
