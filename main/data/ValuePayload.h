// The shared objects behind the payload of a DataValue, for code that has looked at the type already.
#pragma once

#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/StringWithCollation.h"

namespace detail {

// Null for a marker. The type must be String; the pointer lives as long as the value holds it.
inline StringWithCollation const * StringPayload(DataValue const & value) noexcept
{
    return static_cast<StringWithCollation const *>(reinterpret_cast<RefCntObject const *>(value.GetAny()));
}

}  // namespace detail
