// A second, plain writing of the rules of DataValueOperators, by which the library's one is judged: every operation
// goes the long road (promote, cast both operands, try again), nothing is done in place.
//
// An operation of the model that is an error throws ModelError; one that would end the process throws ModelDeath.
#pragma once

#include <cmath>
#include <functional>
#include <limits>
#include <string>

#include "tests/support/ValueSamples.h"
#include "velcoredata/data/DateTimeSpan.h"
#include "velcoredata/utility/DataValueOperators.h"

namespace test_support {

struct ModelError
{
    std::string name;
    std::string message;
};
struct ModelDeath
{};

[[noreturn]] inline void OneType()
{
    throw ModelError{"DataValueOperatorException_AutoGen_0x5EA10C36", "type exception"};
}
[[noreturn]] inline void TwoTypes()
{
    throw ModelError{"DataValueOperatorException_AutoGen_0x5EA10C37", "type exception"};
}

class OperatorModel
{
public:
    explicit OperatorModel(bool sqlNullSemantics) : m_sql(sqlNullSemantics) {}

    DataType Promote(DataType a, DataType b) const
    {
        if (a == b)
            return a;
        if (a == DataType::Unknown)
            return b;
        if (b == DataType::Unknown)
            return a;
        if (IsPair(a, b, DataType::Integer, DataType::Real))
            return DataType::Real;
        if (IsPair(a, b, DataType::Date, DataType::DateTime))
            return DataType::DateTime;
        TwoTypes();
    }

    // A marker made by the constructor and one made by MakeSpecial fail alike for tuples, under two names.
    static DataValue Marker(DataValueTypes::Special special, DataType type)
    {
        if (type == DataType::Tuple)
            throw ModelError{"VeltriaException_AutoGen_0xC3E581B1", "DataValue::MakeSpecial: bad argument"};
        return DataValue(special, type);
    }

    DataValue Cast(DataValue const & value, DataType target) const
    {
        if (value.GetDataType() == target)
            return value;
        if (value.IsSpecial()) {
            if (target == DataType::Tuple)
                throw ModelError{"VeltriaException_AutoGen_0x230EF8C1", "DataValue::MakeSpecial: bad argument"};
            return DataValue(value.GetSpecial(), target);
        }
        DataValue result;
        switch (target) {
        case DataType::Integer: result.SetInt(AsInt(value)); return result;
        case DataType::Real: result.SetReal(AsReal(value)); return result;
        case DataType::DateTime: result.SetDatetime(AsDatetime(value)); return result;
        case DataType::Date: result.SetDate(AsDate(value)); return result;
        default: TwoTypes();
        }
    }

    long long AsInt(DataValue const & value) const
    {
        if (value.GetDataType() == DataType::Integer)
            return value.GetInt();
        if (value.GetDataType() != DataType::Real)
            OneType();
        double const real = value.GetReal();
        bool const fits = real >= -0x1p63 && real < 0x1p63;
        return fits ? static_cast<long long>(real) : std::numeric_limits<long long>::min();
    }
    double AsReal(DataValue const & value) const
    {
        if (value.GetDataType() == DataType::Real)
            return value.GetReal();
        if (value.GetDataType() != DataType::Integer)
            OneType();
        return static_cast<double>(value.GetInt());
    }
    DateTime AsDate(DataValue const & value) const
    {
        if (value.GetDataType() == DataType::Date)
            return value.GetDate();
        if (value.GetDataType() != DataType::DateTime)
            OneType();
        return value.GetDatetime().GetDate();
    }
    DateTime AsDatetime(DataValue const & value) const
    {
        if (value.GetDataType() == DataType::Date)
            return value.GetDate();
        if (value.GetDataType() != DataType::DateTime)
            OneType();
        return value.GetDatetime();
    }

    DataValue Arithmetic(char operation, DataValue const & a, DataValue const & b) const
    {
        bool const temporal = IsTemporal(a.GetDataType()) || IsTemporal(b.GetDataType());
        if (temporal && operation == '+')
            return DateAdd(a, b);
        if (temporal && operation == '-')
            return DateSubtract(a, b);
        if (m_sql) {
            DataType const type = Promote(a.GetDataType(), b.GetDataType());
            if (a.IsSpecial())
                return Marker(a.GetSpecial(), type);
            if (b.IsSpecial())
                return Marker(b.GetSpecial(), type);
        }
        return SameType(operation, a, b);
    }

