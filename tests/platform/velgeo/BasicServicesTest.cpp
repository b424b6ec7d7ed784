#include "velgeo/BasicServices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using velgeo::BasicServices;

TEST(BasicServices, RegisterAndUnregisterAreOneSwitch)
{
    EXPECT_FALSE(BasicServices::IsRegistered());
    BasicServices::Register();
    BasicServices::Register();
    EXPECT_TRUE(BasicServices::IsRegistered());
    BasicServices::Unregister();
    EXPECT_FALSE(BasicServices::IsRegistered());
    BasicServices::Unregister();
    EXPECT_FALSE(BasicServices::IsRegistered());
}

TEST(BasicServices, TheDirectoryIsKeptUntilTheEnd)
{
    BasicServices::Register();
    EXPECT_EQ(BasicServices::GetProjResourceDirectory(), "");
    BasicServices::SetProjResourceDirectory("/opt/proj \xC3\xA9");
    EXPECT_EQ(BasicServices::GetProjResourceDirectory(), "/opt/proj \xC3\xA9");
    BasicServices::Unregister();
    EXPECT_EQ(BasicServices::GetProjResourceDirectory(), "");
}
