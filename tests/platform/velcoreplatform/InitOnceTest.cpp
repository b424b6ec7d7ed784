#include "velcoreplatform/InitOnce.h"

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

struct Context
{
    std::atomic<int> created{0};
    int failures = 0;  // how many creations throw
    void ** inner = nullptr;
};

boost::any * Create(void * context)
{
    auto & state = *static_cast<Context *>(context);
    int const number = ++state.created;
    if (number <= state.failures)
        throw std::runtime_error("not yet");
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return new boost::any(std::string("made ") + std::to_string(number));
}

void * Extract(boost::any * made)
{
    return boost::any_cast<std::string>(made);
}

std::string const & TextAt(void * slot)
{
    return *static_cast<std::string const *>(slot);
}

TEST(InitOnce, CreatesOnTheFirstCallOnly)
{
    static void * s_slot = nullptr;
    Context context;
    InitOnce(&s_slot, Create, &context, Extract);
    void * const first = s_slot;
    InitOnce(&s_slot, Create, &context, Extract);
    EXPECT_EQ(context.created, 1);
    EXPECT_EQ(s_slot, first);
    EXPECT_EQ(TextAt(s_slot), "made 1");
}

TEST(InitOnce, SixteenThreadsGetOneObject)
{
    static void * s_slot = nullptr;
    Context context;
    std::atomic<bool> go{false};
    std::vector<void *> seen(16);
    std::vector<std::thread> threads;
    for (void *& result : seen) {
        threads.emplace_back([&] {
            while (!go)
                std::this_thread::yield();
            InitOnce(&s_slot, Create, &context, Extract);
            result = s_slot;
        });
    }
    go = true;
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(context.created, 1);
    for (void * result : seen)
        EXPECT_EQ(result, s_slot);
    EXPECT_EQ(TextAt(s_slot), "made 1");
}

TEST(InitOnce, ACreationMayInitialiseAnotherSlot)
{
    static void * s_outer = nullptr;
    static void * s_inner = nullptr;
    Context context;
    context.inner = &s_inner;
    auto const createBoth = [](void * raw) -> boost::any * {
        auto & state = *static_cast<Context *>(raw);
        InitOnce(state.inner, Create, raw, Extract);
        return new boost::any("outer of " + TextAt(*state.inner));
    };
    InitOnce(&s_outer, createBoth, &context, Extract);
    EXPECT_EQ(TextAt(s_inner), "made 1");
    EXPECT_EQ(TextAt(s_outer), "outer of made 1");
}

TEST(InitOnce, ACreationThatThrowsIsTriedAgain)
{
    static void * s_slot = nullptr;
    Context context;
    context.failures = 2;
    EXPECT_THROW(InitOnce(&s_slot, Create, &context, Extract), std::runtime_error);
    EXPECT_EQ(s_slot, nullptr);
    EXPECT_THROW(InitOnce(&s_slot, Create, &context, Extract), std::runtime_error);
    InitOnce(&s_slot, Create, &context, Extract);
    EXPECT_EQ(context.created, 3);
    EXPECT_EQ(TextAt(s_slot), "made 3");
}

TEST(InitOnce, AnExtractThatThrowsLeavesTheSlotEmpty)
{
    static void * s_slot = nullptr;
    Context context;
    auto const refuse = [](boost::any *) -> void * { throw std::runtime_error("refused"); };
    EXPECT_THROW(InitOnce(&s_slot, Create, &context, refuse), std::runtime_error);
    EXPECT_EQ(s_slot, nullptr);
    InitOnce(&s_slot, Create, &context, Extract);
    EXPECT_EQ(TextAt(s_slot), "made 2");
}

TEST(InitOnce, AnExtractThatGivesNullIsNotTriedAgain)
{
    static void * s_slot = nullptr;
    Context context;
    auto const nothing = [](boost::any *) -> void * { return nullptr; };
    InitOnce(&s_slot, Create, &context, nothing);
    InitOnce(&s_slot, Create, &context, nothing);
    EXPECT_EQ(context.created, 1);
    EXPECT_EQ(s_slot, nullptr);
}

TEST(InitOnce, ACreationThatAsksForItsOwnSlotIsTold)
{
    static void * s_slot = nullptr;
    auto const createItself = [](void *) -> boost::any * {
        InitOnce(&s_slot, Create, nullptr, Extract);
        return nullptr;
    };
    EXPECT_THAT([&] { InitOnce(&s_slot, createItself, nullptr, Extract); },
                ThrowsAssert("InitOnce asked for a slot from its own create function",
                             "LogicException_LogicAssert_0x1F0D5C2E"));
    Context context;
    InitOnce(&s_slot, Create, &context, Extract);
    EXPECT_EQ(TextAt(s_slot), "made 1");
}

}  // namespace
