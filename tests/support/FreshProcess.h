// A scenario in a process of its own, before anything else there has used the library.
#pragma once

#include <cstdlib>

#include <gtest/gtest.h>
#include <unistd.h>

namespace test_support {

// The calling test fails if the scenario does; what failed stands in the output. The process starts with the test that
// calls and runs it up to the call: nothing of the library may come before it.
template <class Scenario>
void InFreshProcess(Scenario const & scenario)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            alarm(120);  // one that hangs fails
            scenario();
            std::exit(testing::Test::HasFailure() ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
}

}  // namespace test_support
