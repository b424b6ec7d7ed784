// Drivers of the tables about the order, equality, hash and texts of values, and about their companions.
#include "tests/vectors/ValueCells.h"
#include "tests/vectors/VectorDriver.h"

#include "velcoredata/data/Bucket.h"
#include "velcoredata/data/PrintableString.h"
#include "velcoredata/data/Tuple.h"

#include <sstream>

using namespace velcoredata::vectors;

namespace {

std::string Digit(bool value)
{
    return value ? "1" : "0";
}

MultiBucket BucketsOf(DataValue const & tuple)
{
    MultiBucket buckets;
    for (DataValue const & member : tuple.GetTuple()->GetValues())
        buckets.AddBucket(Bucket(member));
    return buckets;
}

}  // namespace

VECTOR_DRIVER("values_identity")
{
    BinaryObjects objects;
    DataValue const a = DecodeValue(row.Cell("a"), objects);
    DataValue const b = DecodeValue(row.Cell("b"), objects);
    row.ExpectCell("eq_aLTb_bLTa", Digit(a == b) + Digit(a < b) + Digit(b < a));
    row.Expect("the other operators", Digit(!(a == b)) + Digit(a == b || a < b) + Digit(a == b || b < a) + Digit(b < a),
               Digit(a != b) + Digit(a <= b) + Digit(a >= b) + Digit(a > b));
}

VECTOR_DRIVER("values_hashequal")
{
    BinaryObjects objects;
    DataValue const a = DecodeValue(row.Cell("a"), objects);
    DataValue const b = DecodeValue(row.Cell("b"), objects);
    row.Expect("hash", std::to_string(a.Hash()), std::to_string(b.Hash()));
    row.Expect("std::hash", std::to_string(std::hash<DataValue>()(a)), std::to_string(b.Hash()));
}

VECTOR_DRIVER("values_tuples")
{
    BinaryObjects objects;
    DataValue const a = DecodeValue(row.Cell("a"), objects);
    DataValue const b = DecodeValue(row.Cell("b"), objects);
    row.ExpectBool("tupleEq", *a.GetTuple() == *b.GetTuple());
    row.ExpectBool("tupleLt", *a.GetTuple() < *b.GetTuple());
    row.ExpectBool("multiBucketEq", BucketsOf(a) == BucketsOf(b));
    row.ExpectBool("multiBucketLt", BucketsOf(a) < BucketsOf(b));
}

VECTOR_DRIVER("values_negate")
{
    ExpectValue(row, "result", [&] { return -DecodeValue(row.Cell("value")); });
}

VECTOR_DRIVER("values_literal")
{
    DataValue const value = DecodeValue(row.Cell("value"));
    auto const escaped = [](TString const & text) { return EscapeText(text.View()); };
    if (row.Cell("formatAsLiteral").starts_with('!')) {
        ExpectOutcome(row, "formatAsLiteral", [&] { return escaped(value.FormatAsLiteral()); });
        return;
    }
    row.ExpectText("formatAsLiteral", value.FormatAsLiteral().View());
    std::ostringstream out;
    out << value;
    row.ExpectText("streamOutput", TString::fromStdString(out.str()).View());
}

VECTOR_DRIVER("values_printable")
{
    TString const text = TString::fromView(row.Text("text"));
    row.ExpectText("toPrintableString", TString::fromStdString(toPrintableString(text)).View());
}

VECTOR_DRIVER("values_binary")
{
    DataValue const value = DecodeValue(row.Cell("value"));
    BinaryDataValue * const filled = new BinaryDataValue("xyz", 3);
    RefCntPtr<BinaryDataValue, RefCntObject> const owner(filled);
    filled->SetDataValue(value);
    bool const unchanged = filled->GetValue() == std::vector<char>{'x', 'y', 'z'};
    row.ExpectCell("bytes", unchanged ? "unchanged" : EncodeBytes(filled->GetValue()));
    RefCntPtr<BinaryDataValue, RefCntObject> const made(new BinaryDataValue(value));
    row.Expect("constructor", unchanged ? "" : EncodeBytes(filled->GetValue()), EncodeBytes(made->GetValue()));
}
