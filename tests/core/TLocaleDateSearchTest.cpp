// Dates and times read by TLocale.

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <future>
#include <memory>
#include <stdexcept>
#include <thread>

#include "tests/core/TLocalePeer.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValuePrinters.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velcoreplatform/TLog.h"
#include "velicu/ScopedStatusFault.h"

using namespace test_support;

namespace {

DateTime const SENTINEL = DateTime::FromValue(2134567890123456);

// The platform's parser stands aside: what it makes of a text is told in its own tests.
class Reader
{
public:
    explicit Reader(char16_t const * name = u"en_US") : Reader(TString(name)) {}
    explicit Reader(TString const & name) : m_locale(name) { m_locale.setParseNative(false); }

    TLocale & Locale() { return m_locale; }
    TString Pattern() const { return TLocalePeer::GetPattern(m_locale); }

    // The value, or the sentinel for a text that could not be read.
    DateTime Parse(char16_t const * text, char16_t const * pattern, DateTimeParseOptions options = ParseDateAndTime)
    {
        DateTime out = SENTINEL;
        bool const read = m_locale.ParseDateTime(text, pattern, out, options);
        EXPECT_EQ(read, out != SENTINEL);
        return out;
    }
    DateTime Search(char16_t const * text, DateTimeParseOptions options = ParseDateAndTime)
    {
        DateTime out = SENTINEL;
        bool const read = m_locale.ParseDateTimeTryAllFormats(text, out, options);
        EXPECT_EQ(read, out != SENTINEL);
        return out;
    }
    DateTime Search(char16_t const * text, DateTime const & reference)
    {
        DateTime out = SENTINEL;
        bool const read = m_locale.ParseDateTimeTryAllFormats(text, reference, out, ParseDateAndTime);
        EXPECT_EQ(read, out != SENTINEL);
        return out;
    }
    DateTime SearchDate(char16_t const * text, DateTimeParseOptions options = ParseDateOnly)
    {
        DateTime out = SENTINEL;
        bool const read = m_locale.ParseDateTryAllFormats(text, out, options);
        EXPECT_EQ(read, out != SENTINEL);
        return out;
    }

private:
    TLocale m_locale;
};

DateTime Day(int year, int month, int day)
{
    return DateTime(year, month, day, 0, 0, 0, 0.0);
}

// Cannot log; what it throws is no error of the library.
class BrokenLogger : public TLog::Logger
{
public:
    BrokenLogger() : m_before(TLog::Logger::Replace(this)) {}
    ~BrokenLogger() override { TLog::Logger::Replace(m_before); }

    bool IsEnabled(TLog::AnySeverity const &) override { return true; }
    void Log(TLog::Event const &, TLog::AnySeverity const &) override { throw std::runtime_error("broken"); }

private:
    TLog::Logger * m_before;
};

// The lock of reading is recursive, so that only another thread can tell whether it is free.
bool IsFree(std::shared_ptr<Reader> const & reader)
{
    std::promise<DateTime> promise;
    std::future<DateTime> result = promise.get_future();
    std::thread([reader, answer = std::move(promise)]() mutable {
        answer.set_value(reader->Parse(u"2021", u"yyyy"));
    }).detach();
    return result.wait_for(std::chrono::seconds(60)) == std::future_status::ready && result.get() == Day(2021, 12, 30);
}

}  // namespace

TEST(TLocaleDateSearch, BlankTextIsFalseAndMovesNothing)
{
    for (char16_t const * const blank : {u"", u" ", u"\t\u00A0\u3000\n", static_cast<char16_t const *>(nullptr)}) {
        Reader reader;
        EXPECT_EQ(reader.Search(blank), SENTINEL);
        EXPECT_EQ(reader.Search(blank, Day(2000, 1, 1)), SENTINEL);
        EXPECT_EQ(reader.SearchDate(blank), SENTINEL);
        EXPECT_EQ(reader.Parse(blank, u"yyyy"), SENTINEL);
        EXPECT_FALSE(TLocalePeer::HasRead(reader.Locale()));
    }
}

TEST(TLocaleDateSearch, TheYearTakesItsCentury)
{
    struct Case
    {
        char16_t const * text;
        int year;
    };
    for (auto const & [text, year] : {Case{u"10", 2010}, Case{u"30", 1930}, Case{u"29", 2029}, Case{u"99", 1999},
                                      Case{u"12", 2012}, Case{u"400", 400}, Case{u"0012", 2012}})
        EXPECT_EQ(Reader().Parse(text, u"yyyy"), Day(year, 12, 30)) << TString(text).toStdString();
    for (char16_t const * const text : {u"100", u"399"})
        EXPECT_EQ(Reader().Parse(text, u"yyyy"), SENTINEL);
}

