#include "velgeo/SpatialTextError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

TEST(SpatialTextError, CarriesASentenceAndAPlace)
{
    velgeo::SpatialTextError const error("a ring is not closed", 17);
    EXPECT_STREQ(error.what(), "a ring is not closed");
    EXPECT_EQ(error.GetPosition(), 17u);
    velgeo::SpatialTextError copy("", 0);
    copy = error;
    EXPECT_STREQ(copy.what(), "a ring is not closed");
    EXPECT_EQ(copy.GetPosition(), 17u);
    static_assert(std::is_base_of_v<std::exception, velgeo::SpatialTextError>);
}
