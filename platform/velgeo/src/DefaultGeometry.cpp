#include "velgeo/DefaultGeometry.h"

#include <utility>

#include "ShapesIdentity.h"
#include "ShapesStructure.h"
#include "velsys/ThrowSite.h"

namespace velgeo {

namespace {

std::uint32_t CountOf(std::size_t n)
{
    return static_cast<std::uint32_t>(n);
}

// One shape for all that a list has: the single kind for one, else the kind of many.
void AddShape(ResourceVector<ShapeNode> & structure, std::size_t n, ShapeType single, ShapeType many)
{
    if (n == 0)
        return;
    if (n == 1) {
        structure.push_back({single, 1});
    } else if (single == ShapeType::Point) {
        structure.push_back({many, 1});
        structure.push_back({single, CountOf(n)});
    } else {
        structure.push_back({many, CountOf(n)});
    }
}

GeometryShapes WithStructure(GeometryShapes && shapes)
{
    auto & structure = shapes.structure;
    std::size_t const kinds = static_cast<std::size_t>(!shapes.points.empty()) +
                              static_cast<std::size_t>(!shapes.lineStrings.empty()) +
                              static_cast<std::size_t>(!shapes.polygons.empty());
    if (kinds != 1)
        structure.push_back({ShapeType::GeometryCollection, CountOf(kinds)});
    AddShape(structure, shapes.points.size(), ShapeType::Point, ShapeType::MultiPoint);
    AddShape(structure, shapes.lineStrings.size(), ShapeType::LineString, ShapeType::MultiLineString);
    AddShape(structure, shapes.polygons.size(), ShapeType::Polygon, ShapeType::MultiPolygon);
    return std::move(shapes);
}

}  // namespace

DefaultGeometry::DefaultGeometry() : DefaultGeometry(WithStructure(GeometryShapes()), Attributes()) {}

DefaultGeometry::DefaultGeometry(GeometryShapes::CoordinateList && points, GeometryShapes::RingList && lineStrings,
                                 GeometryShapes::PolygonList && polygons, Attributes const & attributes)
    : DefaultGeometry(WithStructure(GeometryShapes(std::move(points), std::move(lineStrings), std::move(polygons))),
                      attributes)
{}

DefaultGeometry::DefaultGeometry(GeometryShapes && shapes, Attributes const & attributes)
    : m_shapes(std::move(shapes)),
      m_attributes(attributes),
      m_hash(detail::HashOfShapes(m_shapes, static_cast<std::uint32_t>(attributes.srid)))
{
    VELTRIA_ASSERT_TEXT(detail::FitsLists(m_shapes), "the structure fits the lists", 0x8C4E17D1);
}

DefaultGeometry::~DefaultGeometry() = default;

bool DefaultGeometry::Equals(Spatial const & other) const noexcept
{
    Geometry const * const geometry = other.AsGeometry();
    return geometry != nullptr && m_hash == geometry->GetHash() && m_attributes == geometry->GetAttributes() &&
           detail::SameShapes(m_shapes, geometry->GetShapes());
}

}  // namespace velgeo
