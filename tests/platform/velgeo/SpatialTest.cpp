#include "velgeo/Spatial.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "velgeo/SpatialTextError.h"
#include "velgeo/WktSerialization.h"

TEST(Spatial, UnknownIsNeitherGeographyNorGeometry)
{
    auto const spatial = velgeo::WktSerialization::Read("CIRCULARSTRING (0 0, 1 1, 2 0)", 3);
    EXPECT_TRUE(spatial->IsUnknown());
    EXPECT_FALSE(spatial->IsGeography());
    EXPECT_FALSE(spatial->IsGeometry());
    EXPECT_EQ(spatial->GetShapeType(), velgeo::ShapeType::Unknown);
    EXPECT_THROW(velgeo::WktSerialization::Write(*spatial), velgeo::SpatialTextError);
}

TEST(Spatial, UnknownObjectsAreEqualOnlyToThemselves)
{
    auto const a = velgeo::WktSerialization::Read("CIRCULARSTRING (0 0, 1 1, 2 0)", 3);
    auto const b = velgeo::WktSerialization::Read("CIRCULARSTRING (0 0, 1 1, 2 0)", 3);
    EXPECT_TRUE(*a == *a);
    EXPECT_FALSE(*a == *b);
    EXPECT_FALSE(*a == *velgeo::WktSerialization::Read("POINT (0 0)", 3));
    EXPECT_FALSE(*velgeo::WktSerialization::Read("POINT (0 0)", 3) == *a);
}
