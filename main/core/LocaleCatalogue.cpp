// The locales there are: TLocale's lists.

#include <set>
#include <unordered_set>

#include "main/core/LocaleWalk.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/string/CoreICUUtils.h"
#include "velcoredata/string/ICUUtils.h"
#include "velicu/ICULocale.h"

namespace {

// Below it stand languages without a country.
constexpr LCID FIRST_LCID_WITH_COUNTRY = 1025;

// Enough for the platform's list.
constexpr std::size_t EXPECTED_LOCALES = 230;

}  // namespace

void TLocale::GetSupportedLocales(LCID displayLcid, std::vector<int> & lcids, std::vector<TString> & names,
                                  std::vector<TString> & displayNames)
{
    GetSupportedLocalesWindows(displayLcid, lcids, names, displayNames);
}

void TLocale::GetSupportedLocalesICU(LCID displayLcid, std::vector<int> & lcids, std::vector<TString> & names,
                                     std::vector<TString> & displayNames)
{
    std::set<LCID> found;
    for (auto const & locale : VelICU_V2::ICULocale::getAvailableLocales()) {
        LCID const lcid = locale->getLCID();
        if (lcid >= FIRST_LCID_WITH_COUNTRY)
            found.insert(lcid);
    }

    auto const displayLocale = CoreICUUtils::GetLocale(displayLcid);
    for (LCID const lcid : found) {
        auto const locale = CoreICUUtils::GetLocale(lcid);
        char const * const country = locale->getCountry();
        if (country == nullptr || *country == '\0')
            continue;
        lcids.push_back(static_cast<int>(lcid));
        names.push_back(TString::fromLocal8Bit(locale->getName()));
        displayNames.push_back(locale->getDisplayName(*displayLocale));
    }
}

void TLocale::GetSupportedLocalesWindows(LCID displayLcid, std::vector<int> & lcids, std::vector<TString> & names,
                                         std::vector<TString> & displayNames)
{
    lcids.reserve(EXPECTED_LOCALES);
    names.reserve(EXPECTED_LOCALES);
    displayNames.reserve(EXPECTED_LOCALES);
    ::detail::WalkSystemLocales([&](LCID lcid) {
        TString const name = LanguageUtils::GetLocaleStr(lcid);
        TString const displayName = ICUUtils::GetDisplayName(lcid, displayLcid);
        lcids.push_back(static_cast<int>(lcid));
        names.push_back(name);
        displayNames.push_back(displayName);
    });
}

std::vector<TLocale::LocaleInfo> TLocale::GetCommonlySupportedLocalesForWindowsAndICU(LCID displayLcid)
{
    std::vector<int> lcids;
    std::vector<TString> names;
    std::vector<TString> displayNames;
    GetSupportedLocalesICU(displayLcid, lcids, names, displayNames);
    std::unordered_set<int> const known(lcids.begin(), lcids.end());

    lcids.clear();
    names.clear();
    displayNames.clear();
    GetSupportedLocalesWindows(displayLcid, lcids, names, displayNames);

    std::vector<LocaleInfo> common;
    for (std::size_t i = 0; i < lcids.size(); ++i) {
        if (known.count(lcids[i]) != 0)
            common.push_back({lcids[i], names[i], displayNames[i]});
    }
    return common;
}
