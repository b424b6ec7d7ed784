#include "velgeo/Shapes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

#include "velgeo/Geometry.h"
#include "velgeo/WktSerialization.h"

using testing::ElementsAre;
using velgeo::ShapeNode;
using velgeo::ShapeType;

TEST(Shapes, TheStructureTellsHowTheListsNest)
{
    auto const spatial = velgeo::WktSerialization::Read(
        "GEOMETRYCOLLECTION (POINT (1 2), MULTIPOINT ((3 4), EMPTY, (5 6), (7 8)), LINESTRING EMPTY,"
        " MULTILINESTRING ((1 2, 3 4), EMPTY), MULTIPOLYGON EMPTY, POLYGON EMPTY, POINT EMPTY)",
        3);
    auto const & shapes = spatial->AsGeometry()->GetShapes();
    EXPECT_THAT(shapes.structure,
                ElementsAre(ShapeNode{ShapeType::GeometryCollection, 7}, ShapeNode{ShapeType::Point, 1},
                            ShapeNode{ShapeType::MultiPoint, 3}, ShapeNode{ShapeType::Point, 1},
                            ShapeNode{ShapeType::Point, 0}, ShapeNode{ShapeType::Point, 2},
                            ShapeNode{ShapeType::LineString, 1}, ShapeNode{ShapeType::MultiLineString, 2},
                            ShapeNode{ShapeType::MultiPolygon, 0}, ShapeNode{ShapeType::Polygon, 1},
                            ShapeNode{ShapeType::Point, 0}));
    EXPECT_EQ(shapes.points.size(), 4u);
    EXPECT_EQ(shapes.lineStrings.size(), 3u);
    EXPECT_EQ(shapes.polygons.size(), 1u);
}

TEST(Shapes, AreMovedAndNotCopied)
{
    static_assert(std::is_move_constructible_v<velgeo::GeometryShapes>);
    static_assert(!std::is_copy_constructible_v<velgeo::GeometryShapes>);
    static_assert(!std::is_copy_assignable_v<velgeo::GeographyShapes>);
    SUCCEED();
}
