// The members of TLocale that read dates and times.

#include "main/core/DateTextTry.h"
#include "main/core/DateTimeParsingRows.h"
#include "main/core/LocaleDatePattern.h"
#include "main/core/NativeDateText.h"
#include "velcoredata/core/DateTimeFormatCodes.h"
#include "velcoredata/core/DateTimeParsingFormats.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/LocaleFormatter.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velicu/ICUCalendar.h"
#include "velicu/ICUDateFormat.h"
#include "velicu/ICULocale.h"
#include "velsys/Arithmetic.h"
#include "velsys/ThrowSite.h"

using VelICU::ICUDateFormat;

namespace {

constexpr int PARSE_LOCK_CLASS = 11;
constexpr std::int32_t CALENDAR_LIFETIME = 100000;  // readings

constexpr char16_t const * ISO_SHAPES[] = {
    u"yyyy",
    u"yyyy-MM",
    u"yyyy-MM-dd",
    u"yyyy-MM-dd HH:mm:ss",
    u"yyyy-MM-dd'T'HH:mm:ss",
    u"yyyy-MM-dd HH:mm:ssZZZZZ",
    u"yyyy-MM-dd'T'HH:mm:ssZZZZ",
    u"yyyy-MM-dd HH:mm:ssSS.ZZZZZ",
    u"yyyy-MM-dd'T'HH:mm:ssSS.ZZZZZ",
    u"yyyy-MM-dd'T'HH:mm:ss.SSSSSS",
};

constexpr char16_t const * TIME_PATTERNS[] = {
    u"ha",      u"H",        u"h:mma",   u"H:mm",       u"h.mma",      u"H.mm",       u"h:mm:ssa",
    u"H:mm:ss", u"h.mm.ssa", u"H.mm.ss", u"h:mm:ss.Sa", u"HH:mm:ss.S", u"h.mm.ss.Sa", u"HH.mm.ss.S",
};

constexpr ICUDateFormat::ICUEStyle STYLES[] = {ICUDateFormat::kFull, ICUDateFormat::kLong, ICUDateFormat::kMedium,
                                               ICUDateFormat::kShort};

bool IsTable(LanguageCode const & languageCode)
{
    return languageCode.GetISOString().startsWith(LanguageUtils::GetDefaultISOString());
}

}  // namespace

DateTimeFormatCodes const TLocale::s_dateFormatCodes[4] = {DateTimeFormatCodes{4}, DateTimeFormatCodes{9},
                                                           DateTimeFormatCodes{14}, DateTimeFormatCodes{19}};

void TLocale::PopulateFormatterAndCalendar(char16_t const * fmt) const
{
    if (m_formatterCache == nullptr) {
        VELTRIA_ASSERT(fmt != nullptr, 0x81E70A33);
        m_formatterCache = std::make_unique<LocaleFormatter const>(TString(fmt), *m_icuLocale);
    } else
        m_formatterCache->GetICUDateFormatter().applyPattern(fmt);
    if (m_calendar != nullptr && m_parseCount < CALENDAR_LIFETIME)
        return;
    VelICU::ICUErrorCode success = VelICU::U_ZERO_ERROR;
    m_calendar = VelICU::ICUCalendar::createInstance(*m_icuLocale, success);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(success), 0xBD3A59A6);
    m_calendar->setLenient(false);
    m_parseCount = 0;
}

bool TLocale::Try(TString const & text, DateTimeParseOptions options, DateTime const & reference, DateTime & out) const
{
    return detail::TryDateText(m_formatterCache->GetICUDateFormatter(), *m_calendar, text, options, reference, out);
}

bool TLocale::TryPattern(char16_t const * pattern, TString const & text, DateTimeParseOptions options,
                         DateTime const & reference, DateTime & out) const
{
    m_formatterCache->GetICUDateFormatter().applyPattern(pattern);
    return Try(text, options, reference, out);
}

bool TLocale::TryISOShapes(TString const & text, DateTimeParseOptions options, DateTime & out) const
{
    for (char16_t const * const shape : ISO_SHAPES)
        if (TryPattern(shape, text, options, DateTime(), out))
            return true;
    return false;
}

bool TLocale::ParseDateTime(char16_t const * text, char16_t const * pattern, DateTime & out,
                            DateTimeParseOptions options) const
{
    TString trimmed(text);
    trimmed.trim();
    if (trimmed.isEmpty())
        return false;
    AutoSynchronize const lock(m_parseMutex, PARSE_LOCK_CLASS, "TLocale::ParseDateTime", __FILE__, __LINE__);
    m_parseCount = detail::WrapAdd(m_parseCount, 1);
    PopulateFormatterAndCalendar(pattern);
    return Try(trimmed, options, DateTime(), out);
}

bool TLocale::ParseDateTimeTryAllFormats(char16_t const * text, DateTime & out, DateTimeParseOptions options) const
{
    return ParseDateTimeTryAllFormats(text, DateTime(), out, options);
}

bool TLocale::ParseDateTimeTryAllFormats(char16_t const * text, DateTime const & reference, DateTime & out,
                                         DateTimeParseOptions options) const
{
    TString trimmed(text);
    trimmed.trim();
    if (trimmed.isEmpty())
        return false;
    AutoSynchronize const lock(m_parseMutex, PARSE_LOCK_CLASS, "TLocale::ParseDateTimeTryAllFormats", __FILE__,
                               __LINE__);
    m_parseCount = detail::WrapAdd(m_parseCount, 1);
    if (ParseDateTimeWithCachedFormatter(trimmed, out, options))
        return true;
    if (IsTable(*m_languageCode) ? ParseDateTimeUsingISODefaultDateTimeFormatStrings(trimmed, reference, out)
                                 : ParseInternationalDateTime(trimmed, ParseDateAndTime, out))
        return true;
    return m_parseNative && ParseDateTimeUsingNativeAPIs(text, out, reference, options, GetLCID());
}

