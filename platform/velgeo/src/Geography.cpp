#include "velgeo/Geography.h"

#include <type_traits>
#include <utility>

#include "ShapesIdentity.h"
#include "ShapesStructure.h"
#include "velsys/ThrowSite.h"

namespace velgeo {

namespace {

// Beyond every number of a geometry's system of reference.
constexpr std::uint64_t kHashKind = 1ull << 32;

GeographyCoordinate OnGlobe(GeometryCoordinate const & degrees) noexcept
{
    return GeographyCoordinate(Radians(Degrees(degrees.Y())), Radians(Degrees(degrees.X())));
}

template <class Source, class Target>
void Convert(ResourceVector<Source> const & from, ResourceVector<Target> & to)
{
    to.reserve(from.size());
    for (Source const & element : from) {
        if constexpr (std::is_same_v<Source, GeometryCoordinate>)
            to.push_back(OnGlobe(element));
        else
            Convert(element, to.emplace_back());
    }
}

}  // namespace

Geography::Geography(GeographyShapes && shapes)
    : m_shapes(std::move(shapes)), m_hash(detail::HashOfShapes(m_shapes, kHashKind))
{
    VELTRIA_ASSERT_TEXT(detail::FitsLists(m_shapes), "the structure fits the lists", 0x8C4E17D2);
}

Geography::~Geography() = default;

std::unique_ptr<Geography> Geography::FromDegrees(GeometryShapes const & shapes)
{
    GeographyShapes converted;
    Convert(shapes.points, converted.points);
    Convert(shapes.lineStrings, converted.lineStrings);
    Convert(shapes.polygons, converted.polygons);
    converted.structure.assign(shapes.structure.begin(), shapes.structure.end());
    return std::make_unique<Geography>(std::move(converted));
}

bool Geography::Equals(Spatial const & other) const noexcept
{
    Geography const * const geography = other.AsGeography();
    return geography != nullptr && m_hash == geography->GetHash() &&
           detail::SameShapes(m_shapes, geography->GetShapes());
}

}  // namespace velgeo