TEST(TLocaleDateSearch, APatternTakesItsMissingDateFrom30December1899)
{
    EXPECT_EQ(Reader().Parse(u"10:20", u"HH:mm"), DateTime(1899, 12, 30, 10, 20, 0, 0.0));
    EXPECT_EQ(Reader().Parse(u"Mar 2020", u"MMM yyyy"), Day(2020, 3, 30));
    // February has no day 30.
    EXPECT_EQ(Reader().Parse(u"Feb 2020", u"MMM yyyy"), SENTINEL);
}

TEST(TLocaleDateSearch, OptionsChooseTheFields)
{
    EXPECT_EQ(Reader().Parse(u"2020-01-02 10:00", u"yyyy-MM-dd HH:mm", ParseDateOnly), Day(2020, 1, 2));
    EXPECT_EQ(Reader().Parse(u"2020-01-02 10:00", u"yyyy-MM-dd HH:mm", ParseDateAndTime),
              DateTime(2020, 1, 2, 10, 0, 0, 0.0));
    // The date fields stay zero, and there is no day 0.
    EXPECT_EQ(Reader().Parse(u"2020-01-02 10:00", u"yyyy-MM-dd HH:mm", ParseTimeOnly), SENTINEL);
    EXPECT_EQ(Reader().Parse(u"10:00", u"HH:mm", ParseTimeOnly), SENTINEL);
    EXPECT_EQ(Reader().Parse(u"2020-01-02", u"yyyy-MM-dd", static_cast<DateTimeParseOptions>(0)), SENTINEL);
    EXPECT_EQ(Reader().Parse(u"2020-01-02", u"yyyy-MM-dd", static_cast<DateTimeParseOptions>(5)), Day(2020, 1, 2));
}

TEST(TLocaleDateSearch, TheWholeTextMustFit)
{
    EXPECT_EQ(Reader().Parse(u" 2020-01-02\u3000", u"yyyy-MM-dd"), Day(2020, 1, 2));
    EXPECT_EQ(Reader().Parse(u"2020-01-02x", u"yyyy-MM-dd"), SENTINEL);
    EXPECT_EQ(Reader().Parse(u"2020-01-02 03", u"yyyy-MM-dd"), SENTINEL);
    EXPECT_EQ(Reader().Parse(u"2020-01", u"yyyy-MM-dd"), SENTINEL);
    EXPECT_EQ(Reader().Parse(u"2024-02-30", u"yyyy-MM-dd"), SENTINEL);
    EXPECT_EQ(Reader().Parse(u"2024-13-01", u"yyyy-MM-dd"), SENTINEL);
    EXPECT_EQ(Reader().Parse(u"0399-12-31", u"yyyy-MM-dd"), SENTINEL);
}

TEST(TLocaleDateSearch, SecondsAreReadToTheMillisecond)
{
    EXPECT_EQ(Reader().Parse(u"2015-10-15T10:11:12.123456", u"yyyy-MM-dd'T'HH:mm:ss.SSSSSS"),
              DateTime(2015, 10, 15, 10, 11, 12, 0.123));
}

TEST(TLocaleDateSearch, PatternsOfALocale)
{
    EXPECT_EQ(Reader(u"de_DE").Parse(u"2. M\u00E4rz 2020", u"d. MMMM yyyy"), Day(2020, 3, 2));
    EXPECT_EQ(Reader(u"fr_FR").Parse(u"mardi 2 mars 2020", u"EEEE d MMMM yyyy"), Day(2020, 3, 2));
    EXPECT_EQ(Reader(u"ja_JP").Parse(u"2020\u5E741\u67082\u65E5", u"yyyy\u5E74M\u6708d\u65E5"), Day(2020, 1, 2));
    // A locale's calendar counts in reading.
    EXPECT_EQ(Reader(u"th_TH@calendar=buddhist").Parse(u"2563-01-02", u"yyyy-MM-dd"), Day(2563, 1, 2));
}

