// Whether compiled translations (.qm) may be handed to QTranslator, which trusts every offset and length in them.
#pragma once

#include <cstddef>

namespace detail {

// True if the bytes are translations whose tables and messages all lie inside them. False also for translations that
// name further files: their content, and a circle of names, would be out of our sight. Linear in the size.
bool IsSoundTranslation(unsigned char const * bytes, std::size_t size);

}  // namespace detail
