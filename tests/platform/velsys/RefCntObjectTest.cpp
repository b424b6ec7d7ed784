#include "velsys/RefCntObject.h"

#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

class Counted : public RefCntObject
{
public:
    explicit Counted(int & destroyed) : m_destroyed(destroyed) {}
    Counted(Counted const &) = default;
    ~Counted() override { ++m_destroyed; }

    int & m_destroyed;
};

TEST(RefCntObject, StartsAtCountZero)
{
    int destroyed = 0;
    Counted const object(destroyed);
    EXPECT_EQ(detail::RefCountAccess::Count(object), 0);
}

TEST(RefCntObject, BothOperationsReturnTheNewCount)
{
    int destroyed = 0;
    Counted const * const object = new Counted(destroyed);
    EXPECT_EQ(object->AddReference(), 1);
    EXPECT_EQ(object->AddReference(), 2);
    EXPECT_EQ(object->RemoveReference(), 1);
    EXPECT_EQ(destroyed, 0);
    EXPECT_EQ(object->RemoveReference(), 0);
    EXPECT_EQ(destroyed, 1);
}

TEST(RefCntObject, DeletesThroughTheVirtualDestructorAtZero)
{
    int destroyed = 0;
    RefCntObject const * const object = new Counted(destroyed);
    object->AddReference();
    object->RemoveReference();
    EXPECT_EQ(destroyed, 1);
}

TEST(RefCntObject, ACopyHasACountOfItsOwn)
{
    int destroyed = 0;
    Counted const * const object = new Counted(destroyed);
    object->AddReference();
    object->AddReference();
    Counted const copy(*object);
    EXPECT_EQ(detail::RefCountAccess::Count(copy), 0);
    EXPECT_EQ(detail::RefCountAccess::Count(*object), 2);
    object->RemoveReference();
    object->RemoveReference();
}

TEST(RefCntObject, TheCountCanBeSetToOneForFreshStorage)
{
    int destroyed = 0;
    Counted const * const object = new Counted(destroyed);
    object->AddReference();
    object->AddReference();
    detail::RefCountAccess::SetRefCountToOne(*object);
    EXPECT_EQ(detail::RefCountAccess::Count(*object), 1);
    EXPECT_EQ(object->RemoveReference(), 0);
    EXPECT_EQ(destroyed, 1);
}

TEST(RefCntObject, CountsFromSeveralThreads)
{
    int destroyed = 0;
    Counted const * const object = new Counted(destroyed);
    object->AddReference();
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([object] {
            for (int round = 0; round < 2000; ++round) {
                object->AddReference();
                object->RemoveReference();
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(destroyed, 0);
    EXPECT_EQ(object->RemoveReference(), 0);
    EXPECT_EQ(destroyed, 1);
}

TEST(RefCntObject, TheLastOfSeveralThreadsDeletes)
{
    int destroyed = 0;
    Counted const * const object = new Counted(destroyed);
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
        object->AddReference();
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([object] { object->RemoveReference(); });
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(destroyed, 1);
}

}  // namespace
