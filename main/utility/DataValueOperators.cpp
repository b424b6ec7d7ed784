// Promotion, arithmetic, the implicit cast and the error path of DataValueOperators.
#include "velcoredata/utility/DataValueOperators.h"

#include <cmath>

#include "velcoredata/utility/DataValueOperatorException.h"
#include "velcoreplatform/ICrashNow.h"
#include "velsys/Arithmetic.h"
#include "velsys/ThrowSite.h"

namespace {

// A Real or Integer as a double; a marker's payload is zero.
double NumberOf(DataValue const & value) noexcept
{
    return value.GetDataType() == DataType::Real ? value.GetRealUnchecked()
                                                 : static_cast<double>(value.GetIntUnchecked());
}

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

// Numbers are combined in place: what Cast would make of an Integer is the same double, and a marker's payload is zero
// either way. Everything else takes the general road by Promote and Cast.
template <class OnIntegers, class OnReals>
DataValue DataValueOperators::Combine(DataValue const & a, DataValue const & b, OnIntegers onIntegers,
                                      OnReals onReals) const
{
    DataType const aType = a.GetDataType();
    DataType const bType = b.GetDataType();
    DataValue marker;
    if (TakeMarker(a, b, marker))
        return marker;
    if (aType == DataType::Integer && bType == DataType::Integer)
        return DataValue(onIntegers(a.GetIntUnchecked(), b.GetIntUnchecked()));
    if (IsNumeric(aType) && IsNumeric(bType))
        return DataValue(onReals(NumberOf(a), NumberOf(b)));
    if (aType == bType)
        ThrowTypeException(aType);
    DataType const type = Promote(aType, bType);
    DataValue const right = Cast(b, type);
    DataValue const left = Cast(a, type);
    if (type == DataType::Integer)
        return DataValue(onIntegers(left.GetIntUnchecked(), right.GetIntUnchecked()));
    if (type == DataType::Real)
        return DataValue(onReals(left.GetRealUnchecked(), right.GetRealUnchecked()));
    ThrowTypeException(type);
}

DataValue DataValueOperators::Add(DataValue const & a, DataValue const & b)
{
    if (IsTemporal(a.GetDataType()) || IsTemporal(b.GetDataType())) [[unlikely]]
        return DateAdd(a, b);
    return Combine(
        a, b, [](long long x, long long y) { return detail::WrapAdd(x, y); }, [](double x, double y) { return x + y; });
}

DataValue DataValueOperators::Subtract(DataValue const & a, DataValue const & b)
{
    if (IsTemporal(a.GetDataType()) || IsTemporal(b.GetDataType())) [[unlikely]]
        return DateSubtract(a, b);
    return Combine(
        a, b, [](long long x, long long y) { return detail::WrapSub(x, y); }, [](double x, double y) { return x - y; });
}

DataValue DataValueOperators::Multiply(DataValue const & a, DataValue const & b)
{
    return Combine(
        a, b, [](long long x, long long y) { return detail::WrapMul(x, y); }, [](double x, double y) { return x * y; });
}

DataValue DataValueOperators::Divide(DataValue const & a, DataValue const & b)
{
    return Combine(
        a, b, [](long long x, long long y) { return detail::DivideOrDie(x, y); },
        [](double x, double y) { return x / y; });
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
