#include "velcoredata/data/DateEnums.h"

#include "velcoredata/data/AggType.h"

#include <gtest/gtest.h>

#include <type_traits>

template <class... Enums>
constexpr bool allAreSigned32Bit = (std::is_same_v<std::underlying_type_t<Enums>, std::int32_t> && ...);

static_assert(allAreSigned32Bit<AggType, CalendarType, SOWValue, FYSValues, FirstWeekBehaviour, DateDataType,
                                DateComputationKind, DatePeriodType>);

namespace {

struct NumberedName
{
    char const * name;
    int actual;
    int expected;
};

}  // namespace

#define NUMBERED(enumerator, number)                                                                                   \
    NumberedName                                                                                                       \
    {                                                                                                                  \
#enumerator, static_cast < int>(enumerator), number                                                            \
    }

TEST(DateEnums, NumbersAreFixed)
{
    for (NumberedName const & row : {
             NUMBERED(CalendarType::Gregorian, 0),
             NUMBERED(CalendarType::ISO8601, 1),
             NUMBERED(SOW_NONE, 0),
             NUMBERED(SOW_SUNDAY, 1),
             NUMBERED(SOW_MONDAY, 2),
             NUMBERED(SOW_TUESDAY, 3),
             NUMBERED(SOW_WEDNESDAY, 4),
             NUMBERED(SOW_THURSDAY, 5),
             NUMBERED(SOW_FRIDAY, 6),
             NUMBERED(SOW_SATURDAY, 7),
             NUMBERED(FYS_JANUARY, 1),
             NUMBERED(FYS_FEBRUARY, 2),
             NUMBERED(FYS_MARCH, 3),
             NUMBERED(FYS_APRIL, 4),
             NUMBERED(FYS_MAY, 5),
             NUMBERED(FYS_JUNE, 6),
             NUMBERED(FYS_JULY, 7),
             NUMBERED(FYS_AUGUST, 8),
             NUMBERED(FYS_SEPTEMBER, 9),
             NUMBERED(FYS_OCTOBER, 10),
             NUMBERED(FYS_NOVEMBER, 11),
             NUMBERED(FYS_DECEMBER, 12),
             NUMBERED(FirstWeekUnset, 0),
             NUMBERED(FirstWeekContainsJanFirst, 1),
             NUMBERED(FirstWeekFourDays, 2),
             NUMBERED(FirstWeekFullWeek, 3),
             NUMBERED(DateDataType::Date, 0),
             NUMBERED(DateDataType::DateTime, 1),
             NUMBERED(DateComputationKind::Bin, 0),
             NUMBERED(DateComputationKind::Trunc, 1),
             NUMBERED(DatePeriodType::Year, 0),
             NUMBERED(DatePeriodType::Quarter, 1),
             NUMBERED(DatePeriodType::Month, 2),
             NUMBERED(DatePeriodType::Week, 3),
             NUMBERED(DatePeriodType::Day, 4),
             NUMBERED(DatePeriodType::Hour, 5),
             NUMBERED(DatePeriodType::Minute, 6),
             NUMBERED(DatePeriodType::Second, 7),
             NUMBERED(DatePeriodType::ISOYear, 8),
             NUMBERED(DatePeriodType::ISOQuarter, 9),
             NUMBERED(DatePeriodType::ISOWeek, 10),
         })
        EXPECT_EQ(row.actual, row.expected) << row.name;
}

TEST(DateEnums, AggregationsRunFrom14To41InTheirOrder)
{
    AggType const inOrder[] = {
        AGG_YEAR,       AGG_QUARTER,       AGG_MONTH,      AGG_DAY,         AGG_HOUR,        AGG_MINUTE,
        AGG_SECOND,     AGG_WEEK,          AGG_WEEKDAY,    AGG_UNCOMMON_23, AGG_UNCOMMON_24, AGG_UNCOMMON_25,
        AGG_ISO_YEAR,   AGG_ISO_QUARTER,   AGG_ISO_WEEK,   AGG_ISO_WEEKDAY, TRUNC_YEAR,      TRUNC_QUARTER,
        TRUNC_MONTH,    TRUNC_WEEK,        TRUNC_DAY,      TRUNC_HOUR,      TRUNC_MINUTE,    TRUNC_SECOND,
        TRUNC_ISO_YEAR, TRUNC_ISO_QUARTER, TRUNC_ISO_WEEK, TRUNC_ISO_DAY,
    };
    int expected = 14;
    for (AggType const aggregation : inOrder)
        EXPECT_EQ(static_cast<int>(aggregation), expected++);
    EXPECT_EQ(expected, 42);
}

TEST(DateEnums, FiscalYearStartComparesWithTheMonthNumber)
{
    EXPECT_TRUE(FYS_APRIL == 4);
    EXPECT_TRUE(4 == FYS_APRIL);
    EXPECT_FALSE(FYS_APRIL == 5);
    EXPECT_TRUE(FYS_APRIL != 5);
    EXPECT_FALSE(FYS_APRIL != 4);
}
