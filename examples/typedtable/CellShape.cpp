#include "typedtable/CellShape.h"

#include <charconv>
#include <optional>
#include <system_error>

namespace typedtable {

namespace {

bool IsDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

std::size_t CountDigits(std::string_view text) noexcept
{
    std::size_t count = 0;
    while (count < text.size() && IsDigit(text[count]))
        ++count;
    return count;
}

// The whole text as a number; from_chars knows no plus sign.
template <class Number>
std::optional<Number> FromChars(std::string_view text)
{
    if (text.starts_with('+'))
        text.remove_prefix(1);
    Number number{};
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

enum class NumberShape
{
    None,
    Whole,
    Fractional
};

NumberShape ShapeOf(std::string_view text) noexcept
{
    if (!text.empty() && (text[0] == '+' || text[0] == '-'))
        text.remove_prefix(1);
    std::size_t const whole = CountDigits(text);
    if (whole > 1 && text[0] == '0')
        return NumberShape::None;
    text.remove_prefix(whole);
    if (text.empty())
        return whole == 0 ? NumberShape::None : NumberShape::Whole;
    std::size_t fraction = 0;
    if (text[0] == '.') {
        text.remove_prefix(1);
        fraction = CountDigits(text);
        text.remove_prefix(fraction);
    }
    if (whole + fraction == 0)
        return NumberShape::None;
    if (!text.empty() && (text[0] == 'e' || text[0] == 'E')) {
        text.remove_prefix(1);
        if (!text.empty() && (text[0] == '+' || text[0] == '-'))
            text.remove_prefix(1);
        std::size_t const exponent = CountDigits(text);
        if (exponent == 0)
            return NumberShape::None;
        text.remove_prefix(exponent);
    }
    return text.empty() ? NumberShape::Fractional : NumberShape::None;
}

bool IsInteger(std::string_view text)
{
    return ShapeOf(text) == NumberShape::Whole && FromChars<long long>(text);
}

bool IsReal(std::string_view text)
{
    return ShapeOf(text) != NumberShape::None && FromChars<double>(text);
}

bool EqualsIgnoringCase(std::string_view text, std::string_view lower) noexcept
{
    if (text.size() != lower.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char const c = text[i];
        if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != lower[i])
            return false;
    }
    return true;
}

// Takes so many digits, at most nine, from the front of the text.
std::optional<int> TakeNumber(std::string_view & text, std::size_t digits) noexcept
{
    if (text.size() < digits || CountDigits(text.substr(0, digits)) != digits)
        return std::nullopt;
    int number = 0;
    for (char const c : text.substr(0, digits))
        number = number * 10 + (c - '0');
    text.remove_prefix(digits);
    return number;
}

bool Take(std::string_view & text, char expected) noexcept
{
    if (!text.starts_with(expected))
        return false;
    text.remove_prefix(1);
    return true;
}

// What stands behind the T or the blank; all of it.
bool IsClock(std::string_view text)
{
    static constexpr std::size_t kMostDigits = 9;
    auto const hour = TakeNumber(text, 2);
    if (!hour || *hour > 23 || !Take(text, ':'))
        return false;
    auto const minute = TakeNumber(text, 2);
    if (!minute || *minute > 59)
        return false;
    if (!Take(text, ':'))
        return text.empty();
    auto const second = TakeNumber(text, 2);
    if (!second || *second > 59)
        return false;
    if (!Take(text, '.'))
        return text.empty();
    std::size_t const digits = CountDigits(text);
    return digits != 0 && digits <= kMostDigits && digits == text.size();
}

// A day, and a clock behind it if `type` is DateTime. Whether there is such a day is for the cast.
bool IsDate(std::string_view text, DataType type)
{
    if (!TakeNumber(text, 4) || !Take(text, '-') || !TakeNumber(text, 2) || !Take(text, '-') || !TakeNumber(text, 2))
        return false;
    if (text.empty())
        return true;
    return type == DataType::DateTime && (text[0] == 'T' || text[0] == ' ') && IsClock(text.substr(1));
}

}  // namespace

std::string_view WithoutBlanks(std::string_view cell) noexcept
{
    std::size_t const begin = cell.find_first_not_of(" \t");
    if (begin == std::string_view::npos)
        return {};
    return cell.substr(begin, cell.find_last_not_of(" \t") - begin + 1);
}

bool HasShapeOf(std::string_view text, DataType type)
{
    switch (type) {
    case DataType::Integer: return IsInteger(text);
    case DataType::Real: return IsReal(text);
    case DataType::Boolean: return EqualsIgnoringCase(text, "true") || EqualsIgnoringCase(text, "false");
    case DataType::Date:
    case DataType::DateTime: return IsDate(text, type);
    default: return type == DataType::String;
    }
}

}  // namespace typedtable
