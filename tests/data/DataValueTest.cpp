#include "velcoredata/data/DataValue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

#include "tests/support/AllocationCounter.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/BinaryDataValue.h"
#include "velcoredata/data/Tuple.h"
#include "velcoreplatform/TLog.h"

namespace {

constexpr char const * kGetError = "VeltriaException_IncorrectDatatypeException_0xCA8336D0";
constexpr char const * kSetError = "VeltriaException_IncorrectDatatypeException_0xCA8336D1";

DateTime const kNoon(2021, 3, 4, 12, 34, 56, 0.5);

struct Header
{
    DataType type;
    DataValueTypes::Special special;
    signed char precision;
    signed char scale;
    int ordinal;
    long long payload;
};

// The 16 bytes in the stated order of the fields.
Header BytesOf(DataValue const & value)
{
    unsigned char bytes[16];
    std::memcpy(bytes, static_cast<void const *>(&value), 16);
    Header header{static_cast<DataType>(bytes[0]),
                  static_cast<DataValueTypes::Special>(bytes[1]),
                  static_cast<signed char>(bytes[2]),
                  static_cast<signed char>(bytes[3]),
                  0,
                  0};
    std::memcpy(&header.ordinal, bytes + 4, 4);
    std::memcpy(&header.payload, bytes + 8, 8);
    return header;
}

void ExpectFields(DataValue const & value, Header const & expected)
{
    Header const actual = BytesOf(value);
    EXPECT_EQ(actual.type, expected.type);
    EXPECT_EQ(actual.special, expected.special);
    EXPECT_EQ(actual.precision, expected.precision);
    EXPECT_EQ(actual.scale, expected.scale);
    EXPECT_EQ(actual.ordinal, expected.ordinal);
    EXPECT_EQ(actual.payload, expected.payload);
    EXPECT_EQ(value.GetAny(), expected.payload);
    EXPECT_EQ(value.GetDataType(), expected.type);
    EXPECT_EQ(value.GetSpecial(), expected.special);
}

long long BitsOf(double value)
{
    return std::bit_cast<long long>(value);
}

long long RepresentationOf(DateTime const & value)
{
    return static_cast<long long>(value.GetRepresentation());
}

TEST(DataValue, DefaultIsATypelessNull)
{
    DataValue const value;
    ExpectFields(value, {DataType::Unknown, DataValueTypes::Null, -1, -1, 0, 0});
    EXPECT_TRUE(value.IsNull());
    EXPECT_TRUE(value.IsSpecial());
    EXPECT_FALSE(value.IsMissing());
}

TEST(DataValue, ConstructorsWriteTheStatedFields)
{
    ExpectFields(DataValue(-5), {DataType::Integer, DataValueTypes::Normal, -1, -1, 0, -5});
    ExpectFields(DataValue(-5L), {DataType::Integer, DataValueTypes::Normal, -1, -1, 0, -5});
    ExpectFields(DataValue(-5LL), {DataType::Integer, DataValueTypes::Normal, -1, -1, 0, -5});
    ExpectFields(DataValue(4000000000u), {DataType::Integer, DataValueTypes::Normal, -1, -1, 0, 4000000000});
    ExpectFields(DataValue(std::numeric_limits<std::size_t>::max()),
                 {DataType::Integer, DataValueTypes::Normal, -1, -1, 0, -1});
    ExpectFields(DataValue(true), {DataType::Boolean, DataValueTypes::Normal, -1, -1, 0, 1});
    ExpectFields(DataValue(false), {DataType::Boolean, DataValueTypes::Normal, -1, -1, 0, 0});
    ExpectFields(DataValue(1.5), {DataType::Real, DataValueTypes::Normal, -1, -1, 0, BitsOf(1.5)});
    ExpectFields(DataValue(1.5, 5, 2), {DataType::Real, DataValueTypes::Normal, 5, 2, 0, BitsOf(1.5)});
    ExpectFields(DataValue(kNoon, DataType::DateTime),
                 {DataType::DateTime, DataValueTypes::Normal, -1, -1, 0, RepresentationOf(kNoon)});
    ExpectFields(DataValue(kNoon, DataType::Date),
                 {DataType::Date, DataValueTypes::Normal, -1, -1, 0, RepresentationOf(kNoon.GetDate())});
    ExpectFields(DataValue(DataValueTypes::Missing, DataType::String),
                 {DataType::String, DataValueTypes::Missing, -1, -1, 0, 0});
}

TEST(DataValue, ATimeIsStoredWhateverTheTypeArgumentSays)
{
    for (DataType const type : {DataType::Time, DataType::Integer, DataType::Tuple})
        ExpectFields(DataValue(Time(7ull), type), {DataType::Time, DataValueTypes::Normal, -1, -1, 0, 7});
}

TEST(DataValue, TheCountPastTheDaySurvivesInATime)
{
    Time const pastTheDay(23, 59, 59, 1000000u);
    EXPECT_EQ(DataValue(pastTheDay, DataType::Time).GetTime().GetRepresentation(), 86400000000ull);
}

TEST(DataValue, ADateConstructorRefusesEveryOtherType)
{
    for (int number = 0; number < 12; ++number) {
        auto const type = static_cast<DataType>(number);
        if (type == DataType::DateTime || type == DataType::Date)
            continue;
        EXPECT_THAT([&] { DataValue(kNoon, type); }, ThrowsAssert("false", "LogicException_LogicAssert_0x72FAA0AE"));
    }
}

TEST(DataValue, MakersEqualTheConstructors)
{
    ExpectFields(DataValue::FromInt(7), BytesOf(DataValue(7)));
    ExpectFields(DataValue::FromDouble(-0.0), {DataType::Real, DataValueTypes::Normal, -1, -1, 0, BitsOf(-0.0)});
    ExpectFields(DataValue::FromDate(kNoon), BytesOf(DataValue(kNoon, DataType::Date)));
    ExpectFields(DataValue::FromDateTime(kNoon), BytesOf(DataValue(kNoon, DataType::DateTime)));
}

TEST(DataValue, LiteralsMakeRealsAndIntegers)
{
    ExpectFields(1.5_dv, BytesOf(DataValue(1.5)));
    ExpectFields(5_dv, BytesOf(DataValue(5)));
}

TEST(DataValue, PointersAndBareMarkersDoNotConvert)
{
    static_assert(!std::is_constructible_v<DataValue, char16_t const *>);
    static_assert(!std::is_constructible_v<DataValue, char const *>);
    static_assert(!std::is_constructible_v<DataValue, void *>);
    static_assert(!std::is_constructible_v<DataValue, std::nullptr_t>);
    static_assert(!std::is_constructible_v<DataValue, DataValueTypes::Special>);
    static_assert(!std::is_constructible_v<DataValue, DataType>);
}

TEST(DataValue, SettersResetThePrecisionAndScale)
{
    DataValue value;
    value.SetDecimal(1.0, 5, 2);
    EXPECT_EQ(value.GetPrecision(), 5);
    EXPECT_EQ(value.GetScale(), 2);
    value.SetInt(3);
    ExpectFields(value, {DataType::Integer, DataValueTypes::Normal, -1, -1, 0, 3});
    value.SetDecimal(1.0, 5, 2);
    value.SetReal(2.0);
    ExpectFields(value, {DataType::Real, DataValueTypes::Normal, -1, -1, 0, BitsOf(2.0)});
    value.SetDecimal(1.0, 5, 2);
    value.SetBool(true);
    ExpectFields(value, {DataType::Boolean, DataValueTypes::Normal, -1, -1, 0, 1});
    value.SetDecimal(1.0, 5, 2);
    value.SetTime(Time(9ull));
    ExpectFields(value, {DataType::Time, DataValueTypes::Normal, -1, -1, 0, 9});
    value.SetDecimal(1.0, 5, 2);
    value.SetDatetime(kNoon);
    ExpectFields(value, {DataType::DateTime, DataValueTypes::Normal, -1, -1, 0, RepresentationOf(kNoon)});
    value.SetDecimal(1.0, 5, 2);
    value.MakeSpecial(DataValueTypes::All, DataType::Real);
    ExpectFields(value, {DataType::Real, DataValueTypes::All, -1, -1, 0, 0});
}

TEST(DataValue, PrecisionAndScaleAreTakenAsTheyCome)
{
    DataValue const value(1.0, -128, 127);
    EXPECT_EQ(value.GetPrecision(), -128);
    EXPECT_EQ(value.GetScale(), 127);
    EXPECT_TRUE(value.HasPrecision());
    EXPECT_TRUE(value.HasScale());
    EXPECT_FALSE(DataValue(1.0).HasPrecision());
    EXPECT_FALSE(DataValue(1.0).HasScale());
    EXPECT_EQ(DataValue(5).GetPrecision(), -1);
    EXPECT_EQ(DataValue(5).GetScale(), -1);
    EXPECT_FALSE(DataValue(5).HasPrecision());
}

TEST(DataValue, SetDateStoresTheDateAlone)
{
    DataValue value;
    value.SetDate(kNoon);
    EXPECT_EQ(value.GetDate(), DateTime(2021, 3, 4, 0, 0, 0, 0.0));
    EXPECT_FALSE(value.GetDate().HasTime());
}

TEST(DataValue, AnInvalidDateBecomesANullSilently)
{
    for (unsigned long long const raw : {0ull, DateTime::minGregorianDate - 1, DateTime::maxGregorianDate + 1, ~0ull}) {
        DataValue value(5);
        value.SetDate(DateTime::FromValue(raw));
        ExpectFields(value, {DataType::Date, DataValueTypes::Null, -1, -1, 0, 0});
        value.SetInt(5);
        value.SetDatetime(DateTime::FromValue(raw));
        ExpectFields(value, {DataType::DateTime, DataValueTypes::Null, -1, -1, 0, 0});
        EXPECT_TRUE(DataValue(DateTime::FromValue(raw), DataType::Date).IsNull());
    }
}

TEST(DataValue, AValidDateBeforeTheYear400CannotBeCutToItsDate)
{
    DataValue value(5);
    auto const early = DateTime::FromValue(DateTime::minGregorianDate);
    EXPECT_THAT([&] { value.SetDate(early); },
                ThrowsError("VeltriaException_AutoGen_0xDD90F63D", "Invalid datetime value"));
    ExpectFields(value, BytesOf(DataValue(5)));
    value.SetDatetime(early);
    EXPECT_EQ(value.GetDatetime(), early);
}

TEST(DataValue, MarkersOfTypeTupleAreRefusedAndTheValueKept)
{
    EXPECT_THAT([] { DataValue(DataValueTypes::Null, DataType::Tuple); },
                ThrowsError("VeltriaException_AutoGen_0xC3E581B1", "DataValue::MakeSpecial: bad argument"));
    DataValue value(1.5, 5, 2);
    EXPECT_THAT([&] { value.MakeSpecial(DataValueTypes::Normal, DataType::Tuple); },
                ThrowsError("VeltriaException_AutoGen_0x230EF8C1", "DataValue::MakeSpecial: bad argument"));
    ExpectFields(value, BytesOf(DataValue(1.5, 5, 2)));
}

TEST(DataValue, EveryMarkerOfEveryTypeButTupleIsAccepted)
{
    for (int type = 0; type < 12; ++type) {
        if (static_cast<DataType>(type) == DataType::Tuple)
            continue;
        for (int special = 0; special < 10; ++special) {
            auto const marker = static_cast<DataValueTypes::Special>(special);
            DataValue const value(marker, static_cast<DataType>(type));
            ExpectFields(value, {static_cast<DataType>(type), marker, -1, -1, 0, 0});
            EXPECT_EQ(value.IsSpecial(), special != 0);
            EXPECT_TRUE(value.IsSpecial(marker));
            EXPECT_EQ(value.IsNull(), special == 1);
            EXPECT_EQ(value.IsMissing(), special == 9);
            EXPECT_EQ(value.GetOrdinal(), -2);
            DataValue const copy(value);
            ExpectFields(copy, BytesOf(value));
        }
    }
}

TEST(DataValue, ReadersTestTheTypeAndNeverTheMarker)
{
    EXPECT_EQ(DataValue(DataValueTypes::Null, DataType::Integer).GetInt(), 0);
    EXPECT_EQ(BitsOf(DataValue(DataValueTypes::Error, DataType::Real).GetReal()), 0);
    EXPECT_FALSE(DataValue(DataValueTypes::All, DataType::Boolean).GetBool());
    EXPECT_EQ(DataValue(DataValueTypes::Null, DataType::Date).GetDate(), DateTime());
    EXPECT_EQ(DataValue(DataValueTypes::Null, DataType::DateTime).GetDatetime(), DateTime());
    EXPECT_EQ(DataValue(DataValueTypes::Null, DataType::Time).GetTime(), Time());
    EXPECT_EQ(DataValue(DataValueTypes::Null, DataType::Spatial).GetSpatial(), nullptr);
}

TEST(DataValue, UncheckedReadersTestNothing)
{
    EXPECT_EQ(DataValue(1.5).GetIntUnchecked(), BitsOf(1.5));
    EXPECT_EQ(DataValue(3).GetBoolUnchecked(), true);
    EXPECT_EQ(DataValue(256).GetBoolUnchecked(), false);
    EXPECT_EQ(DataValue(BitsOf(2.5)).GetRealUnchecked(), 2.5);
    EXPECT_EQ(DataValue(RepresentationOf(kNoon)).GetDateUnchecked(), kNoon);
    EXPECT_EQ(DataValue(RepresentationOf(kNoon)).GetDatetimeUnchecked(), kNoon);
    EXPECT_EQ(DataValue(77).GetTimeUnchecked(), Time(77ull));
}

using Reader = void (*)(DataValue const &);

struct ReaderRow
{
    char const * expected;
    DataType type;
    Reader read;
};

constexpr ReaderRow kReaders[] = {
    {"integer", DataType::Integer, [](DataValue const & v) { v.GetInt(); }},
    {"real", DataType::Real, [](DataValue const & v) { v.GetReal(); }},
    {"boolean", DataType::Boolean, [](DataValue const & v) { v.GetBool(); }},
    {"date", DataType::Date, [](DataValue const & v) { v.GetDate(); }},
    {"datetime", DataType::DateTime, [](DataValue const & v) { v.GetDatetime(); }},
    {"time", DataType::Time, [](DataValue const & v) { v.GetTime(); }},
    {"spatial", DataType::Spatial, [](DataValue const & v) { v.GetSpatial(); }},
};

constexpr char const * kTypeNames[] = {"integer", "real",    "string",  "datetime", "boolean", "date",
                                       "tuple",   "spatial", "unknown", "binary",   "time",    "table"};

TEST(DataValue, ACheckedReaderNamesBothTypes)
{
    for (ReaderRow const & reader : kReaders) {
        for (int number = 0; number < 12; ++number) {
            auto const type = static_cast<DataType>(number);
            if (type == DataType::Tuple)
                continue;
            DataValue const value(DataValueTypes::Null, type);
            if (type == reader.type) {
                EXPECT_NO_THROW(reader.read(value));
                continue;
            }
            std::string const message = std::string("Incorrect data type ") + kTypeNames[number] +
                                        ", getting expected " + reader.expected + " type.";
            EXPECT_THAT([&] { reader.read(value); }, ThrowsError(kGetError, message, 2, 2));
        }
    }
}

TEST(DataValue, AReaderOnATypeOutsideTheTableRaisesTheEncodingError)
{
    DataValue value;
    value.MakeSpecial(DataValueTypes::Normal, static_cast<DataType>(200));
    EXPECT_THAT([&] { value.GetInt(); }, ThrowsError("XMLEnumEncodingException_AutoGen_0x5D1E6A01"));
}

class RecordingLogger : public TLog::Logger
{
public:
    explicit RecordingLogger(bool enabled) : m_enabled(enabled), m_before(TLog::Logger::Replace(this)) {}
    ~RecordingLogger() override { TLog::Logger::Replace(m_before); }

