#include "velicu/Currency.h"

#include <unicode/ucurr.h>

#include "StatusScope.h"
#include "velicu/LocaleNames.h"

namespace VelICU_V2 {

int t_ucurr_forLocale(char const * locale, char16_t * code, int capacity, ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return ucurr_forLocale(locale == nullptr ? t_uloc_getDefault() : locale, code, capacity, &scope);
}

}  // namespace VelICU_V2
