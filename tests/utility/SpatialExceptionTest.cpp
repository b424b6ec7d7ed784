#include "velcoredata/utility/SpatialException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "velsys/VeltriaException.h"

namespace {

template <class Exception>
class SpatialExceptionFamily : public testing::Test
{};

using Family =
    testing::Types<SpatialException, GeographyCastException, GeometryCastException, SpatialCastException,
                   SpatialDeserializationException, SpatialOGRTypeException, SpatialUnsupportedTypeException>;
TYPED_TEST_SUITE(SpatialExceptionFamily, Family);

// Direct bases show in what an object converts to: a class between would be caught by its own name.
template <class Exception, class... Others>
constexpr bool DerivesFromNone = (!std::is_base_of_v<Others, Exception> && ...);

}  // namespace

TYPED_TEST(SpatialExceptionFamily, DerivesFromStdExceptionAndNotFromOurs)
{
    static_assert(std::is_base_of_v<std::exception, TypeParam>);
    static_assert(std::is_base_of_v<SpatialException, TypeParam>);
    static_assert(!std::is_base_of_v<VeltriaException, TypeParam>);
    static_assert(!std::is_convertible_v<std::string, TypeParam>);
    static_assert(sizeof(TypeParam) == sizeof(SpatialException));
    SUCCEED();
}

TEST(SpatialException, NoneOfTheSixDerivesFromAnother)
{
    static_assert(DerivesFromNone<GeographyCastException, GeometryCastException, SpatialCastException>);
    static_assert(DerivesFromNone<GeometryCastException, GeographyCastException, SpatialCastException>);
    static_assert(DerivesFromNone<SpatialDeserializationException, SpatialCastException, SpatialOGRTypeException>);
    static_assert(DerivesFromNone<SpatialOGRTypeException, SpatialUnsupportedTypeException, SpatialCastException>);
    static_assert(DerivesFromNone<SpatialUnsupportedTypeException, SpatialOGRTypeException, SpatialCastException>);
    SUCCEED();
}

TYPED_TEST(SpatialExceptionFamily, SaysItsMessage)
{
    std::string const message = "a polygon is no point \xC3\xA9";
    try {
        throw TypeParam(message);
    } catch (std::exception const & e) {
        EXPECT_EQ(e.what(), message);
        EXPECT_EQ(typeid(e), typeid(TypeParam));
    }
    try {
        throw TypeParam(message);
    } catch (SpatialException const & e) {
        EXPECT_EQ(e.GetErrorMessage(), message);
    }
    EXPECT_EQ(TypeParam("").GetErrorMessage(), "");
    // What what() gives ends at the first U+0000, and GetErrorMessage is that.
    EXPECT_EQ(TypeParam(std::string("a\0b", 3)).GetErrorMessage(), "a");
}

TYPED_TEST(SpatialExceptionFamily, IsCopiedAndMoved)
{
    TypeParam first("first");
    TypeParam copy(first);
    EXPECT_EQ(copy.GetErrorMessage(), "first");
    TypeParam moved(std::move(first));
    EXPECT_EQ(moved.GetErrorMessage(), "first");
    TypeParam other("other");
    other = copy;
    EXPECT_EQ(other.GetErrorMessage(), "first");
    EXPECT_EQ(copy.GetErrorMessage(), "first");
    other = TypeParam("last");
    EXPECT_EQ(other.GetErrorMessage(), "last");
}
