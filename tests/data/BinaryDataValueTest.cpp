#include "velcoredata/data/BinaryDataValue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValueSamples.h"

namespace {

using namespace test_support;
using BinaryPtr = RefCntPtr<BinaryDataValue, RefCntObject>;
using Bytes = std::vector<char>;

// The low `count` bytes, least first.
Bytes Little(std::uint64_t number, std::size_t count)
{
    Bytes bytes;
    for (std::size_t i = 0; i < count; ++i)
        bytes.push_back(static_cast<char>(number >> (8 * i) & 0xFF));
    return bytes;
}

// What an encoder leaves of other content.
template <class Encode>
Bytes Encoded(Encode const & encode)
{
    BinaryPtr const binary(new BinaryDataValue("0123456789", 10));
    encode(*binary);
    return binary->GetValue();
}

Bytes BytesOf(DataValue const & value)
{
    return BinaryPtr(new BinaryDataValue(value))->GetValue();
}

Bytes Content(char const * text, std::size_t count)
{
    return Bytes(text, text + count);
}

TEST(BinaryDataValue, IsMadeOfBytesOrOfAValue)
{
    Bytes const bytes = {'a', '\0', 'b'};
    EXPECT_TRUE(BinaryPtr(new BinaryDataValue)->GetValue().empty());
    EXPECT_EQ(BinaryPtr(new BinaryDataValue(bytes))->GetValue(), bytes);
    EXPECT_EQ(BinaryPtr(new BinaryDataValue(Bytes(bytes)))->GetValue(), bytes);
    EXPECT_EQ(BinaryPtr(new BinaryDataValue("a\0bc", 3))->GetValue(), bytes);
    EXPECT_EQ(BinaryPtr(new BinaryDataValue(nullptr, 0))->GetValue(), Bytes());
    EXPECT_EQ(BinaryPtr(new BinaryDataValue(TString(u"a")))->GetValue(), Content("\1\0\0\0a", 5));
    EXPECT_EQ(BytesOf(5), Little(5, 8));
    static_assert(!std::is_destructible_v<BinaryDataValue>);
}

TEST(BinaryDataValue, SetValueReplacesTheBytes)
{
    Bytes const bytes = {'a', 'b'};
    EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetValue(bytes); }), bytes);
    EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetValue(Bytes(bytes)); }), bytes);
    EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetValue("ab", 2); }), bytes);
    EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetValue(nullptr, 0); }), Bytes());
    // Its own bytes as the argument.
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetValue(b.GetValue().data() + 2, 3); }), Content("234", 3));
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetString(b.GetValue().data() + 2, 1); }), Content("\1\0\0\0002", 5));
}

TEST(BinaryDataValue, NumbersAreLittleEndian)
{
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetBoolean(true); }), Content("\1", 1));
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetBoolean(false); }), Content("\0", 1));
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetInt16(0x1234); }), Content("\x34\x12", 2));
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetInt16(-2); }), Content("\xFE\xFF", 2));
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetInt32(0x12345678); }), Little(0x12345678, 4));
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetInt64(0x123456789ABCDEF0); }), Little(0x123456789ABCDEF0, 8));
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetInt64(-1); }), Bytes(8, '\xFF'));
}

TEST(BinaryDataValue, ARealWithoutAScaleIsItsBits)
{
    for (double const value : {1.5, -0.0, 1e300, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetReal(value, -1); }),
                  Little(std::bit_cast<std::uint64_t>(value), 8));
}

struct ScaleRow
{
    double value;
    int scale;
    long long integer;
};

TEST(BinaryDataValue, ARealWithAScaleIsARoundedInteger)
{
    long long const lowest = std::numeric_limits<long long>::min();
    ScaleRow const rows[] = {
        {1.5, 2, 150},
        {1.5, 0, 2},
        {2.5, 0, 3},  // half away from zero
        {-2.5, 0, -3},
        {-1.5, 1, -15},
        {0.005, 2, 1},
        {0.0049, 2, 0},
        {1.0, 11, 100000000000},
        {-1.0, 11, -100000000000},
        {0.49999999999999994, 0, 0},
        {4503599627370497.5, 0, 4503599627370498},
        {1e19, 0, lowest},  // as the processor converts
        {-1e19, 0, lowest},
        {1e18, 1, lowest},
        {std::numeric_limits<double>::quiet_NaN(), 3, lowest},
        {std::numeric_limits<double>::infinity(), 3, lowest},
        {std::numeric_limits<double>::denorm_min(), 11, 0},
    };
    for (ScaleRow const & row : rows) {
        auto const scale = static_cast<signed char>(row.scale);
        EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetReal(row.value, scale); }),
                  Little(static_cast<std::uint64_t>(row.integer), 8))
            << row.value << ' ' << row.scale;
    }
    long long power = 1;
    for (signed char scale = 0; scale < 12; ++scale, power *= 10)
        EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetReal(7.0, scale); }),
                  Little(static_cast<std::uint64_t>(7 * power), 8));
}

TEST(BinaryDataValue, AScaleOffTheTableReadsNoMemoryBeyondIt)
{
    for (int const scale : {12, 127, -2, -128})
        EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetReal(1.5, static_cast<signed char>(scale)); }),
                  Little(std::bit_cast<std::uint64_t>(1.5), 8));
}

TEST(BinaryDataValue, DatesCountDaysAndDatetimesHundredsOfTicksFromOneDayEarlier)
{
    DateTime const noon(2000, 1, 1, 12, 0, 0, 0.5);
    EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetDate(noon); }), Little(2451545, 4));  // its Julian Day Number
    EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetDateTime(noon); }),
              Little((2118134448005000 + 864000000) * 100, 8));
    auto const last = DateTime::FromValue(~0ull);
    EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetDate(last); }), Little(~0ull / 864000000 + 1, 4));
    EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetDateTime(last); }), Little((~0ull + 864000000) * 100, 8));
}

