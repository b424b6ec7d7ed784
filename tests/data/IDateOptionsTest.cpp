#include "velcoredata/data/IDateOptions.h"

#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"

#include <gtest/gtest.h>

namespace {

std::unique_ptr<IDateOptions> G(int startOfWeek, int fiscalYearStart)
{
    return std::make_unique<GregorianDateOptions>(static_cast<SOWValue>(startOfWeek),
                                                  static_cast<FYSValues>(fiscalYearStart));
}

std::unique_ptr<IDateOptions> I()
{
    return std::make_unique<ISO8601DateOptions>();
}

}  // namespace

TEST(IDateOptions, EqualityLooksAtCalendarStartOfWeekAndFiscalStart)
{
    EXPECT_TRUE(*G(1, 1) == *G(1, 1));
    EXPECT_FALSE(*G(1, 1) != *G(1, 1));
    EXPECT_TRUE(*I() == *I());
    struct
    {
        std::unique_ptr<IDateOptions> a, b;
    } const unequal[] = {{G(2, 1), G(1, 1)}, {G(1, 2), G(1, 1)}, {G(1, 1), I()}, {G(2, 1), I()}};
    for (auto const & row : unequal) {
        EXPECT_FALSE(*row.a == *row.b);
        EXPECT_FALSE(*row.b == *row.a);
        EXPECT_TRUE(*row.a != *row.b);
    }
}

TEST(IDateOptions, LessIsTrueOnceAnyFieldIsLower)
{
    struct
    {
        std::unique_ptr<IDateOptions> a, b;
        bool less, greater;
    } const rows[] = {
        {G(1, 1), G(1, 1), false, false}, {G(1, 1), G(2, 1), true, false},
        {G(1, 1), G(1, 2), true, false},  {G(1, 4), G(2, 1), true, true},  // each is less than the other
        {G(2, 1), I(), true, false},                                       // calendar type and days in the first week
        {G(7, 12), I(), true, true},  // start of week and fiscal start the other way
        {I(), I(), false, false},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(*row.a < *row.b, row.less);
        EXPECT_EQ(*row.b < *row.a, row.greater);
    }
}

namespace {

// Options of one's own: only the minimal days in the first week differ from the default.
class LongFirstWeek : public GregorianDateOptions
{
public:
    int GetMinDaysInFirstWeek() const override { return 7; }
};

}  // namespace

TEST(IDateOptions, MinimalDaysInTheFirstWeekCountInEqualityAndOrder)
{
    LongFirstWeek const longFirstWeek;
    GregorianDateOptions const plain;
    EXPECT_FALSE(plain == longFirstWeek);
    EXPECT_TRUE(plain < longFirstWeek);
    EXPECT_FALSE(longFirstWeek < plain);
}
