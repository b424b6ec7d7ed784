#include "tests/vectors/VectorCells.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <stdexcept>

namespace velcoredata::vectors {

namespace {

[[noreturn]] void Reject(std::string_view cell, char const * what)
{
    throw std::runtime_error("cell '" + std::string(cell) + "' is not " + what);
}

int HexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

/// Decodes one UTF-8 sequence at `at` and moves past it.
char32_t NextCodePoint(std::string_view cell, std::size_t & at)
{
    auto const lead = static_cast<unsigned char>(cell[at]);
    std::size_t const length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || at + length > cell.size())
        Reject(cell, "UTF-8");
    char32_t point = length == 1 ? lead : lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        auto const next = static_cast<unsigned char>(cell[at + i]);
        if ((next & 0xC0u) != 0x80u)
            Reject(cell, "UTF-8");
        point = (point << 6) | (next & 0x3Fu);
    }
    bool const overlong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    if (overlong || point > 0x10FFFF || (point >= 0xD800 && point < 0xE000))
        Reject(cell, "UTF-8");
    at += length;
    return point;
}

template <class Number>
Number DecodeWhole(std::string_view cell, char const * what)
{
    Number value{};
    auto const [end, error] = std::from_chars(cell.data(), cell.data() + cell.size(), value);
    if (error != std::errc{} || end != cell.data() + cell.size() || cell.empty())
        Reject(cell, what);
    return value;
}

/// Maps doubles to unsigned numbers so that neighbours differ by one.
std::uint64_t Ordered(double value)
{
    auto const bits = std::bit_cast<std::uint64_t>(value);
    constexpr std::uint64_t sign = std::uint64_t{1} << 63;
    return (bits & sign) != 0 ? ~bits : bits | sign;
}

}  // namespace

std::u16string DecodeText(std::string_view cell)
{
    std::u16string text;
    for (std::size_t at = 0; at < cell.size();) {
        if (cell[at] == '\\') {
            if (at + 6 > cell.size() || cell[at + 1] != 'u')
                Reject(cell, "escaped text");
            int unit = 0;
            for (std::size_t i = 2; i < 6; ++i) {
                int const digit = HexDigit(cell[at + i]);
                if (digit < 0)
                    Reject(cell, "escaped text");
                unit = unit * 16 + digit;
            }
            text.push_back(static_cast<char16_t>(unit));
            at += 6;
            continue;
        }
        char32_t const point = NextCodePoint(cell, at);
        if (point < 0x10000) {
            text.push_back(static_cast<char16_t>(point));
        } else {
            text.push_back(static_cast<char16_t>(0xD7C0 + (point >> 10)));
            text.push_back(static_cast<char16_t>(0xDC00 + (point & 0x3FF)));
        }
    }
    return text;
}

std::string EscapeText(std::u16string_view text)
{
    std::string out;
    for (char16_t const unit : text) {
        if (unit >= 0x20 && unit < 0x7F && unit != u'\\') {
            out.push_back(static_cast<char>(unit));
            continue;
        }
        char escape[7];
        std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(unit));
        out += escape;
    }
    return out;
}

double DecodeReal(std::string_view cell)
{
    std::string const text(cell);
    char * end = nullptr;
    double const value = std::strtod(text.c_str(), &end);
    bool const startsRight = !text.empty() && text.front() != ' ' && text.front() != '\t';
    if (!startsRight || end != text.c_str() + text.size())
        Reject(cell, "a real number");
    return value;
}

std::string EncodeReal(double value)
{
    if (std::isnan(value))
        return "nan";
    char text[64];
    std::snprintf(text, sizeof text, "%a", value);
    return text;
}

long long DecodeInt(std::string_view cell)
{
    return DecodeWhole<long long>(cell, "a 64-bit integer");
}

unsigned long long DecodeUInt(std::string_view cell)
{
    return DecodeWhole<unsigned long long>(cell, "an unsigned 64-bit integer");
}

bool DecodeBool(std::string_view cell)
{
    if (cell == "1" || cell == "true")
        return true;
    if (cell == "0" || cell == "false")
        return false;
    Reject(cell, "a boolean");
}

unsigned long long UlpDistance(double a, double b)
{
    if (std::isnan(a) || std::isnan(b))
        return std::isnan(a) && std::isnan(b) ? 0 : std::numeric_limits<unsigned long long>::max();
    std::uint64_t const x = Ordered(a);
    std::uint64_t const y = Ordered(b);
    return x < y ? y - x : x - y;
}

}  // namespace velcoredata::vectors
