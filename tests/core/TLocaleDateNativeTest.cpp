// The platform's parser in the searches of TLocale.

#include <gtest/gtest.h>

#include "tests/core/TLocalePeer.h"
#include "tests/support/ValuePrinters.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"

namespace {

DateTime const SENTINEL = DateTime::FromValue(2134567890123456);

// Which the platform reads and no pattern does: neither has "hh:mm:ss a" after a month's name.
constexpr char16_t const * NATIVE = u"Jan 2, 2020 3:04:05 PM";
DateTime const VALUE(2020, 1, 2, 15, 4, 5, 0.0);

DateTime Search(TLocale const & locale, char16_t const * text, DateTimeParseOptions options = ParseDateAndTime)
{
    DateTime out = SENTINEL;
    bool const read = locale.ParseDateTimeTryAllFormats(text, out, options);
    EXPECT_EQ(read, out != SENTINEL);
    return out;
}

}  // namespace

TEST(TLocaleDateNative, IsAskedLastAndRemembered)
{
    TLocale const locale(u"en_US");
    EXPECT_EQ(Search(locale, NATIVE), VALUE);
    EXPECT_TRUE(TLocalePeer::ReadNativeLast(locale));
    EXPECT_EQ(TLocalePeer::GetPattern(locale), TString(u"MM/dd/yy hh:mm a"));
    EXPECT_EQ(Search(locale, NATIVE), VALUE);
    EXPECT_TRUE(TLocalePeer::ReadNativeLast(locale));
    // The memory gets its try before the table and leaves the formatter alone.
    EXPECT_EQ(TLocalePeer::CountReadings(locale), 1);
    EXPECT_EQ(Search(locale, u"13-Oct"), DateTime(1899, 10, 13, 0, 0, 0, 0.0));
    EXPECT_FALSE(TLocalePeer::ReadNativeLast(locale));
}

TEST(TLocaleDateNative, APatternThatFitsClearsTheMemory)
{
    TLocale const locale(u"en_US");
    EXPECT_EQ(Search(locale, u"2020-01-02"), DateTime(2020, 1, 2, 0, 0, 0, 0.0));
    TLocalePeer::SetReadNativeLast(locale, true);
    EXPECT_EQ(Search(locale, u"2020-01-03"), DateTime(2020, 1, 3, 0, 0, 0, 0.0));
    EXPECT_FALSE(TLocalePeer::ReadNativeLast(locale));
    // So does a text that nothing reads.
    TLocalePeer::SetReadNativeLast(locale, true);
    EXPECT_EQ(Search(locale, u"never"), SENTINEL);
    EXPECT_FALSE(TLocalePeer::ReadNativeLast(locale));
}

TEST(TLocaleDateNative, IsNotAskedWithAReferenceNorWhenSwitchedOff)
{
    TLocale locale(u"en_US");
    DateTime out = SENTINEL;
    EXPECT_FALSE(locale.ParseDateTimeTryAllFormats(NATIVE, DateTime(2010, 6, 1, 0, 0, 0, 0.0), out, ParseDateAndTime));
    EXPECT_FALSE(locale.ParseDateTryAllFormats(NATIVE, DateTime(2010, 6, 1, 0, 0, 0, 0.0), out, ParseDateAndTime));
    EXPECT_EQ(out, SENTINEL);
    // The default date is no reference.
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(NATIVE, DateTime(), out, ParseDateAndTime));
    EXPECT_EQ(out, VALUE);
    locale.setParseNative(false);
    out = SENTINEL;
    EXPECT_EQ(Search(locale, NATIVE), SENTINEL);
    // The public operation asks it all the same.
    EXPECT_TRUE(locale.ParseDateTimeUsingNativeAPIs(NATIVE, out, ParseDateAndTime));
    EXPECT_EQ(out, VALUE);
}

// A text that the platform read last is not a matter of the reference: its try comes before the search.
TEST(TLocaleDateNative, TheMemoryAsksWithoutTheCallersReference)
{
    DateTime const reference(2010, 6, 1, 0, 0, 0, 0.0);
    for (bool const dateSearch : {false, true}) {
        TLocale const locale(u"en_US");
        auto const search = [&] {
            DateTime out = SENTINEL;
            bool const read = dateSearch ? locale.ParseDateTryAllFormats(NATIVE, reference, out, ParseDateAndTime)
                                         : locale.ParseDateTimeTryAllFormats(NATIVE, reference, out, ParseDateAndTime);
            EXPECT_EQ(read, out != SENTINEL);
            return out;
        };
        EXPECT_EQ(search(), SENTINEL);
        EXPECT_EQ(Search(locale, NATIVE), VALUE);
        EXPECT_EQ(search(), VALUE);
        EXPECT_TRUE(TLocalePeer::ReadNativeLast(locale));
        EXPECT_EQ(Search(locale, u"13-Oct"), DateTime(1899, 10, 13, 0, 0, 0, 0.0));
        EXPECT_EQ(search(), SENTINEL);
    }
}

