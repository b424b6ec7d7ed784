#include "velcoredata/string/TDateTimeFormat.h"

#include "tests/support/ErrorMatchers.h"
#include "velcoredata/string/TCalendar.h"
#include "velcoredata/string/TParsePosition.h"
#include "velicu/ICULocale.h"
#include "velicu/ScopedStatusFault.h"

namespace {

using VelICU::ScopedStatusFault;

constexpr double DAY = 86400000.0;
constexpr double NOON_2020 = 18262 * DAY + DAY / 2;

}  // namespace

TEST(TDateTimeFormat, FormatsAMomentByThePattern)
{
    EXPECT_EQ(TString(u"2020-01-01 12:00:00.000"), TDateTimeFormat(u"yyyy-MM-dd HH:mm:ss.SSS").format(NOON_2020));
    EXPECT_EQ(TString(u"mercredi janvier"),
              TDateTimeFormat(u"EEEE MMMM", *VelICU::ICULocale::createInstance("fr_FR")).format(NOON_2020));
    TCalendar calendar;
    calendar.clear();
    calendar.set(2021, 1, 3);
    EXPECT_EQ(TString(u"3 Feb 2021"), TDateTimeFormat(u"d MMM yyyy").format(calendar));
}

TEST(TDateTimeFormat, ParsesATextThatFits)
{
    TDateTimeFormat const format(u"yyyy-MM-dd HH:mm");
    EXPECT_EQ(NOON_2020, format.parse(u"2020-01-01 12:00"));
    EXPECT_EQ(NOON_2020, format.parse(u"2020/1/1 12:00 and more"));
}

TEST(TDateTimeFormat, ATextThatDoesNotFitIsAnAssertion)
{
    TDateTimeFormat const format(u"yyyy-MM-dd");
    for (char16_t const * text : {u"", u"yesterday", u"2020-xx-01"})
        EXPECT_THAT([&] { format.parse(text); },
                    ThrowsAssert("VelICU::ICU_SUCCESS(status)", "LogicException_LogicAssert_0x19ED868B"));
}

TEST(TDateTimeFormat, TheQuietFormSetsTheErrorIndexInstead)
{
    TDateTimeFormat const format(u"yyyy-MM-dd");
    TCalendar calendar;
    calendar.clear();
    {
        TParsePosition position;
        EXPECT_EQ(0, position.getIndex());
        EXPECT_EQ(-1, position.getErrorIndex());
        format.parse(u"2020-xx-01", calendar, position);
        EXPECT_EQ(0, position.getIndex());
        EXPECT_EQ(5, position.getErrorIndex());
    }
    TParsePosition position;
    format.parse(u"2020-01-01 rest", calendar, position);
    EXPECT_EQ(10, position.getIndex());
    EXPECT_EQ(-1, position.getErrorIndex());
    EXPECT_EQ(18262 * DAY, calendar.getTime());
}

TEST(TDateTimeFormat, ThePatternChangesInPlace)
{
    TDateTimeFormat format(u"yyyy");
    format.applyPattern(u"MM");
    EXPECT_EQ(TString(u"01"), format.format(NOON_2020));
}

TEST(TDateTimeFormat, ACopyIsAClone)
{
    TDateTimeFormat format(u"yyyy");
    format.setFirstDayOfWeek(SOW_FRIDAY);
    TDateTimeFormat copy(format);
    format.applyPattern(u"MM");
    EXPECT_EQ(TString(u"2020"), copy.format(NOON_2020));
    EXPECT_EQ(SOW_FRIDAY, copy.getFirstDayOfWeek());
}

TEST(TDateTimeFormat, YearsOfTwoDigitsFallIntoTheHundredYearsThatAreSet)
{
    TDateTimeFormat format(u"yy-MM-dd");
    format.set2DigitYearStart(0.0);
    EXPECT_EQ(0.0, format.parse(u"70-01-01"));
    EXPECT_EQ(36160 * DAY, format.parse(u"69-01-01"));  // 2069
}

TEST(TDateTimeFormat, MarksOfTheDaysHalvesCanBeEdited)
{
    TDateTimeFormat format(u"h a");
    format.editAmPmStrings(true, true);
    EXPECT_EQ(TString(u"12 p"), format.format(NOON_2020));
}

TEST(TDateTimeFormat, GivesACalendarOfItsOwnKind)
{
    TDateTimeFormat format(u"yyyy", *VelICU::ICULocale::createInstance("th_TH@calendar=buddhist"));
    EXPECT_EQ(SOW_SUNDAY, format.getFirstDayOfWeek());
    format.setFirstDayOfWeek(SOW_TUESDAY);
    format.setMinimalDaysInFirstWeek(3);
    std::unique_ptr<TCalendar> const calendar = format.getCalendar();
    EXPECT_EQ(SOW_TUESDAY, calendar->getFirstDayOfWeek());
    calendar->clear();
    calendar->set(2563, 0, 1);
    EXPECT_EQ(18262 * DAY, calendar->getTime());
    EXPECT_EQ(TString(u"2563"), format.format(*calendar));
}

TEST(TDateTimeFormat, FailuresOfIcuAreAssertions)
{
    auto const withFault = [](auto call) {
        return [call] {
            ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
            call();
        };
    };
    std::string const condition = "VelICU::ICU_SUCCESS(status)";
    EXPECT_THAT(withFault([] { TDateTimeFormat format(u"yyyy"); }),
                ThrowsAssert(condition, "LogicException_LogicAssert_0x01400087"));
    auto const locale = VelICU::ICULocale::createInstance("de_DE");
    EXPECT_THAT(withFault([&] { TDateTimeFormat format(u"yyyy", *locale); }),
                ThrowsAssert(condition, "LogicException_LogicAssert_0x32806D6C"));
    TDateTimeFormat format(u"yyyy");
    TCalendar calendar;
    EXPECT_THAT(withFault([&] { format.format(calendar); }),
                ThrowsAssert(condition, "LogicException_LogicAssert_0xED505CF2"));
    EXPECT_THAT(withFault([&] { format.format(0.0); }),
                ThrowsAssert(condition, "LogicException_LogicAssert_0xE2672305"));
    EXPECT_THAT(withFault([&] { format.parse(u"2020"); }),
                ThrowsAssert(condition, "LogicException_LogicAssert_0x19ED868B"));
    EXPECT_THAT(withFault([&] { format.set2DigitYearStart(0.0); }),
                ThrowsAssert(condition, "LogicException_LogicAssert_0xA6426598"));
}

TEST(TDateTimeFormat, BadPatternsAndTextsDoNoHarm)
{
    for (TString const & pattern : {TString(u"'"), TString(u"qqqqqqqqqqq"), TString(u"\xD800"), TString(u"yyyy\0MM", 7),
                                    TString(u'y', 5000), TString()})
    {
        TDateTimeFormat format(u"yyyy");
        try {
            format.applyPattern(pattern);
            TString const text = format.format(NOON_2020);
            TCalendar calendar;
            TParsePosition position;
            format.parse(text, calendar, position);
        } catch (VeltriaException const &) {
        }
    }
}
