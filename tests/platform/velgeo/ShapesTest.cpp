#include "velgeo/Shapes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>
#include <utility>
#include <vector>

#include "tests/support/ErrorMatchers.h"
#include "velgeo/DefaultGeometry.h"
#include "velgeo/Geography.h"
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

TEST(Shapes, AStructureThatDoesNotFitIsRefused)
{
    struct Case
    {
        std::vector<ShapeNode> structure;
        int points, lineStrings, polygons;
        bool fits;
    };
    using T = ShapeType;
    auto const nested = [](int n) {
        std::vector<ShapeNode> structure(static_cast<std::size_t>(n), ShapeNode{T::GeometryCollection, 1});
        structure.push_back({T::Point, 0});
        return structure;
    };
    Case const cases[] = {
        {{}, 0, 0, 0, false},
        {{{T::Point, 1}}, 1, 0, 0, true},
        {{{T::Point, 0}}, 0, 0, 0, true},
        {{{T::Point, 2}}, 2, 0, 0, false},
        {{{T::Point, 1}}, 0, 0, 0, false},
        {{{T::Point, 1}}, 2, 0, 0, false},
        {{{T::Point, 1}, {T::Point, 1}}, 2, 0, 0, false},
        {{{T::LineString, 1}}, 0, 1, 0, true},
        {{{T::LineString, 2}}, 0, 2, 0, false},
        {{{T::Polygon, 1}}, 0, 0, 1, true},
        {{{T::Polygon, 0}}, 0, 0, 0, false},
        {{{T::MultiLineString, 3}}, 0, 3, 0, true},
        {{{T::MultiLineString, 3}}, 0, 2, 0, false},
        {{{T::MultiPolygon, 0}}, 0, 0, 0, true},
        {{{T::MultiPolygon, 4294967295u}}, 0, 0, 1, false},
        {{{T::MultiPoint, 2}, {T::Point, 5}, {T::Point, 0}}, 5, 0, 0, true},
        {{{T::MultiPoint, 2}, {T::Point, 5}}, 5, 0, 0, false},
        {{{T::MultiPoint, 1}, {T::LineString, 1}}, 0, 1, 0, false},
        {{{T::GeometryCollection, 2}, {T::Point, 1}, {T::LineString, 1}}, 1, 1, 0, true},
        {{{T::GeometryCollection, 3}, {T::Point, 1}, {T::LineString, 1}}, 1, 1, 0, false},
        {{{T::GeometryCollection, 1}, {T::Point, 1}, {T::LineString, 1}}, 1, 1, 0, false},
        {{{T::Unknown, 1}}, 0, 0, 0, false},
        {{{static_cast<T>(200), 1}}, 0, 0, 0, false},
        {nested(128), 0, 0, 0, true},
        {nested(129), 0, 0, 0, false},
    };
    auto const fill = [](auto & shapes, Case const & c) {
        using Coordinate = typename std::remove_reference_t<decltype(shapes.points)>::value_type;
        for (int i = 0; i < c.points; ++i) {
            if constexpr (std::is_same_v<Coordinate, velgeo::GeometryCoordinate>)
                shapes.points.emplace_back(1, 2, velgeo::GeometryCoordinate::Bias::None());
            else
                shapes.points.emplace_back(velgeo::Radians(1), velgeo::Radians(2));
        }
        shapes.lineStrings.resize(static_cast<std::size_t>(c.lineStrings));
        shapes.polygons.resize(static_cast<std::size_t>(c.polygons));
        shapes.structure.assign(c.structure.begin(), c.structure.end());
    };
    int number = 0;
    for (Case const & c : cases) {
        SCOPED_TRACE(number++);
        auto const makeGeometry = [&] {
            velgeo::GeometryShapes shapes;
            fill(shapes, c);
            return velgeo::WktSerialization::Write(velgeo::DefaultGeometry(std::move(shapes), {0}));
        };
        auto const makeGeography = [&] {
            velgeo::GeographyShapes shapes;
            fill(shapes, c);
            return velgeo::WktSerialization::Write(velgeo::Geography(std::move(shapes)));
        };
        if (c.fits) {
            EXPECT_NO_THROW(makeGeometry());
            EXPECT_NO_THROW(makeGeography());
        } else {
            EXPECT_THAT(makeGeometry,
                        ThrowsAssert("the structure fits the lists", "LogicException_LogicAssert_0x8C4E17D1"));
            EXPECT_THAT(makeGeography,
                        ThrowsAssert("the structure fits the lists", "LogicException_LogicAssert_0x8C4E17D2"));
        }
    }
}

TEST(Shapes, AreMovedAndNotCopied)
{
    static_assert(std::is_move_constructible_v<velgeo::GeometryShapes>);
    static_assert(!std::is_copy_constructible_v<velgeo::GeometryShapes>);
    static_assert(!std::is_copy_assignable_v<velgeo::GeographyShapes>);
    SUCCEED();
}
