// A spatial object without a geometry layer: a kind, a hash and a number that is compared.
#pragma once

#include <cstdint>
#include <memory>

#include "velgeo/Spatial.h"

namespace test_support {

class SpatialStub : public velgeo::Spatial
{
public:
    SpatialStub(int content, std::uint64_t hash, velgeo::ShapeType kind = velgeo::ShapeType::Point)
        : m_content(content), m_hash(hash), m_kind(kind)
    {}

    velgeo::ShapeType GetShapeType() const noexcept override { return m_kind; }
    velgeo::Geography const * AsGeography() const noexcept override { return nullptr; }
    velgeo::Geometry const * AsGeometry() const noexcept override { return nullptr; }
    std::uint64_t GetHash() const noexcept override { return m_hash; }

private:
    bool Equals(velgeo::Spatial const & other) const noexcept override
    {
        auto const * const stub = dynamic_cast<SpatialStub const *>(&other);
        return stub != nullptr && stub->m_content == m_content;
    }

    int m_content;
    std::uint64_t m_hash;
    velgeo::ShapeType m_kind;
};

inline std::shared_ptr<velgeo::Spatial const> MakeSpatial(int content, std::uint64_t hash,
                                                          velgeo::ShapeType kind = velgeo::ShapeType::Point)
{
    return std::make_shared<SpatialStub>(content, hash, kind);
}

}  // namespace test_support
