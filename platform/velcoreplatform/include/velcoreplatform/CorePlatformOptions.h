// CorePlatformOptions: how and where the host program is installed.
#pragma once

#include "velcoreplatform/Export.h"
#include "velcoreplatform/TPath.h"

// The setters are for hosts and tests and must be called before other threads read.
class VELCOREPLATFORM_API CorePlatformOptions
{
public:
    // Default: the directory of the running program.
    static TPath GetApplicationDir();
    static void SetApplicationDir(TPath const & directory);
    // Default: false.
    static bool GetIsAppBundle() noexcept;
    static void SetIsAppBundle(bool value) noexcept;
    static bool GetAllowAltPathsFlag() noexcept;
    static void SetAllowAltPathsFlag(bool value) noexcept;
};
