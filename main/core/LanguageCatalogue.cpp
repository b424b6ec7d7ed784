#include "main/core/LanguageCatalogue.h"

#include <algorithm>
#include <atomic>
#include <mutex>

#include "velcoredata/core/LanguageUtils.h"
#include "velsys/NoDestructor.h"
#include "velsys/ThrowSite.h"

namespace LanguageUtils::detail {

TString MarketOf(TString const & code)
{
    int const hyphen = code.indexOf(u'-');
    return hyphen > 0 ? code.mid(hyphen + 1) : TString();
}

LanguageCatalogue const & LanguageCatalogue::Get()
{
    static std::atomic<LanguageCatalogue const *> s_made{nullptr};
    if (LanguageCatalogue const * const made = s_made.load(std::memory_order_acquire))
        return *made;

    static ::detail::NoDestructor<std::recursive_mutex> s_mutex;
    std::lock_guard const lock(*s_mutex);
    if (LanguageCatalogue const * const made = s_made.load(std::memory_order_acquire))
        return *made;
    static bool s_asking = false;
    if (s_asking) {
        static ::detail::NoDestructor<LanguageCatalogue> s_plain(DesktopLanguages(), false);
        return *s_plain;
    }
    struct Asking
    {
        Asking() { s_asking = true; }
        ~Asking() { s_asking = false; }
    } const asking;
    static ::detail::NoDestructor<LanguageCatalogue> s_catalogue(DesktopLanguages(), PseudoLocFeatureShouldBeEnabled());
    s_made.store(&*s_catalogue, std::memory_order_release);
    return *s_catalogue;
}

LanguageCatalogue::LanguageCatalogue(std::span<DesktopLanguage const> desktop, bool withPseudoLocales)
{
    for (DesktopLanguage const & row : desktop)
        m_desktop.emplace(TString(row.isoString), row);
    if (withPseudoLocales) {
        VELTRIA_ASSERT_TEXT(m_desktop.count(TString(PSEUDO_LOCALE)) != 0, "it != s_desktopLanguages.end()", 0x4B77BEEC);
    } else {
        m_desktop.erase(TString(PSEUDO_LOCALE));
        m_desktop.erase(TString(BIDI_PSEUDO_LOCALE));
    }

    for (CodeRow const & row : SupportedCodes())
        AddSupported(row.key, row.fullCode);
    for (auto const & [isoString, row] : m_desktop) {
        if (TString(row.enabled).toInt() == 0)
            continue;
        TString const language = isoString.left(isoString.indexOf(u'_'));
        TString const fullCode = isoString + u'-' + TString(row.market);
        if (FindSupported(language) == nullptr)
            AddSupported(language, fullCode);
        AddSupported(isoString, fullCode);
        AddSupported(fullCode, fullCode);
    }
    for (CodeRow const & row : SpecialLocales())
        m_special.emplace(TString(row.key), TString(row.fullCode));

    if (withPseudoLocales) {
        for (char16_t const * key : {PSEUDO_LANGUAGE, PSEUDO_LOCALE, PSEUDO_CODE})
            AddSupported(key, PSEUDO_CODE);
        for (char16_t const * key : {BIDI_PSEUDO_LANGUAGE, BIDI_PSEUDO_LOCALE, BIDI_PSEUDO_CODE})
            AddSupported(key, BIDI_PSEUDO_CODE);
        m_special.insert_or_assign(TString(PSEUDO_CODE), TString(u"en_US-US"));
        m_special.insert_or_assign(TString(BIDI_PSEUDO_CODE), TString(u"en_US-US"));
    }
}

void LanguageCatalogue::AddSupported(TString const & key, TString const & fullCode)
{
    auto const [place, isNew] = m_supported.emplace(key, m_rows.size());
    if (isNew)
        m_rows.push_back({key, fullCode, GetLanguageName(key), GetLanguageScript(key), MarketOf(key)});
    else
        m_rows[place->second].fullCode = fullCode;
}

TString const * LanguageCatalogue::FindSupported(TString const & code) const
{
    auto const found = m_supported.find(code);
    return found == m_supported.end() ? nullptr : &m_rows[found->second].fullCode;
}

std::unordered_set<TString> LanguageCatalogue::GetSupportedLanguages() const
{
    std::unordered_set<TString> codes;
    for (SupportedRow const & row : m_rows)
        codes.insert(row.fullCode);
    return codes;
}

TString LanguageCatalogue::GetClosestSupportedCode(TString const & code) const
{
    if (TString const * const fullCode = FindSupported(code))
        return *fullCode;
    TString const language = GetLanguageName(code);
    TString const market = MarketOf(code);
    LanguageScript const script = GetLanguageScript(GetISOString(code));
    for (SupportedRow const & row : m_rows) {
        if (row.language == language && row.script == script &&
            (market.isEmpty() || market == row.market || script != ScriptNone))
            return row.fullCode;
    }
    return DEFAULT_ISO_STRING;
}

TString LanguageCatalogue::GetClosestSpecialCode(TString const & code) const
{
    auto const found = m_special.find(code);
    if (found != m_special.end() && FindSupported(found->second) != nullptr)
        return found->second;
    TString const closest = GetClosestSupportedCode(code);
    // The default has a full code of its own, so this goes one level deep.
    return closest == DEFAULT_ISO_STRING ? GetClosestSpecialCode(DEFAULT_ISO_STRING) : closest;
}

std::vector<TString> LanguageCatalogue::GetDesktopLanguages(TString const & firstIsoString) const
{
    std::vector<DesktopLanguage> rows;
    for (auto const & [isoString, row] : m_desktop)
        rows.push_back(row);
    std::sort(rows.begin(), rows.end(), [&](DesktopLanguage const & a, DesktopLanguage const & b) {
        bool const aFirst = firstIsoString == a.isoString;
        bool const bFirst = firstIsoString == b.isoString;
        return aFirst != bFirst ? aFirst : TString(a.sortName) < TString(b.sortName);
    });
    std::vector<TString> isoStrings;
    for (DesktopLanguage const & row : rows)
        isoStrings.emplace_back(row.isoString);
    return isoStrings;
}

TString LanguageCatalogue::GetMenuLabel(TString const & isoString) const
{
    auto const found = m_desktop.find(isoString);
    return found == m_desktop.end() ? TString() : TString(found->second.menuLabel);
}

}  // namespace LanguageUtils::detail
