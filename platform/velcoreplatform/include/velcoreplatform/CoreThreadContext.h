// CoreThreadContext: the named objects of the session that the calling thread works for.
//
// A host enters a session on a thread with a ScopedSession; several threads may work for one session at once.
#pragma once

#include <functional>
#include <memory>

#include <boost/any.hpp>

#include "velcoreplatform/Export.h"
#include "velcoreplatform/TString.h"

class Session;

namespace detail {

struct SessionStore;

// The session of the calling thread, or null. Initial-exec: read without a call.
[[gnu::tls_model("initial-exec")]] VELCOREPLATFORM_API extern constinit thread_local Session * t_session;

}  // namespace detail

// A namespace, so that a higher layer can add the accessors of its own objects.
namespace CoreThreadContext {

// Whether the objects below can be there at all. In line, for hot paths.
inline bool InSession() noexcept
{
    return ::detail::t_session != nullptr;
}

// The named object of the current session, null if none or outside a session. Any thread; synchronises by itself.
VELCOREPLATFORM_API std::shared_ptr<boost::any> GetGenericObject(TString const & key);
VELCOREPLATFORM_API void SetGenericObject(TString const & key, std::shared_ptr<boost::any> object);

// The same store without synchronisation, for a session that only the calling thread works for. Outside a session
// setting logs a warning and keeps nothing.
VELCOREPLATFORM_API std::shared_ptr<boost::any> GetGenericUnsynchronizedObject(TString const & key);
VELCOREPLATFORM_API void SetGenericUnsynchronizedObject(TString const & key, std::shared_ptr<boost::any> object);

// Says if the calling thread runs in a session. Asked before session objects are looked for; an empty function is a
// fault (std::bad_function_call). The default answers by ScopedSession. Set it before other threads start.
VELCOREPLATFORM_API extern std::function<bool()> & HasSessionId;

}  // namespace CoreThreadContext

// The objects of one session. Made by a host, entered on any number of threads.
class VELCOREPLATFORM_API Session
{
public:
    Session();
    ~Session();
    Session(Session const &) = delete;
    Session & operator=(Session const &) = delete;

private:
    friend struct detail::SessionStore;
    std::unique_ptr<detail::SessionStore> m_store;
};

// Enters a session on the calling thread for the object's lifetime; the session before comes back at the end. Scopes
// nest and belong to the thread that made them.
class VELCOREPLATFORM_API ScopedSession
{
public:
    // A fresh session of its own.
    ScopedSession();
    // Null leaves the session before for the object's lifetime.
    explicit ScopedSession(std::shared_ptr<Session> session);
    ~ScopedSession();
    ScopedSession(ScopedSession const &) = delete;
    ScopedSession & operator=(ScopedSession const &) = delete;

    std::shared_ptr<Session> const & GetSession() const noexcept { return m_session; }

private:
    std::shared_ptr<Session> m_session;
    Session * m_before;
};
