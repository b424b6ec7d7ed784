// Random values of every type and marker over their whole ranges, for tests of text forms.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/RandomText.h"
#include "tests/support/ValueSamples.h"
#include "velgeo/WktSerialization.h"

namespace test_support {

class RandomAnyValue
{
public:
    explicit RandomAnyValue(unsigned seed) : m_text(seed) {}

    std::size_t Below(std::size_t n) { return m_text.Below(n); }

    // Tuples are nested up to `depth` deep.
    DataValue Any(int depth = 4) { return OfType(TypeOf(static_cast<int>(Below(11))), depth); }

    DataValue OfType(DataType type, int depth = 4)
    {
        if (type != DataType::Tuple && Below(8) == 0)
            return DataValue(SpecialOf(1 + static_cast<int>(Below(kSpecials - 1))), type);
        switch (type) {
        case DataType::Integer: return Integer();
        case DataType::Real: return Real();
        case DataType::Boolean: return DataValue(Below(2) == 0);
        case DataType::Date: return DataValue(Day().GetDate(), DataType::Date);
        case DataType::DateTime: return DataValue(Moment(), DataType::DateTime);
        case DataType::Time: return DataValue(Clock(), DataType::Time);
        case DataType::String: return DataValue(m_collations[Below(m_collations.size())], String());
        case DataType::Tuple: return AnyTuple(depth);
        case DataType::Binary: return BinaryOf({'x'});
        case DataType::Spatial: return DataValue(Spatial());
        default: return DataValue(DataValueTypes::Normal, type);
        }
    }

    TString String() { return TString::fromStdU16String(Below(4) == 0 ? m_text.Of(kPieces, 8) : m_text.Any(12)); }

    DataValue Integer()
    {
        std::uint64_t const bits = Bits() >> Below(64);
        return DataValue(static_cast<long long>(Below(2) == 0 ? bits : 0 - bits));
    }

    // Finite and not, of every size; one in three with a precision, a scale or both.
    DataValue Real()
    {
        double value = 0.0;
        switch (Below(6)) {
        case 0: value = std::bit_cast<double>(Bits()); break;
        case 1: value = static_cast<double>(Bits() >> (1 + Below(63))); break;
        case 2: value = static_cast<double>(Bits() % 100000000) / 100; break;
        case 3: value = static_cast<double>(Bits()) * 0x1p-64; break;
        case 4: value = std::ldexp(static_cast<double>(Bits() % 1000), static_cast<int>(Below(40)) - 20); break;
        default: value = kRealEdges[Below(std::size(kRealEdges))];
        }
        if (Below(2) == 0)
            value = -value;
        switch (Below(6)) {
        case 0: return DataValue(value, static_cast<signed char>(1 + Below(18)), static_cast<signed char>(Below(9)));
        case 1:
            return DataValue(value, static_cast<signed char>(Below(3) == 0 ? -1 : static_cast<int>(1 + Below(18))),
                             static_cast<signed char>(Below(2) == 0 ? -1 : static_cast<int>(Below(12)) - 4));
        default: return DataValue(value);
        }
    }

private:
    static constexpr std::u16string_view kPieces[] = {
        u",", u")", u"(", u"\\", u"\"", u"#", u"%", u"\\x1;", u"\x1", u"\xFFFE", u"%null%", u"esv-marked[", u"]", u"a"};
    static constexpr double kRealEdges[] = {0.0,
                                            1.0,
                                            0.1,
                                            1e15,
                                            1e16,
                                            1e17,
                                            1e22,
                                            1e23,
                                            0.0001,
                                            0.001,
                                            0.00001,
                                            1e-300,
                                            1e300,
                                            9.5,
                                            99.5,
                                            999.9,
                                            std::numeric_limits<double>::infinity(),
                                            std::numeric_limits<double>::quiet_NaN(),
                                            std::numeric_limits<double>::max(),
                                            std::numeric_limits<double>::denorm_min()};

    std::uint64_t Bits()
    {
        std::uint64_t const high = m_text.Generator()();
        return high << 32 | m_text.Generator()();
    }
    std::shared_ptr<velgeo::Spatial const> Spatial()
    {
        auto const point = [&] {
            return std::to_string(Below(180)) + ' ' + std::to_string(static_cast<double>(Below(9000)) / 100);
        };
        std::string wkt;
        switch (Below(5)) {
        case 0: wkt = "POINT (" + point() + ")"; break;
        case 1: wkt = "LINESTRING (0 0, " + point() + ")"; break;
        case 2: wkt = "POLYGON ((0 0, 1 0, 1 1, 0 0))"; break;
        case 3: wkt = "GEOMETRYCOLLECTION (POINT (" + point() + "), MULTIPOINT ((" + point() + "), EMPTY))"; break;
        default: wkt = "POINT EMPTY";
        }
        return velgeo::WktSerialization::Read((Below(3) == 0 ? "SRID=4326;" : "") + wkt, 3);
    }
    DateTime Day()
    {
        return DateTime(static_cast<int>(400 + Below(9600)), static_cast<int>(1 + Below(12)),
                        static_cast<int>(1 + Below(28)), 0, 0, 0, 0.0);
    }
    DateTime Moment()
    {
        std::uint64_t const ticks = Below(3) == 0 ? Below(86400) * 10000 : Below(864000000);
        std::uint64_t const day = Below(8) == 0 ? DateTime().GetRepresentation() : Day().GetRepresentation();
        return DateTime::FromValue(day + ticks);
    }
    Time Clock() { return Below(20) == 0 ? Time(23, 59, 59, 1000000u) : Time(Bits() % Time::MicrosecondsPerDay); }
    DataValue AnyTuple(int depth)
    {
        std::vector<DataValue> members;
        for (std::size_t n = Below(5); n > 0; --n) {
            auto type = TypeOf(static_cast<int>(Below(11)));
            if (type == DataType::Tuple && depth <= 1)
                type = DataType::String;
            members.push_back(OfType(type, depth - 1));
        }
        return TupleOf(std::move(members));
    }

    RandomText m_text;
    std::vector<Collation> m_collations{GetBinaryCollation(), GetUnknownCollation(), Collation(u"LEN_RUS_S2", 0),
                                        Collation(u"LDE", 7)};
};

}  // namespace test_support
