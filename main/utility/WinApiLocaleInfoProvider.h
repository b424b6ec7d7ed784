// The library's provider of regional settings: the published locale queries of layer nls.
#pragma once

#include "velcoredata/string/NumberFormatOptions.h"
#include "velcoredata/utility/ILocaleInfoProvider.h"
#include "velnls/LocaleInfo.h"

class VELCOREDATA_API WinApiLocaleInfoProvider : public ILocaleInfoProvider
{
public:
    // Answers as GetLocaleInfoW does.
    using Query = int (*)(LCID lcid, LCTYPE type, char16_t * buffer, int size);

    explicit WinApiLocaleInfoProvider(Query query = &GetLocaleInfoW);
    ~WinApiLocaleInfoProvider() override;

    TString GetLocaleFormatAsICU(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid) override;
    TString GetLocaleFormatAsWindows(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid) override;
    TString GetLocaleFormatAsCustom(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid) override;
    TString GetLocaleFormatQLocale(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid) override;
    void GetSystemCurrencySettings(LCID lcid, NumberFormatOptions * options) override;
    void GetSystemNumberSettings(LCID lcid, NumberFormatOptions * options) override;
    int GetCurrencyDecimalPlaces(LCID lcid) override;
    int GetNumberDecimalPlaces(LCID lcid) override;
    TString GetCurrencyString(LCID lcid) override;
    TString GetThousandSeparator(LCID lcid) override;
    TString GetDecimalPoint(LCID lcid) override;
    TString GetListSeparator(LCID lcid) override;
    Localization::MeasureSystem GetMeasureSystem(LCID lcid) override;
    FirstWeekBehaviour GetFirstWeekBehaviour(LCID lcid) override;

private:
    template <int room>
    bool Ask(LCID lcid, LCTYPE type, TString & out) const;
    template <int room>
    TString AskText(LCID lcid, LCTYPE type, char16_t const * otherwise = u"") const;
    int AskNumber(LCID lcid, LCTYPE type, int otherwise) const;
    int AskLayout(LCID lcid, LCTYPE type) const;
    TString AskPicture(LCID lcid, LCTYPE type) const;

    Query const m_query;
};

namespace detail {

// From the numbers of the queries for layouts to the fields of the options; numbers outside the tables are Automatic.
VELCOREDATA_API NegativeFormatEnum NegativeOfNumberLayout(int layout) noexcept;    // LOCALE_INEGNUMBER, 0 to 4
VELCOREDATA_API NegativeFormatEnum NegativeOfCurrencyLayout(int layout) noexcept;  // LOCALE_INEGCURR, 0 to 15
// LOCALE_ICURRENCY, 0 to 3; numbers outside count as 0.
VELCOREDATA_API void PlaceCurrencySymbol(int layout, TString const & symbol, NumberFormatOptions & options);
// LOCALE_IFIRSTWEEKOFYEAR, 0 to 2; numbers outside count as 0.
VELCOREDATA_API FirstWeekBehaviour FirstWeekOfQuery(int answer) noexcept;

}  // namespace detail
