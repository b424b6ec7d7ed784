#include "velcoreplatform/CorePlatformOptions.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

TString ApplicationDir()
{
    return CorePlatformOptions::GetApplicationDir();
}

TEST(CorePlatformOptions, TheApplicationDirectoryIsThatOfTheProgramUntilItIsSet)
{
    TPath const before = CorePlatformOptions::GetApplicationDir();
    EXPECT_EQ(ApplicationDir().toStdString(), std::filesystem::canonical("/proc/self/exe").parent_path().string());
    CorePlatformOptions::SetApplicationDir(TPath(u"/somewhere"));
    EXPECT_EQ(ApplicationDir(), u"/somewhere");
    CorePlatformOptions::SetApplicationDir(before);
}

TEST(CorePlatformOptions, TheFlagsAreFalseUntilTheyAreSet)
{
    EXPECT_FALSE(CorePlatformOptions::GetIsAppBundle());
    EXPECT_FALSE(CorePlatformOptions::GetAllowAltPathsFlag());
    CorePlatformOptions::SetIsAppBundle(true);
    EXPECT_TRUE(CorePlatformOptions::GetIsAppBundle());
    EXPECT_FALSE(CorePlatformOptions::GetAllowAltPathsFlag());
    CorePlatformOptions::SetIsAppBundle(false);
    CorePlatformOptions::SetAllowAltPathsFlag(true);
    EXPECT_TRUE(CorePlatformOptions::GetAllowAltPathsFlag());
    EXPECT_FALSE(CorePlatformOptions::GetIsAppBundle());
    CorePlatformOptions::SetAllowAltPathsFlag(false);
}

}  // namespace
