#include "velcoredata/data/MemberName.h"

#include <gtest/gtest.h>

#include <unordered_set>

#include "velcoredata/data/Collation.h"

static_assert(sizeof(MemberName) == sizeof(DataValue), "the value is its only member");

TEST(MemberName, WrapsOneValue)
{
    EXPECT_TRUE(MemberName().GetValue() == DataValue());
    MemberName const five(DataValue(5));
    EXPECT_TRUE(five.GetValue() == DataValue(5));
    EXPECT_EQ(&five.GetValue(), &five.GetValue());
    MemberName const copy(five);
    EXPECT_TRUE(copy == five);
    MemberName assigned;
    assigned = five;
    EXPECT_TRUE(assigned == five);
}

TEST(MemberName, ComparesAndHashesAsItsValue)
{
    DataValue const values[] = {DataValue(),
                                DataValue(1),
                                DataValue(2),
                                DataValue(1.0),
                                DataValue(true),
                                DataValue(DataValueTypes::Null, DataType::Integer),
                                DataValue::FromString(u"a"),
                                DataValue::FromString(u"b")};
    for (DataValue const & a : values) {
        for (DataValue const & b : values) {
            EXPECT_EQ(MemberName(a) == MemberName(b), a == b);
            EXPECT_EQ(MemberName(a) != MemberName(b), a != b);
            EXPECT_EQ(MemberName(a) < MemberName(b), a < b);
        }
        EXPECT_EQ(MemberName(a).Hash(), static_cast<std::size_t>(a.Hash()));
        EXPECT_EQ(MemberNameHashFunc()(MemberName(a)), static_cast<std::size_t>(a.Hash()));
    }
    std::unordered_set<MemberName, MemberNameHashFunc> const names{DataValue(1), DataValue(1), DataValue(2)};
    EXPECT_EQ(names.size(), 2u);
}
