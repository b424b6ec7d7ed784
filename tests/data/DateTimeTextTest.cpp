// The text members of DateTime, Time and Interval.

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValuePrinters.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/data/Interval.h"
#include "velcoredata/data/Time.h"

using namespace test_support;

namespace {

DateTime const SENTINEL = DateTime::FromValue(2134567890123456);

DateTime Day(int year, int month, int day)
{
    return DateTime(year, month, day, 0, 0, 0, 0.0);
}

TLocale NewLocale(char16_t const * name)
{
    return TLocale(TString(name));
}

}  // namespace

TEST(DateTimeText, ConstructorsFromAPatternThrowForATextThatDoesNotFit)
{
    EXPECT_EQ(DateTime(u"02/03/2020", u"MM/dd/yyyy"), Day(2020, 2, 3));
    EXPECT_EQ(DateTime(u"3. M\u00E4rz 2020", u"d. MMMM yyyy", NewLocale(u"de_DE")), Day(2020, 3, 3));
    EXPECT_THAT([] { DateTime(u"2020-02-30", u"yyyy-MM-dd"); },
                ThrowsError("VeltriaException_AutoGen_0x2CE8742C", "Error parsing date '2020-02-30'", 4, 2));
    EXPECT_THAT([] { DateTime(u"never", u"yyyy-MM-dd", NewLocale(u"de_DE")); },
                ThrowsError("VeltriaException_AutoGen_0x8E8A7D12", "Error parsing date 'never'", 4, 2));
}

TEST(DateTimeText, ANullTextIsAnEmptyOne)
{
    constexpr char16_t const * NONE = nullptr;
    TLocale const locale = NewLocale(u"en_US");
    EXPECT_THAT([&] { DateTime(NONE, u"yyyy"); },
                ThrowsError("VeltriaException_AutoGen_0x2CE8742C", "Error parsing date ''", 4, 2));
    EXPECT_THAT([&] { DateTime(NONE, u"yyyy", locale); },
                ThrowsError("VeltriaException_AutoGen_0x8E8A7D12", "Error parsing date ''", 4, 2));
    EXPECT_EQ(DateTime(NONE, ParseDateAndTime, locale).GetRepresentation(), 0u);
    DateTime value = SENTINEL;
    EXPECT_FALSE(value.ParseDateTime(NONE, u"yyyy"));
    EXPECT_FALSE(value.ParseDateTimeTryAllFormats(NONE));
    EXPECT_FALSE(value.ParseDateTimeNative(NONE, locale));
    EXPECT_EQ(value, SENTINEL);
}

TEST(DateTimeText, ConstructorsFromTextAloneLeaveZeroForATextThatNothingFits)
{
    EXPECT_EQ(DateTime(u"2020-02-03"), Day(2020, 2, 3));
    EXPECT_EQ(DateTime(u"2020-02-03 04:05:06", ParseDateAndTime), DateTime(2020, 2, 3, 4, 5, 6, 0.0));
    EXPECT_EQ(DateTime(u"03.02.2020", ParseDateAndTime, NewLocale(u"de_DE")), Day(2020, 2, 3));
    for (DateTime const & value : {DateTime(u"never"), DateTime(u"never", ParseDateOnly), DateTime(u""),
                                   DateTime(u"never", ParseDateAndTime, NewLocale(u"de_DE"))})
    {
        EXPECT_EQ(value.GetRepresentation(), 0u);
        EXPECT_FALSE(value.IsValid());
    }
}

TEST(DateTimeText, FormsOfPrinting)
{
    DateTime const value(2021, 3, 4, 5, 6, 7, 0.0089);
    TLocale const german = NewLocale(u"de_DE");
    EXPECT_EQ(value.Format(false), TString(u"2021-03-04T05:06:07.008"));
    EXPECT_EQ(value.Format(true), TString(u"3/4/2021 5:06:07 AM"));
    EXPECT_EQ(value.Format(u"MMMM d"), TString(u"March 4"));
    EXPECT_EQ(value.Format(u"d. MMMM", german), TString(u"4. M\u00E4rz"));
    EXPECT_EQ(value.Format(ParseDateAndTime), TString(u"3/4/2021 5:06:07 AM"));
    EXPECT_EQ(value.Format(ParseDateOnly), TString(u"3/4/2021"));
    EXPECT_EQ(value.Format(ParseTimeOnly), TString(u"5:06:07 AM"));
    EXPECT_EQ(value.Format(ParseDateAndTime, german), TString(u"04.03.2021 05:06:07"));
    EXPECT_EQ(DateTime::FromValue(0).Format(ParseDateOnly, german), TString(u"Invalid DateTime"));
}

