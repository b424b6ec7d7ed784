// Comparison, minimum and maximum of DataValueOperators.
#include <algorithm>
#include <bit>
#include <cstdint>

#include "velcoredata/utility/DataValueOperators.h"

namespace {

// The bits of a floating-point number as sign and magnitude. `oppositeMask` has the exponent bits that set two numbers
// of opposite sign apart at once.
template <class Real, class Signed>
int CompareBits(Real a, Real b, Signed ulps, Signed oppositeMask) noexcept
{
    auto const aBits = std::bit_cast<Signed>(a);
    auto const bBits = std::bit_cast<Signed>(b);
    if (aBits == bBits)
        return 0;
    constexpr Signed magnitudeMask = std::numeric_limits<Signed>::max();
    Signed aLine = aBits & magnitudeMask;
    Signed bLine = bBits & magnitudeMask;
    bool const aNegative = aBits < 0;
    bool const bNegative = bBits < 0;
    if (aNegative != bNegative) {
        if (((aLine | bLine) & oppositeMask) != 0)
            return aNegative ? -1 : 1;
        (aNegative ? aLine : bLine) *= -1;
    }
    Signed const difference = aLine - bLine;
    if ((difference < 0 ? -difference : difference) <= ulps)
        return 0;
    bool const less = (difference < 0) != (aNegative && bNegative);
    return less ? -1 : 1;
}

}  // namespace

int DataValueOperators::Compare(double a, double b, unsigned ulps) noexcept
{
    return CompareBits<double, std::int64_t>(a, b, static_cast<std::int64_t>(ulps), 0x7FF0000000000000);
}

int DataValueOperators::Compare(float a, float b, unsigned ulps) noexcept
{
    return CompareBits<float, std::int32_t>(a, b, static_cast<std::int32_t>(std::min(ulps, 1000000u)), 0x7F000000);
}

int DataValueOperators::Compare(DataValue const & a, DataValue const & b, bool fuzzy) const
{
    if (m_sqlNullSemantics && (a.IsSpecial() || b.IsSpecial())) {
        if (!a.IsSpecial())
            return 1;
        if (!b.IsSpecial())
            return -1;
        auto const left = static_cast<signed char>(a.GetSpecial());
        auto const right = static_cast<signed char>(b.GetSpecial());
        return left < right ? -1 : (left > right ? 1 : 0);
    }
    if (a == b)
        return 0;
    if (a.GetDataType() != b.GetDataType()) {
        DataType const type = Promote(a.GetDataType(), b.GetDataType());
        DataValue const right = Cast(b, type);
        return Compare(Cast(a, type), right, false);
    }
    if (a.GetDataType() == DataType::Real) {
        if (a.GetRealUnchecked() == b.GetRealUnchecked())
            return 0;
        if (fuzzy)
            return Compare(a.GetRealUnchecked(), b.GetRealUnchecked(), 16);
    }
    return a < b ? -1 : 1;
}

DataValue DataValueOperators::Max(DataValue const & a, DataValue const & b)
{
    DataValue marker;
    if (TakeMarker(a, b, marker))
        return marker;
    return Compare(a, b, false) < 1 ? b : a;
}

DataValue DataValueOperators::Min(DataValue const & a, DataValue const & b)
{
    DataValue marker;
    if (TakeMarker(a, b, marker))
        return marker;
    return Compare(a, b, false) < 0 ? a : b;
}
