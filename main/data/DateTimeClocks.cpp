// The members of DateTime that meet other clocks: the operating system's, Unix time and Qt.
#include <QDateTime>

#include "velcoredata/data/DateTime.h"
#include "velcoreplatform/SystemTime.h"
#include "velnls/VariantTime.h"

namespace {

SYSTEMTIME SystemTimeOf(DateTime const & value)
{
    auto const narrow = [](int part) { return static_cast<std::uint16_t>(part); };
    DateTime::YearMonthDay const civil = value.GetYearMonthDay();
    return {narrow(civil.year),           narrow(civil.month),
            narrow(value.GetDayOfWeek()), narrow(civil.day),
            narrow(value.GetHour()),      narrow(value.GetMinute()),
            narrow(value.GetSecond()),    narrow(value.GetMilliseconds())};
}

}  // namespace

DateTime DateTime::FromUnixTime(long long seconds, unsigned long long microseconds, bool utc)
{
    DateTime result;
    result.SetUnixTime(seconds, microseconds, utc);
    return result;
}

DateTime DateTime::FromUnixTime(long long seconds, bool utc)
{
    return FromUnixTime(seconds, 0, utc);
}

bool DateTime::SetUnixTime(long long seconds, unsigned long long microseconds, bool utc)
{
    std::tm parts{};
    if (!(utc ? GmTime64(seconds, parts) : LocalTime64(seconds, parts)))
        return false;
    SetDateTime(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec,
                static_cast<double>(microseconds) / 1e6);
    return true;
}

bool DateTime::SetUnixTime(long long seconds, bool utc)
{
    return SetUnixTime(seconds, 0, utc);
}

bool DateTime::GetAsUnixTime(long long & out, bool isUtc) const
{
    SYSTEMTIME parts{};
    FILETIME count{};
    if (!DateTimeToSystemTime(parts, isUtc ? *this : UTCFromLocal(*this), false) || !SystemTimeToFileTime(parts, count))
        return false;
    unsigned long long const fileTime =
        static_cast<unsigned long long>(count.dwHighDateTime) << 32 | count.dwLowDateTime;
    out = static_cast<long long>(fileTime / 10000000) - 11644473600;
    return true;
}

DateTime DateTime::FromQDateTime(QDateTime const & value)
{
    QDate const day = value.date();
    QTime const time = value.time();
    return DateTime(day.year(), day.month(), day.day(), time.hour(), time.minute(), time.second(),
                    time.msec() / 1000.0);
}

QDateTime DateTime::ToQDateTime(bool utc) const
{
    YearMonthDay const civil = GetYearMonthDay();
    return QDateTime(QDate(civil.year, civil.month, civil.day),
                     QTime(GetHour(), GetMinute(), GetSecond(), GetMilliseconds()), utc ? Qt::UTC : Qt::LocalTime);
}

QDate DateTime::ToQDate(bool utc) const
{
    return ToQDateTime(utc).date();
}

DateTime DateTime::GetLocalTime()
{
    SYSTEMTIME now{};
    ::GetLocalTime(now);
    return SystemTimeToDateTime(now);
}

DateTime DateTime::GetUniversalTime()
{
    SYSTEMTIME now{};
    ::GetSystemTime(now);
    return SystemTimeToDateTime(now);
}

unsigned long long DateTime::TotalMillisecondsFromMinDateTimeUTC()
{
    return static_cast<unsigned long long>((GetUniversalTime() - OLEEpoch).GetTotalMilliseconds());
}

DateTime DateTime::LocalFromUTC(DateTime const & utc)
{
    SYSTEMTIME local{};
    return SystemTimeToTzSpecificLocalTime(SystemTimeOf(utc), local) ? SystemTimeToDateTime(local) : utc;
}

DateTime DateTime::UTCFromLocal(DateTime const & local)
{
    SYSTEMTIME utc{};
    return TzSpecificLocalTimeToSystemTime(SystemTimeOf(local), utc) ? SystemTimeToDateTime(utc) : local;
}

bool DateTimeToSystemTime(SYSTEMTIME & out, DateTime const & value, bool wholeSeconds)
{
    double const oleDate = DateTime::OleDateFromFixedPrecision(value.GetRepresentation(), !wholeSeconds);
    if (!VariantTimeToSystemTime(oleDate, out))
        return false;
    out.wMilliseconds = wholeSeconds ? std::uint16_t{0} : static_cast<std::uint16_t>(value.GetMilliseconds());
    return true;
}

DateTime SystemTimeToDateTime(SYSTEMTIME const & value)
{
    return DateTime(value.wYear, value.wMonth, value.wDay, value.wHour, value.wMinute, value.wSecond,
                    value.wMilliseconds / 1000.0);
}
