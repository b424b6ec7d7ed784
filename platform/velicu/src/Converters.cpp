#include "velicu/Converters.h"

#include <unicode/ucnv.h>

#include "StatusScope.h"

namespace VelICU_V2 {

char const * t_ucnv_getStandardName(char const * name, char const * standard, ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return ucnv_getStandardName(name, standard, &scope);
}

char const * t_ucnv_getCanonicalName(char const * alias, char const * standard, ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return ucnv_getCanonicalName(alias, standard, &scope);
}

int t_ucnv_countAvailable() noexcept
{
    return ucnv_countAvailable();
}

char const * t_ucnv_getAvailableName(int index) noexcept
{
    return ucnv_getAvailableName(index);
}

}  // namespace VelICU_V2