    DataValue Modulo(DataValue const & a, DataValue const & b) const
    {
        if (m_sql && a.IsSpecial())
            return Marker(a.GetSpecial(), DataType::Integer);
        if (m_sql && b.IsSpecial())
            return Marker(b.GetSpecial(), DataType::Integer);
        long long const x = AsInt(a);
        long long const y = AsInt(b);
        RequireQuotient(x, y);
        return DataValue(x % y);
    }

    DataValue Power(DataValue const & a, DataValue const & b) const
    {
        if (m_sql && a.IsSpecial())
            return Marker(a.GetSpecial(), DataType::Real);
        if (m_sql && b.IsSpecial())
            return Marker(b.GetSpecial(), DataType::Real);
        double const base = AsReal(a);
        double const exponent = AsReal(b);
        double whole = 0.0;
        if (b.GetDataType() != DataType::Integer && base < 0.0 && std::modf(exponent, &whole) != 0.0)
            return DataValue(DataValueTypes::Null, DataType::Real);
        return DataValue(std::pow(base, exponent));
    }

    DataValue Negate(DataValue const & a) const
    {
        if (m_sql && a.IsSpecial())
            return a;
        DataValue result;
        if (a.GetDataType() == DataType::Integer)
            result.SetInt(static_cast<long long>(0 - static_cast<unsigned long long>(a.GetInt())));
        else if (a.GetDataType() == DataType::Real && (a.HasPrecision() || a.HasScale()))
            result.SetDecimal(-a.GetReal(), a.GetPrecision(), a.GetScale());
        else if (a.GetDataType() == DataType::Real)
            result.SetReal(-a.GetReal());
        else
            OneType();
        return result;
    }

    DataValue Abs(DataValue const & a) const
    {
        if (a.IsSpecial())
            return a;
        if (a.GetDataType() == DataType::Integer)
            return a.GetInt() < 0 ? Negate(a) : a;
        if (a.GetDataType() == DataType::Real)
            return 0.0 > a.GetReal() ? DataValue(-a.GetReal()) : a;
        OneType();
    }

    // `keepsType`: a marker stays what it is instead of becoming a Real one.
    DataValue Function(DataValue const & a, bool keepsType, std::function<double(double)> const & function) const
    {
        if (m_sql && a.IsSpecial())
            return keepsType ? a : Marker(a.GetSpecial(), DataType::Real);
        return DataValue(function(AsReal(a)));
    }

    int Compare(DataValue const & a, DataValue const & b, bool fuzzy) const
    {
        if (m_sql && a.IsSpecial()) {
            if (!b.IsSpecial())
                return -1;
            return a.GetSpecial() < b.GetSpecial() ? -1 : (b.GetSpecial() < a.GetSpecial() ? 1 : 0);
        }
        if (m_sql && b.IsSpecial())
            return 1;
        if (a == b)
            return 0;
        if (a.GetDataType() != b.GetDataType()) {
            DataType const type = Promote(a.GetDataType(), b.GetDataType());
            DataValue const right = Cast(b, type);
            DataValue const left = Cast(a, type);
            return Compare(left, right, false);
        }
        if (a.GetDataType() == DataType::Real && a.GetReal() == b.GetReal())
            return 0;
        if (a.GetDataType() == DataType::Real && fuzzy)
            return DataValueOperators::Compare(a.GetReal(), b.GetReal(), 16);
        return a < b ? -1 : 1;
    }

    DataValue MinMax(bool maximum, DataValue const & a, DataValue const & b) const
    {
        if (m_sql) {
            DataType const type = Promote(a.GetDataType(), b.GetDataType());
            if (a.IsSpecial())
                return Marker(a.GetSpecial(), type);
            if (b.IsSpecial())
                return Marker(b.GetSpecial(), type);
        }
        int const order = Compare(a, b, false);
        return (maximum ? order == 1 : order == -1) ? a : b;
    }

private:
    static bool IsPair(DataType a, DataType b, DataType x, DataType y)
    {
        return (a == x && b == y) || (a == y && b == x);
    }
    static void RequireQuotient(long long x, long long y)
    {
        if (y == 0 || (y == -1 && x == std::numeric_limits<long long>::min()))
            throw ModelDeath();
    }

