#include "velcoredata/utility/LocaleHelper.h"

#include <gtest/gtest.h>

#include <boost/any.hpp>

#include <functional>
#include <thread>

#include "tests/support/ErrorMatchers.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/utility/CoreDataOptions.h"
#include "velcoreplatform/CoreThreadContext.h"

using namespace test_support;

namespace {

void Put(char16_t const * key, boost::any object)
{
    CoreThreadContext::SetGenericObject(TString(key), std::make_shared<boost::any>(std::move(object)));
}

std::shared_ptr<TLocale> PutLocale(char16_t const * key, TLocale const & locale)
{
    auto const shared = std::make_shared<TLocale>(locale);
    Put(key, shared);
    return shared;
}

// The option is on while the object lives.
class AnySessionScope
{
public:
    AnySessionScope() { CoreDataOptions::SetUseNonSessionSpecificLocale(true); }
    ~AnySessionScope() { CoreDataOptions::SetUseNonSessionSpecificLocale(false); }
    AnySessionScope(AnySessionScope const &) = delete;
    AnySessionScope & operator=(AnySessionScope const &) = delete;
};

class DefaultLocaleScope
{
public:
    explicit DefaultLocaleScope(char16_t const * name) { CoreDataOptions::SetDefaultLocale(TString(name)); }
    ~DefaultLocaleScope() { CoreDataOptions::SetDefaultLocale(TString()); }
    DefaultLocaleScope(DefaultLocaleScope const &) = delete;
    DefaultLocaleScope & operator=(DefaultLocaleScope const &) = delete;
};

}  // namespace

TEST(LocaleHelper, OutsideASessionEveryQuestionIsAFault)
{
    EXPECT_THAT([] { LocaleHelper::GetSessionLocaleObject(); },
                ThrowsAssert("CoreThreadContext::HasSessionId()", "LogicException_LogicAssert_0x34F99351"));
    for (std::function<void()> const & call : {
             std::function<void()>([] { LocaleHelper::GetSessionLanguageCode(); }),
             std::function<void()>([] { LocaleHelper::GetSessionLCID(); }),
             std::function<void()>([] { LocaleHelper::GetSessionLanguage(); }),
             std::function<void()>([] { LocaleHelper::GetSessionLocale(); }),
         })
        EXPECT_THAT(call, ThrowsAssert("CoreThreadContext::HasSessionId()", "LogicException_LogicAssert_0x74B5639B"));
}

TEST(LocaleHelper, AnEmptyHookRaises)
{
    auto const before = CoreThreadContext::HasSessionId;
    CoreThreadContext::HasSessionId = nullptr;
    EXPECT_THROW(LocaleHelper::GetSessionLocaleObject(), std::bad_function_call);
    EXPECT_THROW(LocaleHelper::GetSessionLCID(), std::bad_function_call);
    CoreThreadContext::HasSessionId = before;
}

TEST(LocaleHelper, TheWorkbooksLocaleComesFirst)
{
    for (bool const anySession : {false, true}) {
        CoreDataOptions::SetUseNonSessionSpecificLocale(anySession);
        ScopedSession const session;
        auto const workbook = PutLocale(u"workbook-locale", TLocale(u"de_DE"));
        PutLocale(u"default-locale", TLocale(u"fr_FR"));
        EXPECT_EQ(&LocaleHelper::GetSessionLocaleObject(), workbook.get());
        EXPECT_EQ(LocaleHelper::GetSessionLanguageCode().GetFullString(), TString(u"de_DE-EU"));
        EXPECT_EQ(LocaleHelper::GetSessionLCID(), 0x407u);
        EXPECT_EQ(LocaleHelper::GetSessionLanguage(), TString(u"de"));
        EXPECT_EQ(LocaleHelper::GetSessionLocale(), TString(u"de_DE"));
    }
    CoreDataOptions::SetUseNonSessionSpecificLocale(false);
}

TEST(LocaleHelper, TheWorkbooksLocaleNeedsAnIsoStringButNoLcid)
{
    AnySessionScope const option;
    ScopedSession const session;
    PutLocale(u"default-locale", TLocale(u"fr_FR"));
    auto const unknown = std::make_shared<TLocale>(TString(u"xx_YY"));  // the ISO string is "root"
    Put(u"workbook-locale", unknown);
    EXPECT_EQ(&LocaleHelper::GetSessionLocaleObject(), unknown.get());
    EXPECT_EQ(LocaleHelper::GetSessionLCID(), 0u);
    EXPECT_EQ(LocaleHelper::GetSessionLocale(), TString(u"root"));
}

TEST(LocaleHelper, TheWorkbooksCodeIsCopiedAndTheSessionsMadeAnew)
{
    AnySessionScope const option;
    ScopedSession const session;
    Put(u"default-locale", std::make_shared<TLocale>(TString(u"en_US-APAC")));
    EXPECT_EQ(LocaleHelper::GetSessionLanguageCode().GetFullString(), TString(u"en_US-US"));
    Put(u"workbook-locale", std::make_shared<TLocale>(TString(u"en_US-APAC")));
    EXPECT_EQ(LocaleHelper::GetSessionLanguageCode().GetFullString(), TString(u"en_US-APAC"));
    Put(u"workbook-locale", std::make_shared<TLocale>(1024u));
    EXPECT_EQ(LocaleHelper::GetSessionLCID(), 1024u);
    Put(u"workbook-locale", std::make_shared<TLocale>(TString(u"fil_PH")));
    EXPECT_EQ(LocaleHelper::GetSessionLanguage(), TString(u"fil"));
}

