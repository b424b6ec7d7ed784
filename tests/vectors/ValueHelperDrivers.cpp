// Drivers of the tables about conversions to neighbouring types and captions of sets of values.
#include "tests/vectors/ValueCells.h"
#include "tests/vectors/VectorDriver.h"

#include "velcoredata/data/DataValueHelpers.h"
#include "velcoredata/data/Tuple.h"

using namespace velcoredata::vectors;

namespace {

// The parts between commas; none for a count of 0, where one empty part could be meant.
std::vector<TString> TextList(Row const & row)
{
    std::vector<TString> list;
    if (row.Int("count") != 0)
        list = TString::fromStdU16String(row.Text("valuesCommaSeparated")).split(u",");
    return list;
}

}  // namespace

VECTOR_DRIVER("values_converttotype")
{
    BinaryObjects objects;
    DataValue const value = DecodeValue(row.Cell("value"), objects);
    ExpectValue(row, "result", [&] {
        return ConvertToType(value, DecodeTypeName(row.Cell("target")), static_cast<RoundingMode>(row.Int("mode")));
    });
}

VECTOR_DRIVER("values_valuelist")
{
    std::vector<TString> const values = TextList(row);
    row.ExpectInt("count", static_cast<long long>(values.size()));
    row.Expect("op", "BuildValueList", row.Cell("op"));
    row.ExpectText("result", BuildValueList(values, static_cast<int>(row.Int("limit")), row.Bool("firstOnly")).View());
}

VECTOR_DRIVER("values_fromvaluelist")
{
    auto const tuple = DecodeValue(row.Cell("valuesAsTuple")).GetTuple();
    std::vector<DataValue> const & values = tuple->GetValues();
    ExpectValue(row, "result",
                [&] { return BuildFromValueList(values, static_cast<int>(row.Int("limit")), row.Bool("firstOnly")); });
}
