#include "velcoredata/data/BinaryDataValue.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <utility>

#include "velcoredata/core/LocalStrings.h"
#include "velcoreplatform/TFormatString.h"
#include "velsys/Arithmetic.h"
#include "velsys/ThrowSite.h"

namespace {

template <class Number>
void StoreNumber(std::vector<char> & bytes, Number number)
{
    static_assert(std::endian::native == std::endian::little);
    bytes.resize(sizeof number);
    std::memcpy(bytes.data(), &number, sizeof number);
}

void StoreText(std::vector<char> & bytes, char const * text, std::size_t count)
{
    auto const length = static_cast<std::uint32_t>(count);
    std::vector<char> stored(sizeof length + count);
    std::memcpy(stored.data(), &length, sizeof length);
    if (count > 0)
        std::memcpy(stored.data() + sizeof length, text, count);
    bytes = std::move(stored);
}

TString SetMessage(DataType type)
{
    return TFormatString(CoreData::LookupTStrExported(CoreData::StringId::IDS_ERR_INCORRECT_DATA_TYPE_SET))
        .arg(static_cast<int>(DataType::Unknown))
        .arg(static_cast<int>(type));
}

}  // namespace

long long const BinaryDataValue::s_numericShifts[12] = {
    1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000, 10000000000, 100000000000};

BinaryDataValue::BinaryDataValue(std::vector<char> const & bytes) : m_bytes(bytes) {}

BinaryDataValue::BinaryDataValue(std::vector<char> && bytes) : m_bytes(std::move(bytes)) {}

BinaryDataValue::BinaryDataValue(char const * bytes, std::size_t count)
{
    SetValue(bytes, count);
}

BinaryDataValue::BinaryDataValue(TString const & text)
{
    SetString(text);
}

BinaryDataValue::BinaryDataValue(DataValue const & value)
{
    SetDataValue(value);
}

BinaryDataValue::~BinaryDataValue() = default;

void BinaryDataValue::SetValue(std::vector<char> const & bytes)
{
    m_bytes = bytes;
}

void BinaryDataValue::SetValue(std::vector<char> && bytes)
{
    m_bytes = std::move(bytes);
}

void BinaryDataValue::SetValue(char const * bytes, std::size_t count)
{
    m_bytes = count == 0 ? std::vector<char>() : std::vector<char>(bytes, bytes + count);
}

void BinaryDataValue::SetBoolean(bool const & value)
{
    StoreNumber(m_bytes, static_cast<char>(value ? 1 : 0));
}

void BinaryDataValue::SetInt16(short value)
{
    StoreNumber(m_bytes, value);
}

void BinaryDataValue::SetInt32(int value)
{
    StoreNumber(m_bytes, value);
}

void BinaryDataValue::SetInt64(long long value)
{
    StoreNumber(m_bytes, value);
}

void BinaryDataValue::SetReal(double const & value, signed char scale)
{
    if (scale < 0 || scale >= static_cast<signed char>(std::size(s_numericShifts)))
        return StoreNumber(m_bytes, value);
    // As llround, with the processor's answer where the product does not fit.
    double const scaled = static_cast<double>(s_numericShifts[scale]) * value;
    StoreNumber(m_bytes, detail::RealToInt64(std::round(scaled)));
}

void BinaryDataValue::SetDate(DateTime const & value)
{
    StoreNumber(m_bytes, static_cast<std::uint32_t>(value.GetRepresentation() / DateTime::s_scaling + 1));
}

void BinaryDataValue::SetDateTime(DateTime const & value)
{
    StoreNumber(m_bytes, (value.GetRepresentation() + DateTime::s_scaling) * 100);
}

void BinaryDataValue::SetString(char const * bytes, std::size_t count)
{
    StoreText(m_bytes, bytes, count);
}

void BinaryDataValue::SetString(std::string const & bytes)
{
    StoreText(m_bytes, bytes.data(), bytes.size());
}

void BinaryDataValue::SetString(TString const & text)
{
    SetString(text.toStdString());
}

void BinaryDataValue::SetDataValue(DataValue const & value)
{
    switch (value.GetDataType()) {
    case DataType::Integer: return SetInt64(value.GetIntUnchecked());
    case DataType::Real: return SetReal(value.GetRealUnchecked(), value.GetScale());
    case DataType::String: return SetString(value.GetString());
    case DataType::Date: return SetDate(value.GetDateUnchecked());
    case DataType::DateTime: return SetDateTime(value.GetDatetimeUnchecked());
    case DataType::Boolean: return SetBoolean(value.GetBoolUnchecked());
    default: return;
    }
}

void BinaryDataValue::SetTuple(RefCntPtr<Tuple, RefCntObject> const &)
{
    VELTRIA_THROW_NAMED(VeltriaException, IncorrectDatatypeException, 0xCA8348EE, 2, 2, SetMessage(DataType::Tuple));
}

void BinaryDataValue::SetSpatial(std::shared_ptr<velgeo::Spatial const> const &)
{
    VELTRIA_THROW_NAMED(VeltriaException, IncorrectDatatypeException, 0xCA836145, 2, 2, SetMessage(DataType::Spatial));
}
