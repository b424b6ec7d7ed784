#include "velsys/NoDestructor.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace {

struct Witness
{
    explicit Witness(int & destroyed) : destroyed(destroyed) {}
    ~Witness() { ++destroyed; }
    int & destroyed;
};

TEST(NoDestructor, NeverDestroysItsObject)
{
    int destroyed = 0;
    {
        detail::NoDestructor<Witness> holder(destroyed);
        EXPECT_EQ(&holder->destroyed, &destroyed);
    }
    EXPECT_EQ(destroyed, 0);
}

TEST(NoDestructor, ForwardsItsArgumentsAndGivesTheObject)
{
    static detail::NoDestructor<std::string> s_text(3u, 'x');
    EXPECT_EQ(*s_text, "xxx");
    EXPECT_EQ(s_text->size(), 3u);
    EXPECT_EQ(&s_text.Get(), &*s_text);
    detail::NoDestructor<std::unique_ptr<int>> moved(std::make_unique<int>(5));
    EXPECT_EQ(**moved, 5);
    moved->reset();
}

}  // namespace
