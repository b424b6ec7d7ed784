// The string payload of DataValue: a shared StringWithCollation.
#include <utility>

#include "main/data/ValuePayload.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/StringWithCollation.h"
#include "velsys/NoDestructor.h"
#include "velsys/ThrowSite.h"

DataValue::DataValue(StringWithCollation && text) : DataValue()
{
    SetString(std::move(text));
}

DataValue::DataValue(RefCntPtr<StringWithCollation, RefCntObject> const & text) : DataValue()
{
    SetString(text);
}

DataValue::DataValue(Collation const & collation, TString const & text) : DataValue()
{
    SetString(StringWithCollation(text, collation));
}

DataValue DataValue::FromString(TString const & text)
{
    return DataValue(GetUnknownCollation(), text);
}

void DataValue::SetString(StringWithCollation && text)
{
    auto * const object = new StringWithCollation(std::move(text));
    detail::RefCountAccess::SetRefCountToOne(*object);
    StoreCounted(DataType::String, object, -2);
}

void DataValue::SetString(RefCntPtr<StringWithCollation, RefCntObject> const & text)
{
    if (!text)
        VELTRIA_THROW(VeltriaException, 0xE188009E, u"DataValue::SetString: bad argument");
    // Before the old payload goes: it may be the one that holds the argument.
    text->AddReference();
    StoreCounted(DataType::String, text.get(), -2);
}

void DataValue::SetString(Collation const & collation, TString const & text)
{
    SetString(StringWithCollation(text, collation));
}

TString const & DataValue::GetString() const
{
    Require(DataType::String);
    if (m_payload != 0)
        return detail::StringPayload(*this)->GetString();
    static detail::NoDestructor<TString> s_empty;
    return *s_empty;
}

char16_t const * DataValue::GetStringRaw() const
{
    return GetString().constData();
}

Collation const & DataValue::GetCollation() const
{
    if (GetDataType() == DataType::String && m_payload != 0)
        return detail::StringPayload(*this)->GetCollation();
    return GetUnknownCollation();
}

DataValue operator""_dv(char16_t const * text, std::size_t length)
{
    return DataValue::FromString(TString(text, static_cast<int>(length)));
}
