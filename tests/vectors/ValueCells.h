#pragma once

#include "tests/vectors/VectorDriver.h"

#include "velcoredata/data/BinaryDataValue.h"
#include "velcoredata/data/DataValue.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// Cells that hold values: `I:5`, `R:0x1.8p+0/3/1`, `B:1`, `D:rep`, `DT:rep`, `T:us`,
/// `S:LEN_RUS_S2:text`, `BIN:id:hex`, `(I:1,B:0)`, `X:Null:Integer`.
namespace velcoredata::vectors {

/// The binary objects of one row by their ids: `BIN:3:0102` twice is one shared object, `BIN:4:0102` another.
using BinaryObjects = std::map<std::string, RefCntPtr<BinaryDataValue, RefCntObject>, std::less<>>;

/// Throws std::runtime_error for a malformed cell. Without a map each binary cell makes an object of its own.
DataValue DecodeValue(std::string_view cell);
DataValue DecodeValue(std::string_view cell, BinaryObjects & objects);

/// The fields of a value in the notation of the cells; all NaNs with the bits of the quiet one read `R:nan`.
std::string EncodeValue(DataValue const & value);

/// Whether the value is what the cell says, field by field; `R:nan` is met by every NaN.
bool MeetsValueCell(std::string_view cell, DataValue const & value);

/// Two lower-case hexadecimal digits for each byte.
std::string EncodeBytes(std::vector<char> const & bytes);

/// The number of a type by its name in the tables, "Integer" or "DateTime".
DataType DecodeTypeName(std::string_view name);
std::string EncodeTypeName(DataType type);

/// Compares the text that the call gives, or the error that it raises, with the cell of the column: `!Name` or
/// `!Name|message` name an error of the library, `!Class` its class, anything else is the text.
void ExpectOutcome(Row & row, std::string_view column, std::function<std::string()> const & call);

/// The same for a call that gives a value.
void ExpectValue(Row & row, std::string_view column, std::function<DataValue()> const & call);

}  // namespace velcoredata::vectors