TEST(TLocaleDateSearch, TheZoneOfATextIsForgotten)
{
    Reader reader;
    EXPECT_EQ(reader.Parse(u"2020-01-01 05:00 Pacific Time", u"yyyy-MM-dd HH:mm vvvv"),
              DateTime(2020, 1, 1, 5, 0, 0, 0.0));
    // An hour that the zone skips.
    EXPECT_EQ(reader.Parse(u"2020-03-08 02:30", u"yyyy-MM-dd HH:mm"), DateTime(2020, 3, 8, 2, 30, 0, 0.0));
}

TEST(TLocaleDateSearch, FirstPatternOfANullPointerIsAnAssertion)
{
    Reader reader;
    EXPECT_THAT([&] { reader.Parse(u"2020", nullptr); },
                ThrowsAssert("fmt != nullptr", "LogicException_LogicAssert_0x81E70A33"));
    EXPECT_EQ(TLocalePeer::CountReadings(reader.Locale()), 1);
    EXPECT_EQ(reader.Parse(u"2020", u"yyyy"), Day(2020, 12, 30));
    EXPECT_EQ(reader.Parse(u"2020", nullptr), SENTINEL);
    EXPECT_EQ(reader.Pattern(), TString());
}

TEST(TLocaleDateSearch, FailuresOfIcuAreAssertions)
{
    constexpr char const * CONDITION = "VelICU::ICU_SUCCESS(success)";
    struct Case
    {
        int operationsBefore;
        char const * error;
    };
    // Of a first reading: the calendar, then year, month, day and hour, whose failure is a false result.
    {
        Reader reader;
        reader.Parse(u"2020", u"yyyy");
        TLocalePeer::SetReadings(reader.Locale(), 100000);
        VelICU::ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
        EXPECT_THAT([&] { reader.Parse(u"2020", u"yyyy"); },
                    ThrowsAssert(CONDITION, "LogicException_LogicAssert_0xBD3A59A6"));
        // The next reading builds the calendar.
        EXPECT_EQ(reader.Search(u"2021"), Day(2021, 12, 30));
        EXPECT_EQ(TLocalePeer::CountReadings(reader.Locale()), 0);
    }
    for (int field = 0; field < 4; ++field) {
        Reader reader;
        reader.Parse(u"2020", u"yyyy");
        VelICU::ScopedStatusFault const fault(VelICU::U_ILLEGAL_ARGUMENT_ERROR, field);
        EXPECT_EQ(reader.Parse(u"2021 EEE", u"yyyy 'EEE'"), SENTINEL);
        EXPECT_TRUE(fault.HasStruck());
    }
    for (auto const & [operationsBefore, error] :
         {Case{4, "LogicException_LogicAssert_0xC71ECD6B"}, Case{5, "LogicException_LogicAssert_0x71D7BADA"},
          Case{6, "LogicException_LogicAssert_0xC8790510"}})
    {
        Reader reader;
        reader.Parse(u"2020", u"yyyy");
        VelICU::ScopedStatusFault const fault(VelICU::U_ILLEGAL_ARGUMENT_ERROR, operationsBefore);
        EXPECT_THAT([&] { reader.Parse(u"2021 EEE", u"yyyy 'EEE'"); }, ThrowsAssert(CONDITION, error));
        // The lock is free again.
        EXPECT_EQ(reader.Parse(u"2021", u"yyyy"), Day(2021, 12, 30));
    }
}

TEST(TLocaleDateSearch, WhatATryThrowsLeavesTheLockFree)
{
    auto const reader = std::make_shared<Reader>();
    EXPECT_EQ(reader->Parse(u"2020", u"yyyy"), Day(2020, 12, 30));
    {
        VelICU::ScopedStatusFault const fault(VelICU::U_ILLEGAL_ARGUMENT_ERROR, 4);
        EXPECT_THAT([&] { reader->Parse(u"2021 EEE", u"yyyy 'EEE'"); },
                    ThrowsAssert("VelICU::ICU_SUCCESS(success)", "LogicException_LogicAssert_0xC71ECD6B"));
    }
    EXPECT_TRUE(IsFree(reader));
    // A year that is refused is logged before; an error of the logger is not one of the text.
    DateTime out = SENTINEL;
    {
        BrokenLogger const logger;
        EXPECT_THROW(reader->Locale().ParseDateTime(u"0399-01-02", u"yyyy-MM-dd", out, ParseDateAndTime),
                     std::runtime_error);
        EXPECT_THROW(reader->Locale().ParseDateTimeTryAllFormats(u"0399-01-02", out, ParseDateAndTime),
                     std::runtime_error);
        EXPECT_THROW(reader->Locale().ParseDateTryAllFormats(u"0399-01-02", out, ParseDateAndTime), std::runtime_error);
    }
    EXPECT_EQ(out, SENTINEL);
    EXPECT_TRUE(IsFree(reader));
}

