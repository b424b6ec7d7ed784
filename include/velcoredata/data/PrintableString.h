// Text made safe for a narrow log or stream.
#pragma once

#include <string>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

//   every char c of toPrintableString(t) has 32 <= c <= 126; the first and the last are '"', and there are two at least
//
// The text in double quotes, in printable ASCII alone (32 to 126): \n, \t, \r, \\, \" and \' for those, \xHHHH with
// four upper-case hexadecimal digits for every other code unit. A tab prints as "\t", U+00E9 as "\x00E9".
VELCOREDATA_API std::string toPrintableString(TString const & text);
