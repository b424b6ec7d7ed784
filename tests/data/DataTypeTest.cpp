#include "velcoredata/data/DataType.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "main/data/DataTypeNames.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/XMLEnumException.h"

namespace {

struct TypeRow
{
    int number;
    char const * attributeName;
    char const * upperName;
    bool numeric;
    bool quantitative;
    bool temporal;
};

constexpr TypeRow kTypes[] = {
    {0, "integer", "INTEGER", true, true, false},      {1, "real", "REAL", true, true, false},
    {2, "string", "STRING", false, false, false},      {3, "datetime", "DATETIME", false, true, true},
    {4, "boolean", "BOOLEAN", false, false, false},    {5, "date", "DATE", false, true, true},
    {6, "tuple", "TUPLE", false, false, false},        {7, "spatial", "SPATIAL", false, false, false},
    {8, "unknown", "UNKNOWN(8)", false, false, false}, {9, "binary", "UNKNOWN(9)", false, false, false},
    {10, "time", "UNKNOWN(10)", false, false, false},  {11, "table", "UNKNOWN(11)", false, false, false},
};

TEST(DataType, NamesAndPredicatesFollowTheTable)
{
    for (TypeRow const & row : kTypes) {
        auto const type = static_cast<DataType>(row.number);
        EXPECT_EQ(detail::DataTypeAttributeName(type).toStdString(), row.attributeName);
        EXPECT_EQ(DataValue::DataTypeToString(type).toStdString(), row.upperName);
        EXPECT_EQ(IsNumeric(type), row.numeric) << row.attributeName;
        EXPECT_EQ(IsQuantitative(type), row.quantitative) << row.attributeName;
        EXPECT_EQ(IsTemporal(type), row.temporal) << row.attributeName;
    }
}

TEST(DataType, ANumberOutsideTheEnumerationHasNoAttributeName)
{
    for (int const number : {12, 13, 40, 200, 255}) {
        auto const type = static_cast<DataType>(number);
        EXPECT_THAT([&] { detail::DataTypeAttributeName(type); },
                    ThrowsErrorOf<Implementation::XMLEnumEncodingException>(
                        "XMLEnumEncodingException_AutoGen_0x5D1E6A01", "XML enumerated value cannot be encoded."));
        EXPECT_EQ(DataValue::DataTypeToString(type).toStdString(), "UNKNOWN(" + std::to_string(number) + ")");
        EXPECT_FALSE(IsNumeric(type) || IsQuantitative(type) || IsTemporal(type));
    }
}

TEST(DataType, PrintsItsAttributeName)
{
    std::ostringstream out;
    out << DataType::DateTime << ' ' << static_cast<DataType>(200) << ' ' << DataValueTypes::ManyValues << ' '
        << DataValueTypes::Normal << ' ' << static_cast<DataValueTypes::Special>(77);
    EXPECT_EQ(out.str(), "datetime DataType(200) %many-values% normal Special(77)");
}

TEST(XMLEnumException, DecodingHasItsOwnClassAndText)
{
    EXPECT_THAT([] { Implementation::ThrowXMLEnumDecodingException(); },
                ThrowsErrorOf<Implementation::XMLEnumDecodingException>("XMLEnumDecodingException_AutoGen_0x5D1E6A02",
                                                                        "XML enumerated value cannot be decoded."));
}

template <class Exception>
void ExpectCloneAndThrowKeepTheClass(void (*raise)())
{
    try {
        raise();
        FAIL();
    } catch (VeltriaException const & e) {
        std::unique_ptr<VeltriaException> const clone(e.Clone());
        EXPECT_EQ(typeid(*clone), typeid(Exception));
        EXPECT_THROW(clone->Throw(), Exception);
    }
}

TEST(XMLEnumException, CloneAndThrowKeepTheMostDerivedClass)
{
    ExpectCloneAndThrowKeepTheClass<Implementation::XMLEnumEncodingException>(
        [] { Implementation::ThrowXMLEnumEncodingException(); });
    ExpectCloneAndThrowKeepTheClass<Implementation::XMLEnumDecodingException>(
        [] { Implementation::ThrowXMLEnumDecodingException(); });
}

}  // namespace