TEST(TLocaleDateSearch, TheTableServesLocalesWhoseNameBeginsWithEnUs)
{
    struct Case
    {
        char16_t const * name;
        char16_t const * last;  // the pattern that a failed search leaves
    };
    constexpr char16_t const * ROW = u"MM/dd/yy hh:mm a";
    constexpr char16_t const * SHAPE = u"yyyy-MM-dd'T'HH:mm:ss.SSSSSS";
    for (auto const & [name, last] : {Case{u"en_US", ROW}, Case{u"en_US_POSIX", ROW}, Case{u"en_GB", SHAPE},
                                      Case{u"en_CA", SHAPE}, Case{u"es_US", SHAPE}})
    {
        Reader reader(name);
        EXPECT_EQ(reader.Search(u"never"), SENTINEL);
        EXPECT_EQ(reader.Pattern(), TString(last)) << TString(name).toStdString();
        EXPECT_EQ(reader.SearchDate(u"never"), SENTINEL);
        EXPECT_EQ(reader.Pattern(), TString(last)) << TString(name).toStdString();
    }
}

TEST(TLocaleDateSearch, TheCalendarIsBuiltAnewAfterAHundredThousandReadings)
{
    Reader reader;
    reader.Parse(u"2020", u"yyyy");
    EXPECT_EQ(TLocalePeer::CountReadings(reader.Locale()), 0);
    void const * const first = TLocalePeer::GetCalendar(reader.Locale());
    TLocalePeer::SetReadings(reader.Locale(), 99998);
    reader.Parse(u"2021", u"yyyy");
    EXPECT_EQ(TLocalePeer::CountReadings(reader.Locale()), 99999);
    EXPECT_EQ(TLocalePeer::GetCalendar(reader.Locale()), first);
    // Hits of the cached formatter count, and build nothing.
    EXPECT_EQ(reader.Search(u"2022"), Day(2022, 12, 30));
    EXPECT_EQ(reader.Search(u"2023"), Day(2023, 12, 30));
    EXPECT_EQ(TLocalePeer::CountReadings(reader.Locale()), 100001);
    EXPECT_EQ(TLocalePeer::GetCalendar(reader.Locale()), first);
    EXPECT_EQ(reader.Parse(u"2024", u"yyyy"), Day(2024, 12, 30));
    EXPECT_EQ(TLocalePeer::CountReadings(reader.Locale()), 0);
    EXPECT_NE(TLocalePeer::GetCalendar(reader.Locale()), nullptr);
    // The count wraps around.
    TLocalePeer::SetReadings(reader.Locale(), INT_MAX);
    EXPECT_EQ(reader.Search(u"2025"), Day(2025, 12, 30));
    EXPECT_EQ(TLocalePeer::CountReadings(reader.Locale()), INT_MIN);
}

TEST(TLocaleDateSearch, AmbiguousTextIsSettledByTheOrderOfTheTableAndThenByMemory)
{
    Reader reader;
    EXPECT_EQ(reader.Search(u"01/02/2020"), Day(2020, 1, 2));
    EXPECT_EQ(reader.Pattern(), TString(u"MM/dd/yyyy"));
    EXPECT_EQ(reader.Search(u"13/02/2020"), Day(2020, 2, 13));
    EXPECT_EQ(reader.Pattern(), TString(u"dd/MM/yyyy"));
    EXPECT_EQ(reader.Search(u"01/02/2020"), Day(2020, 2, 1));
    reader.Locale().setCacheFormatter(false);
    EXPECT_EQ(reader.Search(u"01/02/2020"), Day(2020, 1, 2));
}

TEST(TLocaleDateSearch, TheLastPatternTriedIsLeftAfterAFailedSearch)
{
    Reader reader;
    EXPECT_EQ(reader.Search(u"2024-02-30"), SENTINEL);
    EXPECT_EQ(reader.Pattern(), TString(u"MM/dd/yy hh:mm a"));
    EXPECT_EQ(TLocalePeer::CountReadings(reader.Locale()), 0);
    // An explicit pattern that failed is what the next search tries first.
    EXPECT_EQ(reader.Parse(u"x", u"dd/MM/yyyy"), SENTINEL);
    EXPECT_EQ(reader.Search(u"07/08/2021"), Day(2021, 8, 7));
}

