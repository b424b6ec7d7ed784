// Promotion, arithmetic, the implicit cast and the error path of DataValueOperators.
#include "velcoredata/utility/DataValueOperators.h"

#include <bit>
#include <cmath>
#include <cstdint>

#include "velcoredata/utility/DataValueOperatorException.h"
#include "velcoreplatform/ICrashNow.h"
#include "velsys/Arithmetic.h"
#include "velsys/ThrowSite.h"

namespace {

// A Real or Integer as a double; a marker's payload is zero. Both readings are made and one is taken by a mask: in
// mixed columns no predictor knows which.
double NumberOf(DataValue const & value) noexcept
{
    auto const bits = static_cast<std::uint64_t>(value.GetAny());
    auto const converted = std::bit_cast<std::uint64_t>(static_cast<double>(value.GetAny()));
    std::uint64_t const isReal = 0 - static_cast<std::uint64_t>(value.GetDataType() == DataType::Real);
    return std::bit_cast<double>(converted ^ ((bits ^ converted) & isReal));
}

// Of two numbers, whose types are 0 and 1: one test instead of two.
bool EitherIsReal(DataValue const & a, DataValue const & b) noexcept
{
    return (static_cast<unsigned>(a.GetDataType()) | static_cast<unsigned>(b.GetDataType())) != 0;
}

struct Sum
{
    static long long OnIntegers(long long x, long long y) noexcept { return detail::WrapAdd(x, y); }
    static double OnReals(double x, double y) noexcept { return x + y; }
};

struct Difference
{
    static long long OnIntegers(long long x, long long y) noexcept { return detail::WrapSub(x, y); }
    static double OnReals(double x, double y) noexcept { return x - y; }
};

struct Product
{
    static long long OnIntegers(long long x, long long y) noexcept { return detail::WrapMul(x, y); }
    static double OnReals(double x, double y) noexcept { return x * y; }
};

struct Quotient
{
    static long long OnIntegers(long long x, long long y) noexcept { return detail::DivideOrDie(x, y); }
    static double OnReals(double x, double y) noexcept { return x / y; }
};

}  // namespace

bool DataValueOperators::CanPromote(DataType a, DataType b) const noexcept
{
    return a == b || a == DataType::Unknown || b == DataType::Unknown || (IsNumeric(a) && IsNumeric(b)) ||
           (IsTemporal(a) && IsTemporal(b));
}

DataType DataValueOperators::Promote(DataType a, DataType b) const
{
    if (a == b || b == DataType::Unknown)
        return a;
    if (a == DataType::Unknown)
        return b;
    if (IsNumeric(a) && IsNumeric(b))
        return DataType::Real;
    if (IsTemporal(a) && IsTemporal(b))
        return DataType::DateTime;
    ThrowTypeException(a, b);
}

bool DataValueOperators::CanPromoteWithoutLoss(DataType from, DataType to) const noexcept
{
    return from == to || (from == DataType::Integer && to == DataType::Real) ||
           (from == DataType::Date && to == DataType::DateTime);
}

DataType DataValueOperators::PromoteWithoutLoss(DataType from, DataType to) const
{
    if (!CanPromoteWithoutLoss(from, to))
        ThrowTypeException(from, to);
    return to;
}

bool DataValueOperators::TakeMarker(DataValue const & a, DataValue const & b, DataValue & result) const
{
    if (!m_sqlNullSemantics)
        return false;
    DataType const type =
        a.GetDataType() == b.GetDataType() ? a.GetDataType() : Promote(a.GetDataType(), b.GetDataType());
    if (a.IsSpecial())
        result = DataValue(a.GetSpecial(), type);
    else if (b.IsSpecial())
        result = DataValue(b.GetSpecial(), type);
    else
        return false;
    return true;
}

// Two numbers that no null semantics stands in the way of.
inline bool DataValueOperators::AreNumbers(DataValue const & a, DataValue const & b) const noexcept
{
    return IsNumeric(a.GetDataType()) && IsNumeric(b.GetDataType()) &&
           !(m_sqlNullSemantics && (a.IsSpecial() || b.IsSpecial()));
}

