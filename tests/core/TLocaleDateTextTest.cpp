// Dates and times printed by TLocale.

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "main/core/LocaleDatePattern.h"
#include "tests/core/TLocalePeer.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/RecordingLogger.h"
#include "tests/support/ZoneScope.h"
#include "velcoredata/core/DateTimeFormatCodes.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/data/Interval.h"
#include "velcoredata/data/Time.h"
#include "velicu/ScopedStatusFault.h"

using namespace test_support;

namespace {

DateTime const SAMPLE(2020, 1, 2, 3, 4, 5, 0.6789);

}  // namespace

TEST(TLocaleDateText, APatternPrintsInTheLocalesNames)
{
    struct Case
    {
        char16_t const * locale;
        char16_t const * pattern;
        char16_t const * text;
    };
    static Case const cases[] = {
        {u"en_US", u"yyyy-MM-dd HH:mm:ss.SSS", u"2020-01-02 03:04:05.678"},
        {u"en_US", u"EEEE, MMMM d", u"Thursday, January 2"},
        {u"en_US", u"'week' w 'of' Y", u"week 1 of 2020"},
        {u"en_US", u"G", u"AD"},
        {u"de_DE", u"EEEE, d. MMMM yyyy", u"Donnerstag, 2. Januar 2020"},
        {u"ja_JP", u"yyyy\u5E74M\u6708d\u65E5", u"2020\u5E741\u67082\u65E5"},
        {u"ar_EG", u"yyyy-MM-dd", u"\u0662\u0660\u0662\u0660-\u0660\u0661-\u0660\u0662"},
        {u"th_TH", u"yyyy", u"2020"},
        {u"en_US", u"", u""},
        {u"en_US", u"''yy''", u"'20'"},
    };
    for (Case const & c : cases) {
        TLocale const locale(c.locale);
        EXPECT_EQ(locale.Format(SAMPLE, c.pattern), TString(c.text)) << TString(c.pattern).toStdString();
        EXPECT_EQ(SAMPLE.Format(c.pattern, locale), TString(c.text));
    }
}

TEST(TLocaleDateText, MillisecondsAreTruncatedFromTicks)
{
    TLocale const locale(u"en_US");
    EXPECT_EQ(locale.Format(DateTime(2020, 1, 1, 23, 59, 59, 0.9999), u"ss.SSS"), TString(u"59.999"));
    EXPECT_EQ(locale.Format(DateTime(2020, 1, 1, 0, 0, 0, 0.0009), u"ss.SSSSSS"), TString(u"00.000000"));
}

TEST(TLocaleDateText, IllFormedPatternsPrintNothing)
{
    TLocale const locale(u"en_US");
    EXPECT_EQ(locale.Format(SAMPLE, u"yyyy b j"), TString());
}

TEST(TLocaleDateText, PrintingIsGregorianOnEveryCalendar)
{
    for (char16_t const * const calendar : {u"buddhist", u"japanese", u"hebrew", u"islamic", u"roc"}) {
        TLocale const locale(0x409, calendar);
        EXPECT_EQ(locale.Format(SAMPLE, u"yyyy-MM-dd MMMM G"), TString(u"2020-01-02 January AD"))
            << TString(calendar).toStdString();
    }
    EXPECT_EQ(TLocale(u"de_DE@calendar=hebrew;numbers=arab").Format(SAMPLE, u"d. MMMM"), TString(u"\u0662. Januar"));
}

TEST(TLocaleDateText, TheCalendarIsGregorianBefore1582AndZonesAreNot)
{
    ZoneScope const zone("America/New_York");
    TLocale const locale(u"en_US");
    EXPECT_EQ(locale.Format(DateTime(400, 2, 29, 0, 0, 0, 0.0), u"yyyy-MM-dd HH:mm"), TString(u"0400-02-29 00:00"));
    EXPECT_EQ(locale.Format(DateTime(1582, 10, 10, 0, 0, 0, 0.0), u"yyyy-MM-dd"), TString(u"1582-10-10"));
    // An hour that New York skips.
    EXPECT_EQ(locale.Format(DateTime(2020, 3, 8, 2, 30, 0, 0.0), u"HH:mm"), TString(u"02:30"));
    EXPECT_EQ(locale.Format(DateTime(12345, 6, 7, 0, 0, 0, 0.0), u"yyyy-MM-dd"), TString(u"12345-06-07"));
}

