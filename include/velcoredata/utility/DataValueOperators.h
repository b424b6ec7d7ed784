// DataValueOperators: the one place where values are combined by value semantics.
//
// A caller makes one on the stack, sets its two flags and calls operations. Operands are never changed; results are new
// values. Objects are not shared between threads; they cost two bytes to make.
//
// Null semantics. With SetSQLNullSemantics(true) a marker among the operands makes the result that marker, the left one
// first; by default operators ignore markers and work on the payload, which is zero for a marker:
//
//                                  default          SQL semantics
//   null Integer + 5               5                null Integer
//   %all% Integer + null Real      0.0              %all% Real
//   null Integer * 2.5             0.0              null Real
//   7.9 % null Real                ends the process null Integer
//   Compare(null Integer, 0)       -1               -1
//   Compare(0, %all% Integer)      -1               1
//
// Types. Integer promotes to Real and Date to DateTime; Unknown promotes to anything. A pair that does not promote, and
// an operation on a type that it is not made for, throws DataValueOperatorException "type exception":
// "DataValueOperatorException_AutoGen_0x5EA10C36" where one type is at fault,
// "DataValueOperatorException_AutoGen_0x5EA10C37" where two do not go together.
//
// Integers wrap in 64 bits. Dividing an integer by zero, or the lowest one by -1, ends the process at once: callers
// test the divisor. Reals follow IEEE 754.
#pragma once

#include <utility>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataValue.h"

class VELCOREDATA_API DataValueOperators
{
public:
    DataValueOperators() noexcept = default;

    // False: a type error calls the process hook ICrashNow first, and raises only if that returns. Default true.
    void SetThrow(bool value) noexcept { m_throw = value; }
    // Default false.
    void SetSQLNullSemantics(bool value) noexcept { m_sqlNullSemantics = value; }

    // Promotion. The common type of two: equal types themselves, Integer with Real is Real, Date with DateTime is
    // DateTime, Unknown with anything is the other. Throws the two-type error otherwise.
    DataType Promote(DataType a, DataType b) const;
    bool CanPromote(DataType a, DataType b) const noexcept;
    // `to` where nothing is lost: equal types, Integer to Real, Date to DateTime. Unknown has no special place here.
    DataType PromoteWithoutLoss(DataType from, DataType to) const;
    bool CanPromoteWithoutLoss(DataType from, DataType to) const noexcept;

    // Arithmetic on Integer and Real; precision and scale are not carried over. Add and Subtract also take dates:
    //   Date + Integer days is a Date       Date - Date is an Integer of days
    //   Date + Real days is a DateTime      DateTime - DateTime is a Real of days
    //   DateTime + either is a DateTime     Date - DateTime is a Real of days
    // A number plus a date is the date plus the number; a date plus a date throws. The integer count of days is cut to
    // 32 bits.
    DataValue Add(DataValue const & a, DataValue const & b);
    DataValue Subtract(DataValue const & a, DataValue const & b);
    DataValue Multiply(DataValue const & a, DataValue const & b);
    // 7 / 2 is 3, -7 / 2 is -3, 7.0 / 0 is infinity.
    DataValue Divide(DataValue const & a, DataValue const & b);
    // Of both operands truncated to integers, with the sign of the dividend: 7.9 % 2.9 is 1.
    DataValue Modulo(DataValue const & a, DataValue const & b) const;
    // Always Real. A negative base with a Real exponent that has a fractional part gives the null Real.
    DataValue Power(DataValue const & a, DataValue const & b) const;
    // Keeps precision and scale of a Real, unlike the free operator-.
    DataValue Negate(DataValue const & a) const;
    // Markers are returned as they are, whatever the semantics. A negative Real loses its precision and scale; -0.0 and
    // NaN are returned unchanged.
    DataValue Abs(DataValue const & a);
    // Always Real.
    DataValue Ceil(DataValue const & a) const;
    DataValue Floor(DataValue const & a) const;
    // 0.0 for everything that is not above zero, NaN included.
    DataValue Ln(DataValue const & a) const;
    DataValue ASinh(DataValue const & a) const;

