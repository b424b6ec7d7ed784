// The persisted choices of languages.

#include "velcoredata/core/LanguageUtils.h"
#include "velcoreplatform/TSettings.h"

namespace LanguageUtils {

namespace {

constexpr LCID SYSTEM_DEFAULT_LCID = 2048;

}  // namespace

TString GetUILanguageCodeStr()
{
    constexpr char16_t const * key = u"LanguageCode";
    TString const chosen = TSettings::GetStringValue(TSettings::Group::Language, key, TString());
    if (!chosen.isEmpty() && IsLanguageCodeSupported(chosen))
        return chosen;
    TString const closest = GetClosestSupportedLanguageCode(SYSTEM_DEFAULT_LCID);
    TSettings::SetStringValue(TSettings::Group::Language, key, closest);
    return closest;
}

TString GetSampleDataSourcesLanguageString()
{
    constexpr char16_t const * key = u"SamplesLanguage";
    TString const chosen = TSettings::GetStringValue(TSettings::Group::Language, key, TString());
    if (!chosen.isEmpty())
        return chosen;
    TString const closest = GetClosestSpecialLocaleCode(SYSTEM_DEFAULT_LCID);
    TSettings(TSettings::Group::Language, TString(), TString()).SetStringValue(key, closest);
    return closest;
}

TString GetSampleWorkbooksLanguageString()
{
    return GetISOString(GetUILanguageCodeStr());
}

}  // namespace LanguageUtils
