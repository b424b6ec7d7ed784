// DataValueFormatter: the interchange text of a value, what it looks like in a document.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataValueInspector.h"
#include "velcoreplatform/TString.h"

class DataValue;

/// Writes a value as text and, apart from it, the attributes that a reader needs to make the value again. The forms of
/// text, with the options as they come; docs/formats/value-text.md has what a reader needs:
///
///   Integer       5                             Date       #2020-01-02#
///   Real          0.10000000000000001, 3.       DateTime   #2020-01-02 03:04:05.123#, or on 1899-12-30 #03:04:05#
///   String a"b    "a\"b"                        Time       3:4:5.600 (600 microseconds)
///   Boolean       true                          Tuple      (1,"a\,b",%null%)
///   any null      %null%                        Spatial    its hash in decimal
///                                               Binary     nothing
///
/// Either visit a value and read the result, or call Format:
///
///   DataValueFormatter formatter;
///   DataValue(3.0).Accept(formatter);  // formatter.GetResult() is "3."
///
/// Each inspection replaces the result; one that raises leaves it as it was, and so does a value that calls none, a
/// Binary without a marker. A formatter belongs to one thread; the static functions may be called from any.
class VELCOREDATA_API DataValueFormatter : public DataValueInspector
{
public:
    enum class NumberStyle : std::uint32_t
    {
        General = 0,  ///< as TString::setNum: "1e+300", "inf", "-inf", "nan"
        /// For readers of decimals: "1.0e300"; an infinity is 10^37 with its sign, 38 digits; "nan" or "-nan". A
        /// fraction has 16 digits at most, so that not every real reads back to its bits.
        Decimal = 1,
    };

    struct FormatOptions
    {
        NumberStyle numberStyle = NumberStyle::General;
        bool quoteStrings = true;
        bool delimitDates = true;  ///< # around dates and date-times, never around times
        bool parenthesizeTuples = true;
        bool escapeDelimiters = true;         ///< a backslash before " # % \ in strings
        bool showTrailingZeros = true;        ///< finite reals have a point or an exponent: "3.", or "3.0" in style 1
        bool inheritOptionsInTuples = false;  ///< members have these options, not the defaults
        std::int32_t realDigits = 17;         ///< significant digits of a real
        bool spatialAsWkt = false;            ///< POINT (1 2); comes before the next
        bool spatialAsTypeName = false;       ///< Point
    };

    DataValueFormatter();
    DataValueFormatter(FormatOptions const & options);
    ~DataValueFormatter() override;

    TString const & GetResult() const { return m_result; }

    /// The text of a value; the empty text for one that calls no inspection. If the flag WriteMarksForESV was on at the
    /// first call in the process, the text stands between "esv-marked[" and "]"; changing the flag later has no effect.
    /// Raises what DataValue::Accept and the inspections raise.
    static TString Format(DataValue const & value, FormatOptions const & options);

    /// out += Format(value, options), for a writer of many values. `out` is as it was if this raises.
    static void AppendTo(TString & out, DataValue const & value, FormatOptions const & options);

    /// What the text does not tell, by name:
    ///
    ///   datatype          "integer", "real", ...; of a tuple there is none
    ///   precision, scale  of a Real that has them; of a tuple, those of the Reals among its members
    ///   collation         name of a String's collation; of a tuple, that of the Strings among its members
    ///   charset           the same for the charset, in decimal
    ///   tuple-datatypes   "(integer,real)"
    ///   tuple-size        "2"
    ///
    /// The members of members are not looked at. Throws "VeltriaException_DataValueFormatter_0x89515929" with the
    /// arguments 1 and 3, "Member values of Tuple-type DataValues must all have the same type attributes.", if two
    /// Reals have different precisions or scales, or two Strings different collations or charsets; a Real without a
    /// precision agrees with all. A type outside the enumeration raises XMLEnumEncodingException.
    static std::unordered_map<TString, TString> GetDataValueTypeAttributes(DataValue const & value);

    /// Digits of the integer part of |value|: 1 for 0.5, 4 for 1000, 20 from 2^64 on and for NaN.
    static unsigned intDigits(double value);

    /// The marker without its type: "%null%". Normal raises the logic assertion "special != DataValueTypes::Normal",
    /// "LogicException_LogicAssert_0x278857F1"; a number outside the enumeration XMLEnumEncodingException.
    void InspectSpecial(DataValueTypes::Special special, DataType type) override;
    void InspectBool(bool value) override;
    void InspectInt(long long value) override;
    /// If precision and scale are both set (not -1) and the precision is below realDigits, the value is rounded to the
    /// scale, halves away from zero, and written with `precision` digits: 1.25 with 3 and 1 is "1.3".
    void InspectReal(double value, signed char precision, signed char scale) override;
    /// The year is not padded: #400-01-02#.
    void InspectDate(DateTime value) override;
    /// Milliseconds are written if there is any fraction of a second: ticks below one read ".000".
    void InspectDatetime(DateTime value) override;
    /// h:m:s.micro without padding; 24:0:0.0 is the end of the day.
    void InspectTime(Time value) override;
    /// The collation is not written. A character that no XML document may hold is written by its code, \x1; for U+0001,
    /// whatever the options say.
    void InspectString(Collation const & collation, TString const & text) override;
    /// Each "," and ")" of a member has a backslash before it, so one for each level of nesting. Members have the
    /// default options unless they inherit. Costs stack for each level, like all work on tuples.
    void InspectTuple(RefCntPtr<Tuple, RefCntObject> value) override;
    /// As WKT it raises what velgeo::WktSerialization::Write raises. A null pointer has the empty text.
    void InspectSpatial(std::shared_ptr<velgeo::Spatial const> value) override;

private:
    friend struct DataValueFormatterPeer;  // of tests

    static TString EscapeString(TString const & text, bool escapeDelimiters);
    static bool StringRequiresEscape(TString const & text, bool escapeDelimiters);
    static bool IsEscapeOrDelimiterChar(char16_t ch);

    void InspectCharsetID(unsigned short charsetId);
    void InspectPrecision(signed char precision);
    void InspectScale(signed char scale);

    TString m_result;
    FormatOptions m_options;
};
