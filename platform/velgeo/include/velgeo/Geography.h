// Geography: a spatial object on the globe (WGS 84), its coordinates in radians, the latitude first.
#pragma once

#include <memory>

#include "velgeo/Shapes.h"
#include "velgeo/Spatial.h"

namespace velgeo {

/// Immutable, shared as std::shared_ptr<Geography const>, readable from any thread. Latitudes beyond the poles and
/// longitudes beyond the antimeridian are kept as they come.
class VELGEO_API Geography final : public Spatial
{
public:
    /// The number of its system of reference in texts: "SRID=4326;POINT (2.35 48.85)".
    static constexpr std::int32_t kSrid = 4326;

    /// The structure is of one shape that uses up the lists and is not nested more than 128 deep. Raises the logic
    /// assertion "the structure fits the lists", "LogicException_LogicAssert_0x8C4E17D2", for any other.
    explicit Geography(GeographyShapes && shapes);
    ~Geography() override;

    /// From degrees, x the longitude and y the latitude. Raises as the constructor does.
    static std::unique_ptr<Geography> FromDegrees(GeometryShapes const & shapes);

    ShapeType GetShapeType() const noexcept override { return m_shapes.structure.front().kind; }
    std::uint64_t GetHash() const noexcept override { return m_hash; }
    Geography const * AsGeography() const noexcept override { return this; }
    Geometry const * AsGeometry() const noexcept override { return nullptr; }

    /// Points, line strings and polygons, each in the order of the text, and the structure. They live as long as the
    /// object.
    GeographyShapes const & GetShapes() const noexcept { return m_shapes; }

private:
    bool Equals(Spatial const & other) const noexcept override;

    GeographyShapes m_shapes;
    std::uint64_t m_hash;
};

}  // namespace velgeo
