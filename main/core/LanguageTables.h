// The tables of languages as they are written down. All texts are static.
#pragma once

#include <span>

#include "velcoredata/core/Export.h"
#include "velcoredata/core/LanguageScript.h"
#include "velcoredata/core/MapCode.h"
#include "velsys/Lcid.h"

namespace LanguageUtils::detail {

inline constexpr char16_t const * DEFAULT_ISO_STRING = u"en_US";

// The pseudo-locale that shows what is not translated, and the one that shows what does not turn with the text.
inline constexpr char16_t const * PSEUDO_LANGUAGE = u"ga";
inline constexpr char16_t const * PSEUDO_LOCALE = u"ga_IE";
inline constexpr char16_t const * PSEUDO_CODE = u"ga_IE-US";
inline constexpr char16_t const * BIDI_PSEUDO_LANGUAGE = u"ar";
inline constexpr char16_t const * BIDI_PSEUDO_LOCALE = u"ar_YE";
inline constexpr char16_t const * BIDI_PSEUDO_CODE = u"ar_YE-US";
inline constexpr LCID BIDI_PSEUDO_LCID = 4096;

struct DesktopLanguage
{
    char16_t const * isoString;
    char16_t const * menuLabel;  // with a mark before the access key
    char16_t const * sortName;   // Latin scripts first: the others begin with "z" and a digit
    char16_t const * enabled;    // a number; other than 0 makes the row a supported language of its own
    char16_t const * market;
};

struct CodeRow
{
    char16_t const * key;
    char16_t const * fullCode;
};

struct ScriptRow
{
    char16_t const * isoString;
    LanguageScript script;
};

struct MapRow
{
    char16_t const * isoString;
    MapCode code;
};

VELCOREDATA_API std::span<DesktopLanguage const> DesktopLanguages() noexcept;
VELCOREDATA_API std::span<CodeRow const> SupportedCodes() noexcept;  // in the order in which the closest is sought
VELCOREDATA_API std::span<CodeRow const> SpecialLocales() noexcept;
VELCOREDATA_API std::span<ScriptRow const> Scripts() noexcept;
VELCOREDATA_API std::span<MapRow const> MapCodes() noexcept;

}  // namespace LanguageUtils::detail
