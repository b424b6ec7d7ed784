#include "velicu/ICUVersion.h"

#include <unicode/uclean.h>
#include <unicode/uversion.h>

namespace VelICU_V2 {

int ICUVersion::GetMajor() noexcept
{
    UVersionInfo version;
    u_getVersion(version);
    return version[0];
}

bool ICUVersion::Is_ICU_68() noexcept
{
    return GetMajor() >= 68;
}

void t_u_cleanup() noexcept
{
    u_cleanup();
}

}  // namespace VelICU_V2
