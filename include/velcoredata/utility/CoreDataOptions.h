// Process-wide options of the library. A host sets them at start-up, before other threads run; the library reads them
// later. None has a lock.
#pragma once

#include <cstddef>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

class TLocale;

namespace CoreDataOptions {

/// Whether the language "ar_YE" is the pseudo-locale of bi-directional text, LCID 4096. Off at load.
VELCOREDATA_API bool GetUseBiDiPseudo();
VELCOREDATA_API void SetUseBiDiPseudo(bool use);

/// Whether the user interface may be in Canadian French. Off at load. Nothing in the library reads it.
VELCOREDATA_API bool GetUseCanadianFrenchUI();
VELCOREDATA_API void SetUseCanadianFrenchUI(bool use);

/// Whether a session without a locale of its workbook falls to its default locale, and not to the user's. Off at load.
VELCOREDATA_API bool GetUseNonSessionSpecificLocale();
VELCOREDATA_API void SetUseNonSessionSpecificLocale(bool use);

/// The locale that SetDefaultLocale named; before its first call one of the empty name, with LCID 0.
VELCOREDATA_API TLocale const & GetDefaultLocaleObject();
/// Destroys the locale that was set before, and with it what references to that one point to. Not to be called while
/// another thread reads the default locale.
VELCOREDATA_API void SetDefaultLocale(TString const & name);

/// StringWithCollationCache::SetStringPoolThreadLocalCacheSize.
VELCOREDATA_API void SetStringPoolThreadLocalCacheSize(std::size_t size);

}  // namespace CoreDataOptions
