// The questions of LanguageUtils that the catalogue of languages answers.

#include "main/core/LanguageCatalogue.h"
#include "velcoredata/core/LanguageUtils.h"

namespace LanguageUtils {

using detail::LanguageCatalogue;

void InitializeLanguageMap()
{
    LanguageCatalogue::Get();
}

TString GetDefaultSamplesString()
{
    return GetClosestSpecialLocaleCode(GetDefaultISOString());
}

bool IsLanguageCodeSupported(TString const & code)
{
    return LanguageCatalogue::Get().FindSupported(code) != nullptr;
}

std::unordered_set<TString> GetSupportedLanguages()
{
    return LanguageCatalogue::Get().GetSupportedLanguages();
}

TString GetClosestSupportedLanguageCode(TString const & code)
{
    return LanguageCatalogue::Get().GetClosestSupportedCode(code);
}

TString GetClosestSupportedLanguageCode(LCID lcid)
{
    return GetClosestSupportedLanguageCode(GetLocaleStr(lcid));
}

TString GetClosestSpecialLocaleCode(TString const & code)
{
    return LanguageCatalogue::Get().GetClosestSpecialCode(code);
}

TString GetClosestSpecialLocaleCode(LCID lcid)
{
    return GetClosestSpecialLocaleCode(GetLocaleStr(lcid));
}

std::vector<TString> GetAvailableDesktopLanguages()
{
    return LanguageCatalogue::Get().GetDesktopLanguages(GetISOString(GetUILanguageCodeStr()));
}

TString GetDisplayStringForLanguageCode(TString const & isoString)
{
    return LanguageCatalogue::Get().GetMenuLabel(isoString);
}

}  // namespace LanguageUtils
