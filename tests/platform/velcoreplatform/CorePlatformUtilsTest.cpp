#include "velcoreplatform/CorePlatformUtils.h"

#include <gtest/gtest.h>

TEST(IsValidCharacter, IsTrueForEveryCodeUnitThatMayStandInXml)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        bool const expected = unit == 0x9 || unit == 0xA || unit == 0xD || (unit >= 0x20 && unit <= 0xFFFD);
        ASSERT_EQ(CorePlatformUtils::IsValidCharacter(static_cast<char16_t>(unit)), expected) << unit;
    }
}

TEST(IsDigit, IsTrueForTheTenAsciiDigitsOnly)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
        ASSERT_EQ(TCType::isDigit(static_cast<char16_t>(unit)), unit >= '0' && unit <= '9') << unit;
}
