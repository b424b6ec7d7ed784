#include "velcoredata/parser/DataValueFormatter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include <boost/container/small_vector.hpp>

#include "main/parser/DecimalNumberText.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/Tuple.h"
#include "velcoredata/data/XMLEnumException.h"
#include "velcoredata/utility/FeatureFlags.h"
#include "velcoreplatform/CorePlatformUtils.h"
#include "velcoreplatform/RealText.h"
#include "velgeo/Spatial.h"
#include "velgeo/WktSerialization.h"
#include "velsys/ThrowSite.h"

namespace {

using FormatOptions = DataValueFormatter::FormatOptions;
// Most values fit without a heap block.
using Text = boost::container::small_vector<char16_t, 256>;

constexpr FormatOptions kDefaults;

constexpr std::array<std::u16string_view, 10> kMarkers = {
    u"",         u"%null%",  u"%all%",         u"%wildcard%", u"%skipped%", u"%no-access%",
    u"%ragged%", u"%error%", u"%many-values%", u"%missing%"};

constexpr std::u16string_view kMarkBefore = u"esv-marked[";
constexpr std::u16string_view kMarkAfter = u"]";

// What a string is looked at for: bits of kClasses.
constexpr unsigned char kInvalid = 1;    // may not stand in a document
constexpr unsigned char kDelimiter = 2;  // " # % and the backslash
constexpr unsigned char kTupleMark = 4;  // , and )

constexpr bool IsDelimiter(char16_t c)
{
    return c >= 34 && c <= 92 && (0x40000000000000Bull >> (c - 34) & 1) != 0;
}

constexpr auto kClasses = [] {
    std::array<unsigned char, 128> classes{};
    for (char16_t c = 0; c < classes.size(); ++c)
        classes[c] =
            static_cast<unsigned char>((CorePlatformUtils::IsValidCharacter(c) ? 0 : kInvalid) |
                                       (IsDelimiter(c) ? kDelimiter : 0) | (c == u',' || c == u')' ? kTupleMark : 0));
    return classes;
}();

// The classes of a character among those that are asked for.
unsigned ClassOf(char16_t c, unsigned mask)
{
    if (c < kClasses.size()) [[likely]]
        return kClasses[c] & mask;
    return CorePlatformUtils::IsValidCharacter(c) ? 0u : kInvalid;
}

double RoundToScale(double value, int scale)
{
    double const unit = scale == -2 ? 100.0 : std::pow(10.0, -scale);
    double const quotient = value / unit;
    return (quotient < 0.0 ? std::ceil(quotient - 0.5) : std::floor(quotient + 0.5)) * unit;
}

// Appends the text of values to a buffer. What a tuple does to its members' texts is done as they are written: within
// `m_level` tuples each of its marks has that many backslashes before it.
class Writer final : public DataValueInspector
{
public:
    Writer(Text & out, FormatOptions const & options) : m_out(out), m_options(&options) {}

    void InspectSpecial(DataValueTypes::Special special, DataType) override
    {
        VELTRIA_ASSERT(special != DataValueTypes::Normal, 0x278857F1);
        if (special >= kMarkers.size())
            Implementation::ThrowXMLEnumEncodingException();
        Put(kMarkers[special]);
    }

    void InspectBool(bool value) override { Put(value ? std::u16string_view(u"true") : u"false"); }

    void InspectInt(long long value) override { PutNumber(value); }

    void InspectReal(double value, signed char precision, signed char scale) override
    {
        int digits = m_options->realDigits;
        if (precision != -1 && scale != -1 && precision < digits) {
            digits = precision;
            value = RoundToScale(value, scale);
        }
        if (m_options->numberStyle == DataValueFormatter::NumberStyle::Decimal)
            Put(detail::DecimalNumberText(value, digits, m_options->showTrailingZeros).View());
        else if (digits >= 1 && digits <= 17) [[likely]]
            PutReal(value, digits);
        else
            Put(TString::number(value, 'g', digits, !m_options->showTrailingZeros).View());
    }

    void InspectDate(DateTime value) override
    {
        PutDateDelimiter();
        PutDate(value);
        PutDateDelimiter();
    }

    void InspectDatetime(DateTime value) override
    {
        PutDateDelimiter();
        if (value.HasDate()) {
            PutDate(value);
            Put(u' ');
        }
        PutPadded(value.GetHour(), 2);
        Put(u':');
        PutPadded(value.GetMinute(), 2);
        Put(u':');
        PutPadded(value.GetSecond(), 2);
        if (value.GetFraction() > 0.0) {
            Put(u'.');
            PutPadded(value.GetMilliseconds(), 3);
        }
        PutDateDelimiter();
    }

