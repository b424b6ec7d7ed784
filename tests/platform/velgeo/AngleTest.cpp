#include "velgeo/Angle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

using velgeo::Degrees;
using velgeo::Radians;

TEST(Angle, ConvertsBothWays)
{
    EXPECT_EQ(Degrees(Radians(3.141592653589793)).Value(), 180.0);
    EXPECT_EQ(Degrees(Radians(0.0)).Value(), 0.0);
    EXPECT_DOUBLE_EQ(Degrees(Radians(-1.5707963267948966)).Value(), -90.0);
    EXPECT_DOUBLE_EQ(Radians(Degrees(180.0)).Value(), 3.141592653589793);
    EXPECT_DOUBLE_EQ(Radians(Degrees(1.0)).Value(), 0.017453292519943295);
}

TEST(Angle, KeepsTheUnitsApart)
{
    static_assert(!std::is_convertible_v<double, Radians> && !std::is_convertible_v<double, Degrees>);
    static_assert(std::is_convertible_v<Radians, Degrees>);
    static_assert(!std::is_convertible_v<Degrees, Radians>);
    SUCCEED();
}
