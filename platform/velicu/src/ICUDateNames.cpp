#include "velicu/ICUDateNames.h"

#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>

#include "NativeLocale.h"
#include "NativeString.h"
#include "StatusScope.h"
#include "velicu/LocaleNames.h"

namespace VelICU_V2 {

namespace {

icu::Locale CalendarLocale(char const * locale)
{
    return WithCalendar(icu::Locale(locale == nullptr ? t_uloc_getDefault() : locale));
}

// `pick` gives ICU's array of names and its length; `base` is the number of the array's first name.
template <class Pick>
TString NameAt(int number, int base, char const * locale, Pick pick)
{
    UErrorCode status = ::U_ZERO_ERROR;
    icu::DateFormatSymbols const symbols(CalendarLocale(locale), status);
    std::int32_t count = 0;
    icu::UnicodeString const * const names = U_FAILURE(status) ? nullptr : pick(symbols, count);
    return names == nullptr || number < base || number >= base + count ? TString() : ToTString(names[number - base]);
}

}  // namespace

TString ICUDateFormatSymbols::getWeekday(int day, char const * locale)
{
    // ICU's array has an empty element before Sunday.
    return NameAt(day, 0, locale, [](icu::DateFormatSymbols const & symbols, std::int32_t & count) {
        return symbols.getWeekdays(count);
    });
}

TString ICUDateFormatSymbols::getMonth(int month, char const * locale)
{
    return NameAt(month, 1, locale, [](icu::DateFormatSymbols const & symbols, std::int32_t & count) {
        return symbols.getMonths(count);
    });
}

TString ICUDateFormatSymbols::getQuarter(int quarter, char const * locale)
{
    return NameAt(quarter, 1, locale, [](icu::DateFormatSymbols const & symbols, std::int32_t & count) {
        return symbols.getQuarters(count, icu::DateFormatSymbols::FORMAT, icu::DateFormatSymbols::ABBREVIATED);
    });
}

struct ICUDateTimePatternGenerator::Native
{
    std::unique_ptr<icu::DateTimePatternGenerator> generator;
};

ICUDateTimePatternGenerator::ICUDateTimePatternGenerator(std::unique_ptr<Native> native) : m_native(std::move(native))
{}

ICUDateTimePatternGenerator::~ICUDateTimePatternGenerator() = default;

std::unique_ptr<ICUDateTimePatternGenerator> ICUDateTimePatternGenerator::createInstance(char const * locale,
                                                                                         ICUErrorCode & status)
{
    StatusScope scope(status);
    std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(CalendarLocale(locale), scope));
    if (scope.Failed())
        return nullptr;
    return std::make_unique<ICUDateTimePatternGenerator>(std::unique_ptr<Native>(new Native{std::move(generator)}));
}

TString ICUDateTimePatternGenerator::getBestPattern(TString const & skeleton, ICUErrorCode & status)
{
    StatusScope scope(status);
    if (scope.Failed())
        return TString();
    icu::UnicodeString const pattern = m_native->generator->getBestPattern(AliasOf(skeleton), scope);
    return scope.Failed() ? TString() : ToTString(pattern);
}

}  // namespace VelICU_V2
