// The shared objects behind the payload of a DataValue, for code that has looked at the type already.
#pragma once

#include "velcoredata/data/BinaryDataValue.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/StringWithCollation.h"
#include "velcoredata/data/Tuple.h"

namespace detail {

// Null for a marker. The type must be the one named; the pointer lives as long as the value holds it.
inline StringWithCollation const * StringPayload(DataValue const & value) noexcept
{
    return static_cast<StringWithCollation const *>(reinterpret_cast<RefCntObject const *>(value.GetAny()));
}

inline Tuple const * TuplePayload(DataValue const & value) noexcept
{
    return static_cast<Tuple const *>(reinterpret_cast<RefCntObject const *>(value.GetAny()));
}

inline BinaryDataValue const * BinaryPayload(DataValue const & value) noexcept
{
    return static_cast<BinaryDataValue const *>(reinterpret_cast<RefCntObject const *>(value.GetAny()));
}

}  // namespace detail
