#include "velcoreplatform/CoreThreadContext.h"

#include <cstdlib>
#include <mutex>
#include <unordered_map>

#include "velcoreplatform/ICrashNow.h"
#include "velcoreplatform/TLog.h"
#include "velsys/NoDestructor.h"

struct detail::SessionStore
{
    // Null outside a session.
    static SessionStore * OfThisThread() noexcept;

    std::shared_ptr<boost::any> Find(TString const & key) const
    {
        auto const found = objects.find(key);
        return found == objects.end() ? nullptr : found->second;
    }

    std::mutex mutex;
    std::unordered_map<TString, std::shared_ptr<boost::any>> objects;
};

namespace {

std::function<bool()> & SessionTest()
{
    static detail::NoDestructor<std::function<bool()>> s_test([] { return CoreThreadContext::InSession(); });
    return *s_test;
}

std::function<void()> & CrashHook()
{
    static detail::NoDestructor<std::function<void()>> s_hook([] { std::abort(); });
    return *s_hook;
}

void WarnOutsideSession(TString const & key)
{
    LogMessage(TLog::Warn(), TFormatString(u"CoreThreadContext: object \"%1\" set outside a session").arg(key));
}

}  // namespace

constinit thread_local Session * detail::t_session = nullptr;

detail::SessionStore * detail::SessionStore::OfThisThread() noexcept
{
    return t_session == nullptr ? nullptr : t_session->m_store.get();
}

std::function<bool()> & CoreThreadContext::HasSessionId = SessionTest();
std::function<void()> & ICrashNow = CrashHook();

std::shared_ptr<boost::any> CoreThreadContext::GetGenericObject(TString const & key)
{
    auto * const store = detail::SessionStore::OfThisThread();
    if (store == nullptr)
        return nullptr;
    std::lock_guard const lock(store->mutex);
    return store->Find(key);
}

void CoreThreadContext::SetGenericObject(TString const & key, std::shared_ptr<boost::any> object)
{
    auto * const store = detail::SessionStore::OfThisThread();
    if (store == nullptr)
        return WarnOutsideSession(key);
    {
        std::lock_guard const lock(store->mutex);
        store->objects[key].swap(object);
    }
    // The object before goes without the lock: its destructor may ask for others.
}

std::shared_ptr<boost::any> CoreThreadContext::GetGenericUnsynchronizedObject(TString const & key)
{
    auto const * const store = detail::SessionStore::OfThisThread();
    return store == nullptr ? nullptr : store->Find(key);
}

void CoreThreadContext::SetGenericUnsynchronizedObject(TString const & key, std::shared_ptr<boost::any> object)
{
    auto * const store = detail::SessionStore::OfThisThread();
    if (store == nullptr)
        return WarnOutsideSession(key);
    store->objects[key] = std::move(object);
}

Session::Session() : m_store(std::make_unique<detail::SessionStore>()) {}

Session::~Session() = default;

ScopedSession::ScopedSession() : ScopedSession(std::make_shared<Session>()) {}

ScopedSession::ScopedSession(std::shared_ptr<Session> session)
    : m_session(std::move(session)), m_before(detail::t_session)
{
    detail::t_session = m_session.get();
}

ScopedSession::~ScopedSession()
{
    detail::t_session = m_before;
}
