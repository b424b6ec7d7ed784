// The answers to the queries of GetLocaleInfoW, by subject.
#pragma once

#include <string>

#include "IcuLocale.h"
#include "velnls/LocaleInfo.h"

namespace VelNLS::detail {

// Separators, groups, digits, measures and the layouts of numbers and amounts of money. Empty for a query of another
// subject.
std::u16string NumberAnswer(IcuLocale const & locale, LCTYPE query);

// The pictures of dates and times. Empty for a query of another subject.
std::u16string PictureAnswer(IcuLocale const & locale, LCTYPE query);

// An ICU date pattern in the Windows notation: the year of four digits, "ddd" and "dddd" for names of days, "tt" for
// the halves of a day, "gg" for the era, letters that stand for themselves in quotes, common blanks, no marks of
// direction. u"EEEE, d 'de' MMMM y" is u"dddd, d 'de' MMMM yyyy".
VELNLS_API std::u16string WindowsPicture(std::u16string_view pattern);

// The number of a negative layout, LOCALE_INEGNUMBER or LOCALE_INEGCURR, of a negative amount as it is printed:
// u"-$1.00" with the symbol u"$" is 1.
VELNLS_API int NegativeNumberLayout(std::u16string_view printed);
VELNLS_API int NegativeCurrencyLayout(std::u16string_view printed, std::u16string_view symbol);
// LOCALE_ICURRENCY of a positive amount as it is printed.
VELNLS_API int CurrencyLayout(std::u16string_view printed, std::u16string_view symbol);

}  // namespace VelNLS::detail