    void InspectTime(Time value) override
    {
        PutNumber(value.GetHour());
        Put(u':');
        PutNumber(value.GetMinute());
        Put(u':');
        PutNumber(value.GetSecond());
        Put(u'.');
        PutNumber(value.GetMicrosecond());
    }

    void InspectString(Collation const &, TString const & text) override
    {
        if (m_options->quoteStrings)
            Put(u'"');
        PutEscaped(text.View(), kInvalid | (m_options->escapeDelimiters ? kDelimiter : 0u));
        if (m_options->quoteStrings)
            Put(u'"');
    }

    void InspectTuple(RefCntPtr<Tuple, RefCntObject> value) override
    {
        FormatOptions const & options = *m_options;
        if (options.parenthesizeTuples)
            Put(u'(');
        if (value != nullptr)
            PutMembers(*value, options.inheritOptionsInTuples ? options : kDefaults);
        if (options.parenthesizeTuples)
            PutMark(u')');
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
            PutNumber(value->GetHash());
    }

    // EscapeString of Value text, within tuples their backslashes too.
    void PutEscaped(std::u16string_view text, unsigned mask)
    {
        if (m_level > 0)
            mask |= kTupleMark;
        auto const * const end = text.data() + text.size();
        for (auto const * from = text.data(); from != end;) {
            auto const * to = from;
            while (to != end && ClassOf(*to, mask) == 0)
                ++to;
            m_out.insert(m_out.end(), from, to);
            if (to == end)
                return;
            switch (ClassOf(*to, mask)) {
            case kInvalid: PutCode(*to); break;
            case kTupleMark: PutMark(*to); break;
            default: Put(u'\\'); Put(*to);
            }
            from = to + 1;
        }
    }

private:
    // m_level and m_options for the members of a tuple.
    class TupleScope
    {
    public:
        TupleScope(Writer & writer, FormatOptions const & options)
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
        Writer & m_writer;
        FormatOptions const * m_before;
    };

    void PutMembers(Tuple const & tuple, FormatOptions const & options)
    {
        bool first = true;
        for (DataValue const & member : tuple.GetValues()) {
            if (!std::exchange(first, false))
                PutMark(u',');
            TupleScope const scope(*this, options);
            member.Accept(*this);
        }
    }

    void Put(char16_t c) { m_out.push_back(c); }
    void Put(std::u16string_view text) { m_out.insert(m_out.end(), text.begin(), text.end()); }
    // A mark of a tuple or of a member's text.
    void PutMark(char16_t mark)
    {
        m_out.insert(m_out.end(), m_level, u'\\');
        Put(mark);
    }
    void PutNarrow(std::string const & text) { PutEscaped(TString::fromStdString(text).View(), 0); }

    // Room for `most` code units at the end.
    char16_t * Extend(std::size_t most)
    {
        std::size_t const size = m_out.size();
        m_out.resize(size + most, boost::container::default_init);
        return m_out.data() + size;
    }
    void CutAt(char16_t const * end) { m_out.resize(static_cast<std::size_t>(end - m_out.data())); }

    template <class Integer>
    void PutNumber(Integer value)
    {
        char digits[20];
        char const * const end = std::to_chars(digits, std::end(digits), value).ptr;
        m_out.insert(m_out.end(), static_cast<char const *>(digits), end);
    }
    // As TString::number pads.
    void PutPadded(int value, int width)
    {
        if (value < 0 || value > 999)
            return Put(TString::number(value, width, 10, u'0').View());
        if (width > 2 || value > 99)
            Put(static_cast<char16_t>(u'0' + value / 100));
        Put(static_cast<char16_t>(u'0' + value / 10 % 10));
        Put(static_cast<char16_t>(u'0' + value % 10));
    }

    void PutReal(double value, int digits)
    {
        char16_t * const start = Extend(detail::kLongestRealText + 1);
        char16_t * end = detail::WriteReal(start, value, digits);
        // Everything but a whole number has a point or a letter.
        if (m_options->showTrailingZeros &&
            std::all_of(start, end, [](char16_t c) { return c == u'-' || (c >= u'0' && c <= u'9'); }))
            *end++ = u'.';
        CutAt(end);
    }

    void PutDate(DateTime value)
    {
        PutNumber(value.GetYear());
        Put(u'-');
        PutPadded(value.GetMonth(), 2);
        Put(u'-');
        PutPadded(value.GetDay(), 2);
    }
    void PutDateDelimiter()
    {
        if (m_options->delimitDates)
            Put(u'#');
    }

