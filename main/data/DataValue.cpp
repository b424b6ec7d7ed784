#include "velcoredata/data/DataValue.h"

#include <unordered_map>

#include "main/data/DataTypeNames.h"
#include "velcoredata/core/LocalStrings.h"
#include "velcoreplatform/TFormatString.h"
#include "velcoreplatform/TLog.h"
#include "velsys/NoDestructor.h"
#include "velsys/ThrowSite.h"

namespace {

// The message of a type error, after it was logged with both type names.
TString ReportIncorrectType(CoreData::StringId id, DataType expected, DataType actual)
{
    TString const & expectedName = detail::DataTypeAttributeName(expected);
    TString const & actualName = detail::DataTypeAttributeName(actual);
    TString const message = TFormatString(CoreData::LookupTStrExported(id)).arg(expectedName, actualName);

    auto fields = CaptureStackTraceForLogging(true);
    fields[u"msg"] = TLog::Literal::String(message);
    fields[u"actual"] = TLog::Literal::String(actualName);
    fields[u"expected"] = TLog::Literal::String(expectedName);
    TLog::Logger & logger = TLog::Logger::Get();
    if (logger.IsEnabled(TLog::Warn()))
        logger.Log(TLog::Event(u"incorrect-data-type", TLog::Object::Make(std::move(fields))), TLog::Warn());
    return message;
}

}  // namespace

DataValue::DataValue(DateTime const & value, DataType type) : DataValue()
{
    switch (type) {
    case DataType::DateTime: SetDatetime(value); break;
    case DataType::Date: SetDate(value); break;
    default: VELTRIA_FAIL("false", 0x72FAA0AE);
    }
}

DataValue::DataValue(DataValueTypes::Special special, DataType type) : m_head(HeadOf(type, special)), m_payload(0)
{
    if (type == DataType::Tuple)
        VELTRIA_THROW(VeltriaException, 0xC3E581B1, u"DataValue::MakeSpecial: bad argument");
}

void DataValue::SetDate(DateTime value)
{
    if (value.IsValid())
        Store(HeadOf(DataType::Date), value.GetDate().GetRepresentation());
    else
        Store(HeadOf(DataType::Date, DataValueTypes::Null), 0);
}

void DataValue::SetDatetime(DateTime value) noexcept
{
    if (value.IsValid())
        Store(HeadOf(DataType::DateTime), value.GetRepresentation());
    else
        Store(HeadOf(DataType::DateTime, DataValueTypes::Null), 0);
}

void DataValue::StoreCounted(DataType type, RefCntObject const * object, std::int32_t ordinal) noexcept
{
    Store(HeadOf(type, DataValueTypes::Normal, -1, -1, ordinal), reinterpret_cast<std::uint64_t>(object));
}

void DataValue::SetOrdinal(int ordinal)
{
    if (GetDataType() != DataType::String || m_payload == 0)
        ThrowIncorrectTypeSet(DataType::String, GetDataType());
    m_head = (m_head & 0xFFFFFFFFull) | static_cast<std::uint64_t>(static_cast<std::uint32_t>(ordinal)) << 32;
}

void DataValue::MakeSpecial(DataValueTypes::Special special, DataType type)
{
    if (type == DataType::Tuple)
        VELTRIA_THROW(VeltriaException, 0x230EF8C1, u"DataValue::MakeSpecial: bad argument");
    Store(HeadOf(type, special), 0);
}

int DataValue::GetOrdinal() const noexcept
{
    if (GetDataType() != DataType::String || m_payload == 0)
        return -2;
    return static_cast<std::int32_t>(m_head >> 32);
}

TString DataValue::DataTypeToString(DataType type)
{
    static detail::NoDestructor<std::unordered_map<DataType, char16_t const *>> s_names(
        std::unordered_map<DataType, char16_t const *>{{DataType::Integer, u"INTEGER"},
                                                       {DataType::Real, u"REAL"},
                                                       {DataType::String, u"STRING"},
                                                       {DataType::DateTime, u"DATETIME"},
                                                       {DataType::Boolean, u"BOOLEAN"},
                                                       {DataType::Date, u"DATE"},
                                                       {DataType::Tuple, u"TUPLE"},
                                                       {DataType::Spatial, u"SPATIAL"}});
    auto const found = s_names->find(type);
    if (found != s_names->end())
        return TString(found->second);
    return TFormatString(u"UNKNOWN(%1)").arg(static_cast<int>(type));
}

void DataValue::ThrowIncorrectTypeGet(DataType expected, DataType actual)
{
    VELTRIA_THROW_NAMED(VeltriaException, IncorrectDatatypeException, 0xCA8336D0, 2, 2,
                        ReportIncorrectType(CoreData::StringId::IDS_ERR_INCORRECT_DATA_TYPE_GET, expected, actual));
}

void DataValue::ThrowIncorrectTypeSet(DataType expected, DataType actual)
{
    VELTRIA_THROW_NAMED(VeltriaException, IncorrectDatatypeException, 0xCA8336D1, 2, 2,
                        ReportIncorrectType(CoreData::StringId::IDS_ERR_INCORRECT_DATA_TYPE_SET, expected, actual));
}
