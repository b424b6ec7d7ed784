#include "main/utility/WinApiLocaleInfoProvider.h"

#include <string>

#include "main/utility/DatePicture.h"

namespace {

constexpr LCID USER_DEFAULT_LCID = 1024;

// The room that each kind of answer gets, terminator included; a longer answer is a failure.
constexpr int DIGIT_ROOM = 2;
constexpr int LIST_SEPARATOR_ROOM = 4;
constexpr int SEPARATOR_ROOM = 10;
constexpr int TEXT_ROOM = 100;

constexpr int USUAL_DECIMALS = 2;

void SetGrouping(TString const & grouping, NumberFormatOptions & options)
{
    options.grouping = grouping;
    TString const first = grouping.left(grouping.findOneOf(u";") < 0 ? grouping.length() : grouping.findOneOf(u";"));
    options.useGrouping = first.toInt() > 0;
}

}  // namespace

namespace detail {

NegativeFormatEnum NegativeOfNumberLayout(int layout) noexcept
{
    switch (layout) {
    case 0: return NegativeFormatEnum::Parentheses;
    case 1:
    case 2: return NegativeFormatEnum::MinusFirst;
    case 3:
    case 4: return NegativeFormatEnum::MinusLast;
    default: return NegativeFormatEnum::Automatic;
    }
}

NegativeFormatEnum NegativeOfCurrencyLayout(int layout) noexcept
{
    using enum NegativeFormatEnum;
    constexpr NegativeFormatEnum NEGATIVE[] = {
        Parentheses,      MinusFirst,       MinusAfterPrefix, MinusLast,   Parentheses, MinusFirst,
        MinusAfterNumber, MinusLast,        MinusFirst,       MinusFirst,  MinusLast,   MinusLast,
        MinusAfterPrefix, MinusAfterNumber, Parentheses,      Parentheses,
    };
    return layout >= 0 && layout < 16 ? NEGATIVE[layout] : Automatic;
}

void PlaceCurrencySymbol(int layout, TString const & symbol, NumberFormatOptions & options)
{
    switch (layout) {
    case 1: options.suffix = symbol; break;
    case 2: options.prefix = symbol + u' '; break;
    case 3: options.suffix = u' ' + symbol; break;
    default: options.prefix = symbol; break;
    }
}

FirstWeekBehaviour FirstWeekOfQuery(int answer) noexcept
{
    switch (answer) {
    case 1: return FirstWeekFullWeek;
    case 2: return FirstWeekFourDays;
    default: return FirstWeekContainsJanFirst;
    }
}

}  // namespace detail

WinApiLocaleInfoProvider::WinApiLocaleInfoProvider(Query query) : m_query(query) {}
WinApiLocaleInfoProvider::~WinApiLocaleInfoProvider() = default;

// False leaves `out` alone.
template <int room>
bool WinApiLocaleInfoProvider::Ask(LCID lcid, LCTYPE type, TString & out) const
{
    char16_t buffer[room] = {};
    if (m_query(lcid, type, buffer, room) <= 0)
        return false;
    out = TString(buffer);
    return true;
}

template <int room>
TString WinApiLocaleInfoProvider::AskText(LCID lcid, LCTYPE type, char16_t const * otherwise) const
{
    TString answer(otherwise);
    Ask<room>(lcid, type, answer);
    return answer;
}

int WinApiLocaleInfoProvider::AskNumber(LCID lcid, LCTYPE type, int otherwise) const
{
    TString answer;
    return Ask<DIGIT_ROOM>(lcid, type, answer) ? answer.toInt() : otherwise;
}

// Layouts of negative amounts have two digits.
int WinApiLocaleInfoProvider::AskLayout(LCID lcid, LCTYPE type) const
{
    TString answer;
    return Ask<TEXT_ROOM>(lcid, type, answer) ? answer.toInt() : -1;
}

TString WinApiLocaleInfoProvider::AskPicture(LCID lcid, LCTYPE type) const
{
    int const size = m_query(lcid, type, nullptr, 0);
    if (size <= 0)
        return TString();
    std::u16string picture(static_cast<std::size_t>(size), u'\0');
    if (m_query(lcid, type, picture.data(), size) <= 0)
        return TString();
    return TString(picture.c_str());
}

