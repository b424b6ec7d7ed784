// The languages of the product, made ready for questions.
#pragma once

#include <map>
#include <span>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "main/core/LanguageTables.h"
#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

namespace LanguageUtils::detail {

// The part behind the first hyphen, "EU" of "de_DE-EU"; empty without one, or if the code begins with it.
TString MarketOf(TString const & code);

// Immutable after construction; any thread may read.
class VELCOREDATA_API LanguageCatalogue
{
public:
    // The process's own, made at the first call, which asks PseudoLocFeatureShouldBeEnabled. What that asks on its part
    // meanwhile is answered without the pseudo-locales.
    static LanguageCatalogue const & Get();

    // Without the pseudo-locales their rows are left out. With them, raises "LogicException_LogicAssert_0x4B77BEEC" if
    // `desktop` has no row for "ga_IE".
    LanguageCatalogue(std::span<DesktopLanguage const> desktop, bool withPseudoLocales);

    // The full code that a code leads to, or null.
    TString const * FindSupported(TString const & code) const;
    std::unordered_set<TString> GetSupportedLanguages() const;

    TString GetClosestSupportedCode(TString const & code) const;
    TString GetClosestSpecialCode(TString const & code) const;

    // ISO strings of the desktop languages, `firstIsoString` first and the others by their sort names.
    std::vector<TString> GetDesktopLanguages(TString const & firstIsoString) const;
    // Empty for a text that is no row.
    TString GetMenuLabel(TString const & isoString) const;

private:
    struct SupportedRow
    {
        TString key;
        TString fullCode;
        TString language;
        LanguageScript script;
        TString market;
    };

    void AddSupported(TString const & key, TString const & fullCode);

    std::map<TString, DesktopLanguage> m_desktop;
    std::vector<SupportedRow> m_rows;  // as they were added
    std::unordered_map<TString, std::size_t> m_supported;
    std::unordered_map<TString, TString> m_special;
};

}  // namespace LanguageUtils::detail
