// What touches the process as a whole, in processes of its own.
#include <cstdlib>

#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/string/ICUUtils.h"

TEST(ICUUtilsProcess, InitializeMayBeCalledAgainAndAgain)
{
    for (int i = 0; i < 3; ++i)
        ICUUtils::Initialize();
    EXPECT_EQ(0.0, ICUUtils::ConvertToTDate(DateTime::UnixEpoch));
}

TEST(ICUUtilsProcessDeathTest, TheProcessEndsQuietlyAfterCleanup)
{
    EXPECT_EXIT(
        {
            ICUUtils::Initialize();
            ICUUtils::ConvertToTDate(DateTime::UnixEpoch);
            ICUUtils::Cleanup();
            std::exit(7);
        },
        testing::ExitedWithCode(7), "");
}
