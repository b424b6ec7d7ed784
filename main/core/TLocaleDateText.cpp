// The members of TLocale that print dates and times.

#include "main/core/DateDigits.h"
#include "main/core/NativeDateText.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/data/Interval.h"
#include "velcoredata/data/Time.h"
#include "velcoreplatform/TFormatString.h"
#include "velicu/ICUCalendar.h"
#include "velicu/ICUDateFormat.h"
#include "velicu/ICULocale.h"
#include "velsys/ThrowSite.h"

using VelICU::ICULocale;

namespace {

// The same locale on the Gregorian calendar. ICU would print by the calendar of the locale otherwise, whatever calendar
// it is given.
std::unique_ptr<ICULocale> OnGregorianCalendar(ICULocale const & locale)
{
    std::string const calendar = locale.getKeywordValue("calendar");
    if (calendar.empty())
        return locale.clone();
    constexpr std::string_view KEY = "calendar=";
    std::string name = locale.getName();
    name.replace(name.find(KEY) + KEY.size(), calendar.size(), "gregorian");
    return ICULocale::createInstance(name.c_str());
}

}  // namespace

VelICU::ICUDateFormat const & TLocale::GetICUDateFormat(char16_t const * pattern) const
{
    TString const key(pattern);
    {
        ScopedReadLock const lock(m_dateFormatCacheLock);
        auto const found = m_dateFormatCache.find(key);
        if (found != m_dateFormatCache.end())
            return *found->second;
    }
    ScopedWriteLock const lock(m_dateFormatCacheLock);
    auto const found = m_dateFormatCache.find(key);
    if (found != m_dateFormatCache.end())
        return *found->second;
    VelICU::ICUErrorCode success = VelICU::U_ZERO_ERROR;
    std::unique_ptr<VelICU::ICUDateFormat> format =
        VelICU::ICUSimpleDateFormat::createInstance(key, *OnGregorianCalendar(*m_icuLocale), success);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(success), 0x75D2209A);
    return *m_dateFormatCache.emplace(key, std::move(format)).first->second;
}

bool TLocale::PrintsASCIIDigits() const
{
    Digits digits = m_digits.load(std::memory_order_relaxed);
    if (digits == Digits::Unasked) {
        digits = detail::HasASCIIDigits(*OnGregorianCalendar(*m_icuLocale)) ? Digits::ASCII : Digits::Other;
        m_digits.store(digits, std::memory_order_relaxed);
    }
    return digits == Digits::ASCII;
}

TString TLocale::Format(DateTime const & value, char16_t const * pattern) const
{
    TString text;
    if (m_digits.load(std::memory_order_relaxed) != Digits::Other && detail::FormatDateDigits(value, pattern, text) &&
        PrintsASCIIDigits())
        return text;
    return FormatByICU(value, pattern);
}

TString TLocale::FormatByICU(DateTime const & value, char16_t const * pattern) const
{
    VelICU::ICUDateFormat const & format = GetICUDateFormat(pattern);
    VelICU::ICUErrorCode success = VelICU::U_ZERO_ERROR;
    auto const calendar = VelICU::ICUGregorianCalendar::createInstance(*m_icuLocale, success);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(success), 0x0F8E9B42);
    DateTime::YearMonthDay const civil = value.GetYearMonthDay();
    calendar->set(civil.year, civil.month - 1, civil.day, value.GetHour(), value.GetMinute(), value.GetSecond());
    calendar->set(VelICU::ICUFieldMillisecond, value.GetMilliseconds());
    auto const position = VelICU::ICUFieldPosition::createInstance();
    return format.format(*calendar, *position);
}

TString TLocale::Format(DateTime const & value, DateTimeParseOptions options) const
{
    TString text;
    return detail::FormatNativeDate(value, GetLCID(), options, text) ? text : TString(u"Invalid DateTime");
}

TString TLocale::Format(Time const & time) const
{
    return TFormatString(u"%1:%2:%3.%4")
        .arg(static_cast<int>(time.GetHour()))
        .arg(static_cast<int>(time.GetMinute()))
        .arg(static_cast<int>(time.GetSecond()))
        .arg(static_cast<int>(time.GetMicrosecond()));
}

TString TLocale::Format(Interval const & interval) const
{
    return TFormatString(u"%1 day %2 hour %3 minute %4 second %5 microsecond")
        .arg(interval.GetDays())
        .arg(static_cast<int>(interval.GetHours()))
        .arg(static_cast<int>(interval.GetMinutes()))
        .arg(static_cast<int>(interval.GetSeconds()))
        .arg(interval.GetMicroseconds());
}