    DataValue SameType(char operation, DataValue const & a, DataValue const & b) const
    {
        if (a.GetDataType() != b.GetDataType()) {
            DataType const type = Promote(a.GetDataType(), b.GetDataType());
            DataValue const right = Cast(b, type);
            DataValue const left = Cast(a, type);
            return SameType(operation, left, right);
        }
        if (a.GetDataType() == DataType::Integer)
            return DataValue(Integers(operation, a.GetInt(), b.GetInt()));
        if (a.GetDataType() == DataType::Real)
            return DataValue(Reals(operation, a.GetReal(), b.GetReal()));
        OneType();
    }
    static long long Integers(char operation, long long x, long long y)
    {
        auto const u = static_cast<unsigned long long>(x);
        auto const v = static_cast<unsigned long long>(y);
        switch (operation) {
        case '+': return static_cast<long long>(u + v);
        case '-': return static_cast<long long>(u - v);
        case '*': return static_cast<long long>(u * v);
        default: RequireQuotient(x, y); return x / y;
        }
    }
    static double Reals(char operation, double x, double y)
    {
        switch (operation) {
        case '+': return x + y;
        case '-': return x - y;
        case '*': return x * y;
        default: return y != 0.0 ? x / y : Quotient(x, y);
        }
    }
    // Kept apart so that no compiler looks at the zero.
    static double Quotient(double x, double y)
    {
        if (x == 0.0 || std::isnan(x))
            return std::numeric_limits<double>::quiet_NaN();
        return std::signbit(x) != std::signbit(y) ? -std::numeric_limits<double>::infinity()
                                                  : std::numeric_limits<double>::infinity();
    }

    DataValue DateAdd(DataValue const & left, DataValue const & right) const
    {
        bool const swap = IsTemporal(right.GetDataType()) && IsNumeric(left.GetDataType());
        DataValue const & a = swap ? right : left;
        DataValue const & b = swap ? left : right;
        if (m_sql && a.IsSpecial())
            return Marker(a.GetSpecial(), a.GetDataType());
        if (m_sql && b.IsSpecial())
            return Marker(b.GetSpecial(), a.GetDataType());
        DataValue result;
        bool const real = b.GetDataType() == DataType::Real;
        if (!real && b.GetDataType() != DataType::Integer)
            TwoTypes();
        DateTimeSpan const span =
            real ? DateTimeSpan(AsReal(b)) : DateTimeSpan(static_cast<int>(AsInt(b)), 0, 0, 0, 0.0);
        if (a.GetDataType() == DataType::Date && real)
            result.SetDatetime(AsDate(a) + span);
        else if (a.GetDataType() == DataType::Date)
            result.SetDate(AsDate(a) + span);
        else if (a.GetDataType() == DataType::DateTime)
            result.SetDatetime(AsDatetime(a) + span);
        else
            TwoTypes();
        return result;
    }

    DataValue DateSubtract(DataValue const & a, DataValue const & b) const
    {
        if (!IsTemporal(a.GetDataType()) || !IsTemporal(b.GetDataType()))
            return DateAdd(a, Negate(b));
        if (a.GetDataType() != b.GetDataType())
            return DateSubtract(Cast(a, DataType::DateTime), Cast(b, DataType::DateTime));
        bool const dates = a.GetDataType() == DataType::Date;
        DataType const type = dates ? DataType::Integer : DataType::Real;
        if (m_sql && a.IsSpecial())
            return Marker(a.GetSpecial(), type);
        if (m_sql && b.IsSpecial())
            return Marker(b.GetSpecial(), type);
        if (dates)
            return DataValue((AsDate(a) - AsDate(b)).GetTotalDays());
        return DataValue(AsDatetime(a).ToOleDate() - AsDatetime(b).ToOleDate());
    }

    bool m_sql;
};

}  // namespace test_support
