#include "velcoreplatform/NumberText.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <system_error>

#include <QtCore/QChar>

#include "velsys/Arithmetic.h"

namespace detail {

namespace {

// Longer texts are left to the plain path.
constexpr std::size_t kLongest = 64;
// Up to here a text is read digit by digit; above it, it likely has more digits than one multiplication can round.
constexpr std::size_t kShort = 16;

constexpr std::array<double, 23> kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                                 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

bool IsDigit(char16_t c) noexcept
{
    return c >= u'0' && c <= u'9';
}

bool IsAsciiBlank(char16_t c) noexcept
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

// TString's readers skip blanks at both ends, that of integers ASCII's alone.
template <class IsBlank>
std::u16string_view Trimmed(std::u16string_view text, IsBlank isBlank) noexcept
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

enum class Characters : unsigned char
{
    Plain,   // digits, signs, points and exponents alone
    Odd,     // with a letter of infinity or NaN, the minus sign U+2212, U+0000 or a blank beyond ASCII
    Telling  // with one that has no place in a number
};

constexpr auto kAsciiCharacters = [] {
    std::array<Characters, 128> kinds{};
    kinds.fill(Characters::Telling);
    for (char const c : {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', '+', '-', '.', 'e', 'E'})
        kinds[static_cast<unsigned char>(c)] = Characters::Plain;
    for (char const c : {'\0', 'i', 'I', 'n', 'N', 'f', 'F', 'a', 'A'})
        kinds[static_cast<unsigned char>(c)] = Characters::Odd;
    return kinds;
}();

Characters CharactersOf(std::u16string_view text) noexcept
{
    auto kind = Characters::Plain;
    for (char16_t const c : text) {
        Characters const one = c < 128                               ? kAsciiCharacters[c]
                               : QChar::isSpace(c) || c == u'\u2212' ? Characters::Odd
                                                                     : Characters::Telling;
        if (one == Characters::Telling)
            return one;
        kind = one > kind ? one : kind;
    }
    return kind;
}

// Of a trimmed text that is no plain number.
NumberVerdict Refused(std::u16string_view text) noexcept
{
    return CharactersOf(text) == Characters::Odd ? NumberVerdict::Undecided : NumberVerdict::NoNumber;
}

// Of a text that was not read, or is beyond a double.
NumberVerdict Unread(std::u16string_view text) noexcept
{
    return CharactersOf(text) == Characters::Telling ? NumberVerdict::NoNumber : NumberVerdict::Undecided;
}

// Four digits at once: the code units as lanes of one word, the first in the lowest.
bool FourDigits(char16_t const * text, std::uint64_t & value) noexcept
{
    std::uint64_t lanes;
    std::memcpy(&lanes, text, sizeof lanes);
    constexpr std::uint64_t column = 0xFFF0FFF0FFF0FFF0u;
    constexpr std::uint64_t digits = 0x0030003000300030u;
    if ((lanes & column) != digits || ((lanes + 0x0006000600060006u) & column) != digits)
        return false;
    value = value * 10000 + (((lanes & 0x000F000F000F000Fu) * 0x03E80064000A0001u) >> 48);
    return true;
}

// Takes the digits at `at` into `value`, which wraps after the nineteenth; how many there were.
std::size_t TakeDigits(char16_t const *& at, char16_t const * end, std::uint64_t & value) noexcept
{
    char16_t const * const start = at;
    while (end - at >= 4 && FourDigits(at, value))
        at += 4;
    for (; at != end && IsDigit(*at); ++at)
        value = value * 10 + static_cast<std::uint64_t>(*at - u'0');
    return static_cast<std::size_t>(at - start);
}

// [digits] [. [digits]] with a digit somewhere, then [e [sign] digits]. Few enough digits that a double holds them as
// an integer, and a power of ten that a double holds too: one operation rounds once.
bool ReadShort(char16_t const * at, char16_t const * end, double & value) noexcept
{
    std::uint64_t mantissa = 0;
    std::size_t digits = TakeDigits(at, end, mantissa);
    int exponent = 0;
    if (at != end && *at == u'.') {
        ++at;
        std::size_t const fraction = TakeDigits(at, end, mantissa);
        digits += fraction;
        exponent = -static_cast<int>(fraction);
    }
    if (digits == 0 || digits > 19 || mantissa > (1ull << 53))
        return false;
    if (at != end) {
        if (*at != u'e' && *at != u'E')
            return false;
        ++at;
        bool const negative = at != end && *at == u'-';
        if (at != end && (*at == u'-' || *at == u'+'))
            ++at;
        std::uint64_t written = 0;
        std::size_t const n = TakeDigits(at, end, written);
        if (n == 0 || n > 3 || at != end)
            return false;
        exponent += negative ? -static_cast<int>(written) : static_cast<int>(written);
    }
    if (exponent < -22 || exponent > 22)
        return false;
    double const whole = static_cast<double>(mantissa);
    value = exponent < 0 ? whole / kPowersOfTen[static_cast<std::size_t>(-exponent)]
                         : whole * kPowersOfTen[static_cast<std::size_t>(exponent)];
    return true;
}

// Everything else that is plain: as narrow text through std::from_chars.
std::errc ReadNarrow(std::u16string_view text, double & value) noexcept
{
    char narrow[kLongest];
    unsigned seen = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        seen |= text[i];
        narrow[i] = static_cast<char>(text[i]);
    }
    if (seen >= 0x80)
        return std::errc::invalid_argument;
    auto const [end, error] = std::from_chars(narrow, narrow + text.size(), value);
    return error == std::errc() && end != narrow + text.size() ? std::errc::invalid_argument : error;
}

constexpr auto kPairs = [] {
    std::array<char16_t, 200> pairs{};
    for (unsigned i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char16_t>(u'0' + i / 10);
        pairs[2 * i + 1] = static_cast<char16_t>(u'0' + i % 10);
    }
    return pairs;
}();

void WritePair(char16_t * out, unsigned long long pair) noexcept
{
    std::memcpy(out, &kPairs[2 * pair], 2 * sizeof(char16_t));
}

}  // namespace

NumberVerdict ReadReal(std::u16string_view text, double & value) noexcept
{
    text = Trimmed(text, [](char16_t c) { return (c <= u' ' || c >= 0x80) && QChar::isSpace(c); });
    if (text.size() > kLongest)
        return Unread(text);
    bool const negative = text.starts_with(u'-');
    std::u16string_view const rest = text.substr(negative || text.starts_with(u'+') ? 1 : 0);
    // from_chars would read the words of infinity and NaN.
    if (rest.empty() || !(IsDigit(rest.front()) || rest.front() == u'.'))
        return Refused(text);
    double magnitude = 0.0;
    if (rest.size() > kShort || !ReadShort(rest.data(), rest.data() + rest.size(), magnitude)) {
        std::errc const error = ReadNarrow(rest, magnitude);
        if (error != std::errc())
            return error == std::errc::result_out_of_range ? Unread(text) : Refused(text);
    }
    value = negative ? -magnitude : magnitude;
    return NumberVerdict::Number;
}

NumberVerdict ReadInteger(std::u16string_view text, long long & value) noexcept
{
    text = Trimmed(text, IsAsciiBlank);
    bool const negative = text.starts_with(u'-');
    std::u16string_view const rest = text.substr(negative || text.starts_with(u'+') ? 1 : 0);
    char16_t const * at = rest.data();
    char16_t const * const end = at + rest.size();
    std::uint64_t magnitude = 0;
    std::size_t const digits = TakeDigits(at, end, magnitude);
    if (at != end)
        // A point or an exponent behind digits makes no integer, whatever follows.
        return digits != 0 && (*at == u'.' || *at == u'e' || *at == u'E') ? NumberVerdict::NoNumber : Refused(text);
    if (digits == 0)
        return NumberVerdict::NoNumber;
    // Nineteen digits fit 64 bits without a sign.
    if (digits > 19)
        return rest.front() == u'0' ? NumberVerdict::Undecided : NumberVerdict::NoNumber;
    if (magnitude > 0x7FFFFFFFFFFFFFFFu + static_cast<std::uint64_t>(negative))
        return NumberVerdict::NoNumber;
    value = static_cast<long long>(negative ? WrapNeg(magnitude) : magnitude);
    return NumberVerdict::Number;
}

void WriteInteger(char16_t * end, unsigned long long value) noexcept
{
    while (value >= 100) {
        end -= 2;
        WritePair(end, value % 100);
        value /= 100;
    }
    if (value >= 10)
        WritePair(end - 2, value);
    else
        *(end - 1) = static_cast<char16_t>(u'0' + value);
}

}  // namespace detail
