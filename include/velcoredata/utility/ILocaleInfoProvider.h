#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/core/MeasureSystem.h"
#include "velcoredata/data/DateEnums.h"
#include "velcoredata/string/DefaultDateTimeFormatSpec.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

struct NumberFormatOptions;

/// The seam to the operating system's regional settings: all that TLocale knows of an LCID comes from here. The library
/// has one provider of its own. LCID 0 and the defaults (1024, 2048) ask for the user's locale.
///
/// Implementations hold no state; any thread may call. Nothing raises: a setting that the system does not have for an
/// LCID has the answer that stands behind "else".
class VELCOREDATA_API ILocaleInfoProvider
{
public:
    virtual ~ILocaleInfoProvider();

    // Patterns, else the empty text. The examples are of 1033 and SpecDateTime. The last three are the second one,
    // rewritten.

    virtual TString GetLocaleFormatAsICU(ICUUtils::DefaultDateTimeFormatSpec spec,
                                         LCID lcid) = 0;  ///< M/d/yyyy h:mm:ss a
    virtual TString GetLocaleFormatAsWindows(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid) = 0;  ///< ... tt
    virtual TString GetLocaleFormatAsCustom(ICUUtils::DefaultDateTimeFormatSpec spec,
                                            LCID lcid) = 0;  ///< ... h:nn:ss AM/PM
    virtual TString GetLocaleFormatQLocale(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid) = 0;  ///< ... AP

    /// How the locale writes amounts of money. Sets all fields but one: the symbol goes into `prefix` or `suffix`, with
    /// a blank between it and the number where the locale has one, and the other of the two stays as it was.
    virtual void GetSystemCurrencySettings(LCID lcid, NumberFormatOptions * options) = 0;
    /// How the locale writes numbers. Sets all fields; prefix, suffix and units are cleared.
    virtual void GetSystemNumberSettings(LCID lcid, NumberFormatOptions * options) = 0;

    virtual int GetCurrencyDecimalPlaces(LCID lcid) = 0;                  ///< 0 for 1041 (Japan), else 2
    virtual int GetNumberDecimalPlaces(LCID lcid) = 0;                    ///< else 2
    virtual TString GetCurrencyString(LCID lcid) = 0;                     ///< "$", else empty
    virtual TString GetThousandSeparator(LCID lcid) = 0;                  ///< ",", else empty
    virtual TString GetDecimalPoint(LCID lcid) = 0;                       ///< "," for 1031, else "."
    virtual TString GetListSeparator(LCID lcid) = 0;                      ///< ";" for 1031, else ","
    virtual Localization::MeasureSystem GetMeasureSystem(LCID lcid) = 0;  ///< else MeasureUS
    virtual FirstWeekBehaviour GetFirstWeekBehaviour(LCID lcid) = 0;      ///< else FirstWeekContainsJanFirst

protected:
    ILocaleInfoProvider() = default;
    ILocaleInfoProvider(ILocaleInfoProvider const &) = default;
    ILocaleInfoProvider & operator=(ILocaleInfoProvider const &) = default;
};
