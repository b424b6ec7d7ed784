// Shapes: the content of a spatial object, flat lists of coordinates and a short text of nodes that tells how they
// nest.
//
//   GEOMETRYCOLLECTION (POINT (1 2), MULTIPOINT ((3 4), EMPTY, (5 6)), LINESTRING EMPTY)
//
//   structure     GeometryCollection 3 | Point 1 | MultiPoint 3 | Point 1 | Point 0 | Point 1 | LineString 1
//   points        (1 2) (3 4) (5 6)
//   lineStrings   ()
//   polygons
//
// Nodes stand in the order of the text, each before what it holds, and take from the lists in their order:
//
//   Point n                 the next n points: 0 or 1, but in a MultiPoint a run without a gap
//   LineString 1, Polygon 1 the next line string or polygon; an empty one has no coordinates or no rings
//   MultiLineString n, MultiPolygon n    the next n
//   MultiPoint n            n nodes Point follow: a run, or 0 for an empty point
//   GeometryCollection n    n shapes follow
#pragma once

#include <cstdint>
#include <utility>

#include "velgeo/Coordinates.h"
#include "velgeo/MemoryResource.h"
#include "velgeo/ShapeType.h"

namespace velgeo {

struct ShapeNode
{
    ShapeType kind;
    std::uint32_t count;

    friend bool operator==(ShapeNode const &, ShapeNode const &) = default;
};

/// Movable, not copyable: a copy of a vector would leave GetMemoryResource().
template <class Coordinate>
struct Shapes
{
    /// A line string, or a ring: its last coordinate is the first.
    using CoordinateList = ResourceVector<Coordinate>;
    /// A polygon: the outer ring, then the holes.
    using RingList = ResourceVector<CoordinateList>;
    using PolygonList = ResourceVector<RingList>;

    Shapes() = default;
    Shapes(CoordinateList && points_, RingList && lineStrings_, PolygonList && polygons_)
        : points(std::move(points_)), lineStrings(std::move(lineStrings_)), polygons(std::move(polygons_))
    {}
    Shapes(Shapes &&) = default;
    Shapes & operator=(Shapes &&) = delete;

    CoordinateList points{GetMemoryResource()};
    RingList lineStrings{GetMemoryResource()};
    PolygonList polygons{GetMemoryResource()};
    ResourceVector<ShapeNode> structure{GetMemoryResource()};
};

using GeometryShapes = Shapes<GeometryCoordinate>;
using GeographyShapes = Shapes<GeographyCoordinate>;

}  // namespace velgeo