bool TLocale::ParseDateTryAllFormats(char16_t const * text, DateTime & out, DateTimeParseOptions options) const
{
    return ParseDateTryAllFormats(text, DateTime(), out, options);
}

bool TLocale::ParseDateTryAllFormats(char16_t const * text, DateTime const & reference, DateTime & out,
                                     DateTimeParseOptions options) const
{
    TString trimmed(text);
    trimmed.trim();
    if (trimmed.isEmpty())
        return false;
    AutoSynchronize const lock(m_parseMutex, PARSE_LOCK_CLASS, "TLocale::ParseDateTryAllFormats", __FILE__, __LINE__);
    m_parseCount = detail::WrapAdd(m_parseCount, 1);
    if (ParseDateTimeWithCachedFormatter(trimmed, out, options))
        return true;
    if (IsTable(*m_languageCode) ? ParseDateTimeUsingISODefaultDateTimeFormatStrings(trimmed, reference, out)
                                 : ParseInternationalDate(trimmed, ParseDateOnly, out))
        return true;
    return m_parseNative && ParseDateTimeUsingNativeAPIs(text, out, reference, options, GetLCID());
}

std::tuple<bool, DateTime> TLocale::ParseTimeTryAllFormats(TString const & text) const
{
    AutoSynchronize const lock(m_parseMutex, PARSE_LOCK_CLASS, "TLocale::ParseTimeTryAllFormats", __FILE__, __LINE__);
    m_parseCount = detail::WrapAdd(m_parseCount, 1);
    PopulateFormatterAndCalendar(TIME_PATTERNS[0]);
    DateTime value;
    for (char16_t const * const pattern : TIME_PATTERNS)
        if (TryPattern(pattern, text, ParseDateAndTime, DateTime(), value))
            return {true, value};
    return {false, DateTime()};
}

bool TLocale::ParseDateTimeWithCachedFormatter(TString const & text, DateTime & out, DateTimeParseOptions options) const
{
    if (!m_cacheFormatter)
        return false;
    if (m_formatterCache != nullptr && m_calendar != nullptr && Try(text, options, DateTime(), out)) {
        m_lastParseNative = false;
        return true;
    }
    if (!m_parseNative || !m_lastParseNative) {
        m_lastParseNative = false;
        return false;
    }
    bool const read = ParseDateTimeUsingNativeAPIs(text, out, DateTime(), options, GetLCID());
    m_lastParseNative = read;
    return read;
}

bool TLocale::ParseDateTimeUsingISODefaultDateTimeFormatStrings(TString const & text, DateTime const & reference,
                                                                DateTime & out) const
{
    PopulateFormatterAndCalendar(LookupDateTimeParsingFormatString(DateTimeParsingFormats::DateFormat_1));
    for (detail::DateTimeParsingRow const & row : detail::DateTimeParsingRows())
        if (row.tryAll && TryPattern(row.formatString, text, ParseDateAndTime, reference, out))
            return true;
    return false;
}

bool TLocale::ParseInternationalDateTime(TString const & text, DateTimeParseOptions options, DateTime & out) const
{
    TString const first = detail::GetFormatString(DateTimeFormatCodes::First, *m_languageCode);
    if (first.isEmpty())
        return false;
    PopulateFormatterAndCalendar(first);
    if (Try(text, options, DateTime(), out))
        return true;
    for (int code = 1; code <= static_cast<int>(DateTimeFormatCodes::Last); ++code) {
        TString const pattern = detail::GetFormatString(DateTimeFormatCodes{code}, *m_languageCode);
        if (!pattern.isEmpty() && TryPattern(pattern, text, options, DateTime(), out))
            return true;
    }
    for (ICUDateFormat::ICUEStyle const dateStyle : STYLES) {
        for (ICUDateFormat::ICUEStyle const timeStyle : STYLES) {
            m_formatterCache = std::make_unique<LocaleFormatter const>(dateStyle, timeStyle, *m_icuLocale);
            if (Try(text, options, DateTime(), out))
                return true;
        }
    }
    return TryISOShapes(text, options, out);
}

bool TLocale::ParseInternationalDate(TString const & text, DateTimeParseOptions options, DateTime & out) const
{
    TString const first = detail::GetFormatString(s_dateFormatCodes[0], *m_languageCode);
    if (first.isEmpty())
        return false;
    PopulateFormatterAndCalendar(first);
    if (Try(text, options, DateTime(), out))
        return true;
    for (std::size_t i = 1; i < std::size(s_dateFormatCodes); ++i) {
        TString const pattern = detail::GetFormatString(s_dateFormatCodes[i], *m_languageCode);
        if (!pattern.isEmpty() && TryPattern(pattern, text, options, DateTime(), out))
            return true;
    }
    for (ICUDateFormat::ICUEStyle const style : STYLES) {
        m_formatterCache = std::make_unique<LocaleFormatter const>(style, *m_icuLocale);
        if (Try(text, options, DateTime(), out))
            return true;
    }
    return TryISOShapes(text, options, out);
}

bool TLocale::ParseDateTimeUsingNativeAPIs(char16_t const * text, DateTime & out, DateTimeParseOptions options) const
{
    return ParseDateTimeUsingNativeAPIs(text, out, DateTime(), options, GetLCID());
}

bool TLocale::ParseDateTimeUsingNativeAPIs(char16_t const * text, DateTime & out, DateTime const & reference,
                                           DateTimeParseOptions options, LCID lcid) const
{
    if (reference != DateTime())
        return false;
    if (!detail::ParseNativeDate(text, lcid, options, out))
        return false;
    m_lastParseNative = true;
    return true;
}
