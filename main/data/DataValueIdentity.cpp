// Order, equality, hash, negation, literal form and visiting of DataValue.
#include <bit>
#include <cmath>
#include <ostream>

#include "main/data/DateLiteral.h"
#include "main/data/SpatialIdentity.h"
#include "main/data/ValuePayload.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/DataValueInspector.h"
#include "velcoredata/data/PrintableString.h"
#include "velsys/Arithmetic.h"
#include "velsys/Hash.h"
#include "velsys/ThrowSite.h"

namespace {

constexpr unsigned kSeed = 0xdeadbeefu;

// Null is below Normal and that below the other markers by number.
bool LessSpecial(DataValueTypes::Special a, DataValueTypes::Special b)
{
    bool const aIsNull = a == DataValueTypes::Null;
    bool const bIsNull = b == DataValueTypes::Null;
    if (aIsNull != bIsNull)
        return aIsNull;
    return static_cast<signed char>(a) < static_cast<signed char>(b);
}

bool LessAcrossTypes(DataValue const & a, DataValue const & b)
{
    if (a.GetDataType() == DataType::Integer && b.GetDataType() == DataType::Real)
        return b.GetRealUnchecked() > static_cast<double>(a.GetIntUnchecked());
    if (a.GetDataType() == DataType::Real && b.GetDataType() == DataType::Integer)
        return static_cast<double>(b.GetIntUnchecked()) > a.GetRealUnchecked();
    return a.GetDataType() < b.GetDataType();
}

// Both are set: compares by `less`; otherwise whether b is set.
template <class Object, class LessThan>
bool LessShared(Object const * a, Object const * b, LessThan less)
{
    return a != nullptr && b != nullptr ? less(*a, *b) : b != nullptr;
}

TString RealLiteral(double value)
{
    TString text = TString::number(value, 'g', 17, false);
    std::u16string_view const view = text.View();
    std::size_t i = !view.empty() && view[0] == u'-' ? 1 : 0;
    while (i < view.size() && view[i] >= u'0' && view[i] <= u'9')
        ++i;
    if (i == view.size())
        text += u'.';
    return text;
}

TString StringLiteral(TString const & text)
{
    TString doubled(text);
    doubled.replace(u'"', TString(u"\"\""));
    return u'"' + doubled + u'"';
}

}  // namespace

bool DataValue::EqualPayloads(DataValue const & a, DataValue const & b)
{
    if (a.GetDataType() == DataType::Spatial)
        return detail::SpatialEqual(a.GetSpatial().get(), b.GetSpatial().get());
    if (a.m_payload == 0 || b.m_payload == 0)
        return false;
    if (a.GetDataType() == DataType::String)
        return *detail::StringPayload(a) == *detail::StringPayload(b);
    return *detail::TuplePayload(a) == *detail::TuplePayload(b);
}

bool DataValue::Less(DataValue const & a, DataValue const & b)
{
    if (a.GetDataType() != b.GetDataType())
        return LessAcrossTypes(a, b);
    if (a.GetSpecial() != b.GetSpecial())
        return LessSpecial(a.GetSpecial(), b.GetSpecial());
    switch (a.GetDataType()) {
    case DataType::Integer: return a.GetIntUnchecked() < b.GetIntUnchecked();
    case DataType::Real: return b.GetRealUnchecked() > a.GetRealUnchecked();
    case DataType::String:
        return a.m_payload != b.m_payload &&
               LessShared(detail::StringPayload(a), detail::StringPayload(b),
                          [](StringWithCollation const & x, StringWithCollation const & y) { return x < y; });
    case DataType::DateTime:
    case DataType::Date:
    case DataType::Time: return a.m_payload < b.m_payload;
    case DataType::Boolean: return (a.m_payload & 0xFF) < (b.m_payload & 0xFF);
    case DataType::Tuple:
        return LessShared(detail::TuplePayload(a), detail::TuplePayload(b),
                          [](Tuple const & x, Tuple const & y) { return x < y; });
    case DataType::Spatial:
        return a.m_payload != 0 && b.m_payload != 0 && a.GetSpatial()->GetHash() < b.GetSpatial()->GetHash();
    default: return false;
    }
}

unsigned DataValue::HashPayload() const
{
    switch (GetDataType()) {
    case DataType::Real: return THash32(&m_payload, sizeof m_payload, THash32(&m_head, 1, kSeed));
    case DataType::String:
        if (m_payload != 0)
            return detail::StringPayload(*this)->GetHash();
        break;
    case DataType::Tuple:
        if (m_payload != 0)
            return detail::TuplePayload(*this)->Hash();
        break;
    case DataType::Spatial:
        if (m_payload != 0)
            return detail::SpatialHash32(*GetSpatial());
        break;
    default: break;
    }
    return detail::HashTwoWords(m_head, m_payload, kSeed);
}

TString DataValue::FormatAsLiteral() const
{
    if (IsNull())
        return TString(u"NULL");
    if (IsSpecial())
        VELTRIA_FAIL("GetSpecial() == DataValueTypes::Null", 0x21164B74);
    switch (GetDataType()) {
    case DataType::Integer: return TString::number(GetIntUnchecked());
    case DataType::Real: return RealLiteral(GetRealUnchecked());
    case DataType::String: return StringLiteral(GetString());
    case DataType::DateTime: return u'#' + detail::DateTimeLiteral(GetDatetimeUnchecked()) + u'#';
    case DataType::Date: return u'#' + detail::DateLiteral(GetDateUnchecked()) + u'#';
    case DataType::Boolean: return TString(GetBoolUnchecked() ? u"true" : u"false");
    case DataType::Spatial: return detail::SpatialLiteral(GetSpatial().get());
    default: return TString();
    }
}

void DataValue::Accept(DataValueInspector & inspector) const
{
    if (IsSpecial())
        return inspector.InspectSpecial(GetSpecial(), GetDataType());
    switch (GetDataType()) {
    case DataType::Integer: return inspector.InspectInt(GetIntUnchecked());
    case DataType::Real: return inspector.InspectReal(GetRealUnchecked(), GetPrecision(), GetScale());
    case DataType::Boolean: return inspector.InspectBool(GetBoolUnchecked());
    case DataType::Date: return inspector.InspectDate(GetDateUnchecked());
    case DataType::DateTime: return inspector.InspectDatetime(GetDatetimeUnchecked());
    case DataType::Time: return inspector.InspectTime(GetTimeUnchecked());
    case DataType::String: return inspector.InspectString(GetCollation(), GetString());
    case DataType::Tuple: return inspector.InspectTuple(GetTuple());
    case DataType::Spatial: return inspector.InspectSpatial(GetSpatial());
    case DataType::Table: VELTRIA_FAIL("DataType::Table not expected in DataValue", 0x935B635F);
    default: return;
    }
}

DataValue operator-(DataValue value)
{
    switch (value.GetDataType()) {
    case DataType::Integer: value.SetInt(detail::WrapNeg(value.GetIntUnchecked())); break;
    case DataType::Real: value.SetReal(-value.GetRealUnchecked()); break;
    default: VELTRIA_FAIL("Unary operator- is unsupported for this data type.", 0xED6A87E9);
    }
    return value;
}

std::ostream & operator<<(std::ostream & out, DataValue const & value)
{
    return out << toPrintableString(value.FormatAsLiteral());
}
