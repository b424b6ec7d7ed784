// LocaleList: the locales there are.
#pragma once

#include <iosfwd>
#include <string>

namespace typedtable {

struct LocalesRequest
{
    std::string pattern;  // a regular expression; empty for all
};

/// Prints the locales whose name ("sv_SE") or name in the language in force (English) has a match of the pattern,
/// without case, in the order of their numbers; then "2 of 210 locales". Throws UserError for a bad pattern.
void PrintLocales(std::ostream & out, LocalesRequest const & request);

}  // namespace typedtable
