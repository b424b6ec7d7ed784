// The tuple and binary payloads of DataValue.
#include <utility>

#include "main/data/ValuePayload.h"
#include "velcoredata/data/BinaryDataValue.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/Tuple.h"
#include "velsys/ThrowSite.h"

DataValue::DataValue(RefCntPtr<Tuple, RefCntObject> value) : DataValue()
{
    SetTuple(std::move(value));
}

DataValue::DataValue(RefCntPtr<BinaryDataValue, RefCntObject> value) : DataValue()
{
    SetBinary(std::move(value));
}

void DataValue::SetTuple(RefCntPtr<Tuple, RefCntObject> value)
{
    if (!value)
        VELTRIA_THROW(VeltriaException, 0x92C27045, u"DataValue::SetTuple: bad argument");
    StoreCounted(DataType::Tuple, value.Detach(), 0);
}

void DataValue::SetBinary(RefCntPtr<BinaryDataValue, RefCntObject> value)
{
    if (!value)
        VELTRIA_THROW(VeltriaException, 0x0EB526BD, u"DataValue::SetBinary: cannot construct from null");
    StoreCounted(DataType::Binary, value.Detach(), 0);
}

RefCntPtr<Tuple, RefCntObject> DataValue::GetTuple() const
{
    Require(DataType::Tuple);
    return const_cast<Tuple *>(detail::TuplePayload(*this));
}

RefCntPtr<BinaryDataValue, RefCntObject> DataValue::GetBinary() const
{
    Require(DataType::Binary);
    return GetBinaryUnchecked();
}

RefCntPtr<BinaryDataValue, RefCntObject> DataValue::GetBinaryUnchecked() const
{
    return const_cast<BinaryDataValue *>(detail::BinaryPayload(*this));
}
