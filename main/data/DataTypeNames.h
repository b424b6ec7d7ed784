// The attribute names of the data types: "integer", "real", ... as the interchange form and the type errors have them.
#pragma once

#include "velcoredata/data/DataType.h"
#include "velcoreplatform/TString.h"

namespace detail {

// Throws XMLEnumEncodingException for a number outside the enumeration. The reference lives for the process.
VELCOREDATA_API TString const & DataTypeAttributeName(DataType type);

// The same as a literal, or null.
VELCOREDATA_API char const * DataTypeAttributeNameOrNull(DataType type) noexcept;

}  // namespace detail