TEST(TLocaleDateNative, ADayThatNoPatternTakesIsItsToDecide)
{
    TLocale const platform(u"en_US");
    for (char16_t const * const text : {u"2024-02-30", u"2023-02-29", u"2024-04-31 10:00", u"2/30/24"}) {
        TLocale locale(u"en_US");
        DateTime expected = SENTINEL;
        platform.ParseDateTimeUsingNativeAPIs(text, expected, ParseDateAndTime);
        EXPECT_EQ(Search(locale, text), expected) << TString(text).toStdString();
        EXPECT_EQ(TLocalePeer::ReadNativeLast(locale), expected != SENTINEL);
        EXPECT_EQ(TLocalePeer::GetPattern(locale), TString(u"MM/dd/yy hh:mm a"));
    }
}

TEST(TLocaleDateNative, OtherOptionsPrintBothHalvesAndReadTheTime)
{
    TLocale const locale(u"en_US");
    for (int const other : {0, 4, 5, 6, 7, -1}) {
        auto const options = static_cast<DateTimeParseOptions>(other);
        EXPECT_EQ(locale.Format(VALUE, options), TString(u"1/2/2020 3:04:05 PM")) << other;
        DateTime out = SENTINEL;
        EXPECT_TRUE(locale.ParseDateTimeUsingNativeAPIs(NATIVE, out, options)) << other;
        EXPECT_EQ(out, DateTime(1899, 12, 30, 15, 4, 5, 0.0)) << other;
        out = SENTINEL;
        EXPECT_FALSE(locale.ParseDateTimeUsingNativeAPIs(u"1/2/2020", out, options)) << other;
        EXPECT_EQ(out, SENTINEL);
    }
}

TEST(TLocaleDateNative, WithoutACachedFormatterTheMemoryIsNotLookedAt)
{
    TLocale locale(u"en_US");
    locale.setCacheFormatter(false);
    EXPECT_EQ(Search(locale, NATIVE), VALUE);
    EXPECT_EQ(Search(locale, u"2020-01-02"), DateTime(2020, 1, 2, 0, 0, 0, 0.0));
    EXPECT_TRUE(TLocalePeer::ReadNativeLast(locale));
}

TEST(TLocaleDateNative, OptionsChooseTheHalf)
{
    TLocale const locale(u"en_US");
    EXPECT_EQ(Search(locale, NATIVE, ParseDateOnly), DateTime(2020, 1, 2, 0, 0, 0, 0.0));
    EXPECT_EQ(Search(locale, NATIVE, ParseTimeOnly), DateTime(1899, 12, 30, 15, 4, 5, 0.0));
    DateTime out = SENTINEL;
    EXPECT_TRUE(locale.ParseDateTryAllFormats(NATIVE, out, ParseDateOnly));
    EXPECT_EQ(out, DateTime(2020, 1, 2, 0, 0, 0, 0.0));
    EXPECT_FALSE(locale.ParseDateTimeUsingNativeAPIs(u"never", out, ParseDateAndTime));
    EXPECT_FALSE(locale.ParseDateTimeUsingNativeAPIs(nullptr, out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(2020, 1, 2, 0, 0, 0, 0.0));
}

TEST(TLocaleDateNative, YearsBefore400AndTimesBeforeTheEpochFollowThePlatform)
{
    TLocale const locale(u"en_US");
    DateTime out = SENTINEL;
    EXPECT_FALSE(locale.ParseDateTimeUsingNativeAPIs(u"1/2/0399", out, ParseDateAndTime));
    EXPECT_EQ(out, SENTINEL);
    EXPECT_TRUE(locale.ParseDateTimeUsingNativeAPIs(u"1/2/0400", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(400, 1, 2, 0, 0, 0, 0.0));
    // An OLE date has a fraction without a sign; a DateTime counts on a line.
    EXPECT_TRUE(locale.ParseDateTimeUsingNativeAPIs(u"12/29/1899 6:00:00 AM", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(1899, 12, 28, 18, 0, 0, 0.0));
    EXPECT_EQ(DateTime(1899, 12, 28, 18, 0, 0, 0.0).Format(ParseDateAndTime, locale),
              TString(u"12/29/1899 6:00:00 AM"));
}