// Numbers are combined in place: what Cast would make of an Integer is the same double, and a marker's payload is zero
// either way.
template <class Operation>
DataValue DataValueOperators::CombineNumbers(DataValue const & a, DataValue const & b)
{
    if (EitherIsReal(a, b))
        return DataValue(Operation::OnReals(NumberOf(a), NumberOf(b)));
    return DataValue(Operation::OnIntegers(a.GetIntUnchecked(), b.GetIntUnchecked()));
}

// The general road, for everything else and for every operand. What fails for its types fails before there is anything
// to clean up: unwinding a frame that has to costs as much again as the exception.
template <class Operation>
DataValue DataValueOperators::CombineByCast(DataValue const & a, DataValue const & b) const
{
    DataType const type = Promote(a.GetDataType(), b.GetDataType());
    if (m_sqlNullSemantics && (a.IsSpecial() || b.IsSpecial()))
        return DataValue(a.IsSpecial() ? a.GetSpecial() : b.GetSpecial(), type);
    if (a.GetDataType() == b.GetDataType() && !IsNumeric(type))
        ThrowTypeException(type);
    DataValue const right = Cast(b, type);
    DataValue const left = Cast(a, type);
    if (type == DataType::Integer)
        return DataValue(Operation::OnIntegers(left.GetIntUnchecked(), right.GetIntUnchecked()));
    if (type == DataType::Real)
        return DataValue(Operation::OnReals(left.GetRealUnchecked(), right.GetRealUnchecked()));
    ThrowTypeException(type);
}

DataValue DataValueOperators::Add(DataValue const & a, DataValue const & b)
{
    if (AreNumbers(a, b)) [[likely]]
        return CombineNumbers<Sum>(a, b);
    if (IsTemporal(a.GetDataType()) || IsTemporal(b.GetDataType()))
        return DateAdd(a, b);
    return CombineByCast<Sum>(a, b);
}

DataValue DataValueOperators::Subtract(DataValue const & a, DataValue const & b)
{
    if (AreNumbers(a, b)) [[likely]]
        return CombineNumbers<Difference>(a, b);
    if (IsTemporal(a.GetDataType()) || IsTemporal(b.GetDataType()))
        return DateSubtract(a, b);
    return CombineByCast<Difference>(a, b);
}

DataValue DataValueOperators::Multiply(DataValue const & a, DataValue const & b)
{
    if (AreNumbers(a, b)) [[likely]]
        return CombineNumbers<Product>(a, b);
    return CombineByCast<Product>(a, b);
}

DataValue DataValueOperators::Divide(DataValue const & a, DataValue const & b)
{
    if (AreNumbers(a, b)) [[likely]]
        return CombineNumbers<Quotient>(a, b);
    return CombineByCast<Quotient>(a, b);
}

DataValue DataValueOperators::Modulo(DataValue const & a, DataValue const & b) const
{
    if (m_sqlNullSemantics && (a.IsSpecial() || b.IsSpecial()))
        return DataValue(a.IsSpecial() ? a.GetSpecial() : b.GetSpecial(), DataType::Integer);
    long long const dividend = AsInt(a);
    return DataValue(detail::RemainderOrDie(dividend, AsInt(b)));
}

DataValue DataValueOperators::Power(DataValue const & a, DataValue const & b) const
{
    if (m_sqlNullSemantics && (a.IsSpecial() || b.IsSpecial()))
        return DataValue(a.IsSpecial() ? a.GetSpecial() : b.GetSpecial(), DataType::Real);
    if (b.GetDataType() == DataType::Integer)
        return DataValue(std::pow(AsReal(a), static_cast<double>(b.GetIntUnchecked())));
    double const base = AsReal(a);
    double const exponent = AsReal(b);
    double whole = 0.0;
    if (base < 0.0 && std::modf(exponent, &whole) != 0.0)
        return DataValue(DataValueTypes::Null, DataType::Real);
    return DataValue(std::pow(base, exponent));
}