TEST(TLocaleDateSearch, FreshReadingsOfTheTable)
{
    struct Case
    {
        char16_t const * text;
        char16_t const * pattern;
    };
    static Case const cases[] = {
        {u"2015-10-15", u"yyyy-MM-dd"},   {u"10/15/2015", u"MM/dd/yyyy"},
        {u"15/10/2015", u"dd/MM/yyyy"},   {u"Oct 15, 2015", u"MMMM dd, yyyy"},
        {u"15-Oct-2015", u"dd-MMM-yyyy"}, {u"15 Oct 2015", u"dd MMM yyyy"},
        {u"10:30 PM", u"hh:mma"},         {u"2015-10-15T10:11:12.123456", u"yyyy-MM-dd'T'HH:mm:ss.SSS'Z'"},
        {u"1.2.2015", u"M.d.yyyy"},       {u"2015", u"yyyy"},
        {u"1/2/15", u"yyyy/MM/dd"},       {u"Oct-15", u"MMM-yy"},
    };
    for (Case const & c : cases) {
        Reader reader;
        EXPECT_NE(reader.Search(c.text), SENTINEL) << TString(c.text).toStdString();
        EXPECT_EQ(reader.Pattern(), TString(c.pattern)) << TString(c.text).toStdString();
    }
    for (char16_t const * const text : {u"20151015", u"10:30", u"2015-10-15T10:11:12Z", u"15.10.2015", u"2024-02-30"})
        EXPECT_EQ(Reader().Search(text), SENTINEL) << TString(text).toStdString();
    EXPECT_EQ(Reader().Search(u"1/2/15"), Day(2001, 2, 15));
    EXPECT_EQ(Reader().Search(u"2015"), Day(2015, 12, 30));
}

TEST(TLocaleDateSearch, AReferenceGivesWhatThePatternLacks)
{
    DateTime const reference = Day(2010, 6, 15);
    EXPECT_EQ(Reader().Search(u"13-Oct", reference), Day(2010, 10, 13));
    EXPECT_EQ(Reader().Search(u"13-Oct"), Day(1899, 10, 13));
    EXPECT_EQ(Reader().Search(u"10:30 PM", reference), DateTime(2010, 6, 15, 22, 30, 0, 0.0));
    // A reference that is not valid counts as none.
    EXPECT_EQ(Reader().Search(u"13-Oct", DateTime::FromValue(0)), Day(1899, 10, 13));
    // The pattern tried last knows no reference.
    Reader reader;
    EXPECT_EQ(reader.Search(u"13-Oct", reference), Day(2010, 10, 13));
    EXPECT_EQ(reader.Search(u"14-Oct", reference), Day(1899, 10, 14));
    // Neither do the patterns of other locales.
    Reader german(u"de_DE");
    EXPECT_EQ(german.Search(u"10:30", reference), DateTime(1899, 12, 30, 10, 30, 0, 0.0));
}

TEST(TLocaleDateSearch, TheTableReadsDateAndTimeWhateverIsAsked)
{
    Reader reader;
    DateTime const value(2020, 1, 2, 10, 11, 12, 0.0);
    EXPECT_EQ(reader.SearchDate(u"2020-01-02 10:11:12"), value);
    // The pattern tried last keeps to the options.
    EXPECT_EQ(reader.SearchDate(u"2020-01-02 10:11:12"), Day(2020, 1, 2));
    EXPECT_EQ(reader.Search(u"2020-01-02 10:11:12", ParseTimeOnly), value);
}

TEST(TLocaleDateSearch, OtherLocalesReadWhatTheyPrint)
{
    Reader german(u"de_DE");
    EXPECT_EQ(german.Search(u"02.01.2020 03:04:05"), DateTime(2020, 1, 2, 3, 4, 5, 0.0));
    EXPECT_EQ(german.Pattern(), TString(u"dd.MM.yyyy HH:mm:ss"));
    EXPECT_EQ(german.Search(u"Donnerstag, 2. Januar 2020"), Day(2020, 1, 2));
    EXPECT_EQ(german.Pattern(), TString(u"EEEE, d. MMMM yyyy"));
    EXPECT_EQ(german.Search(u"02.01.20, 03:04"), DateTime(2020, 1, 2, 3, 4, 0, 0.0));
    EXPECT_EQ(Reader(u"de_DE").Search(u"2020-03"), Day(2020, 3, 30));
    EXPECT_EQ(Reader(u"de_DE").Search(u"2020-01-02T03:04:05"), DateTime(2020, 1, 2, 3, 4, 5, 0.0));
    // Day first, as the locale has it, and no table.
    EXPECT_EQ(Reader(u"en_GB").Search(u"01/02/2020"), Day(2020, 2, 1));
    EXPECT_EQ(Reader(u"en_GB").Search(u"12/31/2020"), SENTINEL);
    Reader failed(u"de_DE");
    EXPECT_EQ(failed.Search(u"12/31/2020"), SENTINEL);
    EXPECT_EQ(failed.Pattern(), TString(u"yyyy-MM-dd'T'HH:mm:ss.SSSSSS"));
}

