#pragma once

// Collator names taken apart and rewritten: what pools and collations need of them beyond the public factories.

#include <string>
#include <utility>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

namespace detail
{

using ColAttributeList = std::vector<std::pair<int, int>>;  // attribute number and value, in token order

struct CollatorSpec
{
    std::string locale;  // "en_US"; script stands after region ("zh_CN_HANS")
    ColAttributeList attributes;
};

// Reads a name. Empty tokens are skipped. An unknown first letter is the ICU exception ("Unhandled specifier"), an
// attribute token without exactly two characters the assertion "i->length() == 2", a region, script or variant without
// a language "!locale.isEmpty()". "LROOT" gives the locale "root", the empty name the empty locale (ICU's root).
VELCOREDATA_API CollatorSpec ParseCollatorName(char16_t const * name);

// Merges attributes into a token list and leaves it in ascending letter order, each letter once, the last one winning.
// A default value or -1 removes the attribute's token. An empty token is the assertion "!i->isEmpty()".
VELCOREDATA_API void NormalizeCollatorTokens(ColAttributeList const & attributes, std::vector<TString> & tokens);

// The tokens of a name; none for a null or empty one.
VELCOREDATA_API std::vector<TString> SplitCollatorName(char16_t const * name);
VELCOREDATA_API TString JoinCollatorTokens(std::vector<TString> const & tokens);

// `name` with one attribute rewritten. "binary" in any case is an assertion.
VELCOREDATA_API TString WithCollatorAttribute(char16_t const * name, int attribute, int value);

// The ICU locale text of an LCID ("en_US"), written to `buffer` of `size` characters. 0 and 0x400 give "root", as does
// an LCID that nobody knows. Names are the published platform names; "prs" reads "fa" and "quz" reads "qu".
VELCOREDATA_API void LocaleNameFromLCID(LCID lcid, char * buffer, int size);

// The LCID of a locale text, "-" or "_" between its parts, or `defaultLcid` when ICU knows none.
VELCOREDATA_API LCID LCIDFromLocaleName(std::string text, LCID defaultLcid);

}  // namespace detail
