#include "velcoreplatform/SystemTime.h"

#include <chrono>
#include <optional>

namespace {

constexpr long long c_lastSecondOfYear3000 = 32535215999;
constexpr long long c_secondsFrom1601To1970 = 11644473600;

// Seconds since 1970 of the parts, as if they were UTC.
std::optional<long long> SecondsOf(SYSTEMTIME const & time)
{
    using namespace std::chrono;
    year_month_day const day{year{time.wYear}, month{time.wMonth}, std::chrono::day{time.wDay}};
    if (time.wYear < 1601 || time.wYear > 30827 || time.wMonth > 12 || time.wDay > 31 || !day.ok())
        return std::nullopt;
    if (time.wHour > 23 || time.wMinute > 59 || time.wSecond > 59 || time.wMilliseconds > 999)
        return std::nullopt;
    auto const days = sys_days{day}.time_since_epoch().count();
    return ((days * 24LL + time.wHour) * 60 + time.wMinute) * 60 + time.wSecond;
}

SYSTEMTIME PartsOf(std::tm const & parts, unsigned milliseconds)
{
    auto const narrow = [](int part) { return static_cast<std::uint16_t>(part); };
    return {narrow(parts.tm_year + 1900), narrow(parts.tm_mon + 1),
            narrow(parts.tm_wday),        narrow(parts.tm_mday),
            narrow(parts.tm_hour),        narrow(parts.tm_min),
            narrow(parts.tm_sec),         narrow(static_cast<int>(milliseconds))};
}

using Converter = std::tm * (*)(std::time_t const *, std::tm *);

void Now(SYSTEMTIME & out, Converter convert)
{
    using namespace std::chrono;
    auto const now = floor<milliseconds>(system_clock::now());
    auto const second = floor<seconds>(now);
    std::time_t const time = second.time_since_epoch().count();
    std::tm parts{};
    if (convert(&time, &parts) != nullptr)
        out = PartsOf(parts, static_cast<unsigned>((now - second).count()));
}

bool Write(long long seconds, Converter convert, unsigned milliseconds, SYSTEMTIME & out)
{
    std::time_t const time = seconds;
    std::tm parts{};
    if (convert(&time, &parts) == nullptr)
        return false;
    out = PartsOf(parts, milliseconds);
    return true;
}

// Seconds that local time is ahead of UTC at an instant.
long long OffsetAt(long long seconds)
{
    std::time_t const time = seconds;
    std::tm parts{};
    return localtime_r(&time, &parts) != nullptr ? parts.tm_gmtoff : 0;
}

bool RuntimeTime(long long seconds, Converter convert, std::tm & out)
{
    if (seconds < 0 || seconds > c_lastSecondOfYear3000)
        return false;
    std::time_t const time = seconds;
    std::tm parts{};
    if (convert(&time, &parts) == nullptr)
        return false;
    out = parts;
    return true;
}

}  // namespace

void GetLocalTime(SYSTEMTIME & out)
{
    Now(out, localtime_r);
}

void GetSystemTime(SYSTEMTIME & out)
{
    Now(out, gmtime_r);
}

bool SystemTimeToFileTime(SYSTEMTIME const & time, FILETIME & out)
{
    std::optional<long long> const seconds = SecondsOf(time);
    if (!seconds)
        return false;
    auto const count =
        static_cast<std::uint64_t>(*seconds + c_secondsFrom1601To1970) * 10000000 + time.wMilliseconds * 10000u;
    out = {static_cast<std::uint32_t>(count), static_cast<std::uint32_t>(count >> 32)};
    return true;
}

bool SystemTimeToTzSpecificLocalTime(SYSTEMTIME const & utc, SYSTEMTIME & out)
{
    std::optional<long long> const seconds = SecondsOf(utc);
    return seconds && Write(*seconds, localtime_r, utc.wMilliseconds, out);
}

bool TzSpecificLocalTimeToSystemTime(SYSTEMTIME const & local, SYSTEMTIME & out)
{
    std::optional<long long> const asUtc = SecondsOf(local);
    if (!asUtc)
        return false;
    constexpr long long day = 86400;
    long long const before = *asUtc - OffsetAt(*asUtc - day);
    long long const after = *asUtc - OffsetAt(*asUtc + day);
    auto const readsBack = [&](long long seconds) { return seconds + OffsetAt(seconds) == *asUtc; };
    long long instant = before;
    if (readsBack(after) && (!readsBack(before) || after > before))
        instant = after;
    return Write(instant, gmtime_r, local.wMilliseconds, out);
}

bool GmTime64(long long seconds, std::tm & out)
{
    return RuntimeTime(seconds, gmtime_r, out);
}

bool LocalTime64(long long seconds, std::tm & out)
{
    return RuntimeTime(seconds, localtime_r, out);
}
