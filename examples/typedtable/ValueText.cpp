#include "typedtable/ValueText.h"

#include <cstdio>

#include "typedtable/DatePrinting.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/parser/DataValueFormatter.h"
#include "velcoreplatform/TString.h"

namespace typedtable {

namespace {

std::string DateText(DateTime const & value)
{
    if (DatePrinting const * const printing = DatePrinting::Current())
        return printing->TextOf(value);
    DateTime::YearMonthDay const parts = value.GetYearMonthDay();
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", parts.year, parts.month, parts.day);
    return text;
}

std::string DateTimeText(DateTime const & value)
{
    if (DatePrinting::Current() != nullptr)
        return DateText(value);
    char text[40];
    std::snprintf(text, sizeof text, " %02d:%02d:%02d", value.GetHour(), value.GetMinute(), value.GetSecond());
    std::string result = DateText(value) + text;
    if (value.GetFraction() != 0.0) {
        std::snprintf(text, sizeof text, "%.4f", value.GetFraction());
        result += text + 1;  // without the zero in front of the point
    }
    return result;
}

std::string WktText(DataValue const & value)
{
    DataValueFormatter::FormatOptions options;
    options.spatialAsWkt = true;
    return DataValueFormatter::Format(value, options).toStdString();
}

}  // namespace

std::string ValueText(DataValue const & value)
{
    if (value.IsSpecial())
        return value.IsNull() ? "%null%" : "%error%";
    switch (value.GetDataType()) {
    case DataType::Integer: return std::to_string(value.GetInt());
    case DataType::Real: return TString::number(value.GetReal(), 'g', 15).toStdString();
    case DataType::Boolean: return value.GetBool() ? "true" : "false";
    case DataType::Date: return DateText(value.GetDate());
    case DataType::DateTime: return DateTimeText(value.GetDatetime());
    case DataType::Spatial: return WktText(value);
    default: return OnOneLine(value.GetString().toStdString());
    }
}

std::string OnOneLine(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto code = static_cast<unsigned char>(text[i]);
        // U+0080 to U+009F are control characters too; UTF-8 writes them as C2 and their number.
        auto const next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0;
        bool const isHighControl = code == 0xC2 && next >= 0x80 && next <= 0x9F;
        if (isHighControl) {
            code = static_cast<unsigned char>(next);
            ++i;
        }
        if (code == '\n') {
            result += "\\n";
        } else if (code == '\r') {
            result += "\\r";
        } else if (code == '\t') {
            result += "\\t";
        } else if (code < 0x20 || code == 0x7F || isHighControl) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\x%02X", static_cast<unsigned>(code));
            result += escape;
        } else {
            result += text[i];
        }
    }
    return result;
}

}  // namespace typedtable
