#pragma once

// Collator names: compact texts such as "AS_LEN_RUS" that say all about a collation. A name is a list of tokens joined
// by "_", in upper case, in ascending order of their first letter, each letter once:
//
//   L R Z V    language, region, script, variant       LEN_RUS
//   A          alternate handling (AS shifted)         F  French collation
//   C          case first (CU, CL)                     H  hiragana quaternary mode
//   E          case level (EO, EX)                     I  numeric collation
//   S          strength (S1 to S4, SI identical)       N  normalisation
//   W          word sort (WO)                          X  digits ignored (XO)
//
// Letters C, F, I and N can be built but no collator opens them: a pool for such a name raises "Unhandled specifier".
//
// Laws: a built name's letters ascend strictly; MakeCollatorName with the same options is idempotent; a name made of
// A E H L R S V W X Z tokens with an L always parses.

#include <string>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/CollationOptions.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

// The name of an LCID with Windows compare flags: 0x1 ignore case, 0x2 ignore accents, 0x4 ignore symbols, 0x80000000
// Windows-specific. (0x409, 0x1, false) gives "LEN_RUS_S2", (0x400, 0, false) "LROOT". Tokens stand in a fixed order
// here, which is not always the ascending one.
VELCOREDATA_API TString MakeCollatorName(LCID lcid, unsigned cmpFlags, bool wordSort);

// `name` with the options merged in. All of A, S, W, C and E are settled by the options: a default one erases the
// name's own token ("LEN_S1" without options gives "LEN"); tokens of other letters pass through. A null name counts as
// empty. An empty token inside the name is the assertion "!i->isEmpty()"; sort options 2 and 3 log and assert "false".
VELCOREDATA_API TString MakeCollatorName(char16_t const * name,
                                         CollationOptions::CaseOpt caseOpt,
                                         CollationOptions::AccentOpt accentOpt,
                                         CollationOptions::SortOpt sortOpt,
                                         CollationOptions::PunctOpt punctOpt);

// The name of an ICU locale ("de_AT") with options. `approximate` drops accent and punctuation options and ignores
// digits ("XO"). SortIdentical does nothing here. A locale that ICU cannot take apart raises the ICU exception.
VELCOREDATA_API TString MakeICUCollatorName(std::string const & locale,
                                            bool approximate,
                                            CollationOptions::CaseOpt caseOpt,
                                            CollationOptions::AccentOpt accentOpt,
                                            CollationOptions::SortOpt sortOpt,
                                            CollationOptions::PunctOpt punctOpt);

// The name of a locale text by way of its LCID; null counts as empty, and a locale without an LCID becomes "LROOT".
// `approximate` forces accent and punctuation insensitivity and ignores digits, unlike the form above.
VELCOREDATA_API TString CollatorNameFromLocaleName(char const * locale,
                                                   bool approximate,
                                                   CollationOptions::CaseOpt caseOpt,
                                                   CollationOptions::AccentOpt accentOpt,
                                                   CollationOptions::SortOpt sortOpt,
                                                   CollationOptions::PunctOpt punctOpt);
