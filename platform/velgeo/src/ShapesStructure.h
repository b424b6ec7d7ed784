// Whether a structure fits the lists that it stands over.
#pragma once

#include <array>
#include <cstdint>

#include "velgeo/Shapes.h"

namespace velgeo::detail {

// How deep collections may be nested.
constexpr int kMostNesting = 128;

// One shape, whose nodes are all there and in their places, not nested too deep, and that uses up the lists.
template <class Coordinate>
bool FitsLists(Shapes<Coordinate> const & shapes) noexcept
{
    std::array<std::uint32_t, kMostNesting + 1> left{1};  // shapes to come, at each depth
    int depth = 0;
    std::size_t at = 0, points = 0, lineStrings = 0, polygons = 0;
    while (depth >= 0) {
        if (left[static_cast<std::size_t>(depth)] == 0) {
            --depth;
            continue;
        }
        --left[static_cast<std::size_t>(depth)];
        if (at == shapes.structure.size())
            return false;
        ShapeNode const node = shapes.structure[at++];
        switch (node.kind) {
        case ShapeType::Point:
            if (node.count > 1)
                return false;
            points += node.count;
            break;
        case ShapeType::LineString:
        case ShapeType::Polygon:
            if (node.count != 1)
                return false;
            ++(node.kind == ShapeType::Polygon ? polygons : lineStrings);
            break;
        case ShapeType::MultiPoint:
            for (std::uint32_t run = 0; run < node.count; ++run, ++at) {
                if (at == shapes.structure.size() || shapes.structure[at].kind != ShapeType::Point)
                    return false;
                points += shapes.structure[at].count;
            }
            break;
        case ShapeType::MultiLineString: lineStrings += node.count; break;
        case ShapeType::MultiPolygon: polygons += node.count; break;
        case ShapeType::GeometryCollection:
            if (depth == kMostNesting)
                return false;
            left[static_cast<std::size_t>(++depth)] = node.count;
            break;
        default: return false;
        }
    }
    return at == shapes.structure.size() && points == shapes.points.size() &&
           lineStrings == shapes.lineStrings.size() && polygons == shapes.polygons.size();
}

}  // namespace velgeo::detail
