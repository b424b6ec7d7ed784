// What DataValueFormatter writes, read back by a reader that knows docs/formats/value-text.md and nothing else.
#include "tests/support/ValueTextReader.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <QString>

#include "main/parser/DecimalNumberText.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/RandomAnyValue.h"
#include "velcoredata/parser/DataValueFormatter.h"
#include "velgeo/Spatial.h"

namespace {

using namespace test_support;
using Attributes = std::unordered_map<TString, TString>;
using Options = DataValueFormatter::FormatOptions;

constexpr Options kDefaults;

std::optional<DataValue> Read(char16_t const * text, Attributes const & attributes = {})
{
    return ReadValueText(TString(text), attributes);
}

// The attributes of a value; false for a tuple whose members do not agree.
bool GetAttributes(DataValue const & value, Attributes & attributes)
{
    try {
        attributes = DataValueFormatter::GetDataValueTypeAttributes(value);
        return true;
    } catch (VeltriaException const &) {
        return false;
    }
}

signed char Number(Attributes const & attributes, char16_t const * key)
{
    auto const place = attributes.find(TString(key));
    return static_cast<signed char>(place == attributes.end() ? -1 : place->second.toInt());
}

// The real that the digits of a text stand for.
double KeptReal(DataValue const & value, Options const & options)
{
    double real = value.GetReal();
    int digits = options.realDigits;
    if (value.GetPrecision() != -1 && value.GetScale() != -1 && value.GetPrecision() < digits) {
        digits = value.GetPrecision();
        double const unit = value.GetScale() == -2 ? 100.0 : std::pow(10.0, -value.GetScale());
        double const quotient = real / unit;
        real = (quotient < 0.0 ? std::ceil(quotient - 0.5) : std::floor(quotient + 0.5)) * unit;
    }
    bool const decimal = options.numberStyle == DataValueFormatter::NumberStyle::Decimal;
    std::string const text = decimal ? detail::DecimalNumberText(real, digits, true).toStdString()
                                     : QString::number(real, 'g', digits).toStdString();
    if (std::isinf(real))
        return real;
    double const kept = std::strtod(text.c_str(), nullptr);
    return kept == 0.0 && !decimal ? std::copysign(0.0, real) : kept;
}

// What the text keeps of a value. `attributes` are those of the whole, null where there are none: within a tuple in a
// tuple, or where the members do not agree.
DataValue Kept(DataValue const & value, Attributes const * attributes, Options const & options)
{
    DataType const type = value.GetDataType();
    if (value.IsSpecial())
        return DataValue(value.GetSpecial(), attributes != nullptr ? type : DataType::Unknown);
    switch (type) {
    case DataType::Real:
        if (attributes == nullptr)
            return DataValue(KeptReal(value, options));
        // Those of one Real are those of all in a tuple.
        return DataValue(KeptReal(value, options), Number(*attributes, u"precision"), Number(*attributes, u"scale"));
    case DataType::DateTime: {
        auto const representation = value.GetDatetime().GetRepresentation();
        auto const milliseconds = static_cast<unsigned long long>(value.GetDatetime().GetMilliseconds());
        return DataValue(DateTime::FromValue(representation - representation % 10000 + milliseconds * 10), type);
    }
    case DataType::String: return attributes != nullptr ? value : DataValue::FromString(value.GetString());
    case DataType::Spatial: return options.spatialAsWkt ? value : DataValue(value.GetSpatial()->GetHash());
    case DataType::Binary: return DataValue(DataValueTypes::Normal, attributes != nullptr ? type : DataType::Unknown);
    case DataType::Tuple: {
        Options const & inner = options.inheritOptionsInTuples ? options : kDefaults;
        std::vector<DataValue> members;
        for (DataValue const & member : value.GetTuple()->GetValues()) {
            bool const nested = member.GetDataType() == DataType::Tuple;
            members.push_back(Kept(member, nested ? nullptr : attributes, inner));
        }
        // One member without a text looks like none.
        bool const invisible = attributes == nullptr && members.size() == 1 && !members[0].IsSpecial() &&
                               members[0].GetDataType() == DataType::Unknown;
        return TupleOf(invisible ? std::vector<DataValue>() : std::move(members));
    }
    default: return value;
    }
}

bool Alike(DataValue const & a, DataValue const & b)
{
    if (a.GetDataType() != b.GetDataType() || a.GetSpecial() != b.GetSpecial() ||
        a.GetPrecision() != b.GetPrecision() || a.GetScale() != b.GetScale())
        return false;
    if (a.IsSpecial())
        return true;
    switch (a.GetDataType()) {
    case DataType::Real:
        return (std::isnan(a.GetReal()) && std::isnan(b.GetReal())) ||
               std::bit_cast<std::uint64_t>(a.GetReal()) == std::bit_cast<std::uint64_t>(b.GetReal());
    case DataType::String: return a.GetString() == b.GetString() && a.GetCollation() == b.GetCollation();
    case DataType::Tuple: {
        auto const & as = a.GetTuple()->GetValues();
        auto const & bs = b.GetTuple()->GetValues();
        return as.size() == bs.size() && std::equal(as.begin(), as.end(), bs.begin(), Alike);
    }
    case DataType::Spatial: return *a.GetSpatial() == *b.GetSpatial();
    default: return a.GetAny() == b.GetAny();
    }
}

// VELCOREDATA_VALUE_TEXT_DRAWS sets another number of values.
void ReadBack(unsigned seed, Options const & options, long draws)
{
    if (char const * const asked = std::getenv("VELCOREDATA_VALUE_TEXT_DRAWS"))
        draws = std::atol(asked);
    RandomAnyValue random(seed);
    long read[kTypes] = {};
    for (long i = draws; i > 0; --i) {
        DataValue const value = random.Any();
        TString text = DataValueFormatter::Format(value, options);
        if (random.Below(8) == 0)
            text = u"esv-marked[" + text + u"]";
        Attributes attributes;
        bool const has = GetAttributes(value, attributes);
        auto const back = ReadValueText(text, attributes);
        ASSERT_TRUE(back.has_value()) << text.toStdString();
        ASSERT_TRUE(Alike(*back, Kept(value, has ? &attributes : nullptr, options)))
            << text.toStdString() << '\n'
            << testing::PrintToString(*back) << '\n'
            << testing::PrintToString(value);
        ++read[static_cast<int>(value.GetDataType())];
    }
    for (int type = 0; type < kTypes - 1; ++type)
        EXPECT_GT(read[type], draws / 50) << type;
}

}  // namespace

