// Entry point of every test program: the same locale and zone as under CTest, also when run by hand.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char ** argv)
{
    setenv("LANG", "C.UTF-8", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("TZ", "UTC", 1);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
