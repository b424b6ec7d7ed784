// A reader of value text, written from docs/formats/value-text.md alone.
#pragma once

#include <optional>
#include <unordered_map>

#include "velcoredata/data/DataValue.h"
#include "velcoreplatform/TString.h"

namespace test_support {

// The value of a text that was written with the default options, in either number style, spatial objects as hashes or
// as WKT, with marks around it or without, and of its attributes. Without "datatype" or "tuple-datatypes" the type is
// that of the text's form. Nothing for a text that no writer makes. What a text does not keep comes out as
// docs/formats/value-text.md tells: the hash of a spatial object as an Integer, a Binary without its bytes, and so on.
std::optional<DataValue> ReadValueText(TString const & text, std::unordered_map<TString, TString> const & attributes);

}  // namespace test_support
