// CollationChoice: the collation that the user names.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "velcoredata/data/Collation.h"

namespace typedtable {

/// A collator name, or a locale with options, or nothing.
struct CollationChoice
{
    std::optional<std::string> name;    // "LEN_RUS_S2", "binary"
    std::optional<std::string> locale;  // "sv_SE"
    bool ignoreCase = false;
    bool ignoreAccents = false;
    bool wordSort = false;
};

/// The collation chosen; without a choice that of unknown texts. Throws UserError for a name that no collator opens,
/// and for a language that the library has no name of: it would sort as if none were given.
Collation MakeCollation(CollationChoice const & choice);

/// Language, region, flags and description of the collation of a collator name, and some words in its order, those that
/// it takes for equal on one line. Throws UserError as MakeCollation does.
void ExplainCollation(std::ostream & out, std::string const & name);

}  // namespace typedtable
