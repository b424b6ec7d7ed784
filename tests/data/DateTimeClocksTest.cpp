// The members of DateTime that meet other clocks.
#include "velcoredata/data/DateTime.h"

#include <chrono>
#include <cstdlib>

#include <QDateTime>
#include <QTimeZone>
#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ZoneScope.h"
#include "velcoreplatform/SystemTime.h"

namespace {

DateTime const c_before = DateTime::FromValue(1234567890123456789);

long long UnixSeconds(DateTime const & value, bool isUtc)
{
    long long seconds = -1;
    EXPECT_TRUE(value.GetAsUnixTime(seconds, isUtc)) << value;
    return seconds;
}

}  // namespace

TEST(DateTimeClocks, UnixTimeIsSetWithMicroseconds)
{
    DateTime value;
    EXPECT_TRUE(value.SetUnixTime(951868799, 999949, true));
    EXPECT_EQ(value, DateTime(2000, 2, 29, 23, 59, 59, 0.9999));
    EXPECT_TRUE(value.SetUnixTime(0, true));
    EXPECT_EQ(value, DateTime::UnixEpoch);
    EXPECT_EQ(DateTime::FromUnixTime(86400, true), DateTime::UnixEpoch + DateTimeSpan::Days(1));
    EXPECT_EQ(DateTime::FromUnixTime(0, 2500000, true), DateTime::UnixEpoch + DateTimeSpan(25000));
}

TEST(DateTimeClocks, UnixTimeOutsideItsRangeIsRefusedWithTheValueUnchanged)
{
    for (bool utc : {true, false})
        for (long long seconds : {-1ll, -1000000000000ll, 32535216000ll, 0x7FFFFFFFFFFFFFFFll}) {
            DateTime value = c_before;
            EXPECT_FALSE(value.SetUnixTime(seconds, 0, utc));
            EXPECT_FALSE(value.SetUnixTime(seconds, utc));
            EXPECT_EQ(value, c_before);
            EXPECT_EQ(DateTime::FromUnixTime(seconds, utc), DateTime());
        }
    EXPECT_EQ(DateTime::FromUnixTime(32535215999, true), DateTime(3000, 12, 31, 23, 59, 59, 0.0));
}

TEST(DateTimeClocks, UnixTimeIsConvertedToLocalTime)
{
    ZoneScope const zone("EST5EDT,M3.2.0,M11.1.0");
    EXPECT_EQ(DateTime::FromUnixTime(1420070400, false), DateTime(2014, 12, 31, 19, 0, 0, 0.0));
    EXPECT_EQ(DateTime::FromUnixTime(1435708800, false), DateTime(2015, 6, 30, 20, 0, 0, 0.0));
    EXPECT_EQ(UnixSeconds(DateTime(2015, 6, 30, 20, 0, 0, 0.0), false), 1435708800);
    EXPECT_EQ(UnixSeconds(DateTime(2014, 12, 31, 19, 0, 0, 0.0), false), 1420070400);
}

TEST(DateTimeClocks, MillisecondsAfterTheUnixEpochCountBothWays)
{
    EXPECT_EQ(DateTime::FromMillisecondsAfterUnixEpoch(1), DateTime::UnixEpoch + DateTimeSpan(10));
    EXPECT_EQ(DateTime::FromMillisecondsAfterUnixEpoch(-2209161600000), DateTime());
}

TEST(DateTimeClocks, UnixTimeIsReadFrom1601To9999)
{
    EXPECT_EQ(UnixSeconds(DateTime(1970, 1, 1, 0, 0, 1, 0.9), true), 1);
    EXPECT_EQ(UnixSeconds(DateTime(1601, 1, 1, 0, 0, 0, 0.0), true), -11644473600);
    EXPECT_EQ(UnixSeconds(DateTime(9999, 12, 31, 23, 59, 59, 0.0), true), 253402300799);
    for (DateTime const & value : {DateTime(1600, 12, 31, 0, 0, 0, 0.0), DateTime(10000, 1, 1, 0, 0, 0, 0.0),
                                   DateTime::FromValue(0), DateTime::FromValue(DateTime::minGregorianDate - 1)})
    {
        long long seconds = 42;
        EXPECT_FALSE(value.GetAsUnixTime(seconds, true)) << value;
        EXPECT_EQ(seconds, 42);
    }
}

TEST(DateTimeClocks, TimesOfDayBefore1899AreReadThroughTheOleForm)
{
    // -1.25 days is 28 December 18:00 here and 29 December 06:00 there.
    long long const epoch = UnixSeconds(DateTime(1899, 12, 29, 6, 0, 0, 0.0), true);
    EXPECT_EQ(UnixSeconds(DateTime(1899, 12, 28, 18, 0, 0, 0.0), true), -2209161600 - 86400 + 6 * 3600);
    EXPECT_NE(epoch, -2209161600 - 86400 + 6 * 3600);
}

