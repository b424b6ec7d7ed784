#include "velcoredata/string/ICUUtils.h"

#include <chrono>

#include "main/string/CalendarCache.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/string/TDateTimeFormat.h"
#include "velicu/ICULocale.h"
#include "velicu/ScopedStatusFault.h"

namespace {

using VelICU::ScopedStatusFault;

constexpr double DAY = 86400000.0;
constexpr double SECOND = 1000.0;

double Rounded(int second, double fraction)
{
    return ICUUtils::ConvertToTDate(DateTime(2020, 1, 1, 23, 59, second, fraction), true);
}

// The operations of the pool that come before the conversion's own.
int AcquireOperations()
{
    return ICUUtils::detail::CalendarCache::Get().CountWaiting() == 0 ? 1 : 0;
}

}  // namespace

TEST(ICUUtilsDates, ATDateIsMillisecondsSince1970)
{
    EXPECT_EQ(0.0, ICUUtils::ConvertToTDate(DateTime::UnixEpoch));
    EXPECT_EQ(18262 * DAY + DAY / 2, ICUUtils::ConvertToTDate(DateTime(2020, 1, 1, 12, 0, 0, 0.0)));
    EXPECT_EQ(-25569 * DAY, ICUUtils::ConvertToTDate(DateTime()));
}

TEST(ICUUtilsDates, EveryYearConvertsOnTheProlepticCalendar)
{
    for (int year = 400; year <= 9999; year += 7)
        for (int month = 1; month <= 12; ++month) {
            using namespace std::chrono;
            auto const days = sys_days{std::chrono::year{year} / month / 28}.time_since_epoch().count();
            ASSERT_EQ(static_cast<double>(days) * DAY,
                      ICUUtils::ConvertToTDate(DateTime(year, month, 28, 0, 0, 0, 0.0)))
                << year << ' ' << month;
        }
}

TEST(ICUUtilsDates, TheFractionIsDroppedUnlessRounded)
{
    double const base = ICUUtils::CreateTDate(2020, 0, 1, 23, 59, 30);
    EXPECT_EQ(base, ICUUtils::ConvertToTDate(DateTime(2020, 1, 1, 23, 59, 30, 0.9999)));
    EXPECT_EQ(base, ICUUtils::ConvertToTDate(DateTime(2020, 1, 1, 23, 59, 30, 0.9999), false));
}

TEST(ICUUtilsDates, AFractionOfOneHalfIsNotRounded)
{
    double const base = ICUUtils::CreateTDate(2020, 0, 1, 23, 59, 30);
    EXPECT_EQ(base, Rounded(30, 0.5));
    EXPECT_EQ(base, Rounded(30, 0.4999));
    EXPECT_EQ(base + SECOND, Rounded(30, 0.5001));
    EXPECT_EQ(base + SECOND, Rounded(30, 0.6));
}

TEST(ICUUtilsDates, ASecondOf60IsCarriedByTheCalendar)
{
    EXPECT_EQ(18263 * DAY, Rounded(59, 0.6));
}

TEST(ICUUtilsDates, NothingOfAnEarlierUseStays)
{
    // The second use of a calendar starts from what the first left.
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(-25569 * DAY, ICUUtils::ConvertToTDate(DateTime()));
        EXPECT_EQ(18262 * DAY, ICUUtils::CreateTDate(2020, 0, 1, 0, 0, 0));
    }
}

TEST(ICUUtilsDates, CreateTDateCountsMonthsFromZeroAndCarries)
{
    EXPECT_EQ(0.0, ICUUtils::CreateTDate(1970, 0, 1, 0, 0, 0));
    EXPECT_EQ(18262 * DAY, ICUUtils::CreateTDate(2019, 12, 1, 0, 0, 0));
    EXPECT_EQ(18262 * DAY + DAY + SECOND, ICUUtils::CreateTDate(2020, 0, 1, 24, 0, 1));
}

TEST(ICUUtilsDates, StartOfWeekIsTheDefaultLocales)
{
    EXPECT_EQ(SOW_SUNDAY, ICUUtils::GetStartOfWeek());
}

TEST(ICUUtilsDates, FormatsThroughAFormat)
{
    EXPECT_EQ(TString(u"2020-01-01"), ICUUtils::FormatDateTimePattern(18262 * DAY, TDateTimeFormat(u"yyyy-MM-dd")));
}

TEST(ICUUtilsDates, FailuresOfIcuAreAssertions)
{
    std::string const condition = "VelICU::ICU_SUCCESS(status)";
    {
        ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR, AcquireOperations());
        EXPECT_THAT([] { ICUUtils::ConvertToTDate(DateTime()); },
                    ThrowsAssert(condition, "LogicException_LogicAssert_0xE8AC867C"));
    }
    {
        ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR, AcquireOperations());
        EXPECT_THAT([] { ICUUtils::CreateTDate(2020, 0, 1, 0, 0, 0); },
                    ThrowsAssert(condition, "LogicException_LogicAssert_0x682A2430"));
    }
    {
        ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
        EXPECT_THAT([] { ICUUtils::GetStartOfWeek(); },
                    ThrowsAssert(condition, "LogicException_LogicAssert_0x7545A35E"));
    }
    {
        ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR, 1);
        EXPECT_THAT([] { ICUUtils::GetStartOfWeek(); },
                    ThrowsAssert(condition, "LogicException_LogicAssert_0x7E4DB4D2"));
    }
}