    // The implicit cast of arithmetic and comparison. The same type gives a copy, a marker keeps the marker and changes
    // the type; Integer and Real cast to each other (a Real truncates), Date and DateTime too. Throws for everything
    // else.
    DataValue Cast(DataValue const & value, DataType target) const;

    /// The cast that a user asks for. The same type gives a copy and a marker keeps the marker, as in Cast; what does
    /// not go gives the marker %error% of the target type, not an exception:
    ///
    ///   from \ to          Integer            Real               String           Date, DateTime     Spatial
    ///   Integer            copy               1 is 1.0           "1"              days, below        %error%
    ///   Real               truncates          copy               "1.5", "3."      days, below        %error%
    ///   String             StringToInt        StringToReal       copy             any known pattern  WKT, GeoJSON
    ///   Date, DateTime     whole days         days               below            Cast               %error%
    ///   Boolean            1, 0               1.0, 0.0           "1", "0"         %error%            %error%
    ///   any other          %error%            %error%            %error%          %error%            %error%
    ///
    /// All other targets are %error%: nothing casts to Boolean. Days count from 1900-01-01: 0 is that day, 1.5 is
    /// 1900-01-02 12:00. An Integer is cut to 32 bits first. Numbers become text as a default DataValueFormatter writes
    /// them, dates as "January 02 1900 12:00AM", a Date too. Text is tried as DateTime::ParseDateTimeTryAllFormats
    /// does; text that is no shape becomes the null Spatial, not %error%. Results that are text have the unknown
    /// collation. A day outside the range of dates gives a null, but a Real of more days than 64 bits hold ticks,
    /// 1e300, gives 1899-12-30.
    ///
    /// A target of Tuple throws "DataValue::MakeSpecial: bad argument" ("VeltriaException_AutoGen_0xC3E581B1", for a
    /// marker "VeltriaException_AutoGen_0x230EF8C1"), unless the value is a Tuple. A day before the year 400 cannot be
    /// cut to a Date: it throws "VeltriaException_AutoGen_0xDD90F63D". A failing cast of text throws nothing on the
    /// inside either.
    DataValue ExplicitCast(DataValue const & value, DataType target) const;

    /// As TString::toLongLong in base 10 reads it, else StringToReal truncated and saturated: "1.9" is 1, "1e30" the
    /// highest integer. 2^63 itself ("9223372036854775808") is the lowest. Throws as StringToReal does.
    long long StringToInt(TString const & text) const;
    /// As TString::toDouble reads it. Throws DataValueOperatorException "Error parsing number",
    /// "DataValueOperatorException_AutoGen_0x5EA10C38"; SetThrow has no say in this.
    ///
    ///   StringToReal(DataValue(x).FormatAsLiteral()) == x, bit for bit, for every finite x
    double StringToReal(TString const & text) const;
    /// Precision and scale of decimal text: the count of its digits, leading zeros too, and of those behind the point.
    /// "-12.345" is (5, 3), "" is (0, 0). (-1, -1) for 17 digits and more, a second point or sign, a "-" behind a
    /// digit, and any other character: "+5", "1e3".
    static std::pair<signed char, signed char>
    GetImplicitPrecisionAndScaleFromDecimalFormattedAsString(TString const & text);

    // Readers: the type alone is tested, a marker reads as its zero payload. Throw the one-type error for other types.
    long long AsInt(DataValue const & value) const;
    double AsReal(DataValue const & value) const;
    DateTime AsDate(DataValue const & value) const;
    DateTime AsDatetime(DataValue const & value) const;
    DataValue MakeInt(long long value) const noexcept { return DataValue(value); }
    DataValue MakeReal(double value) const noexcept { return DataValue(value); }
    // Both make a DateTime.
    DataValue MakeDate(DateTime value) const { return DataValue(value, DataType::DateTime); }
    DataValue MakeDatetime(DateTime value) const { return DataValue(value, DataType::DateTime); }

