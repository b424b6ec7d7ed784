#include "velsys/Arithmetic.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

namespace {

template <class T>
constexpr T kLowest = std::numeric_limits<T>::min();
template <class T>
constexpr T kHighest = std::numeric_limits<T>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

template <class T>
class WrappingArithmetic : public testing::Test
{};
using Signed = testing::Types<int, long, long long>;
TYPED_TEST_SUITE(WrappingArithmetic, Signed);

TYPED_TEST(WrappingArithmetic, SumsWrapAtBothEnds)
{
    using T = TypeParam;
    EXPECT_EQ(detail::WrapAdd(kHighest<T>, T{1}), kLowest<T>);
    EXPECT_EQ(detail::WrapAdd(kLowest<T>, T{-1}), kHighest<T>);
    EXPECT_EQ(detail::WrapAdd(kLowest<T>, kLowest<T>), T{0});
    EXPECT_EQ(detail::WrapAdd(T{2}, T{3}), T{5});
}

TYPED_TEST(WrappingArithmetic, DifferencesWrapAtBothEnds)
{
    using T = TypeParam;
    EXPECT_EQ(detail::WrapSub(kLowest<T>, T{1}), kHighest<T>);
    EXPECT_EQ(detail::WrapSub(kHighest<T>, T{-1}), kLowest<T>);
    EXPECT_EQ(detail::WrapSub(T{0}, kLowest<T>), kLowest<T>);
    EXPECT_EQ(detail::WrapSub(T{2}, T{3}), T{-1});
}

TYPED_TEST(WrappingArithmetic, ProductsKeepTheLowBits)
{
    using T = TypeParam;
    EXPECT_EQ(detail::WrapMul(kHighest<T>, T{2}), T{-2});
    EXPECT_EQ(detail::WrapMul(kLowest<T>, T{-1}), kLowest<T>);
    EXPECT_EQ(detail::WrapMul(kHighest<T>, kHighest<T>), T{1});
    EXPECT_EQ(detail::WrapMul(T{-4}, T{5}), T{-20});
}

TYPED_TEST(WrappingArithmetic, TheLowestValueIsItsOwnNegative)
{
    using T = TypeParam;
    EXPECT_EQ(detail::WrapNeg(kLowest<T>), kLowest<T>);
    EXPECT_EQ(detail::WrapNeg(kHighest<T>), static_cast<T>(-kHighest<T>));
    EXPECT_EQ(detail::WrapNeg(T{0}), T{0});
}

TYPED_TEST(WrappingArithmetic, TheMagnitudeOfTheLowestValueIsExact)
{
    using T = TypeParam;
    using U = std::make_unsigned_t<T>;
    EXPECT_EQ(detail::Magnitude(kLowest<T>), U{1} << (8 * sizeof(T) - 1));
    EXPECT_EQ(detail::Magnitude(T{-7}), U{7});
    EXPECT_EQ(detail::Magnitude(kHighest<T>), static_cast<U>(kHighest<T>));
}

TEST(WrappingArithmetic, NarrowTypesWrapAtTheirOwnWidth)
{
    EXPECT_EQ(detail::WrapAdd<std::int8_t>(127, 1), -128);
    EXPECT_EQ(detail::WrapSub<std::int16_t>(-32768, 1), 32767);
    EXPECT_EQ(detail::WrapNeg<std::int8_t>(-128), -128);
}

TEST(WrappingArithmetic, IsUsableInConstantExpressions)
{
    static_assert(detail::WrapAdd(kHighest<long long>, 1ll) == kLowest<long long>);
    static_assert(detail::RealToInt64(1e300) == kLowest<long long>);
    static_assert(detail::RealToInt32(-1.9) == -1);
}

TEST(RealToInteger, TruncatesTowardZeroAndGivesTheLowestValueOutOfRange)
{
    struct Row
    {
        double value;
        long long expected64;
        std::int32_t expected32;
    };
    Row const rows[] = {
        {0.0, 0, 0},
        {-0.0, 0, 0},
        {1.9, 1, 1},
        {-1.9, -1, -1},
        {2147483647.0, 2147483647, 2147483647},
        {2147483647.9, 2147483647, 2147483647},
        {2147483648.0, 2147483648ll, kLowest<std::int32_t>},
        {-2147483648.0, -2147483648ll, kLowest<std::int32_t>},
        {-2147483648.9, -2147483648ll, kLowest<std::int32_t>},
        {-2147483649.0, -2147483649ll, kLowest<std::int32_t>},
        {9223372036854774784.0, 9223372036854774784ll, kLowest<std::int32_t>},
        {9223372036854775808.0, kLowest<long long>, kLowest<std::int32_t>},
        {-9223372036854775808.0, kLowest<long long>, kLowest<std::int32_t>},
        {-9223372036854777856.0, kLowest<long long>, kLowest<std::int32_t>},
        {1e300, kLowest<long long>, kLowest<std::int32_t>},
        {5e-324, 0, 0},
        {kInfinity, kLowest<long long>, kLowest<std::int32_t>},
        {-kInfinity, kLowest<long long>, kLowest<std::int32_t>},
        {kNaN, kLowest<long long>, kLowest<std::int32_t>},
    };
    for (Row const & row : rows) {
        EXPECT_EQ(detail::RealToInt64(row.value), row.expected64) << row.value;
        EXPECT_EQ(detail::RealToInt32(row.value), row.expected32) << row.value;
    }
}

TEST(RealToInteger, UnsignedConversionGoesByWayOfTheSignedOne)
{
    struct Row
    {
        double value;
        unsigned long long expected;
    };
    Row const rows[] = {
        {0.0, 0u},
        {3.7, 3u},
        {9223372036854775808.0, 0x8000000000000000ull},
        {18446744073709549568.0, 18446744073709549568ull},
        {18446744073709551616.0, 0u},
        {-1.0, 0xFFFFFFFFFFFFFFFFull},
        {-1e300, 0x8000000000000000ull},
        {kInfinity, 0u},
        {kNaN, 0x8000000000000000ull},
    };
    for (Row const & row : rows)
        EXPECT_EQ(detail::RealToUInt64(row.value), row.expected) << row.value;
}

TEST(DivideOrDie, TruncatesTowardZero)
{
    EXPECT_EQ(detail::DivideOrDie(7, -2), -3);
    EXPECT_EQ(detail::RemainderOrDie(7, -2), 1);
    EXPECT_EQ(detail::DivideOrDie(-7ll, 2ll), -3);
    EXPECT_EQ(detail::RemainderOrDie(-7ll, 2ll), -1);
    EXPECT_EQ(detail::DivideOrDie(7u, 0xFFFFFFFFu), 0u);
    EXPECT_EQ(detail::DivideOrDie(kLowest<long long>, 1ll), kLowest<long long>);
    EXPECT_EQ(detail::DivideOrDie(kLowest<long long> + 1, -1ll), kHighest<long long>);
}

TEST(DivideOrDieDeathTest, AnIntegerDivisionWithoutAResultEndsTheProcess)
{
    EXPECT_DEATH(detail::DivideOrDie(1ll, 0ll), "");
    EXPECT_DEATH(detail::RemainderOrDie(1ll, 0ll), "");
    EXPECT_DEATH(detail::DivideOrDie(kLowest<long long>, -1ll), "");
    EXPECT_DEATH(detail::RemainderOrDie(kLowest<int>, -1), "");
    EXPECT_DEATH(detail::DivideOrDie(1u, 0u), "");
}

}  // namespace
