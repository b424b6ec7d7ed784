#include <gtest/gtest.h>

#include <thread>
#include <type_traits>
#include <vector>

#include "tests/support/AllocationCounter.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/StringWithCollation.h"

namespace {

using StringPtr = RefCntPtr<StringWithCollation, RefCntObject>;

Collation Russian()
{
    return Collation(u"LEN_RUS_S2", 0);
}

StringPtr MakeShared(char16_t const * text)
{
    return StringPtr(new StringWithCollation(text, Russian()));
}

int Count(StringPtr const & text)
{
    return detail::RefCountAccess::Count(*text);
}

TEST(DataValueString, EveryWayOfMakingAStringStoresTextCollationAndNoOrdinal)
{
    StringPtr const shared = MakeShared(u"abc");
    DataValue set;
    set.SetString(Russian(), u"abc");
    DataValue moved;
    moved.SetString(StringWithCollation(u"abc", Russian()));
    for (DataValue const & value : {DataValue(shared), DataValue(Russian(), u"abc"),
                                    DataValue(StringWithCollation(u"abc", Russian())), set, moved})
    {
        EXPECT_EQ(value.GetDataType(), DataType::String);
        EXPECT_EQ(value.GetSpecial(), DataValueTypes::Normal);
        EXPECT_EQ(value.GetString(), u"abc");
        EXPECT_EQ(value.GetStringRaw(), value.GetString().constData());
        EXPECT_EQ(value.GetCollation(), Russian());
        EXPECT_EQ(value.GetOrdinal(), -2);
        EXPECT_EQ(value.GetPrecision(), -1);
    }
}

TEST(DataValueString, FromStringAndTheLiteralUseTheUnknownCollation)
{
    for (DataValue const & value : {DataValue::FromString(u"a\0b"), u"abc"_dv})
        EXPECT_EQ(value.GetCollation(), GetUnknownCollation());
    EXPECT_EQ(u"a\0b"_dv.GetString().length(), 3);
    EXPECT_EQ((u"a\0b"_dv).GetString()[2], u'b');
}

TEST(DataValueString, TheUnknownCollationIsThatOfEverythingWithoutAStringPayload)
{
    for (DataValue const & value :
         {DataValue(5), DataValue(), DataValue(DataValueTypes::Null, DataType::String), DataValue(true)})
        EXPECT_EQ(&value.GetCollation(), &GetUnknownCollation());
}

TEST(DataValueString, AMarkerOfTypeStringReadsAsTheSameEmptyText)
{
    DataValue const null(DataValueTypes::Null, DataType::String);
    DataValue const error(DataValueTypes::Error, DataType::String);
    EXPECT_TRUE(null.GetString().isEmpty());
    EXPECT_EQ(&null.GetString(), &error.GetString());
    EXPECT_EQ(null.GetStringRaw()[0], u'\0');
}

TEST(DataValueString, ReadingTheTextOfAnotherTypeRaises)
{
    for (DataValue const & value : {DataValue(1.5), DataValue()}) {
        EXPECT_THAT([&] { value.GetString(); }, ThrowsError("VeltriaException_IncorrectDatatypeException_0xCA8336D0"));
        EXPECT_THAT([&] { value.GetStringRaw(); },
                    ThrowsError("VeltriaException_IncorrectDatatypeException_0xCA8336D0"));
    }
    EXPECT_THAT([] { DataValue(5).GetString(); },
                ThrowsError("VeltriaException_IncorrectDatatypeException_0xCA8336D0",
                            "Incorrect data type integer, getting expected string type.", 2, 2));
}

TEST(DataValueString, TheOrdinalIsStoredAndReturned)
{
    DataValue value(Russian(), u"abc");
    value.SetOrdinal(3);
    EXPECT_EQ(value.GetOrdinal(), 3);
    EXPECT_EQ(value.GetString(), u"abc");
    DataValue const copy(value);
    EXPECT_EQ(copy.GetOrdinal(), 3);
    value.SetOrdinal(-2147483647 - 1);
    EXPECT_EQ(value.GetOrdinal(), -2147483647 - 1);
    EXPECT_EQ(value.GetDataType(), DataType::String);
    value.SetString(Russian(), u"abc");
    EXPECT_EQ(value.GetOrdinal(), -2);
    value.SetOrdinal(5);
    value.SetInt(1);
    EXPECT_EQ(value.GetOrdinal(), -2);
}

TEST(DataValueString, ANullPointerIsRefusedAndTheValueKept)
{
    EXPECT_THAT([] { DataValue{StringPtr()}; },
                ThrowsError("VeltriaException_AutoGen_0xE188009E", "DataValue::SetString: bad argument"));
    StringPtr const shared = MakeShared(u"abc");
    DataValue value(shared);
    EXPECT_THAT([&] { value.SetString(StringPtr()); }, ThrowsError("VeltriaException_AutoGen_0xE188009E"));
    EXPECT_EQ(value.GetString(), u"abc");
    EXPECT_EQ(Count(shared), 2);
}

TEST(DataValueString, CopiesShareOneObjectAndGiveItBack)
{
    StringPtr const shared = MakeShared(u"abc");
    ASSERT_EQ(Count(shared), 1);
    {
        DataValue const value(shared);
        EXPECT_EQ(Count(shared), 2);
        DataValue const copy(value);
        EXPECT_EQ(Count(shared), 3);
        EXPECT_EQ(copy.GetAny(), value.GetAny());
        DataValue assigned(5);
        assigned = copy;
        EXPECT_EQ(Count(shared), 4);
        DataValue const moved(std::move(assigned));
        EXPECT_EQ(Count(shared), 4);
        EXPECT_EQ(moved.GetString(), u"abc");
    }
    EXPECT_EQ(Count(shared), 1);
}

TEST(DataValueString, EverySetterReleasesTheString)
{
    StringPtr const shared = MakeShared(u"abc");
    void (*const setters[])(DataValue &) = {
        [](DataValue & v) { v.SetInt(1); },
        [](DataValue & v) { v.SetReal(1.0); },
        [](DataValue & v) { v.SetBool(true); },
        [](DataValue & v) { v.SetDate(DateTime()); },
        [](DataValue & v) { v.SetDatetime(DateTime()); },
        [](DataValue & v) { v.SetTime(Time()); },
        [](DataValue & v) { v.SetString(Collation(u"LROOT", 0), u"x"); },
        [](DataValue & v) { v.MakeSpecial(DataValueTypes::Null, DataType::String); },
        [](DataValue & v) { v = DataValue(); },
    };
    for (auto const set : setters) {
        DataValue value(shared);
        ASSERT_EQ(Count(shared), 2);
        set(value);
        EXPECT_EQ(Count(shared), 1);
    }
}

TEST(DataValueString, SettingTheStringThatIsHeldKeepsIt)
{
    DataValue value(MakeShared(u"abc"));
    StringPtr const held(const_cast<StringWithCollation *>(
        static_cast<StringWithCollation const *>(reinterpret_cast<RefCntObject const *>(value.GetAny()))));
    value.SetString(held);
    EXPECT_EQ(value.GetString(), u"abc");
    EXPECT_EQ(Count(held), 2);
}

TEST(DataValueString, MovingAStringInEndsWithCountOne)
{
    DataValue const value(StringWithCollation(u"abc", Russian()));
    EXPECT_EQ(detail::RefCountAccess::Count(*reinterpret_cast<RefCntObject const *>(value.GetAny())), 1);
}

TEST(DataValueString, CopyingAStringValueAllocatesNothing)
{
    DataValue const value(Russian(), u"abc");
    AllocationCounter const counter;
    DataValue copy(value);
    DataValue const moved(std::move(copy));
    EXPECT_EQ(counter.Count(), 0u);
    EXPECT_EQ(moved.GetString(), u"abc");
}

TEST(DataValueString, ThreadsMayCopyValuesThatShareAPayload)
{
    StringPtr const shared = MakeShared(u"abc");
    {
        DataValue const value(shared);
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t)
            threads.emplace_back([&value] {
                for (int i = 0; i < 20000; ++i) {
                    DataValue copy(value);
                    DataValue const other(std::move(copy));
                    if (other.GetString().length() != 3)
                        std::abort();
                }
            });
        for (std::thread & thread : threads)
            thread.join();
    }
    EXPECT_EQ(Count(shared), 1);
}

}  // namespace
