#include "fuzz/support/FuzzText.h"
#include "velcoredata/core/LanguageCode.h"
#include "velcoredata/core/LanguageUtils.h"

// A code, and its first four bytes as an LCID. Nothing raises; what comes out is supported, stable and canonical.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    using namespace LanguageUtils;
    TString const text = fuzz_support::Text(data, size);

    TString const closest = GetClosestSupportedLanguageCode(text);
    fuzz_support::Require(closest == u"en_US" || GetSupportedLanguages().count(closest) == 1, "closest is a full code");
    TString const special = GetClosestSpecialLocaleCode(text);
    fuzz_support::Require(GetSupportedLanguages().count(special) == 1, "special is a full code");
    fuzz_support::Require(GetClosestSupportedLanguageCode(special) == special, "a full code is its own closest");

    fuzz_support::Require(text.startsWith(GetISOString(text)), "the ISO string begins the code");
    fuzz_support::Require(RemoveMarketStringFromLanguageCode(text).length() <= text.length(), "no code grows");
    fuzz_support::Require(RemoveScriptFromLanguageCode(text).length() <= text.length(), "no code grows");
    GetLanguageScript(text);
    GetDisplayStringForLanguageCode(text);
    IsLocaleSupported(text);

    LanguageCode const code(text);
    fuzz_support::Require(code.GetISOString() == GetLocaleStr(code.GetLCID()) || text.isEmpty(),
                          "the ISO string is that of the LCID");
    code.GetWebLanguageCode();
    code.GetDisplayName(0x409);
    code.GetCountryName();

    LCID lcid = 0;
    for (std::size_t i = 0; i < size && i < 4; ++i)
        lcid |= static_cast<LCID>(data[i]) << (8 * i);
    LanguageCode const fromLcid(lcid);
    fuzz_support::Require(fromLcid.GetLCID() == lcid, "an LCID is kept");
    fuzz_support::Require(!fromLcid.GetISOString().isEmpty(), "every LCID has a name");
    fromLcid.GetDisplayName(lcid);
    return 0;
}
