// Values of every type, for tests that go over all of them, and random ones for property tests.
#pragma once

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "tests/support/SpatialStub.h"
#include "tests/support/ValuePrinters.h"
#include "velcoredata/data/BinaryDataValue.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/StringWithCollation.h"
#include "velcoredata/data/Tuple.h"

namespace test_support {

constexpr int kTypes = 12;
constexpr int kSpecials = 10;

inline DataType TypeOf(int number)
{
    return static_cast<DataType>(number);
}
inline DataValueTypes::Special SpecialOf(int number)
{
    return static_cast<DataValueTypes::Special>(number);
}
inline DataValue Null(DataType type)
{
    return DataValue(DataValueTypes::Null, type);
}
inline DataValue TupleOf(std::vector<DataValue> members)
{
    return DataValue(RefCntPtr<Tuple, RefCntObject>(new Tuple(std::move(members))));
}
inline DataValue BinaryOf(std::vector<char> bytes)
{
    return DataValue(RefCntPtr<BinaryDataValue, RefCntObject>(new BinaryDataValue(std::move(bytes))));
}
inline DataValue DateOf(int year, int month, int day)
{
    return DataValue(DateTime(year, month, day, 0, 0, 0, 0.0), DataType::Date);
}
inline DataValue DatetimeOf(int year, int month, int day, int hour, int minute, int second, double fraction = 0.0)
{
    return DataValue(DateTime(year, month, day, hour, minute, second, fraction), DataType::DateTime);
}

// Every marker, Normal without a payload too, in every type that takes it.
inline std::vector<DataValue> AllMarkers()
{
    std::vector<DataValue> values;
    for (int type = 0; type < kTypes; ++type)
        for (int special = 0; special < kSpecials; ++special)
            if (TypeOf(type) != DataType::Tuple)
                values.push_back(DataValue(SpecialOf(special), TypeOf(type)));
    return values;
}

// Limits and neighbours of what conversion can hold, zeros of both signs, NaN, infinities, subnormals.
inline std::vector<DataValue> NumberSamples()
{
    using Int = std::numeric_limits<long long>;
    using Real = std::numeric_limits<double>;
    double const twoTo63 = 9223372036854775808.0;
    return {DataValue(0),
            DataValue(1),
            DataValue(-1),
            DataValue(5),
            DataValue(Int::max()),
            DataValue(Int::min()),
            DataValue(Int::min() + 1),
            DataValue((1LL << 53) + 1),
            DataValue(1LL << 32),
            DataValue(0.0),
            DataValue(-0.0),
            DataValue(1.0),
            DataValue(-1.0),
            DataValue(0.5),
            DataValue(-8.0),
            DataValue(2.9, 3, 1),
            DataValue(-2.5, 9, 4),
            DataValue(1.0 / 3.0),
            DataValue(twoTo63),
            DataValue(-twoTo63),
            DataValue(std::nextafter(twoTo63, 0.0)),
            DataValue(1e300),
            DataValue(-1e300),
            DataValue(Real::max()),
            DataValue(Real::lowest()),
            DataValue(Real::min()),
            DataValue(Real::denorm_min()),
            DataValue(-Real::denorm_min()),
            DataValue(Real::infinity()),
            DataValue(-Real::infinity()),
            DataValue(Real::quiet_NaN()),
            DataValue(-Real::quiet_NaN())};
}

inline std::vector<DataValue> DateSamples()
{
    return {DateOf(2020, 1, 31), DateOf(400, 1, 1), DateOf(9999, 12, 31), DateOf(1899, 12, 30),
            DatetimeOf(2020, 1, 31, 12, 34, 56, 0.5), DatetimeOf(9999, 12, 31, 23, 59, 59),
            // Valid, but it cannot be cut to its date.
            DataValue(DateTime::FromValue(DateTime::minGregorianDate), DataType::DateTime)};
}

inline std::vector<DataValue> OtherSamples()
{
    return {DataValue(true),
            DataValue(false),
            DataValue(GetBinaryCollation(), u"text"),
            DataValue(GetBinaryCollation(), u""),
            DataValue(Collation(u"LEN_RUS_S2", 0), u"text"),
            TupleOf({}),
            TupleOf({DataValue(1), DataValue(2.0)}),
            DataValue(MakeSpatial(1, 10)),
            DataValue(MakeSpatial(2, 20)),
            BinaryOf({'a', 'b'}),
            BinaryOf({}),
            DataValue(Time(1ull), DataType::Time),
            DataValue(Time(0ull), DataType::Time)};
}

inline std::vector<DataValue> AllSamples()
{
    std::vector<DataValue> values = AllMarkers();
    for (auto const & more : {NumberSamples(), DateSamples(), OtherSamples()})
        values.insert(values.end(), more.begin(), more.end());
    return values;
}

// Random values from small ranges, so that equal ones meet; strings are of one collation.
class RandomValue
{
public:
    RandomValue(unsigned seed, Collation const & collation) : m_random(seed), m_collation(collation) {}