TEST(ICUUtilsDates, DatesOffTheCalendarDoNoHarm)
{
    for (unsigned long long representation : {0ull, ~0ull, DateTime::minGregorianDate, 864000000ull})
        for (bool round : {false, true})
            ICUUtils::ConvertToTDate(DateTime::FromValue(representation), round);
    ICUUtils::CreateTDate(2147483647, -2147483647, 2147483647, -1, 2147483647, 0);
    EXPECT_EQ(0.0, ICUUtils::ConvertToTDate(DateTime::UnixEpoch));
    EXPECT_EQ(0.0, ICUUtils::ConvertToTDate(DateTime::UnixEpoch));
}

TEST(ICUUtilsNames, PartsOfALocale)
{
    EXPECT_EQ(TString(u"de"), ICUUtils::GetLanguageName(u"de_DE"));
    EXPECT_EQ(TString(u"DE"), ICUUtils::GetCountryName(u"de_DE"));
    EXPECT_EQ(TString(u"DEU"), ICUUtils::GetCountryNameISO3(u"de_DE"));
    EXPECT_EQ(TString(u"EUR"), ICUUtils::GetCurrencyCode(u"de_DE"));
    EXPECT_EQ(0x407u, ICUUtils::GetLCID(u"de_DE"));
    EXPECT_EQ(0x409u, ICUUtils::GetDefaultLCID());
}

TEST(ICUUtilsNames, WhatIsMissingIsEmpty)
{
    EXPECT_EQ(TString(u"fr"), ICUUtils::GetLanguageName(u"fr"));
    EXPECT_EQ(TString(), ICUUtils::GetCountryName(u"fr"));
    EXPECT_EQ(TString(), ICUUtils::GetCountryNameISO3(u"fr"));
    EXPECT_EQ(TString(), ICUUtils::GetCurrencyCode(u"fr"));
    EXPECT_EQ(0u, ICUUtils::GetLCID(u"xx_YY"));
    EXPECT_EQ(0u, ICUUtils::GetLCID(u""));
    EXPECT_EQ(TString(), ICUUtils::GetLanguageName(u""));
    EXPECT_EQ(TString(), ICUUtils::GetCountryName(u"\xD800\u4E00"));
}

TEST(ICUUtilsNames, CharacterSetsHaveTheirRegisteredNames)
{
    EXPECT_EQ(TString(u"ISO_8859-1:1987"), ICUUtils::TryGetIanaCharactersetName("latin1"));
    EXPECT_EQ(TString(u"UTF-8"), ICUUtils::TryGetIanaCharactersetName("utf8"));
    EXPECT_EQ(TString(u"windows-1252"), ICUUtils::TryGetIanaCharactersetName("ibm-5348"));
}

TEST(ICUUtilsNames, ANullCharacterSetIsEmptyAndAnUnknownOneComesBack)
{
    EXPECT_EQ(TString(), ICUUtils::TryGetIanaCharactersetName(static_cast<char const *>(nullptr)));
    EXPECT_EQ(TString(u"no such set"), ICUUtils::TryGetIanaCharactersetName("no such set"));
    EXPECT_EQ(TString(), ICUUtils::TryGetIanaCharactersetName(""));
    ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
    EXPECT_EQ(TString(u"utf8"), ICUUtils::TryGetIanaCharactersetName("utf8"));
}

TEST(ICUUtilsNames, CodePagesHaveTheirRegisteredNames)
{
    EXPECT_EQ(TString(u"windows-1252"), ICUUtils::TryGetIanaCharactersetName(ICUUtils::ANSICodePage));
    EXPECT_EQ(TString(u"IBM437"), ICUUtils::TryGetIanaCharactersetName(ICUUtils::OEMCodePage));
    ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
    EXPECT_EQ(TString(), ICUUtils::TryGetIanaCharactersetName(ICUUtils::ANSICodePage));
}

TEST(ICUUtilsNames, AnotherCodePageIsAnAssertion)
{
    for (int codePage : {2, -1, 1252})
        EXPECT_THAT([&] { ICUUtils::TryGetIanaCharactersetName(static_cast<ICUUtils::CodePage>(codePage)); },
                    ThrowsAssert("false", "LogicException_LogicAssert_0xCFFFF092"));
}

TEST(ICUUtilsNames, ConvertersAreListed)
{
    int const count = ICUUtils::CountAvailableConverters();
    ASSERT_GT(count, 100);
    for (int i = 0; i < count; ++i)
        EXPECT_NE(nullptr, ICUUtils::GetAvailableConverterName(i));
    EXPECT_EQ(nullptr, ICUUtils::GetAvailableConverterName(count));
    EXPECT_EQ(nullptr, ICUUtils::GetAvailableConverterName(-1));
}
