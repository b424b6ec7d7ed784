#include "velcoredata/string/NumberFormatSettings.h"

#include <tuple>

#include "velcoredata/core/TLocale.h"
#include "velcoredata/string/OleFormatString.h"
#include "velcoredata/string/StandardNumberFormats.h"
#include "velcoredata/utility/LocaleHelper.h"

namespace {

constexpr int kDecimalsOfNamedFormats = 2;

TString DatePicture(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return TLocale::GetLocaleFormatAsWindows(spec, lcid).replace(u'\'', u'"');
}

}  // namespace

void PopulateNumberFormatOptions(FormatCode code, LCID lcid, TString format, NumberFormatOptions * options,
                                 int defaultDecimals, int groupingOverride)
{
    if (code == FormatCodeNamed && (format == u"Percent" || format == u"Scientific")) {
        code = format == u"Percent" ? FormatCodePercent : FormatCodeScientific;
        defaultDecimals = kDecimalsOfNamedFormats;
        format.clear();
    }
    if (lcid == 0)
        lcid = LocaleHelper::GetSessionLCID();
    NumberFormatOptions numbers;
    TLocale::GetSystemNumberSettings(lcid, &numbers);
    options->decimalSeparator = numbers.decimalSeparator;
    options->thousandSeparator = numbers.thousandSeparator;
    if (groupingOverride != -1)
        options->useGrouping = groupingOverride > 0;

    switch (code) {
    case FormatCodeAuto:
        ParseOleFormatString(format, options);
        options->decimals = defaultDecimals;
        break;
    case FormatCodeSystemCurrency: TLocale::GetSystemCurrencySettings(lcid, options); break;
    case FormatCodeSystemNumber: TLocale::GetSystemNumberSettings(lcid, options); break;
    case FormatCodeScientific: options->decimals = GetDecimalsFromScientificString(format, defaultDecimals); break;
    case FormatCodePercent:
        std::tie(options->decimals, options->useGrouping) = GetDecimalsFromPercentString(format, defaultDecimals);
        options->negative = NegativeFormatEnum::MinusFirst;
        break;
    default: ParseOleFormatString(format, options); break;
    }
}

void GetFormatCodeAndOptionsFromString(TString const & encoded, FormatCode & code, LCID & lcid,
                                       NumberFormatOptions * options)
{
    TString format;
    DecodeFormatString(encoded, code, lcid, format);
    PopulateNumberFormatOptions(code, lcid, format, options, 0, -1);
}

void GetStringFromFormatCodeAndOptions(FormatCode code, LCID lcid, NumberFormatOptions const & options, TString & out)
{
    TString format;
    switch (code) {
    case FormatCodeCurrency:
    case FormatCodeNumber:
        format = BuildOleFormatString(&options, options.units != UnitsFormatEnum::None, nullptr, nullptr);
        break;
    case FormatCodeScientific: format = GetScientificFormatStringOfSize(options.decimals); break;
    case FormatCodePercent: format = GetPercentFormatStringOfSize(options.decimals); break;
    default: break;
    }
    out = EncodeFormatString(code, lcid, format);
}

TString GetOleFormatString(FormatCode code, LCID lcid, int const * decimals)
{
    switch (code) {
    case FormatCodeLongDate: return DatePicture(ICUUtils::SpecLongDate, lcid);
    case FormatCodeShortDate: return DatePicture(ICUUtils::SpecShortDate, lcid);
    case FormatCodeTime: return DatePicture(ICUUtils::SpecTime, lcid);
    case FormatCodeSystemNumber: {
        NumberFormatOptions options;
        TLocale::GetSystemNumberSettings(lcid, &options);
        if (decimals != nullptr)
            options.decimals = *decimals;
        return BuildOleFormatString(&options, true, nullptr, nullptr);
    }
    default: return TString();
    }
}