    // -1, 0 or 1. Numbers and dates of different types compare after promotion. With `fuzzy`, two Reals within sixteen
    // units in the last place are equal, unless promotion was needed. A NaN is 1 against anything different from it,
    // both ways. Throws the two-type error for types that do not promote.
    int Compare(DataValue const & a, DataValue const & b, bool fuzzy) const;
    // Distance in units in the last place, the bits read as sign and magnitude. Numbers of opposite sign are near only
    // if both are zero or subnormal (for floats: have a biased exponent below 2). Float tolerances are capped at
    // 1000000.
    static int Compare(double a, double b, unsigned ulps) noexcept;
    static int Compare(float a, float b, unsigned ulps) noexcept;
    // A copy with its own type: Max(1, 0.5) is the Integer 1. Of equal values the right one.
    DataValue Max(DataValue const & a, DataValue const & b);
    DataValue Min(DataValue const & a, DataValue const & b);

    // Date parts as Integers, of a Date or DateTime. A null date answers with the parts of 1899-12-30.
    DataValue DateAsYear(DataValue const & value) const;
    DataValue DateAsQuarter(DataValue const & value) const;
    DataValue DateAsMonth(DataValue const & value) const;
    DataValue DateAsWeek(DataValue const & value) const;
    DataValue DateAsDay(DataValue const & value) const;
    DataValue DateAsDayOfYear(DataValue const & value) const;
    DataValue DateAsDayOfWeek(DataValue const & value) const;
    DataValue DateAsISOYear(DataValue const & value) const;
    DataValue DateAsISOQuarter(DataValue const & value) const;
    DataValue DateAsISOWeek(DataValue const & value) const;
    DataValue DateAsISODayOfWeek(DataValue const & value) const;
    // month * 10000 + year: March 2021 is 32021.
    DataValue DateAsMonthYear(DataValue const & value) const;
    // (month * 100 + day) * 10000 + year: 2 March 2021 is 3022021.
    DataValue DateAsMonthDayYear(DataValue const & value) const;
    DataValue DateTimeAsHour(DataValue const & value) const;
    DataValue DateTimeAsMinute(DataValue const & value) const;
    DataValue DateTimeAsSecond(DataValue const & value) const;

    // See DataValueInterpolator. Interpolate(0.5, 0, 10, false) is the Integer 5, with noCast the Real 5.0.
    DataValue Interpolate(double fraction, DataValue const & start, DataValue const & end, bool noCast) const;
    double InverseInterpolate(DataValue const & value, DataValue const & start, DataValue const & end) const;

private:
    // The marker that SQL semantics put in the place of a result, if an operand is one.
    bool TakeMarker(DataValue const & a, DataValue const & b, DataValue & result) const;
    bool AreNumbers(DataValue const & a, DataValue const & b) const noexcept;
    template <class Operation>
    static DataValue CombineNumbers(DataValue const & a, DataValue const & b);
    template <class Operation>
    [[gnu::noinline]] DataValue CombineByCast(DataValue const & a, DataValue const & b) const;
    DataValue DateAdd(DataValue const & a, DataValue const & b) const;
    DataValue DateSubtract(DataValue const & a, DataValue const & b) const;
    // The rows of the cast matrix, for values without a marker and another target type.
    DataValue CastNumber(DataValue const & value, DataType target) const;
    static DataValue CastText(DataValue const & value, DataType target);
    DataValue CastDate(DataValue const & value, DataType target) const;
    DataValue CastBoolean(DataValue const & value, DataType target) const;
    [[noreturn]] void ThrowTypeException(DataType type) const;
    [[noreturn]] void ThrowTypeException(DataType a, DataType b) const;
    void CrashIfAsked() const;

    bool m_throw = true;
    bool m_sqlNullSemantics = false;
};

static_assert(sizeof(DataValueOperators) == 2);
