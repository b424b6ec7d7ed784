// The members of TLocale that read dates and times.

#include "main/core/DateReading.h"
#include "main/core/DateText.h"
#include "main/core/DateTextPlan.h"
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
#include "velsys/NoDestructor.h"
#include "velsys/ThrowSite.h"

using detail::DateText;
using detail::DateTextPlan;
using VelICU::ICUDateFormat;
using Answer = DateTextPlan::Answer;

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

// Fixed patterns with their plans.
class PlannedPatterns
{
public:
    template <class Patterns, class GetText>
    PlannedPatterns(Patterns const & patterns, GetText const & getText)
    {
        for (auto const & pattern : patterns) {
            m_texts.emplace_back(getText(pattern));
            m_plans.emplace_back(m_texts.back().View());
        }
    }
    std::size_t Count() const { return m_texts.size(); }
    TString const & Text(std::size_t at) const { return m_texts[at]; }
    DateTextPlan const & Plan(std::size_t at) const { return m_plans[at]; }

private:
    std::vector<TString> m_texts;
    std::vector<DateTextPlan> m_plans;
};

// The rows of the table that take part in the search.
PlannedPatterns const & SearchedRows()
{
    static detail::NoDestructor<PlannedPatterns> s_rows(
        [] {
            std::vector<char16_t const *> patterns;
            for (detail::DateTimeParsingRow const & row : detail::DateTimeParsingRows())
                if (row.tryAll)
                    patterns.push_back(row.formatString);
            return patterns;
        }(),
        [](char16_t const * pattern) { return pattern; });
    return *s_rows;
}

PlannedPatterns const & TimePatterns()
{
    static detail::NoDestructor<PlannedPatterns> s_patterns(TIME_PATTERNS,
                                                            [](char16_t const * pattern) { return pattern; });
    return *s_patterns;
}

bool IsTable(LanguageCode const & languageCode)
{
    return languageCode.GetISOString().startsWith(LanguageUtils::GetDefaultISOString());
}

}  // namespace

DateTimeFormatCodes const TLocale::s_dateFormatCodes[4] = {DateTimeFormatCodes{4}, DateTimeFormatCodes{9},
                                                           DateTimeFormatCodes{14}, DateTimeFormatCodes{19}};

detail::DateReading & TLocale::Reading() const
{
    if (m_reading == nullptr) {
        m_reading = std::make_unique<detail::DateReading>();
        m_reading->speech = detail::SpeechOf(*m_icuLocale);
    }
    return *m_reading;
}

DateTextPlan const * TLocale::GetPlan() const
{
    if (m_reading == nullptr || m_formatterCache == nullptr || !m_reading->strict ||
        m_reading->changes != m_formatterCache->GetICUDateFormatter().GetChanges())
        return nullptr;
    return m_reading->plan;
}

void TLocale::ApplyPattern(TString const & pattern, DateTextPlan const * plan) const
{
    ICUDateFormat & format = m_formatterCache->GetICUDateFormatter();
    detail::DateReading & reading = Reading();
    // A caller may have changed the format since.
    reading.strict = reading.strict && reading.changes == format.GetChanges();
    format.applyPattern(pattern);
    reading.changes = format.GetChanges();
    if (plan == nullptr && reading.strict && reading.speech != detail::DateSpeech::Unknown) {
        reading.own = DateTextPlan(pattern.View());
        plan = &reading.own;
    }
    reading.plan = plan;
}

void TLocale::PopulateFormatterAndCalendar(char16_t const * fmt) const
{
    if (m_formatterCache == nullptr) {
        VELTRIA_ASSERT(fmt != nullptr, 0x81E70A33);
        m_formatterCache = std::make_unique<LocaleFormatter const>(TString(fmt), *m_icuLocale);
        detail::DateReading & reading = Reading();
        reading.strict = true;
        reading.changes = m_formatterCache->GetICUDateFormatter().GetChanges();
        reading.own = DateTextPlan(TString(fmt).View());
        reading.plan = &reading.own;
    } else
        ApplyPattern(fmt, nullptr);
    if (m_calendar != nullptr && m_parseCount < CALENDAR_LIFETIME)
        return;
    VelICU::ICUErrorCode success = VelICU::U_ZERO_ERROR;
    m_calendar = VelICU::ICUCalendar::createInstance(*m_icuLocale, success);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(success), 0xBD3A59A6);
    m_calendar->setLenient(false);
    m_parseCount = 0;
}

