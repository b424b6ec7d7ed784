// Drivers of the tables about explicit casts and numbers in text.
#include "tests/vectors/ValueCells.h"
#include "tests/vectors/VectorDriver.h"

#include "velcoredata/utility/DataValueOperators.h"

using namespace velcoredata::vectors;

VECTOR_DRIVER("operators_explicitcast")
{
    BinaryObjects objects;
    DataValue const value = DecodeValue(row.Cell("value"), objects);
    DataType const target = DecodeTypeName(row.Cell("target"));
    std::string const & alternative = row.Cell("alternative");
    if (!alternative.empty()) {
        DataValue const result = DataValueOperators().ExplicitCast(value, target);
        if (MeetsValueCell(alternative, result))
            return row.Expect("alternative", alternative, alternative);
    }
    ExpectValue(row, "result", [&] { return DataValueOperators().ExplicitCast(value, target); });
}

VECTOR_DRIVER("operators_stringtonumber")
{
    DataValueOperators const operators;
    TString const text = TString::fromStdU16String(row.Text("text"));
    ExpectOutcome(row, "StringToInt", [&] { return std::to_string(operators.StringToInt(text)); });
    if (row.Cell("StringToReal").starts_with('!'))
        ExpectOutcome(row, "StringToReal", [&] { return EncodeReal(operators.StringToReal(text)); });
    else
        row.ExpectReal("StringToReal", operators.StringToReal(text));
}

VECTOR_DRIVER("operators_precisionscale")
{
    auto const [precision, scale] = DataValueOperators::GetImplicitPrecisionAndScaleFromDecimalFormattedAsString(
        TString::fromStdU16String(row.Text("text")));
    row.ExpectInt("precision", precision);
    row.ExpectInt("scale", scale);
}