    void PutCode(char16_t c)
    {
        static constexpr char16_t digits[] = u"0123456789ABCDEF";
        Put(u"\\x");
        int shift = 12;
        while (shift > 0 && c >> shift == 0)
            shift -= 4;
        for (; shift >= 0; shift -= 4)
            Put(digits[c >> shift & 15]);
        Put(u';');
    }

    Text & m_out;
    FormatOptions const * m_options;
    std::size_t m_level = 0;
};

TString MakeText(Text const & text)
{
    return TString(text.data(), static_cast<int>(text.size()));
}

template <class Inspect>
TString Written(FormatOptions const & options, Inspect inspect)
{
    Text text;
    Writer writer(text, options);
    inspect(writer);
    return MakeText(text);
}

bool MarksAreOn()
{
    static bool const on = FeatureFlags::IsOn(FeatureFlagId::WriteMarksForESV);
    return on;
}

void Write(Text & out, DataValue const & value, FormatOptions const & options)
{
    bool const marks = MarksAreOn();
    if (marks)
        out.insert(out.end(), kMarkBefore.begin(), kMarkBefore.end());
    Writer writer(out, options);
    value.Accept(writer);
    if (marks)
        out.insert(out.end(), kMarkAfter.begin(), kMarkAfter.end());
}

}  // namespace

DataValueFormatter::DataValueFormatter() = default;
DataValueFormatter::DataValueFormatter(FormatOptions const & options) : m_options(options) {}
DataValueFormatter::~DataValueFormatter() = default;

TString DataValueFormatter::Format(DataValue const & value, FormatOptions const & options)
{
    Text text;
    Write(text, value, options);
    return MakeText(text);
}

void DataValueFormatter::AppendTo(TString & out, DataValue const & value, FormatOptions const & options)
{
    Text text;
    Write(text, value, options);
    out.append(text.data(), static_cast<int>(text.size()));
}

unsigned DataValueFormatter::intDigits(double value)
{
    return detail::IntegerDigits(value);
}

bool DataValueFormatter::IsEscapeOrDelimiterChar(char16_t ch)
{
    return IsDelimiter(ch);
}

bool DataValueFormatter::StringRequiresEscape(TString const & text, bool escapeDelimiters)
{
    unsigned const mask = kInvalid | (escapeDelimiters ? kDelimiter : 0u);
    return std::any_of(text.cbegin(), text.cend(), [&](char16_t c) { return ClassOf(c, mask) != 0; });
}

TString DataValueFormatter::EscapeString(TString const & text, bool escapeDelimiters)
{
    if (!StringRequiresEscape(text, escapeDelimiters))
        return text;
    return Written(kDefaults, [&](Writer & writer) {
        writer.PutEscaped(text.View(), kInvalid | (escapeDelimiters ? kDelimiter : 0u));
    });
}

void DataValueFormatter::InspectSpecial(DataValueTypes::Special special, DataType type)
{
    m_result = Written(m_options, [&](Writer & writer) { writer.InspectSpecial(special, type); });
}

void DataValueFormatter::InspectBool(bool value)
{
    m_result = Written(m_options, [&](Writer & writer) { writer.InspectBool(value); });
}

void DataValueFormatter::InspectInt(long long value)
{
    m_result = Written(m_options, [&](Writer & writer) { writer.InspectInt(value); });
}

void DataValueFormatter::InspectReal(double value, signed char precision, signed char scale)
{
    m_result = Written(m_options, [&](Writer & writer) { writer.InspectReal(value, precision, scale); });
}

void DataValueFormatter::InspectDate(DateTime value)
{
    m_result = Written(m_options, [&](Writer & writer) { writer.InspectDate(value); });
}

void DataValueFormatter::InspectDatetime(DateTime value)
{
    m_result = Written(m_options, [&](Writer & writer) { writer.InspectDatetime(value); });
}

void DataValueFormatter::InspectTime(Time value)
{
    m_result = Written(m_options, [&](Writer & writer) { writer.InspectTime(value); });
}

void DataValueFormatter::InspectString(Collation const & collation, TString const & text)
{
    m_result = Written(m_options, [&](Writer & writer) { writer.InspectString(collation, text); });
}

void DataValueFormatter::InspectTuple(RefCntPtr<Tuple, RefCntObject> value)
{
    m_result = Written(m_options, [&](Writer & writer) { writer.InspectTuple(value); });
}

void DataValueFormatter::InspectSpatial(std::shared_ptr<velgeo::Spatial const> value)
{
    m_result = Written(m_options, [&](Writer & writer) { writer.InspectSpatial(value); });
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
