// Crossing between TString and ICU's string.
#pragma once

#include <unicode/unistr.h>

#include "velicu/ICUString.h"

namespace VelICU_V2 {

struct ICUString::Native
{
    icu::UnicodeString text;
};

// Read-only alias: valid while `text` lives and is unchanged.
inline icu::UnicodeString AliasOf(TString const & text)
{
    return icu::UnicodeString(false, text.constData(), text.length());
}

inline icu::UnicodeString CopyOf(TString const & text)
{
    return icu::UnicodeString(text.constData(), text.length());
}

inline TString ToTString(icu::UnicodeString const & text)
{
    return TString(text.getBuffer() == nullptr ? u"" : text.getBuffer(), text.length());
}

}  // namespace VelICU_V2
