#include "velcoredata/data/CalendarTypeId.h"

#include "tests/support/ErrorMatchers.h"

#include <gtest/gtest.h>

using namespace CalendarTypeId;

TEST(CalendarTypeId, AnUnknownTypeReadsAsGregorian)
{
    struct
    {
        int type;
        char16_t const * id;
    } const rows[] = {{0, u"Gregorian"}, {1, u"ISO8601"}, {2, u"Gregorian"}, {-1, u"Gregorian"}, {99, u"Gregorian"}};
    for (auto const & row : rows)
        EXPECT_EQ(ConvertCalendarTypeToId(static_cast<CalendarType>(row.type)), TString(row.id)) << row.type;
}

TEST(CalendarTypeId, OnlyTheExactTextIsIso8601)
{
    EXPECT_EQ(ConvertIdToCalendarType(u"ISO8601"), CalendarType::ISO8601);
    for (char16_t const * id : {u"Gregorian", u"", u"iso8601", u"ISO8601 ", u"ISO 8601", u"Julian"})
        EXPECT_EQ(ConvertIdToCalendarType(id), CalendarType::Gregorian) << TString(id).toStdString();
}
