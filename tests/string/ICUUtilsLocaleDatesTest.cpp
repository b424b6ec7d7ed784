// Dates in the manner of a locale.

#include <gtest/gtest.h>

#include "main/string/CalendarCache.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/string/ICUUtils.h"
#include "velcoredata/string/TDateTimeFormat.h"
#include "velicu/ICULocale.h"
#include "velicu/ScopedStatusFault.h"

using namespace test_support;

namespace {

constexpr LCID ENGLISH = 0x409;
constexpr LCID GERMAN = 0x407;

DateTime const MOMENT(2020, 2, 29, 13, 4, 5, 0.75);

// That of MOMENT without its fraction.
constexpr double TDATE = 1582981445000.0;

}  // namespace

TEST(ICUUtilsLocaleDates, FirstDayOfTheWeekIsTheLocales)
{
    struct
    {
        char16_t const * locale;
        SOWValue day;
    } const rows[] = {
        {u"en_US", SOW_SUNDAY}, {u"de_DE", SOW_MONDAY}, {u"ar_EG", SOW_SATURDAY},
        {u"pt_PT", SOW_SUNDAY}, {u"dv_MV", SOW_FRIDAY}, {u"en_GB", SOW_MONDAY},
    };
    for (auto const & row : rows)
        EXPECT_EQ(ICUUtils::GetFirstDayOfWeek(TLocale(TString(row.locale))), row.day)
            << TString(row.locale).toStdString();
}

TEST(ICUUtilsLocaleDates, FirstDayOfTheIsoDefaultComesFromThePool)
{
    auto & pool = ICUUtils::detail::CalendarCache::Get();
    while (pool.CountWaiting() > 0)
        pool.Acquire();
    EXPECT_EQ(ICUUtils::GetFirstDayOfWeek(TLocale::GetISODefaultLocale()), SOW_SUNDAY);
    EXPECT_EQ(pool.CountWaiting(), 1u);
    EXPECT_EQ(ICUUtils::GetFirstDayOfWeek(TLocale(u"de_DE")), SOW_MONDAY);
    EXPECT_EQ(pool.CountWaiting(), 1u);
    EXPECT_EQ(ICUUtils::GetFirstDayOfWeek(TLocale(u"en_US")), SOW_SUNDAY);
    EXPECT_EQ(pool.CountWaiting(), 0u);
}

TEST(ICUUtilsLocaleDates, WithoutACalendarTheWeekBeginsOnMonday)
{
    TLocale const egypt(u"ar_EG");
    VelICU::ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
    EXPECT_EQ(ICUUtils::GetFirstDayOfWeek(egypt), SOW_MONDAY);
}

TEST(ICUUtilsLocaleDates, PatternsPrintInTheLanguageOfTheLcid)
{
    EXPECT_EQ(ICUUtils::FormatDateTimePattern(MOMENT, u"d. MMMM yyyy HH:mm:ss.SSS", GERMAN),
              TString(u"29. Februar 2020 13:04:05.000"));
    EXPECT_EQ(ICUUtils::FormatDateTimePattern(TDATE, u"EEEE", ENGLISH), TString(u"Saturday"));
    EXPECT_EQ(ICUUtils::GetDateTimeFormatter(u"MMM", GERMAN)->format(TDATE), TString(u"Feb."));
    EXPECT_EQ(ICUUtils::FormatDateTimePattern(TDATE, u"yyyy", 0x41E), TString(u"2020"));  // Gregorian in Thailand too
}

// A formatter is made for the locale object, whose name for 4096 is that of the pseudo-locale.
TEST(ICUUtilsLocaleDates, FormattersOfTheBidirectionalPseudoLocaleAreArabic)
{
    TString const saturday(u"\u0627\u0644\u0633\u0628\u062A");
    EXPECT_EQ(ICUUtils::GetDateTimeFormatter(u"EEEE", 4096)->format(TDATE), saturday);
    EXPECT_EQ(ICUUtils::FormatDateTimePattern(TDATE, u"EEEE", 4096), saturday);
}

TEST(ICUUtilsLocaleDates, SkeletonsPrintByTheBestPattern)
{
    EXPECT_EQ(ICUUtils::FormatBestDateTimePattern(MOMENT, u"yMMMd", ENGLISH), TString(u"Feb 29, 2020"));
    EXPECT_EQ(ICUUtils::FormatBestDateTimePattern(TDATE, u"yMMMd", GERMAN), TString(u"29. Feb. 2020"));
    EXPECT_EQ(ICUUtils::GetBestDateTimeFormatter(u"yMMMd", GERMAN)->format(TDATE), TString(u"29. Feb. 2020"));
}

TEST(ICUUtilsLocaleDates, DefaultFormatsAreTheLocales)
{
    EXPECT_EQ(ICUUtils::GetDateTimeDefaultFormatter(ICUUtils::SpecShortDate, ENGLISH)->format(TDATE),
              TString(u"2/29/2020"));
    EXPECT_EQ(ICUUtils::GetDateTimeDefaultFormatter(ICUUtils::SpecLongDate, GERMAN)->format(TDATE),
              TString(u"Samstag, 29. Februar 2020"));
    EXPECT_EQ(ICUUtils::GetDateTimeDefaultFormatter(ICUUtils::SpecShortTime, GERMAN)->format(TDATE), TString(u"13:04"));
}

TEST(ICUUtilsLocaleDates, AFailureOfIcuIsTheFormats)
{
    VelICU::ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
    EXPECT_THAT([] { ICUUtils::GetDateTimeFormatter(u"yyyy", ENGLISH); },
                ThrowsAssert("VelICU::ICU_SUCCESS(status)", "LogicException_LogicAssert_0x32806D6C"));
}
