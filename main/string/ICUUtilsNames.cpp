#include "velcoredata/string/ICUUtils.h"
#include "velicu/Converters.h"
#include "velicu/Currency.h"
#include "velicu/ICULocale.h"
#include "velicu/LocaleNames.h"
#include "velnls/CodePages.h"
#include "velsys/ThrowSite.h"

namespace ICUUtils {

TString GetLanguageName(TString const & locale)
{
    return TString::fromLocal8Bit(VelICU::ICULocale::createInstance(locale)->getLanguage());
}

TString GetCountryName(TString const & locale)
{
    return TString::fromLocal8Bit(VelICU::ICULocale::createInstance(locale)->getCountry());
}

TString GetCountryNameISO3(TString const & locale)
{
    return TString::fromLocal8Bit(VelICU::ICULocale::createInstance(locale)->getISO3Country());
}

TString GetCurrencyCode(TString const & locale)
{
    char16_t code[4] = {};
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    VelICU::t_ucurr_forLocale(locale.toLocal8Bit().c_str(), code, 4, status);
    return VelICU::ICU_SUCCESS(status) ? TString(code) : TString();
}

LCID GetDefaultLCID()
{
    return VelICU::ICULocale::getDefault()->getLCID();
}

LCID GetLCID(TString const & locale)
{
    return VelICU::t_uloc_getLCID(locale.toLocal8Bit().c_str());
}

TString TryGetIanaCharactersetName(char const * name)
{
    if (name == nullptr)
        return TString();
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    char const * const registered = VelICU::t_ucnv_getStandardName(name, "IANA", status);
    return TString::fromLocal8Bit(registered == nullptr || VelICU::ICU_FAILURE(status) ? name : registered);
}

TString TryGetIanaCharactersetName(CodePage codePage)
{
    unsigned number = 0;
    switch (codePage) {
    case OEMCodePage: number = GetOEMCP(); break;
    case ANSICodePage: number = GetACP(); break;
    default: VELTRIA_FAIL("false", 0xCFFFF092);
    }
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    char const * const canonical =
        VelICU::t_ucnv_getCanonicalName(("windows-" + std::to_string(number)).c_str(), "WINDOWS", status);
    return TryGetIanaCharactersetName(VelICU::ICU_FAILURE(status) ? nullptr : canonical);
}

int CountAvailableConverters()
{
    return VelICU::t_ucnv_countAvailable();
}

char const * GetAvailableConverterName(int index)
{
    return VelICU::t_ucnv_getAvailableName(index);
}

}  // namespace ICUUtils
