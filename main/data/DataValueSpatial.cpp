// The spatial payload of DataValue: a small heap holder of one shared_ptr that belongs to the value alone.
#include <utility>

#include "velcoredata/data/DataValue.h"
#include "velsys/ThrowSite.h"

namespace {

using Holder = std::shared_ptr<velgeo::Spatial const>;

Holder * HolderOf(std::uint64_t payload)
{
    return reinterpret_cast<Holder *>(payload);
}

}  // namespace

DataValue::DataValue(std::shared_ptr<velgeo::Spatial const> value) : DataValue()
{
    SetSpatial(std::move(value));
}

void DataValue::SetSpatial(std::shared_ptr<velgeo::Spatial const> value)
{
    if (value == nullptr)
        VELTRIA_THROW(VeltriaException, 0x90F95D59, u"DataValue::SetSpatial: cannot construct from null");
    Store(HeadOf(DataType::Spatial), reinterpret_cast<std::uint64_t>(new Holder(std::move(value))));
}

std::shared_ptr<velgeo::Spatial const> DataValue::GetSpatial() const
{
    Require(DataType::Spatial);
    return m_payload == 0 ? nullptr : *HolderOf(m_payload);
}

void DataValue::CopySpatialHolder()
{
    // Until the new holder stands, this value owns nothing: a failed allocation must not free the other's holder.
    std::uint64_t const source = std::exchange(m_payload, 0);
    m_payload = reinterpret_cast<std::uint64_t>(new Holder(*HolderOf(source)));
}

void DataValue::FreeSpatialHolder() noexcept
{
    delete HolderOf(m_payload);
}
