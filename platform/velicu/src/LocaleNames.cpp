#include "velicu/LocaleNames.h"

#include <unicode/uloc.h>

#include <cstring>

#include "StatusScope.h"

namespace VelICU_V2 {

namespace {

char const * NameOrDefault(char const * locale) noexcept
{
    return locale == nullptr ? t_uloc_getDefault() : locale;
}

}  // namespace

char const * t_uloc_getDefault() noexcept
{
    char const * const name = uloc_getDefault();
    return std::strcmp(name, "en_US_POSIX") == 0 || std::strcmp(name, "c") == 0 ? "en_US" : name;
}

int t_uloc_getLanguage(char const * locale, char * language, int capacity, ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return uloc_getLanguage(NameOrDefault(locale), language, capacity, &scope);
}

int t_uloc_getScript(char const * locale, char * script, int capacity, ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return uloc_getScript(NameOrDefault(locale), script, capacity, &scope);
}

int t_uloc_getCountry(char const * locale, char * country, int capacity, ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return uloc_getCountry(NameOrDefault(locale), country, capacity, &scope);
}

std::uint32_t t_uloc_getLCID(char const * locale) noexcept
{
    return uloc_getLCID(NameOrDefault(locale));
}

int t_uloc_getLocaleForLCID(std::uint32_t lcid, char * locale, int capacity, ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return uloc_getLocaleForLCID(lcid, locale, capacity, &scope);
}

int t_uloc_getDisplayLanguage(char const * locale, char const * displayLocale, char16_t * text, int capacity,
                              ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return uloc_getDisplayLanguage(NameOrDefault(locale), NameOrDefault(displayLocale), text, capacity, &scope);
}

int t_uloc_getDisplayCountry(char const * locale, char const * displayLocale, char16_t * text, int capacity,
                             ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    return uloc_getDisplayCountry(NameOrDefault(locale), NameOrDefault(displayLocale), text, capacity, &scope);
}

}  // namespace VelICU_V2
