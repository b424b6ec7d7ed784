// Names and patterns in the manner of an LCID.

#include "main/string/PatternGeneratorCache.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/string/CoreICUUtils.h"
#include "velcoredata/string/ICUUtils.h"
#include "velicu/ICUDateNames.h"

namespace ICUUtils {

TString GetLongDayName(int day, LCID lcid)
{
    return VelICU::ICUDateFormatSymbols::getWeekday(day, LanguageUtils::GetLocaleNarrowStr(lcid).c_str());
}

TString GetLongMonthName(int month, LCID lcid)
{
    return VelICU::ICUDateFormatSymbols::getMonth(month, LanguageUtils::GetLocaleNarrowStr(lcid).c_str());
}

TString GetShortQuarterName(int quarter, LCID lcid)
{
    return VelICU::ICUDateFormatSymbols::getQuarter(quarter, LanguageUtils::GetLocaleNarrowStr(lcid).c_str());
}

TString GetShortQuarterName(LCID lcid)
{
    TString name = GetShortQuarterName(1, lcid);
    name.removeAll(u'1');
    return name;
}

TString GetDisplayName(LCID lcid, LCID displayLcid)
{
    return CoreICUUtils::GetLocale(lcid)->getDisplayName(*CoreICUUtils::GetLocale(displayLcid));
}

TString GetBestDateTimePattern(TString const & skeleton, LCID lcid)
{
    return detail::FindBestPattern(skeleton, LanguageUtils::GetLocaleNarrowStr(lcid));
}

}  // namespace ICUUtils
