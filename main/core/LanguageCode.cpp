#include "velcoredata/core/LanguageCode.h"

#include "main/core/BiDiPseudoOption.h"
#include "main/core/LanguageCatalogue.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/string/CoreICUUtils.h"
#include "velcoredata/string/ICUUtils.h"
#include "velcoreplatform/TFormatString.h"
#include "velicu/ICULocale.h"

namespace tables = LanguageUtils::detail;

namespace {

constexpr LCID USER_DEFAULT_LCID = 1024;

}  // namespace

LanguageCode::LanguageCode()
{
    SetLCID(USER_DEFAULT_LCID);
}

LanguageCode::LanguageCode(LCID lcid)
{
    SetLCID(lcid);
}

LanguageCode::LanguageCode(TString const & code)
{
    SetLanguageCode(code, false);
}

LanguageCode::LanguageCode(LanguageCode const & other) = default;
LanguageCode & LanguageCode::operator=(LanguageCode const & other) = default;
LanguageCode::~LanguageCode() = default;

LanguageCode LanguageCode::GetUILanguageCode()
{
    LanguageCode code;
    code.SetLanguageCode(LanguageUtils::GetUILanguageCodeStr(), false);
    return code;
}

TString const LanguageCode::GetFullString() const
{
    return m_marketString.isEmpty() ? m_isoString : TString(TFormatString(u"%1-%2").arg(m_isoString, m_marketString));
}

TString const LanguageCode::GetShortLanguageCode() const
{
    return m_isoString.left(2);
}

MapCode LanguageCode::GetMapCode() const
{
    auto const & codes = LanguageUtils::GetMapCodeLocales();
    auto const found = codes.find(m_isoString);
    return found == codes.end() ? MapCodeUS : found->second;
}

TString LanguageCode::GetCountryName() const
{
    return ICUUtils::GetCountryName(m_isoString);
}

TString LanguageCode::GetLanguageName() const
{
    return ICUUtils::GetLanguageName(m_isoString);
}

TString LanguageCode::GetDisplayName(LCID displayLcid) const
{
    return VelICU::ICULocale::createInstance(m_isoString)->getDisplayName(*CoreICUUtils::GetLocale(displayLcid));
}

TString LanguageCode::GetWebLanguageCode() const
{
    if (CoreData::detail::GetUseBiDiPseudo() && m_isoString == tables::BIDI_PSEUDO_LOCALE)
        return u"ar-ye";
    TString code = m_isoString.toLower();
    code.replace(u'_', u'-');
    return code;
}

void LanguageCode::SetLCID(LCID lcid)
{
    SetLanguageCode(LanguageUtils::GetLocaleStr(lcid), true);
    m_lcid = lcid;
}

void LanguageCode::SetLanguageCode(TString const & code, bool fromLcid)
{
    tables::LanguageCatalogue const & catalogue = tables::LanguageCatalogue::Get();
    // By value: `code` may be one of this object's own strings.
    TString const given = code;
    TString const * const fullCode = catalogue.FindSupported(given);
    TString const value = fullCode == nullptr ? given : *fullCode;
    if (value.isEmpty()) {
        m_lcid = 0;
        m_isoString.clear();
        m_marketString.clear();
        return;
    }

    if (fromLcid) {
        m_isoString = LanguageUtils::GetISOString(value);
    } else if (CoreData::detail::GetUseBiDiPseudo() && value == tables::BIDI_PSEUDO_CODE) {
        m_lcid = tables::BIDI_PSEUDO_LCID;
        m_isoString = tables::BIDI_PSEUDO_LOCALE;
    } else {
        m_lcid = ICUUtils::GetLCID(LanguageUtils::GetISOString(value));
        m_isoString = LanguageUtils::GetLocaleStr(m_lcid);
    }

    m_marketString = tables::MarketOf(value);
    if (m_marketString.isEmpty()) {
        if (TString const * const ofLanguage = catalogue.FindSupported(ICUUtils::GetLanguageName(given)))
            m_marketString = tables::MarketOf(*ofLanguage);
    }
}
