// Drivers of the tables about making and reading single values.
#include "main/data/DataTypeNames.h"
#include "tests/vectors/ValueCells.h"
#include "tests/vectors/VectorDriver.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/Tuple.h"

#include <map>

using namespace velcoredata::vectors;

namespace {

std::string Flag(bool value)
{
    return value ? "1" : "0";
}

using Reader = std::string (*)(DataValue &);

std::map<std::string, Reader, std::less<>> const & Readers()
{
    static std::map<std::string, Reader, std::less<>> const readers = {
        {"GetDataType", [](DataValue & v) { return std::to_string(static_cast<int>(v.GetDataType())); }},
        {"GetSpecial", [](DataValue & v) { return std::to_string(static_cast<int>(v.GetSpecial())); }},
        {"IsSpecial", [](DataValue & v) { return Flag(v.IsSpecial()); }},
        {"IsNull", [](DataValue & v) { return Flag(v.IsNull()); }},
        {"IsMissing", [](DataValue & v) { return Flag(v.IsMissing()); }},
        {"GetInt", [](DataValue & v) { return std::to_string(v.GetInt()); }},
        {"GetReal", [](DataValue & v) { return EncodeReal(v.GetReal()); }},
        {"GetBool", [](DataValue & v) { return Flag(v.GetBool()); }},
        {"GetDate", [](DataValue & v) { return std::to_string(v.GetDate().GetRepresentation()); }},
        {"GetDatetime", [](DataValue & v) { return std::to_string(v.GetDatetime().GetRepresentation()); }},
        {"GetTime", [](DataValue & v) { return std::to_string(v.GetTime().GetRepresentation()); }},
        {"GetString", [](DataValue & v) { return EscapeText(v.GetString().View()); }},
        {"GetCollationName", [](DataValue & v) { return v.GetCollation().GetName().toStdString(); }},
        {"GetTuple",
         [](DataValue & v) {
             auto const tuple = v.GetTuple();
             return tuple ? std::to_string(tuple->GetSize()) : std::string("null");
         }},
        {"GetBinary",
         [](DataValue & v) {
             auto const binary = v.GetBinary();
             return binary ? EncodeBytes(binary->GetValue()) : std::string("null");
         }},
        {"GetOrdinal", [](DataValue & v) { return std::to_string(v.GetOrdinal()); }},
        {"GetPrecision", [](DataValue & v) { return std::to_string(v.GetPrecision()); }},
        {"GetScale", [](DataValue & v) { return std::to_string(v.GetScale()); }},
        {"HasPrecision", [](DataValue & v) { return Flag(v.HasPrecision()); }},
        {"HasScale", [](DataValue & v) { return Flag(v.HasScale()); }},
        {"GetSpatial", [](DataValue & v) { return std::string(v.GetSpatial() == nullptr ? "null" : "object"); }},
        {"SetOrdinal3ThenGetOrdinal",
         [](DataValue & v) {
             v.SetOrdinal(3);
             return std::to_string(v.GetOrdinal());
         }},
    };
    return readers;
}

}  // namespace

VECTOR_DRIVER("values_typenames")
{
    auto const type = static_cast<DataType>(row.Int("type"));
    row.ExpectCell("dataTypeToString", DataValue::DataTypeToString(type).toStdString());
    ExpectOutcome(row, "attributeName", [&] { return detail::DataTypeAttributeName(type).toStdString(); });
    row.ExpectBool("isNumeric", IsNumeric(type));
    row.ExpectBool("isQuantitative", IsQuantitative(type));
    row.ExpectBool("isTemporal", IsTemporal(type));
}

VECTOR_DRIVER("values_makedate")
{
    auto const when = DateTime::FromValue(row.UInt("representation"));
    DataType const type = DecodeTypeName(row.Cell("type"));
    ExpectValue(row, "value", [&] { return DataValue(when, type); });
}

VECTOR_DRIVER("values_readers")
{
    if (row.Cell("reader") == "GetReal" && !row.Cell("result").starts_with('!')) {
        // The text of a number is not unique: compare the number.
        row.ExpectReal("result", DecodeValue(row.Cell("value")).GetReal());
        return;
    }
    auto const reader = Readers().find(row.Cell("reader"));
    if (reader == Readers().end())
        return row.Fail("no such reader");
    DataValue value = DecodeValue(row.Cell("value"));
    ExpectOutcome(row, "result", [&] { return reader->second(value); });
}
