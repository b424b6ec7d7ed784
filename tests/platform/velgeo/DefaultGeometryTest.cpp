#include "velgeo/DefaultGeometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "velgeo/Geography.h"
#include "velgeo/WktSerialization.h"

using velgeo::DefaultGeometry;
using velgeo::Geometry;
using velgeo::GeometryCoordinate;
using velgeo::GeometryShapes;
using velgeo::GetMemoryResource;
using velgeo::ShapeType;

namespace {

GeometryShapes::CoordinateList List(std::initializer_list<std::pair<double, double>> pairs)
{
    GeometryShapes::CoordinateList list(GetMemoryResource());
    for (auto const & [x, y] : pairs)
        list.emplace_back(x, y, GeometryCoordinate::Bias::None());
    return list;
}

DefaultGeometry Made(int points, int lineStrings, int polygons, std::int32_t srid = 0)
{
    auto pointList = List({});
    GeometryShapes::RingList lineList(GetMemoryResource());
    GeometryShapes::PolygonList polygonList(GetMemoryResource());
    for (int i = 0; i < points; ++i)
        pointList.emplace_back(i, -i, GeometryCoordinate::Bias::None());
    for (int i = 0; i < lineStrings; ++i)
        lineList.push_back(List({{i, 0}, {i, 1}}));
    for (int i = 0; i < polygons; ++i)
        polygonList.emplace_back().push_back(List({{i, 0}, {9, 0}, {9, 9}, {i, 0}}));
    return DefaultGeometry(std::move(pointList), std::move(lineList), std::move(polygonList), {srid});
}

DefaultGeometry PointAt(double x, double y)
{
    return DefaultGeometry(List({{x, y}}), GeometryShapes::RingList(GetMemoryResource()),
                           GeometryShapes::PolygonList(GetMemoryResource()), Geometry::Attributes());
}

}  // namespace

TEST(DefaultGeometry, ItsKindFollowsFromItsContent)
{
    struct Case
    {
        int points, lineStrings, polygons;
        ShapeType kind;
        char const * text;
    };
    Case const cases[] = {
        {0, 0, 0, ShapeType::GeometryCollection, "GEOMETRYCOLLECTION EMPTY"},
        {1, 0, 0, ShapeType::Point, "POINT (0 -0)"},
        {2, 0, 0, ShapeType::MultiPoint, "MULTIPOINT ((0 -0), (1 -1))"},
        {0, 1, 0, ShapeType::LineString, "LINESTRING (0 0, 0 1)"},
        {0, 2, 0, ShapeType::MultiLineString, "MULTILINESTRING ((0 0, 0 1), (1 0, 1 1))"},
        {0, 0, 1, ShapeType::Polygon, "POLYGON ((0 0, 9 0, 9 9, 0 0))"},
        {0, 0, 2, ShapeType::MultiPolygon, "MULTIPOLYGON (((0 0, 9 0, 9 9, 0 0)), ((1 0, 9 0, 9 9, 1 0)))"},
        {1, 2, 0, ShapeType::GeometryCollection,
         "GEOMETRYCOLLECTION (POINT (0 0), MULTILINESTRING ((0 0, 0 1), (1 0, 1 1)))"},
        {2, 1, 1, ShapeType::GeometryCollection,
         "GEOMETRYCOLLECTION (MULTIPOINT ((0 0), (1 -1)), LINESTRING (0 0, 0 1), POLYGON ((0 0, 9 0, 9 9, 0 0)))"},
    };
    for (Case const & c : cases) {
        DefaultGeometry const geometry = Made(c.points, c.lineStrings, c.polygons);
        EXPECT_EQ(geometry.GetShapeType(), c.kind) << c.text;
        // -0 and 0 are one place, so the texts' signs do not matter here.
        EXPECT_TRUE(geometry == *velgeo::WktSerialization::Read(c.text, 3))
            << c.text << " but " << velgeo::WktSerialization::Write(geometry);
    }
}

TEST(DefaultGeometry, WithoutArgumentsIsTheEmptyCollection)
{
    DefaultGeometry const geometry;
    EXPECT_EQ(geometry.GetShapeType(), ShapeType::GeometryCollection);
    EXPECT_TRUE(geometry == Made(0, 0, 0));
    EXPECT_EQ(geometry.GetHash(), Made(0, 0, 0).GetHash());
    EXPECT_TRUE(geometry.GetShapes().points.empty());
    EXPECT_TRUE(geometry.GetShapes().lineStrings.empty());
    EXPECT_TRUE(geometry.GetShapes().polygons.empty());
}

TEST(DefaultGeometry, IsAGeometryAndNothingElse)
{
    DefaultGeometry const geometry;
    EXPECT_TRUE(geometry.IsGeometry());
    EXPECT_FALSE(geometry.IsGeography());
    EXPECT_FALSE(geometry.IsUnknown());
    EXPECT_EQ(geometry.AsGeometry(), &geometry);
    EXPECT_EQ(geometry.AsGeography(), nullptr);
}

TEST(DefaultGeometry, KindStructureCoordinatesAndAttributesAreCompared)
{
    EXPECT_TRUE(Made(1, 2, 1) == Made(1, 2, 1));
    EXPECT_EQ(Made(1, 2, 1).GetHash(), Made(1, 2, 1).GetHash());
    EXPECT_FALSE(Made(1, 2, 1) == Made(1, 2, 2));
    EXPECT_FALSE(PointAt(1, 2) == PointAt(2, 1));
    EXPECT_NE(PointAt(1, 2).GetHash(), PointAt(2, 1).GetHash());
    EXPECT_FALSE(Made(1, 0, 0, 0) == Made(1, 0, 0, 3857));
    EXPECT_NE(Made(1, 0, 0, 0).GetHash(), Made(1, 0, 0, 3857).GetHash());
    EXPECT_EQ(Made(1, 0, 0, 3857).GetAttributes().srid, 3857);
}

TEST(DefaultGeometry, BothZerosAreOnePlaceAndSoAreAllNaNs)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(PointAt(0.0, -0.0) == PointAt(-0.0, 0.0));
    EXPECT_EQ(PointAt(0.0, -0.0).GetHash(), PointAt(-0.0, 0.0).GetHash());
    EXPECT_TRUE(PointAt(nan, 1) == PointAt(-nan, 1));
    EXPECT_EQ(PointAt(nan, 1).GetHash(), PointAt(-nan, 1).GetHash());
    EXPECT_FALSE(PointAt(nan, 1) == PointAt(1, nan));
}

TEST(DefaultGeometry, TextShowsWhatIsNotFinite)
{
    double const infinity = std::numeric_limits<double>::infinity();
    std::string const text =
        velgeo::WktSerialization::Write(PointAt(std::numeric_limits<double>::quiet_NaN(), -infinity));
    EXPECT_EQ(text, "POINT (nan -inf)");
    EXPECT_EQ(velgeo::WktSerialization::TryRead(text, 3), nullptr);
}