// The object's LCID is the one it was given, the code's that of its ISO string, "root".
TEST(LocaleHelper, AnUnknownLcidStandsForTheObjectAndNotForTheCode)
{
    AnySessionScope const option;
    DefaultLocaleScope const processDefault(u"it_IT");
    ScopedSession const session;
    auto const unknown = std::make_shared<TLocale>(0xFFFFu);
    Put(u"default-locale", unknown);
    EXPECT_EQ(&LocaleHelper::GetSessionLocaleObject(), unknown.get());
    EXPECT_EQ(LocaleHelper::GetSessionLCID(), 0x410u);
}

TEST(LocaleHelper, WithoutAWorkbooksLocaleTheUsersDefaultStands)
{
    ScopedSession const session;
    auto const check = [] {
        EXPECT_EQ(&LocaleHelper::GetSessionLocaleObject(), &TLocale::GetUserDefaultLocale());
        EXPECT_EQ(LocaleHelper::GetSessionLCID(), 1024u);
        EXPECT_EQ(LocaleHelper::GetSessionLocale(), TString(u"en_US"));
        EXPECT_EQ(LocaleHelper::GetSessionLanguage(), TString(u"en"));
    };
    check();
    PutLocale(u"default-locale", TLocale(u"fr_FR"));  // not asked while the option is off
    check();
    PutLocale(u"workbook-locale", TLocale(u""));  // no ISO string
    check();
    Put(u"workbook-locale", std::shared_ptr<TLocale>());
    check();
    Put(u"workbook-locale", boost::any());
    check();
}

TEST(LocaleHelper, WithTheOptionOnTheSessionsDefaultStands)
{
    AnySessionScope const option;
    ScopedSession const session;
    auto const sessions = PutLocale(u"default-locale", TLocale(u"fr_FR"));
    EXPECT_EQ(&LocaleHelper::GetSessionLocaleObject(), sessions.get());
    EXPECT_EQ(LocaleHelper::GetSessionLanguageCode().GetFullString(), TString(u"fr_FR-EU"));
    EXPECT_EQ(LocaleHelper::GetSessionLCID(), 0x40Cu);

    // The code is made anew from the ISO string: a default LCID becomes the user's real one.
    auto const user = std::make_shared<TLocale>(1024u);
    Put(u"default-locale", user);
    EXPECT_EQ(&LocaleHelper::GetSessionLocaleObject(), user.get());
    EXPECT_EQ(LocaleHelper::GetSessionLocaleObject().GetLCID(), 1024u);
    EXPECT_EQ(LocaleHelper::GetSessionLCID(), 0x409u);
}

TEST(LocaleHelper, WithTheOptionOnTheSessionsDefaultHasToBeThere)
{
    AnySessionScope const option;
    ScopedSession const session;
    EXPECT_THAT([] { LocaleHelper::GetSessionLocaleObject(); },
                ThrowsAssert("sessionLocale", "LogicException_LogicAssert_0x3B14929B"));
    EXPECT_THAT([] { LocaleHelper::GetSessionLanguageCode(); },
                ThrowsAssert("sessionLocale", "LogicException_LogicAssert_0x57DB634A"));
}

TEST(LocaleHelper, ADefaultWithoutAnLcidFallsToTheProcessAndThenToTheUser)
{
    AnySessionScope const option;
    ScopedSession const session;
    for (char16_t const * const name : {u"", u"xx_YY"}) {
        Put(u"default-locale", std::make_shared<TLocale>(TString(name)));
        EXPECT_EQ(&LocaleHelper::GetSessionLocaleObject(), &TLocale::GetUserDefaultLocale());
        EXPECT_EQ(LocaleHelper::GetSessionLCID(), 1024u);

        DefaultLocaleScope const processDefault(u"it_IT");
        EXPECT_EQ(&LocaleHelper::GetSessionLocaleObject(), &CoreDataOptions::GetDefaultLocaleObject());
        EXPECT_EQ(LocaleHelper::GetSessionLanguageCode().GetFullString(), TString(u"it_IT-EU"));
    }
}

TEST(LocaleHelper, AnObjectOfAnotherTypeRaises)
{
    AnySessionScope const option;
    ScopedSession const session;
    Put(u"default-locale", 5);
    EXPECT_THROW(LocaleHelper::GetSessionLocaleObject(), boost::bad_any_cast);
    EXPECT_THROW(LocaleHelper::GetSessionLCID(), boost::bad_any_cast);
    Put(u"workbook-locale", TLocale(u"de_DE"));  // not a pointer
    EXPECT_THROW(LocaleHelper::GetSessionLocaleObject(), boost::bad_any_cast);
    EXPECT_THROW(LocaleHelper::GetSessionLCID(), boost::bad_any_cast);
}

TEST(LocaleHelper, EveryThreadOfASessionSeesItsLocale)
{
    ScopedSession const session;
    auto const workbook = PutLocale(u"workbook-locale", TLocale(u"de_DE"));
    std::vector<int> seen(4);
    std::vector<std::thread> threads;
    for (int & count : seen) {
        threads.emplace_back([&] {
            ScopedSession const entered(session.GetSession());
            for (int i = 0; i < 200; ++i)
                count += &LocaleHelper::GetSessionLocaleObject() == workbook.get() &&
                         LocaleHelper::GetSessionLCID() == 0x407;
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    for (int const count : seen)
        EXPECT_EQ(count, 200);
}
