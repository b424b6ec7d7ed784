// Writes values into one buffer, as DataValueFormatter says. What a tuple does to the texts of its members is done as
// they are written: within n tuples each of their marks has n backslashes before it.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "main/data/ValuePayload.h"
#include "main/parser/DecimalNumberText.h"
#include "main/parser/ValueTextBuffer.h"
#include "main/parser/ValueTextEscapes.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/DataValueInspector.h"
#include "velcoredata/data/Tuple.h"
#include "velcoredata/data/XMLEnumException.h"
#include "velcoredata/parser/DataValueFormatter.h"
#include "velcoreplatform/NumberText.h"
#include "velcoreplatform/RealText.h"
#include "velgeo/Spatial.h"
#include "velgeo/WktSerialization.h"
#include "velsys/Arithmetic.h"
#include "velsys/ThrowSite.h"

namespace detail {

class ValueTextWriter final : public DataValueInspector
{
public:
    using Options = DataValueFormatter::FormatOptions;

    ValueTextWriter(ValueTextBuffer & out, Options const & options) : m_out(out), m_options(&options) {}

    // What value.Accept(*this) writes, without a call for the common types.
    void Write(DataValue const & value)
    {
        if (!value.IsSpecial()) {
            switch (value.GetDataType()) {
            case DataType::Integer: return PutInteger(value.GetIntUnchecked());
            case DataType::Real: return PutReal(value.GetRealUnchecked(), value.GetPrecision(), value.GetScale());
            case DataType::String:
                if (StringWithCollation const * const text = StringPayload(value))
                    return PutString(text->GetString().View());
                break;
            case DataType::Boolean: return PutBool(value.GetBoolUnchecked());
            case DataType::Date: return PutDate(value.GetDateUnchecked());
            case DataType::DateTime: return PutDatetime(value.GetDatetimeUnchecked());
            default: break;
            }
        }
        value.Accept(*this);
    }

    void InspectSpecial(DataValueTypes::Special special, DataType) override
    {
        static constexpr std::array<std::u16string_view, 10> markers = {
            u"",         u"%null%",  u"%all%",         u"%wildcard%", u"%skipped%", u"%no-access%",
            u"%ragged%", u"%error%", u"%many-values%", u"%missing%"};
        VELTRIA_ASSERT(special != DataValueTypes::Normal, 0x278857F1);
        if (special >= markers.size())
            Implementation::ThrowXMLEnumEncodingException();
        m_out.Put(markers[special]);
    }

    void InspectBool(bool value) override { PutBool(value); }
    void InspectInt(long long value) override { PutInteger(value); }
    void InspectReal(double value, signed char precision, signed char scale) override
    {
        PutReal(value, precision, scale);
    }
    void InspectDate(DateTime value) override { PutDate(value); }
    void InspectDatetime(DateTime value) override { PutDatetime(value); }

    void InspectTime(Time value) override
    {
        PutInteger(value.GetHour());
        m_out.Put(u':');
        PutInteger(value.GetMinute());
        m_out.Put(u':');
        PutInteger(value.GetSecond());
        m_out.Put(u'.');
        PutInteger(value.GetMicrosecond());
    }

    void InspectString(Collation const &, TString const & text) override { PutString(text.View()); }

    void InspectTuple(RefCntPtr<Tuple, RefCntObject> value) override
    {
        Options const & options = *m_options;
        if (options.parenthesizeTuples)
            m_out.Put(u'(');
        if (value != nullptr)
            PutMembers(*value, options);
        if (options.parenthesizeTuples)
            PutMark(u')', m_level);
    }

    void InspectSpatial(std::shared_ptr<velgeo::Spatial const> value) override
    {
        if (value == nullptr)
            return;
        if (m_options->spatialAsWkt)
            PutNarrow(velgeo::WktSerialization::Write(*value));
        else if (m_options->spatialAsTypeName)
            PutNarrow(velgeo::to_string(value->GetShapeType()));
        else
            m_out.Put(TString::number(static_cast<unsigned long long>(value->GetHash())).View());
    }

    // A string with its escapes; of the classes, those of the mask. Within tuples their marks are escaped too.
    void PutEscaped(std::u16string_view text, unsigned mask)
    {
        if (m_level > 0)
            mask |= kTupleMark;
        char16_t const * from = text.data();
        char16_t const * const end = from + text.size();
        // Most characters that are escaped need one backslash: room for that is made beforehand.
        m_out.Reserve(2 * text.size() + 7);
        char16_t * to = m_out.End();
        while (true) {
            std::size_t const plain = CopyPlain(from, end, to, mask);
            from += plain;
            to += plain;
            if (from == end) {
                m_out.SetEnd(to);
                return;
            }
            char16_t const c = *from++;
            unsigned const kind = ValueTextClassOf(c, mask);
            if (kind == kDelimiter || (kind == kTupleMark && m_level == 1)) {
                *to++ = u'\\';
                *to++ = c;
                continue;
            }
            m_out.SetEnd(to);
            if (kind == kTupleMark)
                PutMark(c, m_level);
            else
                PutCode(c);
            m_out.Reserve(2 * static_cast<std::size_t>(end - from) + 7);
            to = m_out.End();
        }
    }

private:
    // Level and options for the members of a tuple.
    class TupleScope
    {
    public:
        TupleScope(ValueTextWriter & writer, Options const & options)
            : m_writer(writer), m_before(std::exchange(writer.m_options, &options))
        {
            ++writer.m_level;
        }
        ~TupleScope()
        {
            --m_writer.m_level;
            m_writer.m_options = m_before;
        }
        TupleScope(TupleScope const &) = delete;
        TupleScope & operator=(TupleScope const &) = delete;

