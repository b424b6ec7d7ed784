#include "velgeo/Geography.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "velgeo/DefaultGeometry.h"
#include "velgeo/WktSerialization.h"

using velgeo::Geography;
using velgeo::WktSerialization;

namespace {

std::unique_ptr<velgeo::Spatial> Read(char const * text)
{
    return WktSerialization::Read(text, 3);
}

}  // namespace

TEST(Geography, IsAGeographyAndNothingElse)
{
    auto const spatial = Read("SRID=4326;POINT (2.35 48.85)");
    EXPECT_TRUE(spatial->IsGeography());
    EXPECT_FALSE(spatial->IsGeometry());
    EXPECT_FALSE(spatial->IsUnknown());
    EXPECT_EQ(spatial->AsGeography(), spatial.get());
    EXPECT_EQ(spatial->AsGeometry(), nullptr);
    EXPECT_EQ(spatial->GetShapeType(), velgeo::ShapeType::Point);
}

TEST(Geography, IsStoredInRadiansLatitudeFirst)
{
    auto const spatial = Read("SRID=4326;POINT (90 -45)");
    auto const & point = spatial->AsGeography()->GetShapes().points.at(0);
    EXPECT_DOUBLE_EQ(point.First(), -0.7853981633974483);
    EXPECT_DOUBLE_EQ(point.Second(), 1.5707963267948966);
    EXPECT_EQ(point.Latitude().Value(), point.First());
}

TEST(Geography, EveryListIsConverted)
{
    auto const spatial = Read("SRID=4326;GEOMETRYCOLLECTION (POINT (180 0), LINESTRING (0 90, 0 -90),"
                              " POLYGON ((0 0, 180 0, 180 90, 0 0)))");
    auto const & shapes = spatial->AsGeography()->GetShapes();
    double const pi = 3.141592653589793;
    EXPECT_DOUBLE_EQ(shapes.points.at(0).Longitude().Value(), pi);
    EXPECT_DOUBLE_EQ(shapes.lineStrings.at(0).at(1).Latitude().Value(), -pi / 2);
    EXPECT_DOUBLE_EQ(shapes.polygons.at(0).at(0).at(2).Latitude().Value(), pi / 2);
}

TEST(Geography, IsNotEqualToTheGeometryOfItsNumbers)
{
    auto const geography = Read("SRID=4326;POINT (0 0)");
    auto const geometry = Read("POINT (0 0)");
    EXPECT_FALSE(*geography == *geometry);
    EXPECT_FALSE(*geometry == *geography);
    EXPECT_NE(geography->GetHash(), geometry->GetHash());
    EXPECT_TRUE(*geography == *Read("srid = 4326 ; point(-0 0)"));
    EXPECT_EQ(geography->GetHash(), Read("SRID=4326;POINT (-0 0)")->GetHash());
    EXPECT_FALSE(*geography == *Read("SRID=4326;POINT (0 1)"));
}

TEST(Geography, PlacesBeyondThePolesAreKept)
{
    EXPECT_EQ(WktSerialization::Write(*Read("SRID=4326;POINT (500 -120)")), "SRID=4326;POINT (500 -120)");
}
