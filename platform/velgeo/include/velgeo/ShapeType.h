// ShapeType: the kinds of spatial objects, by the names of well-known text.
#pragma once

#include <cstdint>
#include <string>

#include "velgeo/Export.h"

namespace velgeo {

enum class ShapeType : std::uint8_t
{
    Unknown = 0,
    Point = 1,
    LineString = 2,
    Polygon = 3,
    MultiPoint = 4,
    MultiLineString = 5,
    MultiPolygon = 6,
    GeometryCollection = 7
};

// "Point", "MultiLineString"; "Unknown" for a number outside the enumeration too.
VELGEO_API std::string to_string(ShapeType type);

}  // namespace velgeo
