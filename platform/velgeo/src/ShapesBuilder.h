// ShapesBuilder: the shapes of a text as a reader comes by them, with the tests that both text forms share.
#pragma once

#include <utility>

#include "ShapesIdentity.h"
#include "ShapesStructure.h"
#include "velgeo/Shapes.h"

namespace velgeo::detail {

class ShapesBuilder
{
public:
    using CoordinateList = GeometryShapes::CoordinateList;
    using RingList = GeometryShapes::RingList;

    // Opens a shape of a kind with a count of its own: returns the place to count at.
    std::size_t Open(ShapeType kind)
    {
        m_shapes.structure.push_back({kind, 0});
        return m_shapes.structure.size() - 1;
    }
    void Count(std::size_t place) noexcept { ++m_shapes.structure[place].count; }

    void AddPoint(GeometryCoordinate const & coordinate)
    {
        m_shapes.structure.push_back({ShapeType::Point, 1});
        m_shapes.points.push_back(coordinate);
    }
    void AddEmptyPoint() { m_shapes.structure.push_back({ShapeType::Point, 0}); }
    // A point of the MultiPoint opened at `place`, the last shape so far: runs without a gap share a node.
    void AddPointOf(std::size_t place, GeometryCoordinate const & coordinate)
    {
        ShapeNode & last = m_shapes.structure.back();
        if (last.kind == ShapeType::Point && last.count != 0) {
            ++last.count;
        } else {
            Count(place);
            m_shapes.structure.push_back({ShapeType::Point, 1});
        }
        m_shapes.points.push_back(coordinate);
    }
    void AddEmptyPointOf(std::size_t place)
    {
        Count(place);
        AddEmptyPoint();
    }

    // What is wrong with a line string, a ring, or null.
    static char const * FaultOfLineString(CoordinateList const & list) noexcept
    {
        return list.size() == 1 ? "a line string has one coordinate" : nullptr;
    }
    static char const * FaultOfRing(CoordinateList const & list) noexcept
    {
        if (list.size() < 4)
            return "a ring has fewer than four coordinates";
        return SamePlace(list.front(), list.back()) ? nullptr : "a ring is not closed";
    }

    RingList & LineStrings() noexcept { return m_shapes.lineStrings; }
    GeometryShapes::PolygonList & Polygons() noexcept { return m_shapes.polygons; }
    GeometryShapes Take() { return std::move(m_shapes); }

private:
    GeometryShapes m_shapes;
};

}  // namespace velgeo::detail
