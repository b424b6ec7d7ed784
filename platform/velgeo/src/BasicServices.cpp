#include "velgeo/BasicServices.h"

#include <mutex>

#include "velsys/NoDestructor.h"

namespace velgeo {

namespace {

struct State
{
    std::mutex mutex;
    bool registered = false;
    std::string projDirectory;
};

State & TheState()
{
    static ::detail::NoDestructor<State> state;
    return *state;
}

}  // namespace

void BasicServices::Register()
{
    std::lock_guard const lock(TheState().mutex);
    TheState().registered = true;
}

void BasicServices::Unregister()
{
    std::lock_guard const lock(TheState().mutex);
    TheState().registered = false;
    TheState().projDirectory.clear();
}

bool BasicServices::IsRegistered()
{
    std::lock_guard const lock(TheState().mutex);
    return TheState().registered;
}

void BasicServices::SetProjResourceDirectory(std::string const & directory)
{
    std::lock_guard const lock(TheState().mutex);
    TheState().projDirectory = directory;
}

std::string BasicServices::GetProjResourceDirectory()
{
    std::lock_guard const lock(TheState().mutex);
    return TheState().projDirectory;
}

}  // namespace velgeo
