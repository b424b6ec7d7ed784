// The text of a value step by step, each inspection into a text of its own: what DataValueFormatter, which writes into
// one buffer, has to agree with.
#pragma once

#include <cmath>
#include <memory>

#include <QString>

#include "main/parser/DecimalNumberText.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/Tuple.h"
#include "velcoredata/parser/DataValueFormatter.h"
#include "velcoreplatform/CorePlatformUtils.h"
#include "velgeo/Spatial.h"
#include "velgeo/WktSerialization.h"

namespace test_support {

class ValueTextModel : public DataValueInspector
{
public:
    using Options = DataValueFormatter::FormatOptions;

    explicit ValueTextModel(Options const & options) : m_options(options) {}

    static TString Format(DataValue const & value, Options const & options)
    {
        ValueTextModel model(options);
        value.Accept(model);
        return model.m_result;
    }

    TString const & Result() const { return m_result; }

    static TString Escape(TString const & text, bool escapeDelimiters)
    {
        TString escaped;
        for (char16_t const c : text) {
            if (escapeDelimiters && (c == u'"' || c == u'#' || c == u'%' || c == u'\\'))
                escaped += TString(u"\\") + c;
            else if (!CorePlatformUtils::IsValidCharacter(c))
                escaped += u"\\x" + TString::number(static_cast<unsigned>(c), 0, 16).toUpper() + u";";
            else
                escaped += c;
        }
        return escaped;
    }

    void InspectSpecial(DataValueTypes::Special special, DataType) override
    {
        static char16_t const * const names[] = {
            u"",         u"%null%",  u"%all%",         u"%wildcard%", u"%skipped%", u"%no-access%",
            u"%ragged%", u"%error%", u"%many-values%", u"%missing%"};
        m_result = names[special];
    }
    void InspectBool(bool value) override { m_result = value ? u"true" : u"false"; }
    void InspectInt(long long value) override { m_result = TString::number(value); }
    void InspectReal(double value, signed char precision, signed char scale) override
    {
        int digits = m_options.realDigits;
        if (precision != -1 && scale != -1 && precision < m_options.realDigits) {
            digits = precision;
            double const unit = -scale == 2 ? 100.0 : std::pow(10.0, -scale);
            double const q = value / unit;
            value = (q < 0.0 ? std::ceil(q - 0.5) : std::floor(q + 0.5)) * unit;
        }
        if (m_options.numberStyle == DataValueFormatter::NumberStyle::Decimal) {
            m_result = detail::DecimalNumberText(value, digits, m_options.showTrailingZeros);
            return;
        }
        QString text = QString::number(value, 'g', digits);
        if (value == 0.0 && std::signbit(value) && !text.startsWith(u'-'))
            text.prepend(u'-');
        bool whole = true;
        for (QChar const c : text)
            whole = whole && (c.isDigit() || c == u'-');
        m_result = TString(text);
        if (m_options.showTrailingZeros && whole)
            m_result += u'.';
    }
    void InspectDate(DateTime value) override { Delimited(Day(value)); }
    void InspectDatetime(DateTime value) override
    {
        TString text;
        if (value.HasDate())
            text = Day(value) + u' ';
        text += Padded(value.GetHour(), 2) + u':' + Padded(value.GetMinute(), 2) + u':' + Padded(value.GetSecond(), 2);
        if (value.GetFraction() > 0.0)
            text += u'.' + Padded(value.GetMilliseconds(), 3);
        Delimited(text);
    }
    void InspectTime(Time value) override
    {
        m_result =
            Escape(TString::number(int{value.GetHour()}) + u':' + TString::number(int{value.GetMinute()}) + u':' +
                       TString::number(int{value.GetSecond()}) + u'.' + TString::number(value.GetMicrosecond()),
                   true);
    }
    void InspectString(Collation const &, TString const & text) override
    {
        m_result = Escape(text, m_options.escapeDelimiters);
        if (m_options.quoteStrings)
            m_result = u'"' + m_result + u'"';
    }
    void InspectTuple(RefCntPtr<Tuple, RefCntObject> tuple) override
    {
        TString text;
        if (m_options.parenthesizeTuples)
            text += u'(';
        Options const before = m_options;
        if (!m_options.inheritOptionsInTuples)
            m_options = Options();
        bool first = true;
        for (DataValue const & member : tuple->GetValues()) {
            if (!first)
                text += u',';
            first = false;
            m_result.clear();
            member.Accept(*this);
            for (char16_t const c : m_result) {
                if (c == u',' || c == u')')
                    text += u'\\';
                text += c;
            }
        }
        m_options = before;
        if (m_options.parenthesizeTuples)
            text += u')';
        m_result = text;
    }
    void InspectSpatial(std::shared_ptr<velgeo::Spatial const> value) override
    {
        m_result.clear();
        if (value == nullptr)
            return;
        if (m_options.spatialAsWkt)
            m_result = TString::fromStdString(velgeo::WktSerialization::Write(*value));
        else if (m_options.spatialAsTypeName)
            m_result = TString::fromStdString(velgeo::to_string(value->GetShapeType()));
        else
            m_result = TString::number(static_cast<unsigned long long>(value->GetHash()));
    }

private:
    static TString Padded(int value, int width) { return TString::number(value, width, 10, u'0'); }
    static TString Day(DateTime const & value)
    {
        return Escape(TString::number(value.GetYear()) + u'-' + Padded(value.GetMonth(), 2) + u'-' +
                          Padded(value.GetDay(), 2),
                      true);
    }
    void Delimited(TString const & text) { m_result = m_options.delimitDates ? u'#' + text + u'#' : text; }

    TString m_result;
    Options m_options;
};

}  // namespace test_support
