// The system's code pages. There is none of either kind on this platform; the answers are those of an American English
// system, fixed. Any thread may call.
#pragma once

#include "velnls/Export.h"

VELNLS_API unsigned GetACP() noexcept;    // 1252
VELNLS_API unsigned GetOEMCP() noexcept;  // 437
