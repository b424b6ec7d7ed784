// What tests see of a TLocale's inside.
#pragma once

#include <cstddef>

#include "main/core/DateReading.h"
#include "velcoredata/core/LocaleFormatter.h"
#include "velcoredata/core/TLocale.h"
#include "velicu/ICUCalendar.h"
#include "velicu/ICUDateFormat.h"
#include "velicu/ICULocale.h"

struct TLocalePeer
{
    static VelICU_V2::ICUDateFormat const & GetFormat(TLocale const & locale, char16_t const * pattern)
    {
        return locale.GetICUDateFormat(pattern);
    }
    // The plain road of TLocale::Format.
    static TString FormatByICU(TLocale const & locale, DateTime const & value, char16_t const * pattern)
    {
        return locale.FormatByICU(value, pattern);
    }
    static std::size_t CountFormats(TLocale const & locale) { return locale.m_dateFormatCache.size(); }

    // The state of an object that has read dates.
    static void PretendToHaveRead(TLocale & locale)
    {
        VelICU_V2::ICUErrorCode status = VelICU_V2::U_ZERO_ERROR;
        locale.m_calendar = VelICU_V2::ICUCalendar::createInstance(*locale.m_icuLocale, status);
        locale.m_formatterCache = std::make_unique<LocaleFormatter const>(TString(u"yyyy"), *locale.m_icuLocale);
        locale.m_parseCount = 7;
        locale.m_lastParseNative = true;
    }
    static bool HasRead(TLocale const & locale)
    {
        return locale.m_calendar != nullptr || locale.m_formatterCache != nullptr || locale.m_parseCount != 0 ||
               locale.m_lastParseNative;
    }
    // From here on ICU is asked about every text.
    static void ReadPlainly(TLocale const & locale) { locale.m_reading = std::make_unique<detail::DateReading>(); }
    // Whether the pattern in the formatter has a plan.
    static bool HasPlan(TLocale const & locale)
    {
        detail::DateTextPlan const * const plan = locale.GetPlan();
        return plan != nullptr && plan->IsKnown();
    }
    static std::int32_t CountReadings(TLocale const & locale) { return locale.m_parseCount; }
    static void SetReadings(TLocale const & locale, std::int32_t count) { locale.m_parseCount = count; }
    static bool ReadNativeLast(TLocale const & locale) { return locale.m_lastParseNative; }
    static void SetReadNativeLast(TLocale const & locale, bool native) { locale.m_lastParseNative = native; }
    static void const * GetCalendar(TLocale const & locale) { return locale.m_calendar.get(); }
    // The pattern that the next search tries first; empty before the first reading.
    static TString GetPattern(TLocale const & locale)
    {
        auto const & formatter = locale.GetFormatterCache();
        return formatter == nullptr ? TString() : formatter->GetICUDateFormatter().toPattern();
    }
    static TReadWriteLock & GetFormatLock(TLocale const & locale) { return locale.m_dateFormatCacheLock; }
    static TRecursiveMutex & GetReadingMutex(TLocale const & locale) { return locale.m_parseMutex; }
    static bool ParsesNative(TLocale const & locale) { return locale.m_parseNative; }
    static bool CachesFormatter(TLocale const & locale) { return locale.m_cacheFormatter; }
};
