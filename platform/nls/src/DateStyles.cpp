#include "DateStyles.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <limits>
#include <string>

#include "IcuLocale.h"

namespace VelNLS::detail {

namespace {

icu::Locale Gregorian(icu::Locale const & locale, char const * more = "")
{
    return icu::Locale((std::string(locale.getName()) + "@calendar=gregorian" + more).c_str());
}

std::u16string PatternOf(icu::DateFormat * format)
{
    std::unique_ptr<icu::DateFormat> const owned(format);
    auto const * const simple = dynamic_cast<icu::SimpleDateFormat const *>(format);
    if (simple == nullptr)
        return {};
    icu::UnicodeString pattern;
    simple->toPattern(pattern);
    return std::u16string(pattern.getBuffer(), static_cast<std::size_t>(pattern.length()));
}

std::u16string_view View(icu::UnicodeString const & text)
{
    return {text.getBuffer(), static_cast<std::size_t>(text.length())};
}

icu::UnicodeString Alias(std::u16string_view text)
{
    return icu::UnicodeString(false, text.data(), static_cast<std::int32_t>(text.size()));
}

bool IsWordUnit(char16_t unit)
{
    return U16_IS_SURROGATE(unit) || u_isalpha(unit) || (U_GET_GC_MASK(unit) & U_GC_M_MASK) != 0;
}

// The letters of a pattern of GetLocaleInfo's pictures: a year of four digits, "a" for the halves of a day, 12 hours
// from 1 and 24 from 0.
std::u16string PrintPattern(std::u16string_view pattern)
{
    std::u16string result;
    bool quoted = false;
    char16_t last = 0;
    for (char16_t const unit : CommonForm(pattern)) {
        if (unit == u'\'')
            quoted = !quoted;
        if (quoted || unit == u'\'') {
            result += unit;
        } else if (unit == u'y' || unit == u'u') {
            if (last != unit)
                result += u"yyyy";
        } else if (unit == u'b' || unit == u'B') {
            if (last != unit)
                result += u'a';
        } else {
            result += unit == u'K' ? u'h' : unit == u'k' ? u'H' : unit;
        }
        last = quoted ? u'\0' : unit;
    }
    return result;
}

constexpr icu::DateFormat::EStyle kDateStyles[] = {icu::DateFormat::kShort, icu::DateFormat::kMedium,
                                                   icu::DateFormat::kLong, icu::DateFormat::kFull};
constexpr icu::DateFormat::EStyle kTimeStyles[] = {icu::DateFormat::kMedium, icu::DateFormat::kShort};

}  // namespace

DateStyles::DateStyles(char const * publishedName) : m_locale(Gregorian(IcuLocaleOf(publishedName).data))
{
    UErrorCode status = U_ZERO_ERROR;
    m_symbols = std::make_unique<icu::DateFormatSymbols>(m_locale, status);
    std::int32_t count = 0;
    icu::UnicodeString const * const halves = m_symbols->getAmPmStrings(count);
    std::vector<icu::UnicodeString> commonHalves;
    for (std::int32_t i = 0; i < count; ++i)
        commonHalves.emplace_back(CommonForm(View(halves[i])).c_str());
    m_symbols->setAmPmStrings(commonHalves.data(), count);
    m_calendar = std::make_unique<icu::GregorianCalendar>(*icu::TimeZone::getGMT(), m_locale, status);
    m_calendar->setGregorianChange(-std::numeric_limits<double>::max(), status);
    m_calendar->setLenient(false);

    icu::UnicodeString const * const months = m_symbols->getMonths(count);
    m_monthsHaveDigits = std::any_of(months, months + count, [](icu::UnicodeString const & name) {
        std::u16string_view const text = View(name);
        return std::any_of(text.begin(), text.end(), [](char16_t unit) { return u_isdigit(unit); });
    });

    std::vector<std::u16string> dates;
    for (auto const style : kDateStyles)
        dates.push_back(PatternOf(icu::DateFormat::createDateInstance(style, m_locale)));
    std::vector<std::u16string> times;
    for (auto const style : kTimeStyles)
        times.push_back(PatternOf(icu::DateFormat::createTimeInstance(style, m_locale)));
    std::u16string const shortDate = dates.front();
    std::u16string const mediumTime = times.front();
    times.insert(times.end(), {u"H:mm:ss", u"H:mm"});
    AddCombinations(dates, times);
    CollectWords();

    icu::Locale const ascii = Gregorian(IcuLocaleOf(publishedName).data, ";numbers=latn");
    auto const printer = [&](std::u16string const & pattern) {
        auto format = std::make_unique<icu::SimpleDateFormat>(Alias(PrintPattern(pattern)), ascii, status);
        format->adoptCalendar(m_calendar->clone());
        format->setDateFormatSymbols(*m_symbols);
        return format;
    };
    m_printDate = printer(shortDate);
    m_printTime = printer(mediumTime);
}

void DateStyles::AddStyle(std::u16string_view pattern, bool fourDigitYear)
{
    std::optional<DateStyle> style = ReadDateStyle(pattern, m_monthsHaveDigits);
    if (!style)
        return;
    for (auto const & entry : m_entries) {
        if (entry->style.pattern == style->pattern && entry->style.fourDigitYear == fourDigitYear)
            return;
    }
    style->fourDigitYear = fourDigitYear;
    m_entries.push_back(std::make_unique<Entry>());
    m_entries.back()->style = std::move(*style);
}

void DateStyles::AddCombinations(std::vector<std::u16string> const & dates, std::vector<std::u16string> const & times)
{
    static constexpr std::u16string_view iso = u"yyyy-MM-dd";
    for (std::u16string const & date : dates)
        AddStyle(date);
    AddStyle(iso, true);
    for (std::u16string const & time : times)
        AddStyle(time);
    for (auto const date : kDateStyles) {
        for (auto const time : kTimeStyles)
            AddStyle(PatternOf(icu::DateFormat::createDateTimeInstance(date, time, m_locale)));
    }
    for (std::u16string const & date : dates) {
        for (std::u16string const & time : times)
            AddStyle(date + u' ' + time);
    }
    for (std::u16string const & time : times)
        AddStyle(std::u16string(iso) + u' ' + time, true);
    AddStyle(std::u16string(iso) + u"'T'H:mm:ss", true);
    AddStyle(std::u16string(iso) + u"'T'H:mm", true);
}

void DateStyles::AddWords(std::u16string_view text)
{
    std::u16string const folded = FoldCase(CommonForm(text));
    for (auto at = folded.begin(); at != folded.end();) {
        auto const start = std::find_if(at, folded.end(), IsWordUnit);
        at = std::find_if_not(start, folded.end(), IsWordUnit);
        if (start != at) {
            m_words.emplace(start, at);
            m_longestWord = std::max(m_longestWord, static_cast<std::size_t>(at - start));
        }
    }
}

void DateStyles::CollectWords()
{
    auto const addAll = [this](icu::UnicodeString const * names, std::int32_t count) {
        for (std::int32_t i = 0; i < count; ++i)
            AddWords(View(names[i]));
    };
    std::int32_t count = 0;
    using Symbols = icu::DateFormatSymbols;
    for (auto const context : {Symbols::FORMAT, Symbols::STANDALONE}) {
        for (auto const width : {Symbols::ABBREVIATED, Symbols::WIDE}) {
            icu::UnicodeString const * const months = m_symbols->getMonths(count, context, width);
            addAll(months, count);
            icu::UnicodeString const * const weekdays = m_symbols->getWeekdays(count, context, width);
            addAll(weekdays, count);
        }
    }
    icu::UnicodeString const * const halves = m_symbols->getAmPmStrings(count);
    addAll(halves, count);
    icu::UnicodeString const * const eras = m_symbols->getEras(count);
    addAll(eras, count);
    icu::UnicodeString const * const eraNames = m_symbols->getEraNames(count);
    addAll(eraNames, count);
    for (auto const & entry : m_entries) {
        // The literals; letters of fields come along and do no harm, being no words of two letters.
        std::u16string literal;
        bool quoted = false;
        for (char16_t const unit : entry->style.pattern) {
            quoted = unit == u'\'' ? !quoted : quoted;
            literal += quoted || unit > 0x7F ? unit : u' ';
        }
        AddWords(literal);
    }
}

bool DateStyles::KnowsWords(std::u16string_view text) const
{
    std::u16string const folded = FoldCase(text);
    for (std::size_t at = 0; at < folded.size();) {
        if (!IsWordUnit(folded[at])) {
            ++at;
            continue;
        }
        std::size_t end = at;
        while (end < folded.size() && IsWordUnit(folded[end]) && end - at < m_longestWord)
            ++end;
        while (end > at && m_words.count(folded.substr(at, end - at)) == 0)
            --end;
        if (end == at)
            return false;
        at = end;
    }
    return true;
}

std::unique_ptr<icu::SimpleDateFormat> DateStyles::MakeFormat(std::u16string const & pattern) const
{
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(Alias(pattern), m_locale, status);
    format->adoptCalendar(m_calendar->clone());
    format->setDateFormatSymbols(*m_symbols);
    format->setLenient(true);  // of the form: the calendar that is passed to a parse holds the fields to their ranges
    std::unique_ptr<icu::GregorianCalendar> const century(m_calendar->clone());
    century->clear();
    century->set(1930, UCAL_JANUARY, 1);
    format->set2DigitYearStart(century->getTime(status), status);
    return U_FAILURE(status) ? nullptr : std::move(format);
}

bool DateStyles::HasRightWeekday(icu::Calendar const & calendar, std::u16string_view text) const
{
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const weekday = calendar.get(UCAL_DAY_OF_WEEK, status);
    std::u16string const folded = FoldCase(text);
    using Symbols = icu::DateFormatSymbols;
    for (auto const context : {Symbols::FORMAT, Symbols::STANDALONE}) {
        for (auto const width : {Symbols::WIDE, Symbols::ABBREVIATED, Symbols::SHORT}) {
            std::int32_t count = 0;
            icu::UnicodeString const * const names = m_symbols->getWeekdays(count, context, width);
            if (weekday < count && folded.find(FoldCase(CommonForm(View(names[weekday])))) != folded.npos)
                return true;
        }
    }
    return false;
}

std::optional<DateParts> DateStyles::ReadIn(Entry const & entry, DateText const & text) const
{
    std::call_once(entry.once, [&] { entry.format = MakeFormat(entry.style.pattern); });
    if (entry.format == nullptr)
        return std::nullopt;
    std::unique_ptr<icu::GregorianCalendar> const calendar(m_calendar->clone());
    calendar->clear();
    icu::ParsePosition position;
    entry.format->parse(Alias(text.text), *calendar, position);
    if (position.getErrorIndex() != -1 || position.getIndex() != static_cast<std::int32_t>(text.text.size()))
        return std::nullopt;

    UErrorCode status = U_ZERO_ERROR;
    DateParts parts;
    parts.hasDate = entry.style.hasDate;
    parts.hasTime = entry.style.hasTime;
    bool const commonEra = calendar->get(UCAL_ERA, status) == icu::GregorianCalendar::AD;
    parts.year = calendar->get(UCAL_YEAR, status);
    parts.month = calendar->get(UCAL_MONTH, status) + 1;
    parts.day = calendar->get(UCAL_DATE, status);
    parts.hour = calendar->get(UCAL_HOUR_OF_DAY, status);
    parts.minute = calendar->get(UCAL_MINUTE, status);
    parts.second = calendar->get(UCAL_SECOND, status);
    if (U_FAILURE(status) || !commonEra || (entry.style.hasWeekday && !HasRightWeekday(*calendar, text.text)))
        return std::nullopt;
    return parts;
}

std::optional<DateParts> DateStyles::Read(DateText const & text) const
{
    // Words cost most: they are looked at only where a style may match.
    bool wordsAreKnown = false;
    for (auto const & entry : m_entries) {
        if (!MayMatch(entry->style, text))
            continue;
        if (!wordsAreKnown && !(wordsAreKnown = KnowsWords(text.text)))
            return std::nullopt;
        if (std::optional<DateParts> const parts = ReadIn(*entry, text))
            return parts;
    }
    return std::nullopt;
}

std::u16string DateStyles::Print(DateParts const & parts) const
{
    std::unique_ptr<icu::GregorianCalendar> const calendar(m_calendar->clone());
    calendar->clear();
    calendar->set(parts.year, parts.month - 1, parts.day, parts.hour, parts.minute, parts.second);
    icu::UnicodeString text;
    icu::FieldPosition ignored(icu::FieldPosition::DONT_CARE);
    if (parts.hasDate)
        m_printDate->format(*calendar, text, ignored);
    if (parts.hasDate && parts.hasTime)
        text.append(u' ');
    if (parts.hasTime)
        m_printTime->format(*calendar, text, ignored);
    return std::u16string(View(text));
}

}  // namespace VelNLS::detail
