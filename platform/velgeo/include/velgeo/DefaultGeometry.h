// DefaultGeometry: the geometry that is built from its coordinates.
#pragma once

#include "velgeo/Geometry.h"

namespace velgeo {

/// Example: a MULTIPOINT ((1 2), (3 4))
///   GeometryShapes::CoordinateList points(GetMemoryResource());
///   points.emplace_back(1, 2, GeometryCoordinate::Bias::None());
///   points.emplace_back(3, 4, GeometryCoordinate::Bias::None());
///   DefaultGeometry const geometry(std::move(points), GeometryShapes::RingList(GetMemoryResource()),
///                                  GeometryShapes::PolygonList(GetMemoryResource()), Geometry::Attributes());
class VELGEO_API DefaultGeometry final : public Geometry
{
public:
    /// GEOMETRYCOLLECTION EMPTY.
    DefaultGeometry();
    /// The kind follows from the content: one point is a Point and more a MultiPoint, and so for the others; of two or
    /// three kinds a GeometryCollection of one shape each, points first and polygons last; of none the empty
    /// GeometryCollection. Rings and line strings are taken as they come, without a test.
    DefaultGeometry(GeometryShapes::CoordinateList && points, GeometryShapes::RingList && lineStrings,
                    GeometryShapes::PolygonList && polygons, Attributes const & attributes);
    /// With a structure of its own, of one shape that uses up the lists and is not nested more than 128 deep. Raises
    /// the logic assertion "the structure fits the lists", "LogicException_LogicAssert_0x8C4E17D1", for any other.
    DefaultGeometry(GeometryShapes && shapes, Attributes const & attributes);
    ~DefaultGeometry() override;

    ShapeType GetShapeType() const noexcept override { return m_shapes.structure.front().kind; }
    std::uint64_t GetHash() const noexcept override { return m_hash; }
    GeometryShapes const & GetShapes() const noexcept override { return m_shapes; }
    Attributes const & GetAttributes() const noexcept override { return m_attributes; }

private:
    bool Equals(Spatial const & other) const noexcept override;

    GeometryShapes m_shapes;
    Attributes m_attributes;
    std::uint64_t m_hash;
};

}  // namespace velgeo