TEST(DateTimeText, MembersReadAndLeaveTheValueOnFailure)
{
    TLocale const german = NewLocale(u"de_DE");
    DateTime value = SENTINEL;
    EXPECT_FALSE(value.ParseDateTime(u"x", u"yyyy"));
    EXPECT_FALSE(value.ParseDateTime(u"x", u"yyyy", german));
    EXPECT_FALSE(value.ParseDateTimeNative(u"x", german));
    EXPECT_FALSE(value.ParseDateNative(u"x", german));
    EXPECT_FALSE(value.ParseDateTimeTryAllFormats(u"x"));
    EXPECT_FALSE(value.ParseDateTimeTryAllFormats(u"x", german));
    EXPECT_FALSE(value.ParseDateTimeTryAllFormats(u"x", german, Day(2000, 1, 1)));
    EXPECT_FALSE(value.ParseDateTryAllFormats(u"x", german));
    EXPECT_FALSE(value.ParseTimeTryAllFormats(u"x", german));
    EXPECT_EQ(value, SENTINEL);

    EXPECT_TRUE(value.ParseDateTime(u"2020", u"yyyy"));
    EXPECT_EQ(value, Day(2020, 12, 30));
    EXPECT_TRUE(value.ParseDateTime(u"M\u00E4rz 2020", u"MMMM yyyy", german));
    EXPECT_EQ(value, Day(2020, 3, 30));
    EXPECT_TRUE(value.ParseDateTimeNative(u"02.01.2020 03:04:05", german));
    EXPECT_EQ(value, DateTime(2020, 1, 2, 3, 4, 5, 0.0));
    EXPECT_TRUE(value.ParseDateNative(u"02.01.2020 03:04:05", german));
    EXPECT_EQ(value, Day(2020, 1, 2));
    EXPECT_TRUE(value.ParseDateTimeTryAllFormats(u"2020-01-03"));
    EXPECT_EQ(value, Day(2020, 1, 3));
    EXPECT_TRUE(value.ParseDateTimeTryAllFormats(u"04.01.2020 03:04", german));
    EXPECT_EQ(value, DateTime(2020, 1, 4, 3, 4, 0, 0.0));
    EXPECT_TRUE(value.ParseDateTimeTryAllFormats(u"13-Oct", NewLocale(u"en_US"), Day(2010, 6, 15)));
    EXPECT_EQ(value, Day(2010, 10, 13));
    EXPECT_TRUE(value.ParseDateTryAllFormats(u"2020-01-05 03:04:05", NewLocale(u"en_US")));
    EXPECT_EQ(value, DateTime(2020, 1, 5, 3, 4, 5, 0.0));
    EXPECT_TRUE(value.ParseTimeTryAllFormats(u"7pm", NewLocale(u"en_US")));
    EXPECT_EQ(value, DateTime(1899, 12, 30, 19, 0, 0, 0.0));
}

TEST(DateTimeText, StaticFormsWriteTheirArgumentOnSuccessOnly)
{
    TLocale const german = NewLocale(u"de_DE");
    DateTime out = SENTINEL;
    char16_t const * end = u"left alone";
    char16_t const * const before = end;
    unsigned long long representation = 42;
    EXPECT_FALSE(DateTime::ParseDateTime(u"x", u"yyyy", out));
    EXPECT_FALSE(DateTime::ParseDateTime(u"x", u"yyyy", out, german));
    EXPECT_FALSE(DateTime::ParseDateTime(u"x", u"yyyy", out, german, &end));
    EXPECT_FALSE(DateTime::ParseDateTime(u"x", u"yyyy", &representation));
    EXPECT_EQ(out, SENTINEL);
    EXPECT_EQ(representation, 42u);

    EXPECT_TRUE(DateTime::ParseDateTime(u"2020", u"yyyy", out));
    EXPECT_EQ(out, Day(2020, 12, 30));
    EXPECT_TRUE(DateTime::ParseDateTime(u"M\u00E4rz 2021", u"MMMM yyyy", out, german));
    EXPECT_EQ(out, Day(2021, 3, 30));
    EXPECT_TRUE(DateTime::ParseDateTime(u"2022", u"yyyy", out, german, &end));
    EXPECT_EQ(out, Day(2022, 12, 30));
    EXPECT_EQ(end, before);
    EXPECT_TRUE(DateTime::ParseDateTime(u"2023", u"yyyy", out, german, nullptr));
    EXPECT_TRUE(DateTime::ParseDateTime(u"2020", u"yyyy", &representation));
    EXPECT_EQ(representation, Day(2020, 12, 30).GetRepresentation());
}