    bool IsEnabled(TLog::AnySeverity const & severity) override
    {
        m_calls.push_back("ask " + std::to_string(static_cast<int>(static_cast<TLog::Severity>(severity))));
        return m_enabled;
    }
    void Log(TLog::Event const & event, TLog::AnySeverity const &) override
    {
        m_calls.push_back("log " + event.GetName().toStdString());
        auto const & fields = dynamic_cast<TLog::Object const &>(*event.GetValue()).GetFields();
        for (char16_t const * const name : {u"msg", u"actual", u"expected"})
            m_calls.push_back(fields.at(name)->ToText().toStdString());
        m_hasStack = fields.count(u"stack") == 1;
    }

    std::vector<std::string> m_calls;
    bool m_hasStack = false;

private:
    bool m_enabled;
    TLog::Logger * m_before;
};

TEST(DataValue, ATypeErrorIsLoggedAsAWarningWithBothTypesAndAStack)
{
    RecordingLogger logger(true);
    EXPECT_THROW(DataValue(1.5).GetInt(), VeltriaException);
    EXPECT_THAT(logger.m_calls, testing::ElementsAre("ask 3", "log incorrect-data-type",
                                                     "\"Incorrect data type real, getting expected integer type.\"",
                                                     "\"real\"", "\"integer\""));
    EXPECT_TRUE(logger.m_hasStack);
}

TEST(DataValue, ATypeErrorIsNotLoggedWhereWarningsAreOff)
{
    RecordingLogger logger(false);
    EXPECT_THROW(DataValue(1.5).GetInt(), VeltriaException);
    EXPECT_THAT(logger.m_calls, testing::ElementsAre("ask 3"));
}

TEST(DataValue, SetOrdinalIsRefusedOnEverythingButAStringWithAPayload)
{
    for (DataValue const & original : {DataValue(1.5, 5, 2), DataValue(DataValueTypes::Null, DataType::String),
                                       DataValue(DataValueTypes::Normal, DataType::String), DataValue()})
    {
        DataValue value(original);
        EXPECT_THAT([&] { value.SetOrdinal(3); }, ThrowsError(kSetError));
        ExpectFields(value, BytesOf(original));
        EXPECT_EQ(value.GetOrdinal(), -2);
    }
    DataValue real(1.5);
    EXPECT_THAT([&] { real.SetOrdinal(3); },
                ThrowsError(kSetError, "Incorrect data type real, setting expected string type.", 2, 2));
}

TEST(DataValue, AMovedFromValueChangesItsTypeByteAlone)
{
    DataValue source(1.5, 5, 2);
    DataValue const target(std::move(source));
    ExpectFields(target, BytesOf(DataValue(1.5, 5, 2)));
    ExpectFields(source, {DataType::Unknown, DataValueTypes::Normal, 5, 2, 0, BitsOf(1.5)});  // NOLINT
    source = DataValue(7);
    EXPECT_EQ(source.GetInt(), 7);
    DataValue assigned;
    assigned = std::move(source);
    ExpectFields(assigned, BytesOf(DataValue(7)));
    ExpectFields(source, {DataType::Unknown, DataValueTypes::Normal, -1, -1, 0, 7});  // NOLINT
}

TEST(DataValue, SelfAssignmentKeepsTheValue)
{
    DataValue value(1.5, 5, 2);
    DataValue & alias = value;
    value = alias;
    ExpectFields(value, BytesOf(DataValue(1.5, 5, 2)));
    value = std::move(alias);
    ExpectFields(value, BytesOf(DataValue(1.5, 5, 2)));
}

// A payload of the spatial type without a geometry layer: only its ownership matters here.
std::shared_ptr<velgeo::Spatial const> MakeSpatial()
{
    auto const owner = std::make_shared<int>(1);
    return {owner, reinterpret_cast<velgeo::Spatial const *>(owner.get())};
}

TEST(DataValue, ACopyOfASpatialValueHasAHolderOfItsOwn)
{
    auto const spatial = MakeSpatial();
    DataValue const value(spatial);
    EXPECT_EQ(spatial.use_count(), 2);
    {
        DataValue const copy(value);
        EXPECT_EQ(copy.GetSpatial(), spatial);
        EXPECT_NE(copy.GetAny(), value.GetAny());
        EXPECT_EQ(spatial.use_count(), 3);
    }
    EXPECT_EQ(value.GetSpatial(), spatial);
    EXPECT_EQ(spatial.use_count(), 2);
    EXPECT_EQ(value.GetDataType(), DataType::Spatial);
}

TEST(DataValue, EverySetterReleasesASpatialPayload)
{
    auto const spatial = MakeSpatial();
    std::vector<void (*)(DataValue &)> const setters = {
        [](DataValue & v) { v.SetInt(1); },
        [](DataValue & v) { v.SetReal(1.0); },
        [](DataValue & v) { v.SetDecimal(1.0, 1, 1); },
        [](DataValue & v) { v.SetBool(true); },
        [](DataValue & v) { v.SetDate(kNoon); },
        [](DataValue & v) { v.SetDatetime(kNoon); },
        [](DataValue & v) { v.SetTime(Time(1ull)); },
        [](DataValue & v) { v.MakeSpecial(DataValueTypes::Null, DataType::Spatial); },
        [](DataValue & v) { v = DataValue(1); },
        [](DataValue & v) {
            DataValue const other(2);
            v = other;
        },
    };
    for (auto const set : setters) {
        DataValue value(spatial);
        ASSERT_EQ(spatial.use_count(), 2);
        set(value);
        EXPECT_EQ(spatial.use_count(), 1);
    }
}

TEST(DataValue, ANullSpatialPointerIsRefusedAndTheValueKept)
{
    EXPECT_THAT(
        [] { DataValue(std::shared_ptr<velgeo::Spatial const>()); },
        ThrowsError("VeltriaException_AutoGen_0x90F95D59", "DataValue::SetSpatial: cannot construct from null"));
    DataValue value(5);
    EXPECT_THAT([&] { value.SetSpatial(nullptr); }, ThrowsError("VeltriaException_AutoGen_0x90F95D59"));
    ExpectFields(value, BytesOf(DataValue(5)));
}

TEST(DataValue, NullPointersToTuplesAndBinaryDataAreRefusedAndTheValueKept)
{
    using TuplePtr = RefCntPtr<Tuple, RefCntObject>;
    using BinaryPtr = RefCntPtr<BinaryDataValue, RefCntObject>;
    EXPECT_THAT([] { DataValue{TuplePtr()}; },
                ThrowsError("VeltriaException_AutoGen_0x92C27045", "DataValue::SetTuple: bad argument"));
    EXPECT_THAT([] { DataValue{BinaryPtr()}; },
                ThrowsError("VeltriaException_AutoGen_0x0EB526BD", "DataValue::SetBinary: cannot construct from null"));
    DataValue value(5);
    EXPECT_THAT([&] { value.SetTuple(TuplePtr()); }, ThrowsError("VeltriaException_AutoGen_0x92C27045"));
    EXPECT_THAT([&] { value.SetBinary(BinaryPtr()); }, ThrowsError("VeltriaException_AutoGen_0x0EB526BD"));
    ExpectFields(value, BytesOf(DataValue(5)));
}

TEST(DataValue, ScalarsNeverAllocate)
{
    std::vector<DataValue> values;
    values.reserve(64);
    auto const date = DateTime(2020, 2, 29, 1, 2, 3, 0.25);
    AllocationCounter const counter;
    for (int round = 0; round < 8; ++round) {
        values.emplace_back(1);
        values.emplace_back(1.5, static_cast<signed char>(5), static_cast<signed char>(2));
        values.emplace_back(true);
        values.emplace_back(date, DataType::Date);
        values.emplace_back(date, DataType::DateTime);
        values.emplace_back(Time(5ull), DataType::Time);
        values.emplace_back(DataValueTypes::Null, DataType::String);
        DataValue copy(values.back());
        copy = values.front();
        copy.SetDate(date);
        copy.SetDatetime(date);
        EXPECT_EQ(copy.GetDatetime(), date);
        DataValue const moved(std::move(copy));
        values[0] = moved;
    }
    EXPECT_EQ(counter.Count(), 0u);
}

}  // namespace
