#include "velsys/VeltriaError.h"

#include <gtest/gtest.h>

TEST(VeltriaError, PairsACodeWithItsName)
{
    VeltriaError const error = VeltriaError::MakeError(0x0EB526BD, u"VeltriaException_AutoGen_0x0EB526BD");
    EXPECT_EQ(error.GetCode(), 0x0EB526BDu);
    EXPECT_EQ(error.GetName(), u"VeltriaException_AutoGen_0x0EB526BD");
}

TEST(VeltriaError, KeepsAllThirtyTwoBitsOfTheCode)
{
    EXPECT_EQ(VeltriaError::MakeError(0xFFFFFFFF, u"").GetCode(), 0xFFFFFFFFu);
}

TEST(VeltriaError, IsCopied)
{
    VeltriaError const error = VeltriaError::MakeError(1, u"name");
    VeltriaError const copy(error);
    EXPECT_EQ(copy.GetCode(), 1u);
    EXPECT_EQ(copy.GetName(), u"name");
}
