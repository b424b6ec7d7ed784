// Drivers of the tables about arithmetic, comparison, casts and date parts.
#include "tests/vectors/ValueCells.h"
#include "tests/vectors/VectorDriver.h"

#include "velcoredata/utility/DataValueInterpolator.h"
#include "velcoredata/utility/DataValueOperators.h"

#include <bit>
#include <map>

using namespace velcoredata::vectors;

namespace {

using Binary = DataValue (*)(DataValueOperators &, DataValue const &, DataValue const &);
using Unary = DataValue (*)(DataValueOperators &, DataValue const &);

template <class Map>
typename Map::mapped_type Find(Map const & map, std::string const & name)
{
    auto const found = map.find(name);
    if (found == map.end())
        throw std::runtime_error("no such operation: " + name);
    return found->second;
}

std::map<std::string, Binary> const & BinaryOperations()
{
    using O = DataValueOperators;
    using V = DataValue const &;
    static std::map<std::string, Binary> const operations = {
        {"Add", [](O & o, V a, V b) { return o.Add(a, b); }},
        {"Subtract", [](O & o, V a, V b) { return o.Subtract(a, b); }},
        {"Multiply", [](O & o, V a, V b) { return o.Multiply(a, b); }},
        {"Divide", [](O & o, V a, V b) { return o.Divide(a, b); }},
        {"Modulo", [](O & o, V a, V b) { return o.Modulo(a, b); }},
        {"Power", [](O & o, V a, V b) { return o.Power(a, b); }},
        {"Max", [](O & o, V a, V b) { return o.Max(a, b); }},
        {"Min", [](O & o, V a, V b) { return o.Min(a, b); }},
    };
    return operations;
}

std::map<std::string, Unary> const & UnaryOperations()
{
    using O = DataValueOperators;
    using V = DataValue const &;
    static std::map<std::string, Unary> const operations = {
        {"Negate", [](O & o, V a) { return o.Negate(a); }},
        {"Abs", [](O & o, V a) { return o.Abs(a); }},
        {"Ceil", [](O & o, V a) { return o.Ceil(a); }},
        {"Floor", [](O & o, V a) { return o.Floor(a); }},
        {"Ln", [](O & o, V a) { return o.Ln(a); }},
        {"ASinh", [](O & o, V a) { return o.ASinh(a); }},
        {"DateAsYear", [](O & o, V a) { return o.DateAsYear(a); }},
        {"DateAsQuarter", [](O & o, V a) { return o.DateAsQuarter(a); }},
        {"DateAsMonth", [](O & o, V a) { return o.DateAsMonth(a); }},
        {"DateAsWeek", [](O & o, V a) { return o.DateAsWeek(a); }},
        {"DateAsDay", [](O & o, V a) { return o.DateAsDay(a); }},
        {"DateAsDayOfYear", [](O & o, V a) { return o.DateAsDayOfYear(a); }},
        {"DateAsDayOfWeek", [](O & o, V a) { return o.DateAsDayOfWeek(a); }},
        {"DateAsISOYear", [](O & o, V a) { return o.DateAsISOYear(a); }},
        {"DateAsISOQuarter", [](O & o, V a) { return o.DateAsISOQuarter(a); }},
        {"DateAsISOWeek", [](O & o, V a) { return o.DateAsISOWeek(a); }},
        {"DateAsISODayOfWeek", [](O & o, V a) { return o.DateAsISODayOfWeek(a); }},
        {"DateAsMonthYear", [](O & o, V a) { return o.DateAsMonthYear(a); }},
        {"DateAsMonthDayYear", [](O & o, V a) { return o.DateAsMonthDayYear(a); }},
        {"DateTimeAsHour", [](O & o, V a) { return o.DateTimeAsHour(a); }},
        {"DateTimeAsMinute", [](O & o, V a) { return o.DateTimeAsMinute(a); }},
        {"DateTimeAsSecond", [](O & o, V a) { return o.DateTimeAsSecond(a); }},
    };
    return operations;
}

DataValueOperators WithSemantics(Row const & row)
{
    DataValueOperators operators;
    operators.SetSQLNullSemantics(row.Bool("sql"));
    return operators;
}

// A Real result may be off by as many units in the last place as the row allows.
void ExpectRealWithin(Row & row, DataValue const & value, unsigned long long ulps)
{
    DataValue const expected = DecodeValue(row.Cell("result"));
    bool const near = value.GetDataType() == DataType::Real && expected.GetDataType() == DataType::Real &&
                      !value.IsSpecial() && !expected.IsSpecial() &&
                      UlpDistance(value.GetReal(), expected.GetReal()) <= ulps;
    row.Expect("result", row.Cell("result"), near ? row.Cell("result") : EncodeValue(value));
}

void RunBinary(Row & row, unsigned long long ulps)
{
    BinaryObjects objects;
    DataValue const a = DecodeValue(row.Cell("a"), objects);
    DataValue const b = DecodeValue(row.Cell("b"), objects);
    DataValueOperators operators = WithSemantics(row);
    Binary const operation = Find(BinaryOperations(), row.Cell("op"));
    if (row.Cell("result") == "FAULT")
        return row.ExpectDeath("integer division", [&] { operation(operators, a, b); });
    if (ulps > 0)
        return ExpectRealWithin(row, operation(operators, a, b), ulps);
    ExpectValue(row, "result", [&] { return operation(operators, a, b); });
}

}  // namespace