    std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(m_random); }

    DataValue Any() { return OfType(TypeOf(static_cast<int>(Below(11)))); }

    DataValue OfType(DataType type, int depth = 0)
    {
        if (type != DataType::Tuple && Below(6) == 0)
            return DataValue(SpecialOf(static_cast<int>(Below(kSpecials))), type);
        int const small = static_cast<int>(Below(4)) - 1;
        switch (type) {
        case DataType::Integer: return DataValue(small);
        case DataType::Real: return Real(small);
        case DataType::Boolean: return DataValue(small > 0);
        case DataType::Date: return DateOf(2020, 1, small + 2);
        case DataType::DateTime: return DatetimeOf(2020, 1, small + 2, small + 1, 0, 0);
        case DataType::Time: return DataValue(Time(static_cast<unsigned long long>(small + 1)), DataType::Time);
        case DataType::String: return DataValue(m_collation, Text());
        case DataType::Tuple: return AnyTuple(depth);
        case DataType::Binary: return m_binaries[Below(2)];
        case DataType::Spatial:
            return DataValue(MakeSpatial(100 + small, static_cast<std::uint64_t>(small + 1) / 2 + 7));
        default: return DataValue(SpecialOf(static_cast<int>(Below(kSpecials))), type);
        }
    }

private:
    DataValue Real(int small)
    {
        auto const scale = static_cast<signed char>(small);
        switch (Below(6)) {
        case 0: return DataValue(-0.0, scale, scale);
        case 1: return DataValue(small + 0.5);
        default: return DataValue(static_cast<double>(small), scale, scale);
        }
    }
    TString Text()
    {
        TString text;
        for (std::size_t n = Below(3); n > 0; --n)
            text += u"aAb"[Below(3)];
        return text;
    }
    DataValue AnyTuple(int depth)
    {
        std::vector<DataValue> members;
        for (std::size_t n = Below(3); n > 0; --n)
            members.push_back(OfType(
                Below(3) == 0 && depth < 3 ? DataType::Tuple : TypeOf(static_cast<int>(Below(3)) * 2), depth + 1));
        return TupleOf(std::move(members));
    }

    std::mt19937 m_random;
    Collation m_collation;
    std::vector<DataValue> m_binaries{BinaryOf({'x'}), BinaryOf({'x'})};
};

// Every field alike: type, marker, precision, scale, ordinal and payload; two NaNs are alike, and two spatial values of
// one object are.
inline bool SameFields(DataValue const & a, DataValue const & b)
{
    if (a.GetDataType() != b.GetDataType() || a.GetSpecial() != b.GetSpecial() ||
        a.GetPrecision() != b.GetPrecision() || a.GetScale() != b.GetScale() || a.GetOrdinal() != b.GetOrdinal())
        return false;
    if (a.GetDataType() == DataType::Spatial)
        return a.GetSpatial() == b.GetSpatial();
    if (a.GetDataType() == DataType::Real && std::isnan(a.GetReal()) && std::isnan(b.GetReal()))
        return true;
    return a.GetAny() == b.GetAny();
}

}  // namespace test_support
