#pragma once

#include "velicu/Export.h"

namespace VelICU_V2 {

// What the ICU in use can do.
class VELICU_API ICUVersion
{
public:
    // True for ICU 68 and every later one: from there on the root locale has a collator name of its own, "LROOT".
    static bool Is_ICU_68() noexcept;
    // The major version, for example 72.
    static int GetMajor() noexcept;
};

// Ends ICU for the process: frees its caches and data. Nothing of this layer may be called afterwards, no other thread
// may be inside it, and objects made before are dead.
VELICU_API void t_u_cleanup() noexcept;

}  // namespace VelICU_V2
