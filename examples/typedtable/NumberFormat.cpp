#include "typedtable/NumberFormat.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "typedtable/ValueText.h"
#include "velcoredata/string/NumberFormatSettings.h"
#include "velcoredata/string/OleFormatString.h"
#include "velcoredata/string/StandardNumberFormats.h"
#include "velcoreplatform/TString.h"
#include "velsys/VeltriaException.h"

namespace typedtable {

namespace {

[[noreturn]] void Refuse(std::string const & encoded)
{
    throw UserError(Text("--format: \"%1\" is not a number format, as \"n#,##0.00\" is", encoded));
}

long double UnitOf(UnitsFormatEnum units) noexcept
{
    switch (units) {
    case UnitsFormatEnum::K: return 1e3L;
    case UnitsFormatEnum::M: return 1e6L;
    case UnitsFormatEnum::B:
    case UnitsFormatEnum::G: return 1e9L;
    default: return 1.0L;
    }
}

template <class Number>
std::string Printed(char const * form, int decimals, Number number)
{
    std::string text(static_cast<std::size_t>(std::snprintf(nullptr, 0, form, decimals, number)), '\0');
    std::snprintf(text.data(), text.size() + 1, form, decimals, number);
    return text;
}

bool IsOleFormat(TString const & format)
{
    NumberFormatOptions probe;
    return ParseOleFormatString(format.GetString(), &probe);
}

}  // namespace

NumberFormat::NumberFormat(std::string const & encoded, LCID lcid)
{
    if (encoded.size() > kLongest)
        throw UserError(Text("--format: a format has %1 bytes, more than %2", encoded.size(), kLongest));
    try {
        Open(encoded, lcid);
    } catch (VeltriaException const &) {  // a locale that nobody knows
        Refuse(encoded);
    }
    std::string const sizes = TString(m_options.grouping).toStdString();
    for (std::size_t begin = 0; begin < sizes.size();) {
        std::size_t const end = std::min(sizes.find(';', begin), sizes.size());
        std::size_t const size = end - begin == 1 ? static_cast<std::size_t>(sizes[begin] - '0') : 0;
        if (size == 0)
            m_repeats = !m_groups.empty();
        else
            m_groups.push_back(size);
        begin = end + 1;
    }
}

void NumberFormat::Open(std::string const & encoded, LCID lcid)
{
    FormatCode code = FormatCodeAuto;
    LCID named = 0;
    TString format;
    DecodeFormatString(TString::fromStdString(encoded), code, named, format);
    bool isFormat = false;
    switch (code) {
    case FormatCodeSystemCurrency:
    case FormatCodeSystemNumber: isFormat = true; break;
    case FormatCodeNumber:
    case FormatCodeCurrency:
    case FormatCodeCodeI: isFormat = IsOleFormat(format); break;
    case FormatCodePercent:
        m_style = Style::Percent;
        isFormat = !GetDecimalsFromPercentString(format, 0).second;
        break;
    case FormatCodeScientific:
        m_style = Style::Scientific;
        isFormat = GetDecimalsFromScientificString(format, -1) >= 0;
        break;
    case FormatCodeNamed:
        m_style = format == TString(u"Percent")      ? Style::Percent
                  : format == TString(u"Scientific") ? Style::Scientific
                                                     : Style::Plain;
        isFormat = m_style != Style::Plain || IsOleFormat(format);
        break;
    default: break;  // dates, times, and texts without a code
    }
    if (!isFormat)
        Refuse(encoded);
    PopulateNumberFormatOptions(code, named == 0 ? lcid : named, format, &m_options, 0, -1);
    if (m_options.decimalSeparator.isEmpty())  // an LCID that nobody knows; 1.5 would read 15
        Refuse(encoded);
}

std::string NumberFormat::TextOf(DataValue const & value) const
{
    bool const isInteger = value.GetDataType() == DataType::Integer;
    if (!isInteger && !std::isfinite(value.GetReal()))
        return ValueText(value);
    std::string digits = DigitsOf(value);
    bool const isNegative = isInteger ? value.GetInt() < 0 : value.GetReal() < 0;
    bool const isZero = digits.substr(0, digits.find('e')).find_first_of("123456789") == std::string::npos;

    std::size_t const whole = std::min(digits.find_first_not_of("0123456789"), digits.size());
    std::string number = Group(digits.substr(0, whole));
    if (whole < digits.size() && digits[whole] == '.') {
        number += TString(m_options.decimalSeparator).toStdString();
        number += digits.substr(whole + 1);
    } else {
        number += digits.substr(whole);
    }
    if (m_options.units != UnitsFormatEnum::None && m_style == Style::Plain)
        number += static_cast<char>(GetUnitsFormatChar(m_options.units));
    if (m_style == Style::Percent)
        number += '%';
    if (isNegative && !isZero)
        return Signed(number);
    return TString(m_options.prefix).toStdString() + number + TString(m_options.suffix).toStdString();
}

// Of the absolute value, with a point and perhaps an exponent.
std::string NumberFormat::DigitsOf(DataValue const & value) const
{
    int const decimals = std::max(m_options.decimals, 0);
    bool const isPlain = m_style == Style::Plain && m_options.units == UnitsFormatEnum::None;
    if (isPlain && value.GetDataType() == DataType::Integer) {  // not every one is a double
        std::string digits = std::to_string(value.GetInt());
        digits.erase(0, digits.starts_with('-') ? 1 : 0);
        return decimals == 0 ? digits : digits + '.' + std::string(static_cast<std::size_t>(decimals), '0');
    }
    double const number =
        std::abs(value.GetDataType() == DataType::Integer ? static_cast<double>(value.GetInt()) : value.GetReal());
    if (m_style == Style::Scientific)
        return Printed("%.*e", decimals, number);
    // Wider than doubles, so that no percentage is infinite.
    long double const scaled = m_style == Style::Percent ? static_cast<long double>(number) * 100.0L
                                                         : static_cast<long double>(number) / UnitOf(m_options.units);
    return Printed("%.*Lf", decimals, scaled);
}

std::string NumberFormat::Group(std::string const & whole) const
{
    if (!m_options.useGrouping || m_groups.empty() || m_style == Style::Scientific)
        return whole;
    std::string const separator = TString(m_options.thousandSeparator).toStdString();
    std::string grouped;
    std::size_t end = whole.size();
    for (std::size_t group = 0; end != 0; ++group) {
        bool const isLast = group >= m_groups.size() && !m_repeats;
        std::size_t const size = isLast ? end : m_groups[std::min(group, m_groups.size() - 1)];
        std::size_t const begin = end > size ? end - size : 0;
        grouped.insert(0, whole, begin, end - begin);
        if (begin != 0)
            grouped.insert(0, separator);
        end = begin;
    }
    return grouped;
}

std::string NumberFormat::Signed(std::string const & number) const
{
    std::string const prefix = TString(m_options.prefix).toStdString();
    std::string const suffix = TString(m_options.suffix).toStdString();
    switch (m_options.negative) {
    case NegativeFormatEnum::Parentheses: return '(' + prefix + number + suffix + ')';
    case NegativeFormatEnum::MinusLast: return prefix + number + suffix + '-';
    case NegativeFormatEnum::MinusAfterPrefix: return prefix + '-' + number + suffix;
    case NegativeFormatEnum::MinusAfterNumber: return prefix + number + '-' + suffix;
    default: return '-' + prefix + number + suffix;
    }
}

}  // namespace typedtable