TString WinApiLocaleInfoProvider::GetLocaleFormatAsWindows(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid)
{
    switch (spec) {
    case ICUUtils::SpecLongDate: return AskPicture(lcid, LOCALE_SLONGDATE);
    case ICUUtils::SpecShortDate: return AskPicture(lcid, LOCALE_SSHORTDATE);
    case ICUUtils::SpecTime: return AskPicture(lcid, LOCALE_STIMEFORMAT);
    case ICUUtils::SpecShortTime: return AskPicture(lcid, LOCALE_SSHORTTIME);
    default: return AskPicture(lcid, LOCALE_SSHORTDATE) + u' ' + AskPicture(lcid, LOCALE_STIMEFORMAT);
    }
}

TString WinApiLocaleInfoProvider::GetLocaleFormatAsICU(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return detail::PictureToIcu(GetLocaleFormatAsWindows(spec, lcid));
}

TString WinApiLocaleInfoProvider::GetLocaleFormatAsCustom(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return detail::PictureToCustom(GetLocaleFormatAsWindows(spec, lcid));
}

TString WinApiLocaleInfoProvider::GetLocaleFormatQLocale(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid)
{
    return detail::PictureToQt(GetLocaleFormatAsWindows(spec, lcid));
}

void WinApiLocaleInfoProvider::GetSystemCurrencySettings(LCID lcid, NumberFormatOptions * options)
{
    options->units = UnitsFormatEnum::None;
    options->decimals = GetCurrencyDecimalPlaces(lcid);
    options->decimalSeparator = AskText<TEXT_ROOM>(lcid, LOCALE_SMONDECIMALSEP);
    detail::PlaceCurrencySymbol(AskLayout(lcid, LOCALE_ICURRENCY), AskText<TEXT_ROOM>(lcid, LOCALE_SCURRENCY),
                                *options);
    SetGrouping(AskText<TEXT_ROOM>(lcid, LOCALE_SMONGROUPING), *options);
    options->thousandSeparator = AskText<TEXT_ROOM>(lcid, LOCALE_SMONTHOUSANDSEP);
    options->negative = detail::NegativeOfCurrencyLayout(AskLayout(lcid, LOCALE_INEGCURR));
}

void WinApiLocaleInfoProvider::GetSystemNumberSettings(LCID lcid, NumberFormatOptions * options)
{
    options->prefix.clear();
    options->suffix.clear();
    options->units = UnitsFormatEnum::None;
    options->decimals = GetNumberDecimalPlaces(lcid);
    options->decimalSeparator = AskText<TEXT_ROOM>(lcid, LOCALE_SDECIMAL);
    SetGrouping(AskText<TEXT_ROOM>(lcid, LOCALE_SGROUPING), *options);
    options->thousandSeparator = AskText<TEXT_ROOM>(lcid, LOCALE_STHOUSAND);
    options->negative = detail::NegativeOfNumberLayout(AskLayout(lcid, LOCALE_INEGNUMBER));
}

int WinApiLocaleInfoProvider::GetCurrencyDecimalPlaces(LCID lcid)
{
    return AskNumber(lcid == 0 ? USER_DEFAULT_LCID : lcid, LOCALE_ICURRDIGITS, USUAL_DECIMALS);
}

int WinApiLocaleInfoProvider::GetNumberDecimalPlaces(LCID lcid)
{
    return AskNumber(lcid == 0 ? USER_DEFAULT_LCID : lcid, LOCALE_IDIGITS, USUAL_DECIMALS);
}

TString WinApiLocaleInfoProvider::GetCurrencyString(LCID lcid)
{
    return AskText<TEXT_ROOM>(lcid, LOCALE_SCURRENCY);
}

TString WinApiLocaleInfoProvider::GetThousandSeparator(LCID lcid)
{
    return AskText<SEPARATOR_ROOM>(lcid, LOCALE_STHOUSAND);
}

TString WinApiLocaleInfoProvider::GetDecimalPoint(LCID lcid)
{
    return AskText<SEPARATOR_ROOM>(lcid, LOCALE_SDECIMAL, u".");
}

TString WinApiLocaleInfoProvider::GetListSeparator(LCID lcid)
{
    return AskText<LIST_SEPARATOR_ROOM>(lcid, LOCALE_SLIST, u",");
}

Localization::MeasureSystem WinApiLocaleInfoProvider::GetMeasureSystem(LCID lcid)
{
    TString const answer = AskText<DIGIT_ROOM>(lcid, LOCALE_IMEASURE);
    return answer.startsWith(u"0") ? Localization::MeasureMetric : Localization::MeasureUS;
}

FirstWeekBehaviour WinApiLocaleInfoProvider::GetFirstWeekBehaviour(LCID lcid)
{
    return detail::FirstWeekOfQuery(AskNumber(lcid, LOCALE_IFIRSTWEEKOFYEAR, 0));
}
