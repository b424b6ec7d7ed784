#include "velcoreplatform/CoreThreadContext.h"

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/RecordingLogger.h"

namespace {

std::shared_ptr<boost::any> Box(int value)
{
    return std::make_shared<boost::any>(value);
}

int Unbox(std::shared_ptr<boost::any> const & box)
{
    return box == nullptr ? -1 : boost::any_cast<int>(*box);
}

// Brings the session test back at the end.
class RestoreSessionTest
{
public:
    ~RestoreSessionTest() { CoreThreadContext::HasSessionId = m_before; }

private:
    std::function<bool()> m_before = CoreThreadContext::HasSessionId;
};

TEST(CoreThreadContext, HasNoObjectsOutsideASession)
{
    EXPECT_FALSE(CoreThreadContext::HasSessionId());
    EXPECT_EQ(CoreThreadContext::GetGenericObject(u"a"), nullptr);
    EXPECT_EQ(CoreThreadContext::GetGenericUnsynchronizedObject(u"a"), nullptr);
}

TEST(CoreThreadContext, InSessionTellsIfTheThreadHasObjects)
{
    EXPECT_FALSE(CoreThreadContext::InSession());
    ScopedSession const session;
    EXPECT_TRUE(CoreThreadContext::InSession());
    std::thread([] { EXPECT_FALSE(CoreThreadContext::InSession()); }).join();
    {
        ScopedSession const outside(nullptr);
        EXPECT_FALSE(CoreThreadContext::InSession());
    }
    // A host's own test of sessions does not change where the objects are.
    RestoreSessionTest const restore;
    CoreThreadContext::HasSessionId = [] { return false; };
    EXPECT_TRUE(CoreThreadContext::InSession());
}

TEST(CoreThreadContext, SettingOutsideASessionWarnsAndKeepsNothing)
{
    test_support::RecordingLogger const logger;
    CoreThreadContext::SetGenericUnsynchronizedObject(u"a", Box(1));
    CoreThreadContext::SetGenericObject(u"b", Box(1));
    auto const records = logger.GetRecords();
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].severity, 3);
    EXPECT_NE(records[0].text.find("\"a\""), std::string::npos) << records[0].text;
    EXPECT_EQ(CoreThreadContext::GetGenericUnsynchronizedObject(u"a"), nullptr);
    ScopedSession const session;
    EXPECT_EQ(CoreThreadContext::GetGenericUnsynchronizedObject(u"a"), nullptr);
}

TEST(CoreThreadContext, KeepsNamedObjectsOfTheSession)
{
    ScopedSession const session;
    EXPECT_TRUE(CoreThreadContext::HasSessionId());
    CoreThreadContext::SetGenericUnsynchronizedObject(u"a", Box(1));
    CoreThreadContext::SetGenericUnsynchronizedObject(u"b", Box(2));
    EXPECT_EQ(Unbox(CoreThreadContext::GetGenericUnsynchronizedObject(u"a")), 1);
    EXPECT_EQ(Unbox(CoreThreadContext::GetGenericObject(u"b")), 2) << "one store under both names";
    EXPECT_EQ(CoreThreadContext::GetGenericObject(u"c"), nullptr);
    CoreThreadContext::SetGenericUnsynchronizedObject(u"a", Box(3));
    EXPECT_EQ(Unbox(CoreThreadContext::GetGenericObject(u"a")), 3);
    CoreThreadContext::SetGenericUnsynchronizedObject(u"a", nullptr);
    EXPECT_EQ(CoreThreadContext::GetGenericObject(u"a"), nullptr);
}

// Asks the session for an object when it goes.
struct AsksAtTheEnd
{
    explicit AsksAtTheEnd(int & answer) : answer(&answer) {}
    ~AsksAtTheEnd() { *answer = Unbox(CoreThreadContext::GetGenericObject(u"other")); }
    AsksAtTheEnd(AsksAtTheEnd const &) = delete;
    AsksAtTheEnd & operator=(AsksAtTheEnd const &) = delete;
    int * answer;
};

