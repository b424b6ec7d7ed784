#pragma once

#include <memory>
#include <string>
#include <vector>

#include "velcoreplatform/TString.h"
#include "velicu/ErrorCode.h"
#include "velsys/Lcid.h"

namespace VelICU_V2 {

// A locale as ICU knows it: language, script, country, variant and keywords. Immutable; may be read from several
// threads.
//
// Any text makes a locale; it is never checked whether ICU has data for it, and text that cannot be taken apart gives a
// locale whose parts are all empty.
class VELICU_API ICULocale
{
public:
    struct Native;  // ICU's locale, known to this layer's sources

    // From a whole name, "zh_Hant_TW" or "de_DE@calendar=buddhist", or from parts; "calendar=buddhist" is a `keywords`.
    // Each may be null; a null language is the default locale.
    static std::unique_ptr<ICULocale> createInstance(char const * language, char const * country = nullptr,
                                                     char const * variant = nullptr, char const * keywords = nullptr);
    static std::unique_ptr<ICULocale> createInstance(TString const & name);
    static std::unique_ptr<ICULocale> getRoot();
    // The process's default locale; "en_US_POSIX", which a bare environment gives, counts as "en_US".
    static std::unique_ptr<ICULocale> getDefault();
    // All locales that ICU has data for, in ICU's order.
    static std::vector<std::unique_ptr<ICULocale>> getAvailableLocales();

    ~ICULocale();
    std::unique_ptr<ICULocale> clone() const;

    // 8-bit texts that live as long as the object; empty if the part is missing.
    char const * getName() const noexcept;      // "zh_Hant_TW"; the root locale's is ""
    char const * getLanguage() const noexcept;  // "zh"
    char const * getScript() const noexcept;    // "Hant"
    char const * getCountry() const noexcept;   // "TW"
    char const * getVariant() const noexcept;
    char const * getISO3Country() const noexcept;  // "TWN"
    // The value of a keyword, "buddhist" for "calendar"; empty if it is not there.
    std::string getKeywordValue(char const * keyword) const;

    // "Russian (Russia)" for ru_RU in en.
    TString getDisplayName(ICULocale const & displayLocale) const;
    // 0x409 for en_US; 0 if there is none.
    LCID getLCID() const noexcept;

    // All parts and keywords are the same.
    friend VELICU_API bool operator==(ICULocale const & a, ICULocale const & b) noexcept;

    explicit ICULocale(std::unique_ptr<Native> native);
    Native const & GetNative() const noexcept { return *m_native; }

private:
    std::unique_ptr<Native> m_native;
};

}  // namespace VelICU_V2