bool TLocale::TryByICU(DateText const & text, DateTimeParseOptions options, DateTime const & reference,
                       DateTime & out) const
{
    return detail::TryDateText(m_formatterCache->GetICUDateFormatter(), *m_calendar, text.AsTString(), options,
                               reference, out);
}

bool TLocale::Try(DateText const & text, DateTimeParseOptions options, DateTime const & reference, DateTime & out) const
{
    if (DateTextPlan const * const plan = GetPlan()) {
        Answer const answer = plan->Read(text, m_reading->speech, options, reference, out);
        if (answer != Answer::Unsure)
            return answer == Answer::Fits;
    }
    return TryByICU(text, options, reference, out);
}

// Before anything else is looked at: a text in the exact form of the pattern that the formatter holds.
bool TLocale::ReadExactForm(char16_t const * text, DateTime & out, DateTimeParseOptions options) const
{
    DateTextPlan const * const plan = GetPlan();
    return plan != nullptr && m_calendar != nullptr && m_reading->speech != detail::DateSpeech::Unknown &&
           plan->ReadExactForm(text, options, out);
}

bool TLocale::TryPattern(TString const & pattern, DateText const & text, DateTimeParseOptions options,
                         DateTime & out) const
{
    ApplyPattern(pattern, nullptr);
    return Try(text, options, DateTime(), out);
}

bool TLocale::TryISOShapes(DateText const & text, DateTimeParseOptions options, DateTime & out) const
{
    for (char16_t const * const shape : ISO_SHAPES)
        if (TryPattern(shape, text, options, out))
            return true;
    return false;
}

bool TLocale::ParseDateTime(char16_t const * text, char16_t const * pattern, DateTime & out,
                            DateTimeParseOptions options) const
{
    AutoSynchronize const lock(m_parseMutex, PARSE_LOCK_CLASS, __FILE__, "TLocale::ParseDateTime", __LINE__);
    DateTextPlan const * const plan = GetPlan();
    // Applying a pattern that the formatter holds changes nothing.
    bool const holdsPattern = plan != nullptr && pattern != nullptr && plan->GetPattern() == pattern &&
                              m_calendar != nullptr && m_parseCount < CALENDAR_LIFETIME - 1;
    if (holdsPattern && ReadExactForm(text, out, options)) {
        m_parseCount = detail::WrapAdd(m_parseCount, 1);
        return true;
    }
    DateText const trimmed = DateText::Trimmed(text);
    if (trimmed.IsEmpty())
        return false;
    m_parseCount = detail::WrapAdd(m_parseCount, 1);
    if (!holdsPattern)
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
    AutoSynchronize const lock(m_parseMutex, PARSE_LOCK_CLASS, __FILE__, "TLocale::ParseDateTimeTryAllFormats",
                               __LINE__);
    if (m_cacheFormatter && ReadExactForm(text, out, options)) {
        m_parseCount = detail::WrapAdd(m_parseCount, 1);
        m_lastParseNative = false;
        return true;
    }
    DateText const trimmed = DateText::Trimmed(text);
    if (trimmed.IsEmpty())
        return false;
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
    AutoSynchronize const lock(m_parseMutex, PARSE_LOCK_CLASS, __FILE__, "TLocale::ParseDateTryAllFormats", __LINE__);
    if (m_cacheFormatter && ReadExactForm(text, out, options)) {
        m_parseCount = detail::WrapAdd(m_parseCount, 1);
        m_lastParseNative = false;
        return true;
    }
    DateText const trimmed = DateText::Trimmed(text);
    if (trimmed.IsEmpty())
        return false;
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
    DateText const whole(text.View());
    AutoSynchronize const lock(m_parseMutex, PARSE_LOCK_CLASS, __FILE__, "TLocale::ParseTimeTryAllFormats", __LINE__);
    m_parseCount = detail::WrapAdd(m_parseCount, 1);
    PlannedPatterns const & patterns = TimePatterns();
    PopulateFormatterAndCalendar(patterns.Text(0));
    DateTime value;
    for (std::size_t i = 0; i < patterns.Count(); ++i) {
        ApplyPattern(patterns.Text(i), &patterns.Plan(i));
        if (Try(whole, ParseDateAndTime, DateTime(), value))
            return {true, value};
    }
    return {false, DateTime()};
}