TEST(BinaryDataValue, AStringIsItsLengthInBytesAndItsBytes)
{
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetString("abc", 3); }), Content("\3\0\0\0abc", 7));
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetString(std::string("a\0b", 3)); }), Content("\3\0\0\0a\0b", 7));
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetString(TString(u"\u00E9")); }), Content("\2\0\0\0\xC3\xA9", 6));
    EXPECT_EQ(Encoded([](BinaryDataValue & b) { b.SetString("", 0); }), Bytes(4, '\0'));
    Bytes const longText = Encoded([](BinaryDataValue & b) { b.SetString(std::string(300, 'x')); });
    EXPECT_EQ(longText.size(), 304u);
    EXPECT_EQ(Bytes(longText.begin(), longText.begin() + 4), Little(300, 4));
}

TEST(BinaryDataValue, AValueEncodesByItsTypeAndMarkersAreNotLookedAt)
{
    EXPECT_EQ(BytesOf(-5), Little(static_cast<std::uint64_t>(-5), 8));
    EXPECT_EQ(BytesOf(DataValue(1.5, 5, 2)), Little(150, 8));
    EXPECT_EQ(BytesOf(1.5), Little(std::bit_cast<std::uint64_t>(1.5), 8));
    EXPECT_EQ(BytesOf(true), Content("\1", 1));
    EXPECT_EQ(BytesOf(DataValue(GetBinaryCollation(), u"abc")), Content("\3\0\0\0abc", 7));
    EXPECT_EQ(BytesOf(DateOf(2000, 1, 1)), Little(2451545, 4));
    EXPECT_EQ(BytesOf(DatetimeOf(2000, 1, 1, 12, 0, 0, 0.5)), Little((2118134448005000 + 864000000) * 100, 8));
    EXPECT_EQ(BytesOf(Null(DataType::Integer)), Bytes(8, '\0'));
    EXPECT_EQ(BytesOf(DataValue(DataValueTypes::All, DataType::Real)), Bytes(8, '\0'));
    EXPECT_EQ(BytesOf(Null(DataType::Boolean)), Bytes(1, '\0'));
    EXPECT_EQ(BytesOf(Null(DataType::String)), Bytes(4, '\0'));
    EXPECT_EQ(BytesOf(Null(DataType::Date)), Little(2415019, 4));  // 1899-12-30
    EXPECT_EQ(BytesOf(Null(DataType::DateTime)), Little((DateTime::s_OLEEpoch + 864000000) * 100, 8));
}

// The examples of docs/formats/binary-values.md.
TEST(BinaryDataValue, ThePageOfByteFormsTellsTheTruth)
{
    EXPECT_EQ(BytesOf(DateOf(2000, 1, 1)), Content("\x59\x68\x25\x00", 4));
    EXPECT_EQ(BytesOf(Null(DataType::Date)), Content("\xAB\xD9\x24\x00", 4));
    EXPECT_EQ(BytesOf(Null(DataType::DateTime)), Content("\x00\x20\x3D\xFF\x04\x4D\xE5\x02", 8));
    EXPECT_EQ(BytesOf(DatetimeOf(2000, 1, 1, 12, 0, 0, 0.5)), Content("\x20\xB1\xD3\xCD\x48\x83\xF0\x02", 8));
    EXPECT_EQ(BytesOf(1.5), Content("\0\0\0\0\0\0\xF8\x3F", 8));
    EXPECT_EQ(BytesOf(DataValue(DateTime::FromValue(DateTime::maxGregorianDate), DataType::DateTime)).back() & 0x80, 0);
    DateTime const moment(2021, 3, 4, 12, 34, 56, 0.5);
    Bytes const bytes = BytesOf(DataValue(moment, DataType::DateTime));
    std::uint64_t count = 0;
    std::memcpy(&count, bytes.data(), 8);
    long long seconds = 0;
    ASSERT_TRUE(moment.GetAsUnixTime(seconds, true));
    EXPECT_EQ(static_cast<long long>(count / 1000000) - 210866803200, seconds);
}

TEST(BinaryDataValue, OtherTypesChangeNothing)
{
    for (DataValue const & value : {TupleOf({1}), DataValue(MakeSpatial(1, 1)), DataValue(), BinaryOf({'x'}),
                                    DataValue(Time(1ull), DataType::Time), Null(DataType::Table)})
        EXPECT_EQ(Encoded([&](BinaryDataValue & b) { b.SetDataValue(value); }), Content("0123456789", 10))
            << testing::PrintToString(value);
}

TEST(BinaryDataValue, TuplesAndSpatialObjectsAreRefusedAndTheBytesKept)
{
    BinaryPtr const binary(new BinaryDataValue("abc", 3));
    EXPECT_THAT([&] { binary->SetTuple(TupleOf({1}).GetTuple()); },
                ThrowsErrorOf<VeltriaException>("VeltriaException_IncorrectDatatypeException_0xCA8348EE",
                                                "Incorrect data type 6, setting expected 8 type.", 2, 2));
    EXPECT_THAT([&] { binary->SetTuple(nullptr); },
                ThrowsError("VeltriaException_IncorrectDatatypeException_0xCA8348EE"));
    EXPECT_THAT([&] { binary->SetSpatial(MakeSpatial(1, 1)); },
                ThrowsErrorOf<VeltriaException>("VeltriaException_IncorrectDatatypeException_0xCA836145",
                                                "Incorrect data type 7, setting expected 8 type.", 2, 2));
    EXPECT_EQ(binary->GetValue(), Content("abc", 3));
}

}  // namespace