TEST(DateTimeClocks, SystemTimeTakesMillisecondsOrWholeSeconds)
{
    DateTime const value(2015, 5, 6, 7, 8, 9, 0.1234);
    SYSTEMTIME parts{};
    ASSERT_TRUE(DateTimeToSystemTime(parts, value, false));
    EXPECT_EQ(parts.wYear, 2015);
    EXPECT_EQ(parts.wMonth, 5);
    EXPECT_EQ(parts.wDay, 6);
    EXPECT_EQ(parts.wHour, 7);
    EXPECT_EQ(parts.wMinute, 8);
    EXPECT_EQ(parts.wSecond, 9);
    EXPECT_EQ(parts.wMilliseconds, 123);
    EXPECT_EQ(SystemTimeToDateTime(parts), DateTime(2015, 5, 6, 7, 8, 9, 0.123));
    ASSERT_TRUE(DateTimeToSystemTime(parts, value, true));
    EXPECT_EQ(parts.wSecond, 9);
    EXPECT_EQ(parts.wMilliseconds, 0);
    SYSTEMTIME const before = parts;
    EXPECT_FALSE(DateTimeToSystemTime(parts, DateTime(10000, 1, 1, 0, 0, 0, 0.0), true));
    EXPECT_EQ(parts.wYear, before.wYear);
}

TEST(DateTimeClocks, ABadSystemTimeThrows)
{
    EXPECT_THAT(
        [] {
            SystemTimeToDateTime(SYSTEMTIME{2015, 13, 0, 1, 0, 0, 0, 0});
        },
        ThrowsError("VeltriaException_AutoGen_0xDD90F63D", "Invalid datetime value"));
}

TEST(DateTimeClocks, QtDateTimesKeepTheirPartsInAnyZone)
{
    DateTime const value(2015, 5, 6, 7, 8, 9, 0.1234);
    QDateTime const utc = value.ToQDateTime(true);
    EXPECT_EQ(utc, QDateTime(QDate(2015, 5, 6), QTime(7, 8, 9, 123), Qt::UTC));
    EXPECT_EQ(utc.timeSpec(), Qt::UTC);
    QDateTime const local = value.ToQDateTime(false);
    EXPECT_EQ(local.timeSpec(), Qt::LocalTime);
    EXPECT_EQ(local.time(), QTime(7, 8, 9, 123));
    EXPECT_EQ(value.ToQDate(true), QDate(2015, 5, 6));
    EXPECT_EQ(value.ToQDate(false), QDate(2015, 5, 6));
    DateTime const expected(2015, 5, 6, 7, 8, 9, 0.123);
    EXPECT_EQ(DateTime::FromQDateTime(utc), expected);
    EXPECT_EQ(DateTime::FromQDateTime(local), expected);
    EXPECT_EQ(DateTime::FromQDateTime(QDateTime(QDate(2015, 5, 6), QTime(7, 8, 9, 123), Qt::OffsetFromUTC, 3600)),
              expected);
    EXPECT_THAT([] { DateTime::FromQDateTime(QDateTime()); }, ThrowsError("VeltriaException_AutoGen_0xDD90F63D"));
}

TEST(DateTimeClocks, TheClockIsTheSystems)
{
    using namespace std::chrono;
    auto const now = [] {
        return DateTime::FromMillisecondsAfterUnixEpoch(
            duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count());
    };
    DateTime const before = now();
    DateTime const value = DateTime::GetUniversalTime();
    unsigned long long const total = DateTime::TotalMillisecondsFromMinDateTimeUTC();
    DateTime const after = now();
    EXPECT_LE(before, value);
    EXPECT_LE(value, after);
    EXPECT_LE(static_cast<unsigned long long>((before - DateTime::OLEEpoch).GetTotalMilliseconds()), total);
    EXPECT_LE(total, static_cast<unsigned long long>((after - DateTime::OLEEpoch).GetTotalMilliseconds()));
}

TEST(DateTimeClocks, LocalTimeIsAheadByTheZonesOffset)
{
    ZoneScope const zone("XXX-5:30");
    DateTimeSpan const difference = DateTime::GetLocalTime() - DateTime::GetUniversalTime();
    EXPECT_LT((difference - DateTimeSpan(0, 5, 30, 0, 0.0)).GetTotalSeconds(), 60);
    EXPECT_GT((difference - DateTimeSpan(0, 5, 30, 0, 0.0)).GetTotalSeconds(), -60);
}

TEST(DateTimeClocks, LocalAndUniversalTimeConvertToTheMillisecond)
{
    ZoneScope const zone("EST5EDT,M3.2.0,M11.1.0");
    DateTime const utc(2015, 7, 1, 12, 0, 0, 0.1239);
    DateTime const local(2015, 7, 1, 8, 0, 0, 0.123);
    EXPECT_EQ(DateTime::LocalFromUTC(utc), local);
    EXPECT_EQ(DateTime::UTCFromLocal(local), DateTime(2015, 7, 1, 12, 0, 0, 0.123));
}

TEST(DateTimeClocks, WhereTheZoneHasNoAnswerTheArgumentComesBack)
{
    ZoneScope const zone("EST5EDT,M3.2.0,M11.1.0");
    DateTime const early(1600, 12, 31, 12, 0, 0, 0.0001);
    EXPECT_EQ(DateTime::LocalFromUTC(early), early);
    EXPECT_EQ(DateTime::UTCFromLocal(early), early);
}
