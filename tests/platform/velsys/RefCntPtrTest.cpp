#include "velsys/RefCntPtr.h"

#include <type_traits>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

class Node : public RefCntObject
{
public:
    explicit Node(int value) : value(value) { ++s_alive; }
    ~Node() override { --s_alive; }

    int value;
    static inline int s_alive = 0;
};

class Leaf : public Node
{
public:
    Leaf() : Node(7) {}
};

int Count(RefCntPtr<Node> const & pointer)
{
    return detail::RefCountAccess::Count(*pointer);
}

TEST(RefCntPtr, HoldsAReferenceWhileItLives)
{
    {
        RefCntPtr<Node> const pointer(new Node(1));
        EXPECT_EQ(Count(pointer), 1);
        {
            RefCntPtr<Node> const copy(pointer);
            EXPECT_EQ(Count(pointer), 2);
            EXPECT_EQ(copy.get(), pointer.get());
        }
        EXPECT_EQ(Count(pointer), 1);
    }
    EXPECT_EQ(Node::s_alive, 0);
}

TEST(RefCntPtr, AMoveTakesTheReferenceOver)
{
    RefCntPtr<Node> pointer(new Node(1));
    Node * const object = pointer.get();
    RefCntPtr<Node> moved(std::move(pointer));
    EXPECT_EQ(pointer.get(), nullptr);
    EXPECT_EQ(moved.get(), object);
    EXPECT_EQ(Count(moved), 1);
    RefCntPtr<Node> assigned(new Node(2));
    assigned = std::move(moved);
    EXPECT_EQ(assigned.get(), object);
    EXPECT_EQ(Count(assigned), 1);
    EXPECT_EQ(Node::s_alive, 1);
}

TEST(RefCntPtr, SurvivesAssignmentToItself)
{
    RefCntPtr<Node> pointer(new Node(3));
    RefCntPtr<Node> & same = pointer;
    pointer = same;
    EXPECT_EQ(Count(pointer), 1);
    pointer = std::move(same);
    EXPECT_EQ(Count(pointer), 1);
    EXPECT_EQ(pointer->value, 3);
}

TEST(RefCntPtr, NullIsAllowed)
{
    RefCntPtr<Node> const none;
    RefCntPtr<Node> const null(nullptr);
    RefCntPtr<Node> const copy(none);
    EXPECT_FALSE(none);
    EXPECT_TRUE(null == nullptr);
    EXPECT_TRUE(copy == none);
    EXPECT_EQ(none.get(), nullptr);
}

TEST(RefCntPtr, DereferencingANullOneIsALogicAssertion)
{
    RefCntPtr<Node> const none;
    char const * const name = "LogicException_LogicAssert_0x00BF554A";
    EXPECT_THAT([&] { none->value = 1; }, ThrowsAssert("Null pointer dereferenced", name));
    EXPECT_THAT([&] { (*none).value = 1; }, ThrowsAssert("Null pointer dereferenced", name));
}

TEST(RefCntPtr, ConvertsFromAPointerToADerivedClassOnly)
{
    RefCntPtr<Leaf> const leaf(new Leaf);
    RefCntPtr<Node> const node(leaf);
    EXPECT_EQ(node->value, 7);
    EXPECT_EQ(Count(node), 2);
    static_assert(std::is_convertible_v<RefCntPtr<Leaf>, RefCntPtr<Node>>);
    static_assert(!std::is_convertible_v<RefCntPtr<Node>, RefCntPtr<Leaf>>);
    static_assert(std::is_convertible_v<RefCntPtr<Node>, RefCntPtr<Node const>>);
    static_assert(!std::is_convertible_v<RefCntPtr<Node const>, RefCntPtr<Node>>);
}

TEST(RefCntPtr, AdoptsAndGivesAwayAReference)
{
    Node * const object = new Node(4);
    object->AddReference();
    RefCntPtr<Node> pointer = RefCntPtr<Node>::Adopt(object);
    EXPECT_EQ(Count(pointer), 1);
    Node * const detached = pointer.Detach();
    EXPECT_EQ(detached, object);
    EXPECT_FALSE(pointer);
    EXPECT_EQ(detached->RemoveReference(), 0);
    EXPECT_EQ(Node::s_alive, 0);
}

TEST(RefCntPtr, ResetAndSwapMoveReferences)
{
    RefCntPtr<Node> a(new Node(1));
    RefCntPtr<Node> b(new Node(2));
    a.swap(b);
    EXPECT_EQ(a->value, 2);
    EXPECT_EQ(b->value, 1);
    a.reset();
    EXPECT_FALSE(a);
    EXPECT_EQ(Node::s_alive, 1);
}

TEST(RefCntPtr, ComparesAddresses)
{
    RefCntPtr<Node> const a(new Node(1));
    RefCntPtr<Node> const b(new Node(1));
    EXPECT_TRUE(a == a);
    EXPECT_TRUE(a != b);
    EXPECT_TRUE((a < b) != (b < a));
}

}  // namespace