TEST(TLocaleDateText, AFormatIsBuiltOncePerPattern)
{
    TLocale const locale(u"en_US");
    for (int i = 0; i < 3; ++i) {
        locale.Format(SAMPLE, u"EEEE");
        locale.Format(SAMPLE, u"MMMM");
    }
    EXPECT_EQ(TLocalePeer::CountFormats(locale), 2u);
    EXPECT_FALSE(TLocalePeer::HasRead(locale));
}

TEST(TLocaleDateText, IcuFailuresAreAssertions)
{
    TLocale const locale(u"en_US");
    {
        VelICU::ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
        EXPECT_THAT([&] { locale.Format(SAMPLE, u"EEEE"); },
                    ThrowsAssert("VelICU::ICU_SUCCESS(success)", "LogicException_LogicAssert_0x75D2209A"));
        EXPECT_TRUE(fault.HasStruck());
    }
    EXPECT_EQ(locale.Format(SAMPLE, u"EEEE"), TString(u"Thursday"));
    VelICU::ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
    EXPECT_THAT([&] { locale.Format(SAMPLE, u"EEEE"); },
                ThrowsAssert("VelICU::ICU_SUCCESS(success)", "LogicException_LogicAssert_0x0F8E9B42"));
    EXPECT_TRUE(fault.HasStruck());
}

TEST(TLocaleDateText, TimesAndIntervalsReadTheSameInEveryLocale)
{
    for (char16_t const * const name : {u"en_US", u"de_DE", u"ar_EG"}) {
        TLocale const locale(name);
        EXPECT_EQ(locale.Format(Time(7, 5, 9, 0u)), TString(u"7:5:9.0"));
        EXPECT_EQ(locale.Format(Time(23, 59, 59, 1000000u)), TString(u"24:0:0.0"));
        EXPECT_EQ(locale.Format(Time(12, 0, 0, 42u)), TString(u"12:0:0.42"));
        EXPECT_EQ(locale.Format(Interval(1, 2, 3, 4, 0.000005)),
                  TString(u"1 day 2 hour 3 minute 4 second 5 microsecond"));
        EXPECT_EQ(locale.Format(-Interval(2, 0, 0, 1, 0.0)),
                  TString(u"-2 day 0 hour 0 minute -1 second 0 microsecond"));
    }
    EXPECT_EQ(Time(7, 5, 9, 0u).Format(), TString(u"7:5:9.0"));
    EXPECT_EQ(Interval().Format(), TString(u"0 day 0 hour 0 minute 0 second 0 microsecond"));
}

TEST(LocaleDatePattern, CodesMeanTheFormatsOfTheLocale)
{
    LanguageCode const german(u"de_DE");
    for (int code = 0; code <= 23; ++code) {
        TString const expected = code == 4 || code == 14 || code == 19    ? TString(u"dd.MM.yyyy")
                                 : code == 9                              ? TString(u"EEEE, d. MMMM yyyy")
                                 : code == 20 || code == 21 || code == 22 ? TString(u"HH:mm:ss")
                                 : code == 23                             ? TString(u"HH:mm")
                                                                          : TString(u"dd.MM.yyyy HH:mm:ss");
        EXPECT_EQ(detail::GetFormatString(DateTimeFormatCodes{code}, german), expected) << code;
    }
}

TEST(LocaleDatePattern, OtherCodesAreLoggedAndEmpty)
{
    for (int const code : {24, -1, 1000000}) {
        RecordingLogger log;
        EXPECT_EQ(detail::GetFormatString(DateTimeFormatCodes{code}, LanguageCode(u"de_DE")), TString());
        auto const records = log.GetRecords();
        ASSERT_EQ(records.size(), 1u);
        EXPECT_EQ(records[0].severity, static_cast<int>(TLog::Severity::Error));
        EXPECT_NE(
            records[0].text.find("Invalid format identifier " + std::to_string(code) + " passed to GetFormatString"),
            std::string::npos)
            << records[0].text;
        EXPECT_NE(records[0].text.find("LogSite_AutoGen_0xCA83AC02"), std::string::npos) << records[0].text;
    }
}
