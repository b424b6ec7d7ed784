#include "velcoredata/data/DataValueInspector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValueSamples.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::IsEmpty;

// Overrides all but the last two.
class Recorder : public DataValueInspector
{
public:
    void InspectSpecial(DataValueTypes::Special special, DataType type) override
    {
        Add() << "special " << static_cast<int>(special) << ' ' << static_cast<int>(type);
    }
    void InspectBool(bool value) override { Add() << "bool " << value; }
    void InspectInt(long long value) override { Add() << "int " << value; }
    void InspectReal(double value, signed char precision, signed char scale) override
    {
        Add() << "real " << value << ' ' << static_cast<int>(precision) << ' ' << static_cast<int>(scale);
    }
    void InspectDate(DateTime value) override { Add() << "date " << value.GetRepresentation(); }
    void InspectDatetime(DateTime value) override { Add() << "datetime " << value.GetRepresentation(); }
    void InspectTime(Time value) override { Add() << "time " << value.GetRepresentation(); }
    void InspectString(Collation const & collation, TString const & text) override
    {
        Add() << "string " << collation.GetName().toStdString() << ' ' << text.toStdString();
    }

    std::vector<std::string> Calls() const
    {
        std::vector<std::string> calls;
        for (std::ostringstream const & call : m_calls)
            calls.push_back(call.str());
        return calls;
    }

protected:
    std::ostream & Add()
    {
        m_calls.emplace_back();
        return m_calls.back();
    }

private:
    std::vector<std::ostringstream> m_calls;
};

class FullRecorder : public Recorder
{
public:
    void InspectTuple(RefCntPtr<Tuple, RefCntObject> value) override { Add() << "tuple " << value->GetSize(); }
    void InspectSpatial(std::shared_ptr<velgeo::Spatial const> value) override
    {
        Add() << "spatial " << (value == nullptr ? 0 : value->GetHash());
    }
};

template <class Inspector = FullRecorder>
std::vector<std::string> CallsOf(DataValue const & value)
{
    Inspector inspector;
    value.Accept(inspector);
    return inspector.Calls();
}

TEST(DataValueInspector, ExactlyTheOperationOfTheTypeIsCalled)
{
    DateTime const noon(2020, 1, 2, 12, 0, 0, 0.0);
    std::string const day = std::to_string(noon.GetDate().GetRepresentation());
    EXPECT_THAT(CallsOf(5), ElementsAre("int 5"));
    EXPECT_THAT(CallsOf(DataValue(1.5, 5, 2)), ElementsAre("real 1.5 5 2"));
    EXPECT_THAT(CallsOf(1.5), ElementsAre("real 1.5 -1 -1"));
    EXPECT_THAT(CallsOf(true), ElementsAre("bool 1"));
    EXPECT_THAT(CallsOf(DataValue(noon, DataType::Date)), ElementsAre("date " + day));
    EXPECT_THAT(CallsOf(DataValue(noon, DataType::DateTime)),
                ElementsAre("datetime " + std::to_string(noon.GetRepresentation())));
    EXPECT_THAT(CallsOf(DataValue(Time(7ull), DataType::Time)), ElementsAre("time 7"));
    EXPECT_THAT(CallsOf(DataValue(GetBinaryCollation(), u"abc")), ElementsAre("string binary abc"));
    EXPECT_THAT(CallsOf(TupleOf({1, 2})), ElementsAre("tuple 2"));
    EXPECT_THAT(CallsOf(DataValue(MakeSpatial(1, 9))), ElementsAre("spatial 9"));
}

TEST(DataValueInspector, AStringWithoutAPayloadIsEmptyUnderTheUnknownCollation)
{
    EXPECT_THAT(CallsOf(DataValue(DataValueTypes::Normal, DataType::String)), ElementsAre("string LROOT "));
    EXPECT_THAT(CallsOf(DataValue(DataValueTypes::Normal, DataType::Spatial)), ElementsAre("spatial 0"));
}

TEST(DataValueInspector, MarkersOfEveryTypeGoToInspectSpecial)
{
    for (DataValue const & value : AllMarkers())
        if (value.IsSpecial()) {
            EXPECT_THAT(CallsOf(value), ElementsAre("special " + std::to_string(static_cast<int>(value.GetSpecial())) +
                                                    ' ' + std::to_string(static_cast<int>(value.GetDataType()))));
        }
}

TEST(DataValueInspector, BinaryAndUnknownValuesAreInvisible)
{
    EXPECT_THAT(CallsOf(BinaryOf({'x'})), IsEmpty());
    EXPECT_THAT(CallsOf(DataValue(DataValueTypes::Normal, DataType::Unknown)), IsEmpty());
    EXPECT_THAT(CallsOf(DataValue(DataValueTypes::Null, DataType::Binary)), ElementsAre("special 1 9"));
}

TEST(DataValueInspector, ATableIsNotExpected)
{
    DataValue const table(DataValueTypes::Normal, DataType::Table);
    EXPECT_THAT([&] { CallsOf(table); },
                ThrowsAssert("DataType::Table not expected in DataValue", "LogicException_LogicAssert_0x935B635F"));
}

TEST(DataValueInspector, TuplesAndSpatialObjectsAreDroppedByDefault)
{
    EXPECT_THAT(CallsOf<Recorder>(TupleOf({1})), IsEmpty());
    EXPECT_THAT(CallsOf<Recorder>(DataValue(MakeSpatial(1, 9))), IsEmpty());
}

TEST(DataValueInspector, ATupleVisitsItsMembersInOrderAndNotItself)
{
    FullRecorder inspector;
    TupleOf({1, DataValue(), TupleOf({2, 3}), BinaryOf({}), true}).GetTuple()->Accept(inspector);
    EXPECT_THAT(inspector.Calls(), ElementsAre("int 1", "special 1 8", "tuple 2", "bool 1"));
}

TEST(DataValueInspector, CopiesAndAssigns)
{
    static_assert(std::is_abstract_v<DataValueInspector>);
    static_assert(std::has_virtual_destructor_v<DataValueInspector>);
    static_assert(std::is_copy_assignable_v<DataValueInspector>);
}

}  // namespace
