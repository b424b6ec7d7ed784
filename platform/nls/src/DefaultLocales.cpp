#include <unicode/locid.h>

#include <algorithm>
#include <string_view>

#include "velicu/LocaleNames.h"
#include "velnls/LocaleInfo.h"
#include "velnls/LocaleNames.h"

namespace {

constexpr LCID kEnglishUnitedStates = 0x409;

bool IsNeutral(VelNLS::PublishedLocaleName const & row)
{
    if (row.lcid < 0x400)
        return true;
    // The neutral languages that have a number of their own; their names end in a language or a script.
    return row.lcid >= 0x6000 && row.lcid <= 0xFFFF && *icu::Locale(row.name).getCountry() == 0;
}

bool IsPseudo(std::string_view name)
{
    return name.substr(0, 4) == "qps-" || name.substr(0, 2) == "x-" || name.find("-Ploc") != name.npos;
}

}  // namespace

LCID GetUserDefaultLCID()
{
    icu::Locale locale(VelICU::t_uloc_getDefault());
    UErrorCode status = U_ZERO_ERROR;
    if (*locale.getCountry() == 0) {
        locale.addLikelySubtags(status);
        locale = icu::Locale(locale.getLanguage(), locale.getCountry());
    }
    // By the published name before ICU's own list, which differs for some scripts.
    std::string name = std::string(locale.getLanguage()) + '-' + locale.getCountry();
    for (VelNLS::PublishedLocaleName const & row : VelNLS::GetPublishedLocaleNames()) {
        if (name == row.name)
            return row.lcid;
    }
    LCID lcid = locale.getLCID();
    if (lcid < 0x400)
        lcid |= 0x400;  // a language's first locale
    return VelNLS::FindPublishedLocaleName(lcid) == nullptr ? kEnglishUnitedStates : lcid;
}

LCID ConvertDefaultLocale(LCID lcid)
{
    switch (lcid) {
    case 127:
    case 1024:
    case 2048:
    case 3072:
    case 4096:
    case 5120: return GetUserDefaultLCID();
    default: return lcid;
    }
}

bool EnumSystemLocalesW(LOCALE_ENUMPROC callback, std::uint32_t flags)
{
    constexpr std::uint32_t all = LCID_INSTALLED | LCID_SUPPORTED | LCID_ALTERNATE_SORTS;
    if (callback == nullptr || (flags & ~all) != 0 || (flags & (LCID_INSTALLED | LCID_SUPPORTED)) == 0)
        return false;
    for (VelNLS::PublishedLocaleName const & row : VelNLS::GetPublishedLocaleNames()) {
        bool const alternateSort = row.lcid > 0xFFFF;
        if (IsNeutral(row) || IsPseudo(row.name) || (alternateSort && (flags & LCID_ALTERNATE_SORTS) == 0))
            continue;
        char16_t digits[9] = {};
        for (int i = 0; i < 8; ++i)
            digits[i] = u"0123456789abcdef"[row.lcid >> (28 - 4 * i) & 15];
        if (!callback(digits))
            break;
    }
    return true;
}
