// The published names of Windows locale identifiers: what the query LOCALE_SNAME answers.
//
// The table is the platform's own and differs from ICU's names: 0x404 is "zh-TW" here and "zh_Hant_TW" there.
#pragma once

#include <span>

#include "velnls/Export.h"
#include "velsys/Lcid.h"

namespace VelNLS {

struct PublishedLocaleName
{
    LCID lcid;
    char const * name;  // language, script and region with "-" between; an alternate sort order after "_"
};

// All rows in ascending order of the LCID, neutral languages and alternate sort orders included.
VELNLS_API std::span<PublishedLocaleName const> GetPublishedLocaleNames() noexcept;

// The name of an LCID, "en-US" for 0x409, "en" for 9, "de-DE_phoneb" for 0x10407. Null for an LCID that is not published
// and for those that stand for another one (0, 0x400, 0x7F, 0x800, 0x1000).
VELNLS_API char const * FindPublishedLocaleName(LCID lcid) noexcept;

}  // namespace VelNLS