TEST(ValueTextReader, ReadsBackEverythingThatIsWritten)
{
    ReadBack(81, Options(), 1000000);
}

TEST(ValueTextReader, ReadsTheDecimalStyle)
{
    Options options;
    options.numberStyle = DataValueFormatter::NumberStyle::Decimal;
    ReadBack(82, options, 100000);
    options.inheritOptionsInTuples = true;
    ReadBack(83, options, 100000);
}

TEST(ValueTextReader, ReadsSpatialObjects)
{
    Options options;
    options.spatialAsWkt = true;
    ReadBack(84, options, 100000);
    options.inheritOptionsInTuples = true;
    ReadBack(85, options, 100000);
}

TEST(ValueTextReader, ReadsAThousandLevels)
{
    DataValue value = TupleOf({DataValue(GetUnknownCollation(), TString(u"a,)\\")), DataValue(1)});
    for (int i = 1; i < 1000; ++i)
        value = TupleOf({value});
    auto const back = ReadValueText(DataValueFormatter::Format(value, Options()), {});
    ASSERT_TRUE(back.has_value());
    EXPECT_TRUE(Alike(*back, value));
}

TEST(ValueTextReader, TellsTypesByTheirForm)
{
    struct Case
    {
        char16_t const * text;
        DataValue value;
    };
    for (auto const & [text, value] : std::vector<Case>{
             {u"5", DataValue(5)},
             {u"-5", DataValue(-5)},
             {u"5.", DataValue(5.0)},
             {u"5e+20", DataValue(5e20)},
             {u"inf", DataValue(HUGE_VAL)},
             {u"-10000000000000000000000000000000000000", DataValue(-HUGE_VAL)},
             {u"true", DataValue(true)},
             {u"#2020-01-02#", DateOf(2020, 1, 2)},
             {u"#2020-01-02 00:00:00#", DatetimeOf(2020, 1, 2, 0, 0, 0)},
             {u"#03:04:05.006#", DatetimeOf(1899, 12, 30, 3, 4, 5, 0.006)},
             {u"3:4:5.6", DataValue(Time(3, 4, 5, 6u), DataType::Time)},
             {u"\"a\"", DataValue::FromString(u"a")},
             {u"%many-values%", DataValue(DataValueTypes::ManyValues, DataType::Unknown)},
             {u"", DataValue(DataValueTypes::Normal, DataType::Unknown)},
             {u"()", TupleOf({})},
             {u"(,)", TupleOf({DataValue(DataValueTypes::Normal, DataType::Unknown),
                               DataValue(DataValueTypes::Normal, DataType::Unknown)})},
             {u"((1\\,2\\),3)", TupleOf({TupleOf({DataValue(1), DataValue(2)}), DataValue(3)})},
             {u"esv-marked[5]", DataValue(5)},
         })
    {
        auto const back = Read(text);
        ASSERT_TRUE(back.has_value()) << TString(text).toStdString();
        EXPECT_TRUE(Alike(*back, value)) << TString(text).toStdString();
    }
}

TEST(ValueTextReader, RefusesWhatNoWriterMakes)
{
    for (char16_t const * const text :
         {u"x",          u"%",          u"%nul%",       u"\"",           u"\"a",
          u"\"a\"b\"",   u"\"\\\"",     u"\"\\n\"",     u"\"\\x;\"",     u"\"\\x12345;\"",
          u"\"\\xg;\"",  u"#",          u"#2020-1-02#", u"#2020-13-02#", u"#2020-01-02",
          u"#24:00:00#", u"#00:60:00#", u"#00:00:60#",  u"#399-12-31#",  u"#1900-02-29 00:00:00#",
          u"#03:04#",    u"(",          u"(1",          u"1)",           u"(1))",
          u"((1,2),3)",  u"tru",        u"1:2:3",       u"25:0:0.0",     u"5 ",
          u" 5",         u"+5",         u"--5",         u"1.5.5",        u"1e",
          u"5x",         u"nane"})
        EXPECT_FALSE(Read(text).has_value()) << TString(text).toStdString();
    EXPECT_FALSE(Read(u"5", {{u"datatype", u"number"}}).has_value());
    EXPECT_FALSE(Read(u"5", {{u"datatype", u"boolean"}}).has_value());
    EXPECT_FALSE(Read(u"(1)", {{u"tuple-datatypes", u"(integer,integer)"}, {u"tuple-size", u"2"}}).has_value());
}