    private:
        ValueTextWriter & m_writer;
        Options const * m_before;
    };

    void PutMembers(Tuple const & tuple, Options const & options)
    {
        static constexpr Options defaults;
        Options const & ofMembers = options.inheritOptionsInTuples ? options : defaults;
        std::size_t const level = m_level;
        TupleScope const scope(*this, ofMembers);
        bool first = true;
        for (DataValue const & member : tuple.GetValues()) {
            if (!std::exchange(first, false))
                PutMark(u',', level);
            Write(member);
        }
    }

    // A mark of a tuple or of a member's text, within so many tuples.
    void PutMark(char16_t mark, std::size_t level)
    {
        if (level > 0)
            m_out.Put(level, u'\\');
        m_out.Put(mark);
    }

    void PutNarrow(std::string const & text) { PutEscaped(TString::fromStdString(text).View(), 0); }

    void PutBool(bool value) { m_out.Put(value ? std::u16string_view(u"true") : u"false"); }

    void PutInteger(long long value)
    {
        m_out.Reserve(20);
        if (value < 0)
            m_out.PutReserved(u'-');
        unsigned long long const magnitude = Magnitude(value);
        char16_t * const end = m_out.End() + DigitCount(magnitude);
        WriteInteger(end, magnitude);
        m_out.SetEnd(end);
    }

    void PutReal(double value, signed char precision, signed char scale)
    {
        int digits = m_options->realDigits;
        if (precision != -1 && scale != -1 && precision < digits) {
            digits = precision;
            value = RoundToScale(value, scale);
        }
        if (m_options->numberStyle == DataValueFormatter::NumberStyle::Decimal)
            m_out.Put(DecimalNumberText(value, digits, m_options->showTrailingZeros).View());
        else if (digits >= 1 && digits <= 17) [[likely]]
            PutGeneral(value, digits);
        else
            m_out.Put(TString::number(value, 'g', digits, !m_options->showTrailingZeros).View());
    }

    static double RoundToScale(double value, int scale)
    {
        double const unit = scale == -2 ? 100.0 : std::pow(10.0, -scale);
        double const quotient = value / unit;
        return (quotient < 0.0 ? std::ceil(quotient - 0.5) : std::floor(quotient + 0.5)) * unit;
    }

    void PutGeneral(double value, int digits)
    {
        m_out.Reserve(kRealTextRoom);
        m_out.SetEnd(WriteReal(m_out.End(), value, digits, m_options->showTrailingZeros));
    }

    void PutString(std::u16string_view text)
    {
        m_out.Reserve(text.size() + 8);
        if (m_options->quoteStrings)
            m_out.PutReserved(u'"');
        PutEscaped(text, kInvalidCharacter | (m_options->escapeDelimiters ? kDelimiter : 0u));
        if (m_options->quoteStrings)
            m_out.Put(u'"');
    }

    void PutDate(DateTime value)
    {
        PutDateDelimiter();
        PutDay(value);
        PutDateDelimiter();
    }

    void PutDatetime(DateTime value)
    {
        PutDateDelimiter();
        if (value.HasDate()) {
            PutDay(value);
            m_out.Put(u' ');
        }
        PutPadded(value.GetHour(), 2);
        m_out.Put(u':');
        PutPadded(value.GetMinute(), 2);
        m_out.Put(u':');
        PutPadded(value.GetSecond(), 2);
        if (value.GetFraction() > 0.0) {
            m_out.Put(u'.');
            PutPadded(value.GetMilliseconds(), 3);
        }
        PutDateDelimiter();
    }

    void PutDay(DateTime const & value)
    {
        auto const day = value.GetYearMonthDay();
        if (day.year >= 1000 && day.year <= 9999 && IsTwoDigits(day.month) && IsTwoDigits(day.day)) [[likely]] {
            m_out.Reserve(10);
            PutTwo(day.year / 100);
            PutTwo(day.year % 100);
            m_out.PutReserved(u'-');
            PutTwo(day.month);
            m_out.PutReserved(u'-');
            PutTwo(day.day);
            return;
        }
        PutInteger(day.year);
        m_out.Put(u'-');
        PutPadded(day.month, 2);
        m_out.Put(u'-');
        PutPadded(day.day, 2);
    }

    void PutDateDelimiter()
    {
        if (m_options->delimitDates)
            m_out.Put(u'#');
    }

    static bool IsTwoDigits(int value) { return value >= 0 && value < 100; }
    // Within the room that was reserved.
    void PutTwo(int value)
    {
        m_out.PutReserved(static_cast<char16_t>(u'0' + value / 10));
        m_out.PutReserved(static_cast<char16_t>(u'0' + value % 10));
    }

    // As TString::number pads.
    void PutPadded(int value, int width)
    {
        if (value < 0 || value > 999)
            return m_out.Put(TString::number(value, width, 10, u'0').View());
        m_out.Reserve(3);
        if (width > 2 || value > 99)
            m_out.PutReserved(static_cast<char16_t>(u'0' + value / 100));
        m_out.PutReserved(static_cast<char16_t>(u'0' + value / 10 % 10));
        m_out.PutReserved(static_cast<char16_t>(u'0' + value % 10));
    }

    // \xFFFE;
    void PutCode(char16_t c)
    {
        static constexpr char16_t digits[] = u"0123456789ABCDEF";
        m_out.Put(u"\\x");
        int shift = 12;
        while (shift > 0 && c >> shift == 0)
            shift -= 4;
        for (; shift >= 0; shift -= 4)
            m_out.Put(digits[c >> shift & 15]);
        m_out.Put(u';');
    }

    ValueTextBuffer & m_out;
    Options const * m_options;
    std::size_t m_level = 0;
};

}  // namespace detail
