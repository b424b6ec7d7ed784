#include "typedtable/ColumnTyping.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>

#include "velcoredata/data/DateTime.h"
#include "velcoreplatform/TString.h"

namespace typedtable {

namespace {

bool IsDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

std::string_view WithoutBlanks(std::string_view cell) noexcept
{
    std::size_t const begin = cell.find_first_not_of(" \t");
    if (begin == std::string_view::npos)
        return {};
    return cell.substr(begin, cell.find_last_not_of(" \t") - begin + 1);
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

std::optional<DataValue> ReadInteger(std::string_view text)
{
    if (ShapeOf(text) != NumberShape::Whole)
        return std::nullopt;
    if (auto const number = FromChars<long long>(text))
        return DataValue(*number);
    return std::nullopt;
}

std::optional<DataValue> ReadReal(std::string_view text)
{
    if (ShapeOf(text) == NumberShape::None)
        return std::nullopt;
    if (auto const number = FromChars<double>(text))
        return DataValue(*number);
    return std::nullopt;
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

std::optional<DataValue> ReadBoolean(std::string_view text)
{
    if (EqualsIgnoringCase(text, "true"))
        return DataValue(true);
    if (EqualsIgnoringCase(text, "false"))
        return DataValue(false);
    return std::nullopt;
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

struct Clock
{
    int hour = 0;
    int minute = 0;
    int second = 0;
    double fraction = 0.0;
};

// What stands behind the T or the blank; all of it.
std::optional<Clock> ReadClock(std::string_view text)
{
    Clock clock;
    auto const hour = TakeNumber(text, 2);
    if (!hour || *hour > 23 || !Take(text, ':'))
        return std::nullopt;
    auto const minute = TakeNumber(text, 2);
    if (!minute || *minute > 59)
        return std::nullopt;
    clock.hour = *hour;
    clock.minute = *minute;
    if (Take(text, ':')) {
        auto const second = TakeNumber(text, 2);
        if (!second || *second > 59)
            return std::nullopt;
        clock.second = *second;
        if (Take(text, '.')) {
            static constexpr std::array<double, 10> kUnits = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
            std::size_t const digits = CountDigits(text);
            if (digits == 0 || digits >= kUnits.size())
                return std::nullopt;
            clock.fraction = *TakeNumber(text, digits) / kUnits[digits];
        }
    }
    return text.empty() ? std::optional(clock) : std::nullopt;
}

// A date, and a clock behind it if `type` is DateTime.
std::optional<DataValue> ReadDate(std::string_view text, DataType type)
{
    static constexpr int kFirstYear = 400;
    auto const year = TakeNumber(text, 4);
    if (!year || *year < kFirstYear || !Take(text, '-'))
        return std::nullopt;
    auto const month = TakeNumber(text, 2);
    if (!month || *month < 1 || *month > 12 || !Take(text, '-'))
        return std::nullopt;
    auto const day = TakeNumber(text, 2);
    if (!day || *day < 1 || *day > DateTime::LastDay(*year, *month))
        return std::nullopt;
    Clock clock;
    if (!text.empty()) {
        if (type == DataType::Date || (text[0] != 'T' && text[0] != ' '))
            return std::nullopt;
        auto const read = ReadClock(text.substr(1));
        if (!read)
            return std::nullopt;
        clock = *read;
    }
    DateTime const value(*year, *month, *day, clock.hour, clock.minute, clock.second, clock.fraction);
    // The last second of 9999 has no fractions; a value beyond it would silently become a null.
    if (!value.IsValid())
        return std::nullopt;
    return DataValue(value, type);
}

// Types from the narrowest reading of a cell to the widest.
constexpr std::array kReadings = {DataType::Integer, DataType::Real, DataType::Boolean, DataType::Date,
                                  DataType::DateTime};

bool CanRead(std::string_view cell, DataType type)
{
    return ReadCell(cell, type).has_value();
}

}  // namespace

std::optional<DataValue> ReadCell(std::string_view cell, DataType type, Collation const & collation)
{
    std::string_view const text = WithoutBlanks(cell);
    if (text.empty())
        return DataValue(DataValueTypes::Null, type);
    switch (type) {
    case DataType::Integer: return ReadInteger(text);
    case DataType::Real: return ReadReal(text);
    case DataType::Boolean: return ReadBoolean(text);
    case DataType::Date:
    case DataType::DateTime: return ReadDate(text, type);
    default: return DataValue(collation, TString::fromUtf8(cell.data(), static_cast<int>(cell.size())));
    }
}

void ColumnTyping::Add(std::string_view cell)
{
    if (WithoutBlanks(cell).empty()) {
        ++m_nulls;
        return;
    }
    if (m_type == DataType::String || (m_type != DataType::Unknown && CanRead(cell, m_type)))
        return;
    // Not of the type so far: the one type that may take over is the wider one.
    if (m_type == DataType::Integer && CanRead(cell, DataType::Real)) {
        m_type = DataType::Real;
    } else if (m_type == DataType::Date && CanRead(cell, DataType::DateTime)) {
        m_type = DataType::DateTime;
    } else if (m_type != DataType::Unknown) {
        m_type = DataType::String;
    } else {
        m_type = DataType::String;
        for (DataType const type : kReadings) {
            if (CanRead(cell, type)) {
                m_type = type;
                break;
            }
        }
    }
}

}  // namespace typedtable
