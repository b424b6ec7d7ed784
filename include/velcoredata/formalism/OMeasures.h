// A field name, with a position if there is one, as a string value and back.
//
//   [a].[b], index 3   <->   "[a].[b]:3"
//   [a].[b], index 0   <->   "[a].[b]"
//
// Law: DecodeWithIndex(Encode(IndexedFieldName(n, i))) == IndexedFieldName(n, i) for a non-empty n and
// 0 <= i <= 2147483647. A higher index is encoded in full and decodes as 0.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/FieldName.h"
#include "velcoredata/data/IndexedFieldName.h"

namespace OMeasures {

// The full value, as a String with the unknown collation.
VELCOREDATA_API DataValue Encode(FieldName const & name);
// The same, with ":" and the index in decimal behind it unless the index is 0.
VELCOREDATA_API DataValue Encode(IndexedFieldName const & name);

// The name of DecodeWithIndex.
VELCOREDATA_API FieldName Decode(DataValue const & value);
// A ":" behind the last "]" ends the name and begins the index, a signed decimal number of 32 bits; a text that is no
// such number gives index 0, a negative number wraps to 64 bits. A ":" inside the brackets of a name counts for
// nothing. An empty name keeps its index here: ":5" is the empty name with index 5.
//
// Raises "VeltriaException_IncorrectDatatypeException_0xCA8336D0" for a value that is no String, and what
// FieldName::ParseGlobal raises for the name.
VELCOREDATA_API IndexedFieldName DecodeWithIndex(DataValue const & value);

}  // namespace OMeasures
