#include "fuzz/support/FuzzText.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/QualifiedNameException.h"
#include "velcoredata/formalism/OMeasures.h"

// A text as a string value. It decodes or raises the error of a name; what was decoded is encoded and decoded again.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    DataValue const value(GetUnknownCollation(), fuzz_support::Text(data, size));
    try {
        IndexedFieldName const name = OMeasures::DecodeWithIndex(value);
        fuzz_support::Require(OMeasures::Decode(value) == name.GetFieldName(), "both forms give one name");
        fuzz_support::Require(value.GetString().contains(u':') || name.GetIndex() == 0, "no index without a colon");
        IndexedFieldName const again = OMeasures::DecodeWithIndex(OMeasures::Encode(name));
        fuzz_support::Require(again.GetFieldName() == name.GetFieldName(), "the name comes back");
        // A negative index wraps to one that is too high to come back.
        fuzz_support::Require(again == name || name.GetIndex() > 2147483647, "the index comes back");
    } catch (QualifiedNameException const &) {
    }
    return 0;
}
