// Whether the pseudo-locales are offered. A source of its own: the registry of archives asks LanguageUtils for the
// default language.

#include "main/core/LanguageTables.h"
#include "main/core/ResourceFiles.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/ResourceRegistrationCache.h"

namespace LanguageUtils {

bool PseudoLocFeatureShouldBeEnabled()
{
    ResourceRegistrationCache & resources = ResourceRegistrationCache::GetInstance();
    TString const pseudoLocale = detail::PSEUDO_LOCALE;
    return !resources.GetResourcePath(::detail::translationResource, pseudoLocale).isEmpty() &&
           resources.LoadResource(::detail::languageArchive, pseudoLocale, TString()) &&
           resources.IsResourceLoaded(pseudoLocale);
}

}  // namespace LanguageUtils
