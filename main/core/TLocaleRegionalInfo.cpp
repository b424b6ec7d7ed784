// What the system knows of a locale: forwarded to its provider.

#include "main/core/DateOrder.h"
#include "main/core/FirstWeek.h"
#include "main/utility/WinApiLocaleInfoProvider.h"
#include "velcoredata/core/TLocale.h"

namespace {

ILocaleInfoProvider & Provider()
{
    static WinApiLocaleInfoProvider s_provider;
    return s_provider;
}

}  // namespace

TString TLocale::GetCurrencyString(LCID lcid)
{
    return Provider().GetCurrencyString(lcid);
}

int TLocale::GetCurrencyDecimalPlaces(LCID lcid)
{
    return Provider().GetCurrencyDecimalPlaces(lcid);
}

int TLocale::GetNumberDecimalPlaces(LCID lcid)
{
    return Provider().GetNumberDecimalPlaces(lcid);
}

TString TLocale::GetDecimalPoint(LCID lcid)
{
    return Provider().GetDecimalPoint(lcid);
}

TString TLocale::GetThousandSeparator(LCID lcid)
{
    return Provider().GetThousandSeparator(lcid);
}

TString TLocale::GetListSeparator(LCID lcid)
{
    return Provider().GetListSeparator(lcid);
}

void TLocale::GetSystemCurrencySettings(LCID lcid, NumberFormatOptions * options)
{
    Provider().GetSystemCurrencySettings(lcid, options);
}

void TLocale::GetSystemNumberSettings(LCID lcid, NumberFormatOptions * options)
{
    Provider().GetSystemNumberSettings(lcid, options);
}

Localization::MeasureSystem TLocale::GetMeasureSystem(LCID lcid)
{
    return Provider().GetMeasureSystem(lcid);
}

FirstWeekBehaviour TLocale::GetFirstWeekBehaviour(LCID lcid)
{
    return Provider().GetFirstWeekBehaviour(lcid);
}

bool TLocale::FirstWeekIsBroken(LCID lcid)
{
    return GetFirstWeekBehaviour(lcid) == FirstWeekContainsJanFirst;
}

int TLocale::GetMinimalDaysInFirstWeek(LCID lcid)
{
    return detail::MinimalDaysOf(GetFirstWeekBehaviour(lcid));
}

TString TLocale::GetLocaleFormatAsICU(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return Provider().GetLocaleFormatAsICU(spec, lcid);
}

TString TLocale::GetLocaleFormatAsWindows(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return Provider().GetLocaleFormatAsWindows(spec, lcid);
}

TString TLocale::GetLocaleFormatAsCustom(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return Provider().GetLocaleFormatAsCustom(spec, lcid);
}

TString TLocale::GetLocaleFormatQLocale(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return Provider().GetLocaleFormatQLocale(spec, lcid);
}

TLocale::DateOrder TLocale::GetDateOrder(LCID lcid)
{
    return detail::DateOrderOf(GetLocaleFormatAsICU(ICUUtils::SpecShortDate, lcid));
}
