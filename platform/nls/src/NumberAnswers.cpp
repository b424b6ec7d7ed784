#include <unicode/calendar.h>
#include <unicode/decimfmt.h>
#include <unicode/ucurr.h>
#include <unicode/ulocdata.h>

#include <memory>

#include "LocaleAnswers.h"

namespace VelNLS::detail {

namespace {

using Symbol = icu::DecimalFormatSymbols::ENumberFormatSymbol;

std::u16string Text(icu::UnicodeString const & text)
{
    return std::u16string(text.getBuffer(), static_cast<std::size_t>(text.length()));
}

std::u16string Digits(int number)
{
    std::string const digits = std::to_string(number);
    return std::u16string(digits.begin(), digits.end());
}

// The number format of amounts (in the local currency) or of plain numbers.
class Format
{
public:
    Format(IcuLocale const & locale, UNumberFormatStyle style)
    {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::NumberFormat> made(icu::NumberFormat::createInstance(locale.data, style, status));
        m_format.reset(dynamic_cast<icu::DecimalFormat *>(made.get()));
        if (U_FAILURE(status) || m_format == nullptr) {
            m_format.reset();
            return;
        }
        made.release();
        if (style == UNUM_CURRENCY)
            SetLocalCurrency(locale);
    }

    explicit operator bool() const { return m_format != nullptr; }

    std::u16string GetSymbol(Symbol symbol) const
    {
        return Text(m_format->getDecimalFormatSymbols()->getConstSymbol(symbol));
    }
    std::u16string GetCurrencySymbol() const { return m_currencySymbol; }
    int GetCurrencyDigits() const
    {
        UErrorCode status = U_ZERO_ERROR;
        int const digits = ucurr_getDefaultFractionDigits(m_format->getCurrency(), &status);
        return U_FAILURE(status) ? 2 : digits;
    }

    std::u16string Print(double value) const
    {
        icu::UnicodeString printed;
        m_format->format(value, printed);
        return Text(printed);
    }

    // "3;0" for groups of three, "3;2;0" if those above the first have two digits.
    std::u16string GetGroups() const
    {
        int const first = m_format->isGroupingUsed() ? m_format->getGroupingSize() : 0;
        if (first <= 0)
            return u"0";
        int const others = m_format->getSecondaryGroupingSize();
        return Digits(first) + (others > 0 && others != first ? u";" + Digits(others) : u"") + u";0";
    }

private:
    void SetLocalCurrency(IcuLocale const & locale)
    {
        UErrorCode status = U_ZERO_ERROR;
        char16_t code[4] = {};
        if (ucurr_forLocale(locale.region.c_str(), code, 4, &status) == 3 && U_SUCCESS(status))
            m_format->setCurrency(code, status);
        // The symbol as the format prints it: a pattern may choose another than the currency's own.
        m_currencySymbol = GetSymbol(icu::DecimalFormatSymbols::kCurrencySymbol);
        UErrorCode nameStatus = U_ZERO_ERROR;
        std::int32_t length = 0;
        char16_t const * const name = ucurr_getName(m_format->getCurrency(), locale.data.getName(), UCURR_SYMBOL_NAME,
                                                    nullptr, &length, &nameStatus);
        if (U_SUCCESS(nameStatus) && name != nullptr)
            m_currencySymbol.assign(name, static_cast<std::size_t>(length));
    }

    std::unique_ptr<icu::DecimalFormat> m_format;
    std::u16string m_currencySymbol;
};

int MeasureSystem(IcuLocale const & locale)
{
    UErrorCode status = U_ZERO_ERROR;
    return ulocdata_getMeasurementSystem(locale.region.c_str(), &status) == UMS_US && U_SUCCESS(status) ? 1 : 0;
}

int FirstWeekOfYear(IcuLocale const & locale)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> const calendar(
        icu::Calendar::createInstance(icu::Locale((locale.region + "@calendar=gregorian").c_str()), status));
    int const days = U_FAILURE(status) ? 1 : calendar->getMinimalDaysInFirstWeek();
    return days == 7 ? 1 : days >= 4 ? 2 : 0;
}

std::u16string PlainNumberAnswer(Format const & format, LCTYPE query)
{
    switch (query) {
    case LOCALE_SDECIMAL: return format.GetSymbol(Symbol::kDecimalSeparatorSymbol);
    case LOCALE_STHOUSAND: return format.GetSymbol(Symbol::kGroupingSeparatorSymbol);
    case LOCALE_SLIST: return format.GetSymbol(Symbol::kDecimalSeparatorSymbol) == u"." ? u"," : u";";
    case LOCALE_SGROUPING: return format.GetGroups();
    case LOCALE_INEGNUMBER: return Digits(NegativeNumberLayout(format.Print(-1)));
    default: return {};
    }
}

std::u16string MoneyAnswer(Format const & format, LCTYPE query)
{
    switch (query) {
    case LOCALE_SCURRENCY: return format.GetCurrencySymbol();
    case LOCALE_SMONDECIMALSEP: return format.GetSymbol(Symbol::kMonetarySeparatorSymbol);
    case LOCALE_SMONTHOUSANDSEP: return format.GetSymbol(Symbol::kMonetaryGroupingSeparatorSymbol);
    case LOCALE_SMONGROUPING: return format.GetGroups();
    case LOCALE_ICURRDIGITS: return Digits(format.GetCurrencyDigits());
    case LOCALE_ICURRENCY: return Digits(CurrencyLayout(format.Print(1), format.GetCurrencySymbol()));
    case LOCALE_INEGCURR: return Digits(NegativeCurrencyLayout(format.Print(-1), format.GetCurrencySymbol()));
    default: return {};
    }
}

}  // namespace

std::u16string NumberAnswer(IcuLocale const & locale, LCTYPE query)
{
    switch (query) {
    // ICU has no such number: it prints what digits there are, up to three.
    case LOCALE_IDIGITS: return u"2";
    case LOCALE_IMEASURE: return Digits(MeasureSystem(locale));
    case LOCALE_IFIRSTWEEKOFYEAR: return Digits(FirstWeekOfYear(locale));
    case LOCALE_SDECIMAL:
    case LOCALE_STHOUSAND:
    case LOCALE_SLIST:
    case LOCALE_SGROUPING:
    case LOCALE_INEGNUMBER: {
        Format const format(locale, UNUM_DECIMAL);
        return format ? PlainNumberAnswer(format, query) : std::u16string();
    }
    case LOCALE_SCURRENCY:
    case LOCALE_SMONDECIMALSEP:
    case LOCALE_SMONTHOUSANDSEP:
    case LOCALE_SMONGROUPING:
    case LOCALE_ICURRDIGITS:
    case LOCALE_ICURRENCY:
    case LOCALE_INEGCURR: {
        Format const format(locale, UNUM_CURRENCY);
        return format ? MoneyAnswer(format, query) : std::u16string();
    }
    default: return {};
    }
}

}  // namespace VelNLS::detail
