// The two maps of the generated string table: the source is written by vel-codegen/gen-strings at build time.
#pragma once

#include <string_view>

#include "velcoredata/core/StringIds.h"

namespace CoreData::detail {

// The key's text, "IDS_AGG_DAY", and the English text in UTF-8, "Day": static and terminated behind its end. Any number
// that is no key gives the empty text, never null.
char const * StringTableKey(StringId id) noexcept;
std::string_view StringTableEnglish(StringId id) noexcept;

// The path of the generated source, for assertions.
char const * StringTableFile() noexcept;

}  // namespace CoreData::detail
