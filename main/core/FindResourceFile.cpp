#include "main/core/ResourceFiles.h"

#include "velcoredata/core/ResourceRegistrationCache.h"
#include "velcoreplatform/CorePlatformOptions.h"

TPath FindResourceFile(TPath const & relative)
{
    TPath const inDirectory = TPath(CorePlatformOptions::GetIsAppBundle() ? u"../Resources" : u"res") / relative;
    if (FileExists(inDirectory))
        return inDirectory;
    TPath const library =
        detail::LibraryResourceDirectory(ModuleDirectory(reinterpret_cast<void const *>(&FindResourceFile)),
                                         CorePlatformOptions::GetAllowAltPathsFlag());
    for (TPath const & directory : {library, CorePlatformOptions::GetApplicationDir()}) {
        TPath const file = directory / inDirectory;
        if (FileExists(file))
            return file;
    }
    return TPath();
}
