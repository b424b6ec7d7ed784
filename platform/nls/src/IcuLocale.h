// From an LCID to what ICU needs to answer for it.
#pragma once

#include <unicode/locid.h>

#include <string>

#include "velsys/Lcid.h"

namespace VelNLS::detail {

struct IcuLocale
{
    icu::Locale data;    // where patterns and symbols come from; the root locale if ICU knows nothing of the language
    std::string region;  // "und_US", where currency, weeks and measures come from
};

// Of a published name, "zh-TW".
IcuLocale IcuLocaleOf(char const * publishedName);

}  // namespace VelNLS::detail
