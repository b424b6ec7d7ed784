#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/string/CoreICUUtils.h"

namespace CoreICUUtils {

std::unique_ptr<VelICU_V2::ICULocale> GetLocale(LCID lcid)
{
    switch (lcid) {
    case 0: return VelICU::ICULocale::getRoot();
    case 1024: return VelICU::ICULocale::getDefault();
    default: return VelICU::ICULocale::createInstance(LanguageUtils::GetLocaleNarrowStr(lcid).c_str());
    }
}

}  // namespace CoreICUUtils
