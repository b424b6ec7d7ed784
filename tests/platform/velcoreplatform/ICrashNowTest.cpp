#include "velcoreplatform/ICrashNow.h"

#include <csignal>

#include <gtest/gtest.h>

namespace {

TEST(ICrashNowDeathTest, EndsTheProcessAtOnceByDefault)
{
    EXPECT_EXIT(ICrashNow(), testing::KilledBySignal(SIGABRT), "");
}

TEST(ICrashNow, IsReplaceable)
{
    auto const before = ICrashNow;
    int calls = 0;
    ICrashNow = [&calls] { ++calls; };
    ICrashNow();
    ICrashNow = before;
    EXPECT_EQ(calls, 1);
}

}  // namespace