VECTOR_DRIVER("operators_binary")
{
    RunBinary(row, row.UInt("ulpTolerance"));
}

VECTOR_DRIVER("operators_minmax")
{
    RunBinary(row, 0);
}

VECTOR_DRIVER("operators_unary")
{
    DataValue const a = DecodeValue(row.Cell("a"));
    DataValueOperators operators = WithSemantics(row);
    Unary const operation = Find(UnaryOperations(), row.Cell("op"));
    if (row.UInt("ulpTolerance") > 0)
        return ExpectRealWithin(row, operation(operators, a), row.UInt("ulpTolerance"));
    ExpectValue(row, "result", [&] { return operation(operators, a); });
}

VECTOR_DRIVER("operators_promote")
{
    DataValueOperators const operators;
    DataType const a = DecodeTypeName(row.Cell("a"));
    DataType const b = DecodeTypeName(row.Cell("b"));
    ExpectOutcome(row, "Promote", [&] { return EncodeTypeName(operators.Promote(a, b)); });
    row.ExpectBool("CanPromote", operators.CanPromote(a, b));
    ExpectOutcome(row, "PromoteWithoutLoss_from_a_to_b",
                  [&] { return EncodeTypeName(operators.PromoteWithoutLoss(a, b)); });
    row.ExpectBool("CanPromoteWithoutLoss", operators.CanPromoteWithoutLoss(a, b));
}

VECTOR_DRIVER("operators_compare")
{
    BinaryObjects objects;
    DataValue const a = DecodeValue(row.Cell("a"), objects);
    DataValue const b = DecodeValue(row.Cell("b"), objects);
    DataValueOperators const operators = WithSemantics(row);
    ExpectOutcome(row, "result", [&] { return std::to_string(operators.Compare(a, b, row.Bool("fuzzy"))); });
}

VECTOR_DRIVER("operators_ulp")
{
    auto const ulps = static_cast<unsigned>(row.UInt("ulps"));
    unsigned long long const a = std::stoull(row.Cell("aBits"), nullptr, 16);
    unsigned long long const b = std::stoull(row.Cell("bBits"), nullptr, 16);
    if (row.Cell("kind") == "double")
        row.ExpectInt("result", DataValueOperators::Compare(std::bit_cast<double>(a), std::bit_cast<double>(b), ulps));
    else
        row.ExpectInt("result", DataValueOperators::Compare(std::bit_cast<float>(static_cast<unsigned>(a)),
                                                            std::bit_cast<float>(static_cast<unsigned>(b)), ulps));
}

VECTOR_DRIVER("operators_cast")
{
    BinaryObjects objects;
    DataValue const value = DecodeValue(row.Cell("value"), objects);
    ExpectValue(row, "result", [&] { return DataValueOperators().Cast(value, DecodeTypeName(row.Cell("target"))); });
}

VECTOR_DRIVER("operators_readers")
{
    DataValue const value = DecodeValue(row.Cell("value"));
    DataValueOperators const operators;
    std::string const & op = row.Cell("op");
    if (op == "AsReal" && !row.Cell("result").starts_with('!'))
        return row.ExpectReal("result", operators.AsReal(value));
    ExpectOutcome(row, "result", [&] {
        if (op == "AsInt")
            return std::to_string(operators.AsInt(value));
        if (op == "AsReal")
            return EncodeReal(operators.AsReal(value));
        return std::to_string(
            (op == "AsDate" ? operators.AsDate(value) : operators.AsDatetime(value)).GetRepresentation());
    });
}

VECTOR_DRIVER("operators_dateparts")
{
    DataValue const value = DecodeValue(row.Cell("value"));
    DataValueOperators operators;
    for (auto const & [name, operation] : UnaryOperations())
        if (row.HasColumn(name))
            ExpectOutcome(row, name, [&] { return std::to_string(operation(operators, value).GetInt()); });
}

VECTOR_DRIVER("operators_interpolate")
{
    DataValue const start = DecodeValue(row.Cell("start"));
    DataValue const end = DecodeValue(row.Cell("end"));
    ExpectValue(row, "result",
                [&] { return DataValueOperators().Interpolate(row.Real("fraction"), start, end, row.Bool("noCast")); });
}

VECTOR_DRIVER("operators_inverse")
{
    DataValue const value = DecodeValue(row.Cell("value"));
    DataValue const start = DecodeValue(row.Cell("start"));
    DataValue const end = DecodeValue(row.Cell("end"));
    if (!row.Cell("result").starts_with('!'))
        return row.ExpectReal("result", DataValueOperators().InverseInterpolate(value, start, end));
    ExpectOutcome(row, "result",
                  [&] { return EncodeReal(DataValueOperators().InverseInterpolate(value, start, end)); });
}