TEST(TLocaleDateSearch, DatesOfOtherLocalesHaveNoTime)
{
    Reader german(u"de_DE");
    EXPECT_EQ(german.SearchDate(u"2. Januar 2020"), Day(2020, 1, 2));
    EXPECT_EQ(german.SearchDate(u"02.01.2020"), Day(2020, 1, 2));
    Reader other(u"de_DE");
    EXPECT_EQ(other.SearchDate(u"02.01.2020 03:04:05"), SENTINEL);
    EXPECT_EQ(other.SearchDate(u"2020-01-02 03:04:05"), Day(2020, 1, 2));
    EXPECT_EQ(other.Pattern(), TString(u"yyyy-MM-dd HH:mm:ss"));
}

TEST(TLocaleDateSearch, LocalesByTheirLcid)
{
    TLocale locale(0x407);
    locale.setParseNative(false);
    DateTime out = SENTINEL;
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(u"02.01.2020", out, ParseDateAndTime));
    EXPECT_EQ(out, Day(2020, 1, 2));
    // The user's locale is one of "en_US" here.
    EXPECT_TRUE(TLocale::GetUserDefaultLocale().ParseDateTimeTryAllFormats(u"01/02/2020", out, ParseDateAndTime));
}

TEST(TLocaleDateSearch, TimesOfDay)
{
    Reader reader;
    auto const time = [&](TString const & text) {
        auto const [read, value] = reader.Locale().ParseTimeTryAllFormats(text);
        EXPECT_TRUE(read || value == DateTime());
        return read ? value : SENTINEL;
    };
    EXPECT_EQ(time(u"7pm"), DateTime(1899, 12, 30, 19, 0, 0, 0.0));
    EXPECT_EQ(reader.Pattern(), TString(u"ha"));
    EXPECT_EQ(time(u"19"), DateTime(1899, 12, 30, 19, 0, 0, 0.0));
    EXPECT_EQ(reader.Pattern(), TString(u"H"));
    EXPECT_EQ(time(u"7:05:09.123 PM"), DateTime(1899, 12, 30, 19, 5, 9, 0.123));
    EXPECT_EQ(time(u"19.05.09.123"), DateTime(1899, 12, 30, 19, 5, 9, 0.123));
    EXPECT_EQ(reader.Pattern(), TString(u"HH.mm.ss.S"));
    // Midnight is a success with the value that stands for failure.
    EXPECT_EQ(time(u"0:00"), DateTime());
    EXPECT_EQ(time(u""), SENTINEL);
    EXPECT_EQ(time(u"7:5"), SENTINEL);
    EXPECT_EQ(reader.Pattern(), TString(u"HH.mm.ss.S"));
    EXPECT_EQ(time(u"7pm "), SENTINEL);
    EXPECT_EQ(time(TString(u"7pm\0", 4)), SENTINEL);
    EXPECT_EQ(TLocalePeer::CountReadings(reader.Locale()), 8);
    // The pattern of the time is the one that the next search tries first.
    EXPECT_EQ(reader.Search(u"19.05.09.5"), DateTime(1899, 12, 30, 19, 5, 9, 0.5));
    Reader german(u"de_DE");
    EXPECT_TRUE(std::get<0>(german.Locale().ParseTimeTryAllFormats(u"19:05")));
}

TEST(TLocaleDateSearch, ACopyReadsAsAFreshObject)
{
    Reader reader;
    EXPECT_EQ(reader.Search(u"13/02/2020"), Day(2020, 2, 13));
    TLocale const copy(reader.Locale());
    DateTime out = SENTINEL;
    EXPECT_TRUE(copy.ParseDateTimeTryAllFormats(u"01/02/2020", out, ParseDateAndTime));
    EXPECT_EQ(out, Day(2020, 1, 2));
}
