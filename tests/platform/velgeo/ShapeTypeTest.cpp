#include "velgeo/ShapeType.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

TEST(ShapeType, EveryKindHasAName)
{
    char const * const names[] = {"Unknown",    "Point",           "LineString",   "Polygon",
                                  "MultiPoint", "MultiLineString", "MultiPolygon", "GeometryCollection"};
    for (unsigned i = 0; i < std::size(names); ++i)
        EXPECT_EQ(velgeo::to_string(static_cast<velgeo::ShapeType>(i)), names[i]);
    EXPECT_EQ(velgeo::to_string(static_cast<velgeo::ShapeType>(8)), "Unknown");
    EXPECT_EQ(velgeo::to_string(static_cast<velgeo::ShapeType>(255)), "Unknown");
}
