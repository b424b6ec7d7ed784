// LCID: the 32-bit locale identifier of the Windows locale services (0x409 is English of the United States).
//
// 0 is "none", 0x400 the user's default, 0x800 the system's default; collations use 0xFFFFFFFF for "binary".
#pragma once

#include <cstdint>

typedef std::uint32_t LCID;
