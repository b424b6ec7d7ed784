// Every pair of types and markers through every operation, with both null semantics: a value or the stated error,
// field for field what the plain writing of the rules says.
#include "velcoredata/utility/DataValueOperators.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/OperatorModel.h"
#include "tests/support/QuietLogger.h"
#include "tests/support/ValueSamples.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/utility/DataValueInterpolator.h"
#include "velcoredata/utility/DataValueOperatorException.h"

namespace {

using namespace test_support;
using Operators = DataValueOperators;
using Value = DataValue const &;

// A value, or the name and message of an error, or death.
struct Outcome
{
    std::optional<DataValue> value;
    std::string error;
    bool dies = false;

    bool operator==(Outcome const & other) const
    {
        if (dies || other.dies || value.has_value() != other.value.has_value())
            return dies == other.dies;
        return value.has_value() ? SameFields(*value, *other.value) : error == other.error;
    }
};

void PrintTo(Outcome const & outcome, std::ostream * out)
{
    if (outcome.dies)
        *out << "the end of the process";
    else if (outcome.value)
        PrintTo(*outcome.value, out);
    else
        *out << outcome.error;
}

std::string Described(std::string const & name, std::string const & message, int source, int status)
{
    return name + " \"" + message + "\" (" + std::to_string(source) + ", " + std::to_string(status) + ")";
}

template <class Operation>
Outcome OutcomeOf(Operation const & operation)
{
    Outcome outcome;
    try {
        outcome.value = DataValue(operation());
    } catch (ModelError const & e) {
        outcome.error = Described(e.name, e.message, 4, 2);
    } catch (ModelDeath const &) {
        outcome.dies = true;
    } catch (VeltriaException const & e) {
        auto const & info = e.GetErrorInfo();
        std::string const name = Utf8(info.GetError().GetName());
        bool const isOperatorError = name.find("DataValueOperatorException") == 0;
        EXPECT_EQ(dynamic_cast<DataValueOperatorException const *>(&e) != nullptr, isOperatorError) << name;
        outcome.error = Described(name, Utf8(e.GetConcatenatedMessages()), static_cast<int>(info.GetSource()),
                                  static_cast<int>(info.GetStatus()));
    }
    return outcome;
}

struct BinaryRow
{
    char const * name;
    DataValue (*run)(Operators &, Value, Value);
    DataValue (*model)(OperatorModel const &, Value, Value);
};

using Model = OperatorModel const &;
BinaryRow const kBinary[] = {
    {"Add", [](Operators & o, Value a, Value b) { return o.Add(a, b); },
     [](Model m, Value a, Value b) { return m.Arithmetic('+', a, b); }},
    {"Subtract", [](Operators & o, Value a, Value b) { return o.Subtract(a, b); },
     [](Model m, Value a, Value b) { return m.Arithmetic('-', a, b); }},
    {"Multiply", [](Operators & o, Value a, Value b) { return o.Multiply(a, b); },
     [](Model m, Value a, Value b) { return m.Arithmetic('*', a, b); }},
    {"Divide", [](Operators & o, Value a, Value b) { return o.Divide(a, b); },
     [](Model m, Value a, Value b) { return m.Arithmetic('/', a, b); }},
    {"Modulo", [](Operators & o, Value a, Value b) { return o.Modulo(a, b); },
     [](Model m, Value a, Value b) { return m.Modulo(a, b); }},
    {"Power", [](Operators & o, Value a, Value b) { return o.Power(a, b); },
     [](Model m, Value a, Value b) { return m.Power(a, b); }},
    {"Max", [](Operators & o, Value a, Value b) { return o.Max(a, b); },
     [](Model m, Value a, Value b) { return m.MinMax(true, a, b); }},
    {"Min", [](Operators & o, Value a, Value b) { return o.Min(a, b); },
     [](Model m, Value a, Value b) { return m.MinMax(false, a, b); }},
    {"Compare", [](Operators & o, Value a, Value b) { return DataValue(o.Compare(a, b, false)); },
     [](Model m, Value a, Value b) { return DataValue(m.Compare(a, b, false)); }},
    {"Compare fuzzy", [](Operators & o, Value a, Value b) { return DataValue(o.Compare(a, b, true)); },
     [](Model m, Value a, Value b) { return DataValue(m.Compare(a, b, true)); }},
};

struct UnaryRow
{
    char const * name;
    DataValue (*run)(Operators &, Value);
    DataValue (*model)(OperatorModel const &, Value);
};

UnaryRow const kUnary[] = {
    {"Negate", [](Operators & o, Value a) { return o.Negate(a); }, [](Model m, Value a) { return m.Negate(a); }},
    {"Abs", [](Operators & o, Value a) { return o.Abs(a); }, [](Model m, Value a) { return m.Abs(a); }},
    {"Ceil", [](Operators & o, Value a) { return o.Ceil(a); },
     [](Model m, Value a) { return m.Function(a, false, [](double x) { return std::ceil(x); }); }},
    {"Floor", [](Operators & o, Value a) { return o.Floor(a); },
     [](Model m, Value a) { return m.Function(a, false, [](double x) { return std::floor(x); }); }},
    {"Ln", [](Operators & o, Value a) { return o.Ln(a); },
     [](Model m, Value a) { return m.Function(a, true, [](double x) { return x > 0.0 ? std::log(x) : 0.0; }); }},
    {"ASinh", [](Operators & o, Value a) { return o.ASinh(a); },
     [](Model m, Value a) { return m.Function(a, true, [](double x) { return std::asinh(x); }); }},
    {"AsInt", [](Operators & o, Value a) { return DataValue(o.AsInt(a)); },
     [](Model m, Value a) { return DataValue(m.AsInt(a)); }},
    {"AsReal", [](Operators & o, Value a) { return DataValue(o.AsReal(a)); },
     [](Model m, Value a) { return DataValue(m.AsReal(a)); }},
    {"AsDate", [](Operators & o, Value a) { return o.MakeDate(o.AsDate(a)); },
     [](Model m, Value a) { return DataValue(m.AsDate(a), DataType::DateTime); }},
    {"AsDatetime", [](Operators & o, Value a) { return o.MakeDatetime(o.AsDatetime(a)); },
     [](Model m, Value a) { return DataValue(m.AsDatetime(a), DataType::DateTime); }},
    {"DateAsYear", [](Operators & o, Value a) { return o.DateAsYear(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetYear()); }},
    {"DateAsQuarter", [](Operators & o, Value a) { return o.DateAsQuarter(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetQuarter()); }},
    {"DateAsMonth", [](Operators & o, Value a) { return o.DateAsMonth(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetMonth()); }},
    {"DateAsWeek", [](Operators & o, Value a) { return o.DateAsWeek(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetWeek()); }},
    {"DateAsDay", [](Operators & o, Value a) { return o.DateAsDay(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetDay()); }},
    {"DateAsDayOfYear", [](Operators & o, Value a) { return o.DateAsDayOfYear(a); },
     [](Model m, Value a) { return DataValue(static_cast<int>(m.AsDate(a).GetDayOfYear())); }},
    {"DateAsDayOfWeek", [](Operators & o, Value a) { return o.DateAsDayOfWeek(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetDayOfWeek()); }},
    {"DateAsISOYear", [](Operators & o, Value a) { return o.DateAsISOYear(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetISO8601Year()); }},
    {"DateAsISOQuarter", [](Operators & o, Value a) { return o.DateAsISOQuarter(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetISO8601Quarter()); }},
    {"DateAsISOWeek", [](Operators & o, Value a) { return o.DateAsISOWeek(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetISO8601Week()); }},
    {"DateAsISODayOfWeek", [](Operators & o, Value a) { return o.DateAsISODayOfWeek(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetISO8601DayOfWeek()); }},
    {"DateAsMonthYear", [](Operators & o, Value a) { return o.DateAsMonthYear(a); },
     [](Model m, Value a) { return DataValue(m.AsDate(a).GetMonth() * 10000 + m.AsDate(a).GetYear()); }},
    {"DateAsMonthDayYear", [](Operators & o, Value a) { return o.DateAsMonthDayYear(a); },
     [](Model m, Value a) {
         DateTime const d = m.AsDate(a);
         return DataValue((d.GetMonth() * 100 + d.GetDay()) * 10000 + d.GetYear());
     }},
    {"DateTimeAsHour", [](Operators & o, Value a) { return o.DateTimeAsHour(a); },
     [](Model m, Value a) { return DataValue(m.AsDatetime(a).GetHour()); }},
    {"DateTimeAsMinute", [](Operators & o, Value a) { return o.DateTimeAsMinute(a); },
     [](Model m, Value a) { return DataValue(m.AsDatetime(a).GetMinute()); }},
    {"DateTimeAsSecond", [](Operators & o, Value a) { return o.DateTimeAsSecond(a); },
     [](Model m, Value a) { return DataValue(m.AsDatetime(a).GetSecond()); }},
};

Operators With(bool sql)
{
    Operators operators;
    operators.SetSQLNullSemantics(sql);
    return operators;
}

testing::AssertionResult Agrees(BinaryRow const & row, bool sql, Value a, Value b)
{
    OperatorModel const model(sql);
    Outcome const expected = OutcomeOf([&] { return row.model(model, a, b); });
    if (expected.dies)
        return testing::AssertionSuccess();  // see the death tests
    Operators operators = With(sql);
    Outcome const actual = OutcomeOf([&] { return row.run(operators, a, b); });
    if (actual == expected)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << row.name << (sql ? " with SQL nulls of " : " of ")
                                       << testing::PrintToString(a) << " and " << testing::PrintToString(b) << ": "
                                       << testing::PrintToString(actual) << ", not "
                                       << testing::PrintToString(expected);
}

TEST(DataValueOperatorsMatrix, EveryPairThroughEveryBinaryOperationGivesTheStatedValueOrError)
{
    QuietLogger const quiet;
    std::vector<DataValue> const samples = AllSamples();
    for (bool const sql : {false, true})
        for (BinaryRow const & row : kBinary)
            for (DataValue const & a : samples)
                for (DataValue const & b : samples)
                    ASSERT_TRUE(Agrees(row, sql, a, b));
}

TEST(DataValueOperatorsMatrix, EveryValueThroughEveryUnaryOperationGivesTheStatedValueOrError)
{
    QuietLogger const quiet;
    for (bool const sql : {false, true})
        for (UnaryRow const & row : kUnary)
            for (DataValue const & a : AllSamples()) {
                Operators operators = With(sql);
                OperatorModel const model(sql);
                ASSERT_EQ(OutcomeOf([&] { return row.run(operators, a); }),
                          OutcomeOf([&] { return row.model(model, a); }))
                    << row.name << " of " << testing::PrintToString(a) << " sql " << sql;
            }
}

TEST(DataValueOperatorsMatrix, EveryValueCastToEveryTypeGivesTheStatedValueOrError)
{
    QuietLogger const quiet;
    for (DataValue const & a : AllSamples())
        for (int type = 0; type < kTypes; ++type)
            ASSERT_EQ(OutcomeOf([&] { return Operators().Cast(a, TypeOf(type)); }),
                      OutcomeOf([&] { return OperatorModel(false).Cast(a, TypeOf(type)); }))
                << testing::PrintToString(a) << " to " << type;
}

TEST(DataValueOperatorsMatrix, PromoteAndCanPromoteAgreeOnEveryPair)
{
    for (int a = 0; a < kTypes; ++a)
        for (int b = 0; b < kTypes; ++b) {
            auto const number = [](DataType type) { return DataValue(static_cast<int>(type)); };
            Outcome const expected =
                OutcomeOf([&] { return number(OperatorModel(false).Promote(TypeOf(a), TypeOf(b))); });
            EXPECT_EQ(OutcomeOf([&] { return number(Operators().Promote(TypeOf(a), TypeOf(b))); }), expected);
            EXPECT_EQ(Operators().CanPromote(TypeOf(a), TypeOf(b)), expected.value.has_value()) << a << ' ' << b;

            Outcome const lossless =
                OutcomeOf([&] { return number(Operators().PromoteWithoutLoss(TypeOf(a), TypeOf(b))); });
            bool const can = a == b || (a == 0 && b == 1) || (a == 5 && b == 3);
            EXPECT_EQ(Operators().CanPromoteWithoutLoss(TypeOf(a), TypeOf(b)), can) << a << ' ' << b;
            EXPECT_EQ(lossless, can ? OutcomeOf([&] { return number(TypeOf(b)); })
                                    : OutcomeOf([]() -> DataValue { TwoTypes(); }));
        }
}

// Interpolation is a composition of the operations above, written out once more here.
DataValue Interpolated(double fraction, Value start, Value end, bool cast)
{
    OperatorModel const model(false);
    DataValue value = start;
    if (model.Compare(start, end, false) != 0) {
        bool const numbers = IsNumeric(start.GetDataType()) && IsNumeric(end.GetDataType());
        if (numbers && std::fabs(model.AsReal(end) * 1e-6 - model.AsReal(start) * 1e-6) > 1.0)
            value = model.Arithmetic('+', model.Arithmetic('*', start, DataValue(1.0 - fraction)),
                                     model.Arithmetic('*', end, DataValue(fraction)));
        else
            value = model.Arithmetic('+', start,
                                     model.Arithmetic('*', DataValue(fraction), model.Arithmetic('-', end, start)));
    }
    return cast ? model.Cast(value, start.GetDataType()) : value;
}

TEST(DataValueOperatorsMatrix, EveryPairInterpolatesToTheStatedValueOrError)
{
    QuietLogger const quiet;
    std::vector<DataValue> const samples = AllSamples();
    for (double const fraction : {0.25, std::numeric_limits<double>::quiet_NaN()})
        for (bool const cast : {true, false})
            for (DataValue const & a : samples)
                for (DataValue const & b : samples)
                    ASSERT_EQ(OutcomeOf([&] { return Operators().Interpolate(fraction, a, b, !cast); }),
                              OutcomeOf([&] { return Interpolated(fraction, a, b, cast); }))
                        << testing::PrintToString(a) << " to " << testing::PrintToString(b);
}

double Inverted(Value value, Value start, Value end)
{
    OperatorModel const model(false);
    if (model.Compare(start, end, false) == 0)
        return 0.0;
    bool const numbers = IsNumeric(start.GetDataType()) && IsNumeric(end.GetDataType());
    if (numbers && std::fabs(model.AsReal(end) * 1e-6 - model.AsReal(start) * 1e-6) > 1.0) {
        double const s = model.AsReal(start);
        double const e = model.AsReal(end);
        double const x = model.AsReal(value);
        if (s != 0.0 && s != e)
            return (x / s - 1.0) / (e / s - 1.0);
        if (e == 0.0 || s == e)
            return 0.0;
        return ((x - s) / e) / (1.0 - s / e);
    }
    double const d = model.AsReal(model.Arithmetic('-', end, start));
    return d == 0.0 ? 0.0 : model.AsReal(model.Arithmetic('-', value, start)) / d;
}

TEST(DataValueOperatorsMatrix, EveryPairOfEndsInvertsToTheStatedNumberOrError)
{
    QuietLogger const quiet;
    std::vector<DataValue> const samples = AllSamples();
    DataValue const values[] = {DataValue(7), DataValue(-2.5), DateOf(2020, 2, 1), Null(DataType::Unknown),
                                DataValue(GetBinaryCollation(), u"x")};
    for (DataValue const & value : values)
        for (DataValue const & a : samples)
            for (DataValue const & b : samples)
                ASSERT_EQ(OutcomeOf([&] { return DataValue(Operators().InverseInterpolate(value, a, b)); }),
                          OutcomeOf([&] { return DataValue(Inverted(value, a, b)); }))
                    << testing::PrintToString(value) << " between " << testing::PrintToString(a) << " and "
                    << testing::PrintToString(b);
}

// The road in place of mixed numbers against the road by promotion and casts.
TEST(DataValueOperatorsMatrix, MixedNumbersCombineAsThePromotedOnesDo)
{
    std::mt19937_64 random(20);
    std::vector<DataValue> pool = NumberSamples();
    for (int special = 0; special < kSpecials; ++special)
        for (DataType const type : {DataType::Integer, DataType::Real, DataType::Unknown})
            pool.push_back(DataValue(SpecialOf(special), type));
    auto const next = [&] {
        switch (random() % 4) {
        case 0: return DataValue(static_cast<long long>(random()));
        case 1: return DataValue(std::bit_cast<double>(static_cast<std::uint64_t>(random())));
        case 2: return DataValue(static_cast<double>(static_cast<long long>(random())) / 1024.0);
        default: return pool[random() % pool.size()];
        }
    };
    for (int i = 0; i < 200000; ++i) {
        DataValue const a = next();
        DataValue const b = next();
        ASSERT_TRUE(Agrees(kBinary[random() % 10], (random() & 1) != 0, a, b));
    }
}

}  // namespace
