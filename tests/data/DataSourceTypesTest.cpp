#include "velcoredata/data/DataSourceTypes.h"

#include <gtest/gtest.h>

namespace {

struct Constant
{
    FieldName const & name;
    TString text;
};

// Made before main, from the library's constants.
FieldName const s_early = DataSourceTypes::s_lnmOMeasures;

}  // namespace

TEST(DataSourceTypes, FieldNamesAreOneComponentEach)
{
    Constant const constants[] = {
        {DataSourceTypes::s_lnmOMeasures, u":Measure Names"},
        {DataSourceTypes::s_lnmQMeasures, u"Multiple Values"},
        {DataSourceTypes::s_lnmNumberOfRecords, u"Number of Records"},
        {DataSourceTypes::s_lnmForecastIndicator, u"Forecast Indicator"},
    };
    for (auto const & [name, text] : constants) {
        EXPECT_EQ(name.GetNumberOfComponents(), 1u);
        EXPECT_EQ(name.FormatDisplay(), text);
        EXPECT_EQ(name.GetFullValue(), u"[" + text + u"]");
    }
    EXPECT_EQ(s_early.GetFullValue(), u"[:Measure Names]");
}

TEST(DataSourceTypes, ContextNames)
{
    EXPECT_EQ(DataSourceTypes::sRootContextName, u"");
    EXPECT_EQ(DataSourceTypes::sExtractContextName, u"extract");
}