DataValue DataValueOperators::Negate(DataValue const & a) const
{
    if (m_sqlNullSemantics && a.IsSpecial())
        return a;
    switch (a.GetDataType()) {
    case DataType::Integer: return DataValue(detail::WrapNeg(a.GetIntUnchecked()));
    case DataType::Real: return DataValue(-a.GetRealUnchecked(), a.GetPrecision(), a.GetScale());
    default: ThrowTypeException(a.GetDataType());
    }
}

DataValue DataValueOperators::Abs(DataValue const & a)
{
    if (a.IsSpecial())
        return a;
    switch (a.GetDataType()) {
    case DataType::Integer: return a.GetIntUnchecked() < 0 ? DataValue(detail::WrapNeg(a.GetIntUnchecked())) : a;
    case DataType::Real: return 0.0 > a.GetRealUnchecked() ? DataValue(-a.GetRealUnchecked()) : a;
    default: ThrowTypeException(a.GetDataType());
    }
}

DataValue DataValueOperators::Ceil(DataValue const & a) const
{
    if (m_sqlNullSemantics && a.IsSpecial())
        return DataValue(a.GetSpecial(), DataType::Real);
    return DataValue(std::ceil(AsReal(a)));
}

DataValue DataValueOperators::Floor(DataValue const & a) const
{
    if (m_sqlNullSemantics && a.IsSpecial())
        return DataValue(a.GetSpecial(), DataType::Real);
    return DataValue(std::floor(AsReal(a)));
}

DataValue DataValueOperators::Ln(DataValue const & a) const
{
    if (m_sqlNullSemantics && a.IsSpecial())
        return a;
    double const value = AsReal(a);
    return DataValue(value > 0.0 ? std::log(value) : 0.0);
}

DataValue DataValueOperators::ASinh(DataValue const & a) const
{
    if (m_sqlNullSemantics && a.IsSpecial())
        return a;
    return DataValue(std::asinh(AsReal(a)));
}

DataValue DataValueOperators::Cast(DataValue const & value, DataType target) const
{
    if (value.GetDataType() == target)
        return value;
    DataValue result;
    if (value.IsSpecial()) {
        result.MakeSpecial(value.GetSpecial(), target);
        return result;
    }
    switch (target) {
    case DataType::Integer: result.SetInt(AsInt(value)); break;
    case DataType::Real: result.SetReal(AsReal(value)); break;
    case DataType::DateTime: result.SetDatetime(AsDatetime(value)); break;
    case DataType::Date: result.SetDate(AsDate(value)); break;
    default: ThrowTypeException(target, value.GetDataType());
    }
    return result;
}

long long DataValueOperators::AsInt(DataValue const & value) const
{
    switch (value.GetDataType()) {
    case DataType::Integer: return value.GetIntUnchecked();
    case DataType::Real: return detail::RealToInt64(value.GetRealUnchecked());
    default: ThrowTypeException(value.GetDataType());
    }
}

double DataValueOperators::AsReal(DataValue const & value) const
{
    if (!IsNumeric(value.GetDataType()))
        ThrowTypeException(value.GetDataType());
    return NumberOf(value);
}

DateTime DataValueOperators::AsDate(DataValue const & value) const
{
    switch (value.GetDataType()) {
    case DataType::Date: return value.GetDateUnchecked();
    case DataType::DateTime: return value.GetDatetimeUnchecked().GetDate();
    default: ThrowTypeException(value.GetDataType());
    }
}

DateTime DataValueOperators::AsDatetime(DataValue const & value) const
{
    if (!IsTemporal(value.GetDataType()))
        ThrowTypeException(value.GetDataType());
    return value.GetDatetimeUnchecked();
}

void DataValueOperators::CrashIfAsked() const
{
    if (!m_throw)
        ICrashNow();
}

void DataValueOperators::ThrowTypeException(DataType) const
{
    CrashIfAsked();
    VELTRIA_THROW(DataValueOperatorException, 0x5EA10C36, u"type exception");
}

void DataValueOperators::ThrowTypeException(DataType, DataType) const
{
    CrashIfAsked();
    VELTRIA_THROW(DataValueOperatorException, 0x5EA10C37, u"type exception");
}
