// DateChoice: how the user wants dates to be read and printed.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "velcoredata/core/TLocale.h"

namespace typedtable {

struct DateChoice
{
    std::optional<std::string> datesIn;  // a locale in whose forms texts may be dates
    std::optional<std::string> datesAs;  // a pattern in ICU's letters: "d. MMMM yyyy"
    std::optional<std::string> locale;   // whose words and digits the pattern takes; the user's if it is not there
};

struct DateOrderRequest
{
    std::string locale;
};

/// The locale of a name, "de_DE". Throws UserError, which names the option, for a name that nobody knows.
TLocale MakeLocale(std::string const & option, std::string const & name);

/// One line: "de_DE: day, month, year (dd.MM.yyyy)". Throws UserError for an unknown locale.
void PrintDateOrder(std::ostream & out, DateOrderRequest const & request);

}  // namespace typedtable