bool TLocale::ParseDateTimeWithCachedFormatter(DateText const & text, DateTime & out,
                                               DateTimeParseOptions options) const
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
    bool const read = ParseDateTimeUsingNativeAPIs(text.AsTString(), out, DateTime(), options, GetLCID());
    m_lastParseNative = read;
    return read;
}

// Rows whose plans are sure that they fail are passed over; the formatter gets the pattern of the row that fits, or
// that ICU is to try, or of the last.
bool TLocale::ParseDateTimeUsingISODefaultDateTimeFormatStrings(DateText const & text, DateTime const & reference,
                                                                DateTime & out) const
{
    // Another pattern is applied below.
    if (m_formatterCache == nullptr || m_calendar == nullptr || m_parseCount >= CALENDAR_LIFETIME)
        PopulateFormatterAndCalendar(LookupDateTimeParsingFormatString(DateTimeParsingFormats::DateFormat_1));
    PlannedPatterns const & rows = SearchedRows();
    bool const strict = Reading().strict && m_reading->changes == m_formatterCache->GetICUDateFormatter().GetChanges();
    for (std::size_t i = 0; i < rows.Count(); ++i) {
        Answer const answer =
            strict ? rows.Plan(i).Read(text, m_reading->speech, ParseDateAndTime, reference, out) : Answer::Unsure;
        bool const isLast = i + 1 == rows.Count();
        if (answer == Answer::Fails && !isLast)
            continue;
        ApplyPattern(rows.Text(i), &rows.Plan(i));
        if (answer == Answer::Fits || (answer == Answer::Unsure && TryByICU(text, ParseDateAndTime, reference, out)))
            return true;
    }
    return false;
}

bool TLocale::ParseInternationalDateTime(DateText const & text, DateTimeParseOptions options, DateTime & out) const
{
    TString const first = detail::GetFormatString(DateTimeFormatCodes::First, *m_languageCode);
    if (first.isEmpty())
        return false;
    PopulateFormatterAndCalendar(first);
    if (Try(text, options, DateTime(), out))
        return true;
    for (int code = 1; code <= static_cast<int>(DateTimeFormatCodes::Last); ++code) {
        TString const pattern = detail::GetFormatString(DateTimeFormatCodes{code}, *m_languageCode);
        if (!pattern.isEmpty() && TryPattern(pattern, text, options, out))
            return true;
    }
    Reading().strict = false;
    for (ICUDateFormat::ICUEStyle const dateStyle : STYLES) {
        for (ICUDateFormat::ICUEStyle const timeStyle : STYLES) {
            m_formatterCache = std::make_unique<LocaleFormatter const>(dateStyle, timeStyle, *m_icuLocale);
            if (Try(text, options, DateTime(), out))
                return true;
        }
    }
    return TryISOShapes(text, options, out);
}

bool TLocale::ParseInternationalDate(DateText const & text, DateTimeParseOptions options, DateTime & out) const
{
    TString const first = detail::GetFormatString(s_dateFormatCodes[0], *m_languageCode);
    if (first.isEmpty())
        return false;
    PopulateFormatterAndCalendar(first);
    if (Try(text, options, DateTime(), out))
        return true;
    for (std::size_t i = 1; i < std::size(s_dateFormatCodes); ++i) {
        TString const pattern = detail::GetFormatString(s_dateFormatCodes[i], *m_languageCode);
        if (!pattern.isEmpty() && TryPattern(pattern, text, options, out))
            return true;
    }
    Reading().strict = false;
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
