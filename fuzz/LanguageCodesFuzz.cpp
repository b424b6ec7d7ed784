#include "fuzz/support/FuzzText.h"
#include "velcoredata/core/LanguageCode.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/utility/CoreDataOptions.h"

using fuzz_support::Require;
using namespace LanguageUtils;

namespace {

void CheckTables(TString const & text)
{
    TString const closest = GetClosestSupportedLanguageCode(text);
    Require(closest == u"en_US" || GetSupportedLanguages().count(closest) == 1, "closest is a full code");
    TString const special = GetClosestSpecialLocaleCode(text);
    Require(GetSupportedLanguages().count(special) == 1, "special is a full code");
    Require(GetClosestSupportedLanguageCode(special) == special, "a full code is its own closest");
    Require(IsLanguageCodeSupported(special), "a full code is supported");
    GetLanguageScript(text);
    GetDisplayStringForLanguageCode(text);
    UsesImperialDistanceUnits(text);
    Require(IsLocaleSupported(text) == (GetLCID(text) != 0), "a locale with an LCID is supported");
}

void CheckParts(TString const & text)
{
    Require(text.startsWith(GetISOString(text)), "the ISO string begins the code");
    TString const bare = RemoveMarketStringFromLanguageCode(text);
    Require(bare == text || text.startsWith(bare + u'-'), "a market is cut behind its hyphen");
    Require(bare == text || bare.indexOf(u'-') < 0, "what is left has no market");
    TString const plain = RemoveScriptFromLanguageCode(text);
    Require(plain == text || plain.count(u'_') == 1, "what is left has no script");
    Require(plain.length() <= text.length(), "no code grows");
}

void CheckCode(TString const & text, bool withBiDiPseudo)
{
    LanguageCode const code(text);
    Require(code.GetISOString() == GetLocaleStr(code.GetLCID()) || text.isEmpty(),
            "the ISO string is that of the LCID");
    Require((code.GetLCID() == 4096) == (withBiDiPseudo && text == u"ar_YE-US"), "only the pseudo-locale has 4096");
    Require(code.GetFullString().startsWith(code.GetISOString()), "the ISO string begins the full code");
    int const hyphen = text.indexOf(u'-');
    if (hyphen > 0 && hyphen + 1 < text.length() && !IsLanguageCodeSupported(text))
        Require(code.GetMarketString() == text.mid(hyphen + 1), "a market that is told is taken");
    Require(code.GetWebLanguageCode().indexOf(u'_') < 0, "web pages have hyphens");
    code.GetDisplayName(0x409);
    code.GetCountryName();
    code.GetMapCode();

    LanguageCode named(LCID(0x407));
    named.SetLanguageCode(text, true);
    Require(named.GetLCID() == (text.isEmpty() ? 0u : 0x407u), "from an LCID the LCID stays");
    Require(named.GetMarketString() == code.GetMarketString(), "markets do not ask where a code comes from");

    TLocale const locale(text);
    Require(locale.GetLCID() == code.GetLCID(), "a locale has the LCID of its code");
    TLocale const copy(locale);
    // Which need not be the same: "de_DE_phoneb" becomes "de_DE".
    Require(copy.getLanguageCode().GetFullString() == LanguageCode(code.GetISOString()).GetFullString(),
            "a copy is made from the ISO string");
}

void CheckLcid(LCID lcid)
{
    LanguageCode const code(lcid);
    Require(code.GetLCID() == lcid, "an LCID is kept");
    Require(!code.GetISOString().isEmpty(), "every LCID has a name");
    Require(code.GetLangID() == (lcid & 0xFFFF), "the language is the lower half");
    code.GetDisplayName(lcid);
    Require(TLocale(lcid).GetLCID() == lcid, "a locale keeps it too");
    Require(TLocale::GetPrimaryLanguage(lcid) <= 0x3FF, "a primary language has ten bits");
    Require(GetSupportedLanguages().count(GetClosestSpecialLocaleCode(lcid)) == 1, "special is a full code");
}

}  // namespace

// A code, and its first four bytes as an LCID. Nothing raises; what comes out is supported, stable and canonical.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    TString const text = fuzz_support::Text(data, size);
    LCID lcid = 0;
    for (std::size_t i = 0; i < size && i < 4; ++i)
        lcid |= static_cast<LCID>(data[i]) << (8 * i);

    CheckTables(text);
    CheckParts(text);
    for (bool const withBiDiPseudo : {true, false}) {
        CoreDataOptions::SetUseBiDiPseudo(withBiDiPseudo);
        CheckCode(text, withBiDiPseudo);
    }
    CheckLcid(lcid);
    return 0;
}
