// Whether a resource archive may be handed to Qt, which trusts every offset in it.
#pragma once

#include <cstddef>

#include "velcoreplatform/TString.h"

namespace detail {

// True if the bytes are an archive of format version 1 to 3 whose nodes, names and data all lie inside them, whose
// directories form a tree, and whose names are single steps of a path of at most 255 code units. Linear in the size.
bool IsSoundArchive(unsigned char const * bytes, std::size_t size);

// The same for a file. False for what is no regular file, cannot be read or is larger than 2 GB.
bool IsSoundArchiveFile(TString const & path);

}  // namespace detail
