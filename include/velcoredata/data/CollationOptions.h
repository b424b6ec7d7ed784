#pragma once

// The four option enumerations that collator names are built from. `Collation` derives from this struct, so callers
// write `Collation::CaseOpt` and `Collation::CaseInsensitive`.

#include "velcoredata/core/Export.h"

struct CollationOptions
{
    enum CaseOpt : int
    {
        CaseDefault = 0,
        CaseInsensitive = 1,  // strength secondary, token "S2"
        CaseUpperFirst = 2,   // token "CU". No collator opens such a name: building a pool raises "Unhandled specifier"
        CaseLowerFirst = 3,   // token "CL". The same holds
    };

    enum AccentOpt : int
    {
        AccentDefault = 0,
        AccentInsensitive = 1,  // strength primary, token "S1"; case level on, token "EO", unless CaseInsensitive
    };

    enum SortOpt : int
    {
        SortDefault = 0,
        SortWord = 1,        // hyphen and apostrophe are ignored, token "WO"
        SortUnhandled2 = 2,  // a logged logic assertion
        SortUnhandled3 = 3,  // a logged logic assertion
        SortIdentical = 4,   // strength identical, token "SI", in the name form of MakeCollatorName only
    };

    enum PunctOpt : int
    {
        PunctDefault = 0,
        PunctIgnore = 1,      // blanks and punctuation shifted, token "AS"
        PunctQuaternary = 2,  // strength quaternary, token "S4"
    };
};
