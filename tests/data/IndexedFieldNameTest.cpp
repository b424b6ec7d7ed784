#include "velcoredata/data/IndexedFieldName.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "tests/data/NameSamples.h"

namespace {

using test_support::NameOf;

static_assert(!std::is_polymorphic_v<IndexedFieldName>);
static_assert(sizeof(std::size_t) == 8, "positions have 64 bits");

constexpr std::size_t kBeyond32Bits = std::size_t{1} << 40;

IndexedFieldName Copying(FieldName const & name, std::size_t index)
{
    return IndexedFieldName(name, index);
}

}  // namespace

TEST(IndexedFieldName, DropsTheIndexOfAnEmptyNameOnlyWhereItCopies)
{
    EXPECT_EQ(IndexedFieldName().GetIndex(), 0u);
    EXPECT_EQ(IndexedFieldName().GetFieldName().GetNumberOfComponents(), 0u);
    EXPECT_EQ(Copying(FieldName(), 7).GetIndex(), 0u);
    EXPECT_EQ(Copying(NameOf({u""}), 7).GetIndex(), 0u);
    EXPECT_EQ(IndexedFieldName(FieldName(), 7).GetIndex(), 7u);
    EXPECT_EQ(IndexedFieldName(FieldName(NameOf({u""})), 7).GetIndex(), 7u);
    EXPECT_EQ(Copying(NameOf({u"a"}), 7).GetIndex(), 7u);
    EXPECT_EQ(Copying(NameOf({u"", u""}), 7).GetIndex(), 7u);
    EXPECT_EQ(Copying(NameOf({u"a"}), kBeyond32Bits).GetIndex(), kBeyond32Bits);
    EXPECT_EQ(IndexedFieldName(FieldName(NameOf({u"a"})), ~std::size_t{0}).GetIndex(), ~std::size_t{0});
}

TEST(IndexedFieldName, CopiesAndMovesNameAndIndex)
{
    FieldName const name = NameOf({u"a", u"b"});
    IndexedFieldName const indexed(name, 3);
    EXPECT_EQ(&indexed.GetFieldName().GetComponents(), &name.GetComponents());
    IndexedFieldName copy(indexed);
    EXPECT_EQ(copy, indexed);
    IndexedFieldName moved(std::move(copy));
    EXPECT_EQ(moved, indexed);
    IndexedFieldName assigned;
    assigned = indexed;
    EXPECT_EQ(assigned, indexed);
    IndexedFieldName moveAssigned;
    moveAssigned = std::move(assigned);
    EXPECT_EQ(moveAssigned, indexed);
    EXPECT_EQ(&moveAssigned.GetFieldName().GetComponents(), &name.GetComponents());
}

TEST(IndexedFieldName, IsEmptyAsItsNameIs)
{
    EXPECT_TRUE(IndexedFieldName().IsEmpty());
    EXPECT_TRUE(IndexedFieldName(FieldName(), 7).IsEmpty());
    EXPECT_TRUE(IndexedFieldName(FieldName(NameOf({u""})), 7).IsEmpty());
    EXPECT_FALSE(IndexedFieldName(NameOf({u"a"}), 0).IsEmpty());
}

TEST(IndexedFieldName, OrdersByNameAndThenByIndex)
{
    FieldName const a = NameOf({u"a"});
    FieldName const b = NameOf({u"b"});
    EXPECT_EQ(IndexedFieldName(a, 1), IndexedFieldName(FieldName(NameOf({u"a"})), 1));
    EXPECT_NE(IndexedFieldName(a, 1), IndexedFieldName(a, 2));
    EXPECT_NE(IndexedFieldName(a, 1), IndexedFieldName(b, 1));
    EXPECT_LT(IndexedFieldName(a, 9), IndexedFieldName(b, 1));
    EXPECT_FALSE(IndexedFieldName(b, 1) < IndexedFieldName(a, 9));
    EXPECT_LT(IndexedFieldName(a, 1), IndexedFieldName(a, 2));
    EXPECT_FALSE(IndexedFieldName(a, 2) < IndexedFieldName(a, 1));
    EXPECT_FALSE(IndexedFieldName(a, 1) < IndexedFieldName(a, 1));
    EXPECT_LT(IndexedFieldName(a, 5), IndexedFieldName(a, kBeyond32Bits));
    EXPECT_NE(IndexedFieldName(a, 0), IndexedFieldName(a, kBeyond32Bits));
}
