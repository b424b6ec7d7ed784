#include "velcoredata/core/LibraryVersion.h"

#include <gtest/gtest.h>

TEST(LibraryVersion, IsTheVersionOfTheBuild)
{
    EXPECT_STREQ(velcoredata::LibraryVersion(), VELCOREDATA_EXPECTED_VERSION);
}

TEST(LibraryVersion, IsTheSameTextEachTime)
{
    EXPECT_EQ(velcoredata::LibraryVersion(), velcoredata::LibraryVersion());
}
