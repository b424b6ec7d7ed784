#include "velcoreplatform/CorePlatformOptions.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <atomic>
#include <mutex>

#include "velsys/NoDestructor.h"

namespace {

std::atomic<bool> g_isAppBundle{false};
std::atomic<bool> g_allowAltPaths{false};

std::mutex & DirectoryMutex()
{
    static detail::NoDestructor<std::mutex> s_mutex;
    return *s_mutex;
}

TPath & Directory()
{
    static detail::NoDestructor<TPath> s_directory(
        TPath(TString(QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).absolutePath())));
    return *s_directory;
}

}  // namespace

TPath CorePlatformOptions::GetApplicationDir()
{
    std::lock_guard const lock(DirectoryMutex());
    return Directory();
}

void CorePlatformOptions::SetApplicationDir(TPath const & directory)
{
    std::lock_guard const lock(DirectoryMutex());
    Directory() = directory;
}

bool CorePlatformOptions::GetIsAppBundle() noexcept
{
    return g_isAppBundle.load(std::memory_order_relaxed);
}

void CorePlatformOptions::SetIsAppBundle(bool value) noexcept
{
    g_isAppBundle.store(value, std::memory_order_relaxed);
}

bool CorePlatformOptions::GetAllowAltPathsFlag() noexcept
{
    return g_allowAltPaths.load(std::memory_order_relaxed);
}

void CorePlatformOptions::SetAllowAltPathsFlag(bool value) noexcept
{
    g_allowAltPaths.store(value, std::memory_order_relaxed);
}
