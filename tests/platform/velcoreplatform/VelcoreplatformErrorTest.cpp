#include "velcoreplatform/VelcoreplatformError.h"

#include <gtest/gtest.h>

TEST(VelcoreplatformError, NamesCarryTheirCodes)
{
    VeltriaError const dimensions = VelcoreplatformError::LogicAssert_0x2D8C440D();
    EXPECT_EQ(dimensions.GetCode(), 0x2D8C440Du);
    EXPECT_EQ(dimensions.GetName(), u"LogicException_LogicAssert_0x2D8C440D");
    VeltriaError const insertion = VelcoreplatformError::LogicAssert_0x4CE9D476();
    EXPECT_EQ(insertion.GetCode(), 0x4CE9D476u);
    EXPECT_EQ(insertion.GetName(), u"LogicException_LogicAssert_0x4CE9D476");
}
