#include "velgeo/Coordinates.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

using velgeo::GeographyCoordinate;
using velgeo::GeometryCoordinate;
using velgeo::Radians;

TEST(Coordinates, AGeometrysAreXAndY)
{
    GeometryCoordinate const c(1.5, -2.5, GeometryCoordinate::Bias::None());
    EXPECT_EQ(c.X(), 1.5);
    EXPECT_EQ(c.Y(), -2.5);
    EXPECT_EQ(c.First(), 1.5);
    EXPECT_EQ(c.Second(), -2.5);
    static_assert(std::is_nothrow_move_constructible_v<GeometryCoordinate>);
    static_assert(!std::is_default_constructible_v<GeometryCoordinate::Bias>);
}

TEST(Coordinates, AGeographysAreLatitudeFirst)
{
    GeographyCoordinate const c(Radians(0.5), Radians(1.25));
    EXPECT_EQ(c.Latitude().Value(), 0.5);
    EXPECT_EQ(c.Longitude().Value(), 1.25);
    EXPECT_EQ(c.First(), 0.5);
    EXPECT_EQ(c.Second(), 1.25);
}
