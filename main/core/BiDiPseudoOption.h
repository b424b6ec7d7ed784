// The option of the bi-directional pseudo-locale, kept below the rooms that know locales: LanguageCode reads it, and
// CoreDataOptions is its public face.
#pragma once

#include "velcoredata/core/Export.h"

namespace CoreData::detail {

// Off at load. Set at start-up, read later.
VELCOREDATA_API bool GetUseBiDiPseudo() noexcept;
VELCOREDATA_API void SetUseBiDiPseudo(bool use) noexcept;

}  // namespace CoreData::detail
