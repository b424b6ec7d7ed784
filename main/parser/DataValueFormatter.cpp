#include "velcoredata/parser/DataValueFormatter.h"

#include <algorithm>
#include <string_view>

#include "main/parser/ValueTextWriter.h"
#include "velcoredata/utility/FeatureFlags.h"

namespace {

using FormatOptions = DataValueFormatter::FormatOptions;
using detail::ValueTextBuffer;
using detail::ValueTextWriter;

constexpr FormatOptions kDefaults;

template <class Inspect>
TString Written(FormatOptions const & options, Inspect inspect)
{
    ValueTextBuffer text;
    ValueTextWriter writer(text, options);
    inspect(writer);
    return text.Text();
}

unsigned EscapedClasses(bool escapeDelimiters)
{
    return detail::kInvalidCharacter | (escapeDelimiters ? detail::kDelimiter : 0u);
}

bool MarksAreOn()
{
    static bool const on = FeatureFlags::IsOn(FeatureFlagId::WriteMarksForESV);
    return on;
}

void Write(ValueTextBuffer & out, DataValue const & value, FormatOptions const & options)
{
    bool const marks = MarksAreOn();
    if (marks)
        out.Put(u"esv-marked[");
    ValueTextWriter(out, options).Write(value);
    if (marks)
        out.Put(u']');
}

}  // namespace

DataValueFormatter::DataValueFormatter() = default;
DataValueFormatter::DataValueFormatter(FormatOptions const & options) : m_options(options) {}
DataValueFormatter::~DataValueFormatter() = default;

TString DataValueFormatter::Format(DataValue const & value, FormatOptions const & options)
{
    ValueTextBuffer text;
    Write(text, value, options);
    return text.Text();
}

void DataValueFormatter::AppendTo(TString & out, DataValue const & value, FormatOptions const & options)
{
    ValueTextBuffer text;
    Write(text, value, options);
    text.AppendTo(out);
}

unsigned DataValueFormatter::intDigits(double value)
{
    return detail::IntegerDigits(value);
}

bool DataValueFormatter::IsEscapeOrDelimiterChar(char16_t ch)
{
    return detail::IsValueTextDelimiter(ch);
}

bool DataValueFormatter::StringRequiresEscape(TString const & text, bool escapeDelimiters)
{
    unsigned const mask = EscapedClasses(escapeDelimiters);
    return std::any_of(text.cbegin(), text.cend(), [&](char16_t c) { return detail::ValueTextClassOf(c, mask) != 0; });
}

TString DataValueFormatter::EscapeString(TString const & text, bool escapeDelimiters)
{
    if (!StringRequiresEscape(text, escapeDelimiters))
        return text;
    return Written(kDefaults,
                   [&](ValueTextWriter & writer) { writer.PutEscaped(text.View(), EscapedClasses(escapeDelimiters)); });
}

void DataValueFormatter::InspectSpecial(DataValueTypes::Special special, DataType type)
{
    m_result = Written(m_options, [&](ValueTextWriter & writer) { writer.InspectSpecial(special, type); });
}

void DataValueFormatter::InspectBool(bool value)
{
    m_result = Written(m_options, [&](ValueTextWriter & writer) { writer.InspectBool(value); });
}

void DataValueFormatter::InspectInt(long long value)
{
    m_result = Written(m_options, [&](ValueTextWriter & writer) { writer.InspectInt(value); });
}

void DataValueFormatter::InspectReal(double value, signed char precision, signed char scale)
{
    m_result = Written(m_options, [&](ValueTextWriter & writer) { writer.InspectReal(value, precision, scale); });
}

void DataValueFormatter::InspectDate(DateTime value)
{
    m_result = Written(m_options, [&](ValueTextWriter & writer) { writer.InspectDate(value); });
}

void DataValueFormatter::InspectDatetime(DateTime value)
{
    m_result = Written(m_options, [&](ValueTextWriter & writer) { writer.InspectDatetime(value); });
}

void DataValueFormatter::InspectTime(Time value)
{
    m_result = Written(m_options, [&](ValueTextWriter & writer) { writer.InspectTime(value); });
}

void DataValueFormatter::InspectString(Collation const & collation, TString const & text)
{
    m_result = Written(m_options, [&](ValueTextWriter & writer) { writer.InspectString(collation, text); });
}

void DataValueFormatter::InspectTuple(RefCntPtr<Tuple, RefCntObject> value)
{
    m_result = Written(m_options, [&](ValueTextWriter & writer) { writer.InspectTuple(value); });
}

void DataValueFormatter::InspectSpatial(std::shared_ptr<velgeo::Spatial const> value)
{
    m_result = Written(m_options, [&](ValueTextWriter & writer) { writer.InspectSpatial(value); });
}

void DataValueFormatter::InspectCharsetID(unsigned short charsetId)
{
    InspectInt(charsetId);
}

void DataValueFormatter::InspectPrecision(signed char precision)
{
    InspectInt(precision);
}

void DataValueFormatter::InspectScale(signed char scale)
{
    InspectInt(scale);
}