TEST(CoreThreadContext, AnObjectThatIsReplacedMayAskForOthers)
{
    ScopedSession const session;
    CoreThreadContext::SetGenericObject(u"other", Box(7));
    int answer = 0;
    CoreThreadContext::SetGenericObject(u"a", std::make_shared<boost::any>(std::make_shared<AsksAtTheEnd>(answer)));
    CoreThreadContext::SetGenericObject(u"a", Box(1));
    EXPECT_EQ(answer, 7);
}

TEST(ScopedSession, SessionsNestAndTheOneBeforeComesBack)
{
    ScopedSession const outer;
    CoreThreadContext::SetGenericUnsynchronizedObject(u"a", Box(1));
    {
        ScopedSession const inner;
        EXPECT_EQ(CoreThreadContext::GetGenericObject(u"a"), nullptr);
        CoreThreadContext::SetGenericUnsynchronizedObject(u"a", Box(2));
        {
            ScopedSession const again(outer.GetSession());
            EXPECT_EQ(Unbox(CoreThreadContext::GetGenericObject(u"a")), 1);
        }
        {
            ScopedSession const none(nullptr);
            EXPECT_FALSE(CoreThreadContext::HasSessionId());
            EXPECT_EQ(CoreThreadContext::GetGenericObject(u"a"), nullptr);
        }
        EXPECT_EQ(Unbox(CoreThreadContext::GetGenericObject(u"a")), 2);
    }
    EXPECT_EQ(Unbox(CoreThreadContext::GetGenericObject(u"a")), 1);
}

TEST(ScopedSession, TheObjectsDieWithTheSession)
{
    auto const object = Box(1);
    auto const session = std::make_shared<Session>();
    {
        ScopedSession const scope(session);
        CoreThreadContext::SetGenericUnsynchronizedObject(u"a", object);
    }
    EXPECT_EQ(object.use_count(), 2);
    {
        ScopedSession const scope;
        CoreThreadContext::SetGenericUnsynchronizedObject(u"a", object);
        EXPECT_EQ(object.use_count(), 3);
    }
    EXPECT_EQ(object.use_count(), 2);
}

TEST(ScopedSession, AnotherThreadIsInNoSessionUntilItEntersOne)
{
    ScopedSession const session;
    CoreThreadContext::SetGenericUnsynchronizedObject(u"a", Box(1));
    bool before = true;
    int found = 0;
    std::thread other([&] {
        before = CoreThreadContext::HasSessionId();
        ScopedSession const entered(session.GetSession());
        found = Unbox(CoreThreadContext::GetGenericObject(u"a"));
    });
    other.join();
    EXPECT_FALSE(before);
    EXPECT_EQ(found, 1);
}

TEST(CoreThreadContext, SeveralThreadsOfOneSessionMayReadAndWrite)
{
    auto const session = std::make_shared<Session>();
    std::vector<std::thread> threads;
    std::vector<int> misses(8);
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&session, &misses, i] {
            ScopedSession const entered(session);
            TString const own = TString::number(i);
            for (int round = 0; round < 500; ++round) {
                CoreThreadContext::SetGenericObject(own, Box(round));
                if (Unbox(CoreThreadContext::GetGenericObject(own)) != round)
                    ++misses[static_cast<std::size_t>(i)];
                CoreThreadContext::GetGenericObject(TString::number((i + 1) % 8));
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(misses, std::vector<int>(8, 0));
    ScopedSession const entered(session);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(Unbox(CoreThreadContext::GetGenericObject(TString::number(i))), 499);
}

TEST(HasSessionId, IsReplaceable)
{
    RestoreSessionTest const restore;
    CoreThreadContext::HasSessionId = [] { return true; };
    EXPECT_TRUE(CoreThreadContext::HasSessionId());
}

TEST(HasSessionId, AnEmptyFunctionIsAFault)
{
    RestoreSessionTest const restore;
    CoreThreadContext::HasSessionId = nullptr;
    EXPECT_THROW(CoreThreadContext::HasSessionId(), std::bad_function_call);
}

}  // namespace
