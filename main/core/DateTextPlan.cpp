#include "main/core/DateTextPlan.h"

#include <algorithm>
#include <string_view>

#include "main/core/DateDigits.h"
#include "velcoredata/data/Date.h"
#include "velcoredata/data/DateTime.h"
#include "velicu/ICUDateFormat.h"
#include "velicu/ICULocale.h"

namespace detail {

namespace {

using Answer = DateTextPlan::Answer;

constexpr std::u16string_view MONTHS[] = {u"january", u"february", u"march",     u"april",   u"may",      u"june",
                                          u"july",    u"august",   u"september", u"october", u"november", u"december"};
constexpr std::size_t SHORT_MONTH = 3;

constexpr std::uint8_t DAYS[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool IsDigit(char16_t unit)
{
    return static_cast<unsigned>(unit - u'0') < 10;
}

bool IsLetter(char16_t unit)
{
    return static_cast<unsigned>((unit | 0x20) - u'a') < 26;
}

int DaysOf(int year, int month)
{
    if (month == 2 && year % 4 == 0 && (year % 100 != 0 || year % 400 == 0))
        return 29;
    return DAYS[month - 1];
}

// The names that the steps below take for granted.
bool SpeaksEnglish(VelICU::ICULocale const & locale)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    auto const format = VelICU::ICUSimpleDateFormat::createInstance(u"MMMM MMM a aaaaa", locale, status);
    auto const calendar = VelICU::ICUCalendar::createInstance(locale, status);
    if (VelICU::ICU_FAILURE(status))
        return false;
    for (int month = 0; month < 12; ++month) {
        TString name = TString::fromView(MONTHS[month]);
        name[0] = static_cast<char16_t>(name[0] - 0x20);
        for (int half = 0; half < 2; ++half) {
            calendar->clear();
            calendar->set(2020, month, 1, 12 * half, 0, 0);
            TString const expected =
                name + u' ' + name.left(SHORT_MONTH) + (half == 0 ? TString(u" AM a") : TString(u" PM p"));
            if (format->format(*calendar, status) != expected)
                return false;
        }
    }
    return true;
}

// The hundred years into which ICU puts two digits begin on a day of this year; 0 if that is not clear. One moment for
// the process, taken by ICU when it needs it first.
int FirstYearOfTwoDigits()
{
    static int const s_year = [] {
        VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
        auto const format = VelICU::ICUSimpleDateFormat::createInstance(u"yy", *VelICU::ICULocale::getRoot(), status);
        DateTime const start =
            DateTime::FromMillisecondsAfterUnixEpoch(static_cast<long long>(format->get2DigitYearStart(status)));
        DateTime const day(start.GetYear(), 1, 3, 0, 0, 0, 0.0);
        // Near a new year the zone matters.
        bool const clear = VelICU::ICU_SUCCESS(status) && start >= day && start.GetDayOfYear() <= 362;
        return clear ? start.GetYear() : 0;
    }();
    return s_year;
}

}  // namespace

DateSpeech SpeechOf(VelICU::ICULocale const & locale)
{
    std::string const calendar = locale.getKeywordValue("calendar");
    if ((!calendar.empty() && calendar != "gregorian") || !HasASCIIDigits(locale))
        return DateSpeech::Unknown;
    static bool const s_english = SpeaksEnglish(*VelICU::ICULocale::createInstance("en_US"));
    return s_english && locale.getName() == std::string_view("en_US") ? DateSpeech::English : DateSpeech::Digits;
}

// --- Taking a pattern apart

DateTextPlan::DateTextPlan(std::u16string_view pattern) : m_pattern(pattern)
{
    m_known = TakeApart();
}

bool DateTextPlan::TakeApart()
{
    bool inQuote = false;
    for (std::size_t i = 0; i < m_pattern.size();) {
        char16_t const unit = m_pattern[i++];
        if (unit == u'\'') {
            if (i < m_pattern.size() && m_pattern[i] == u'\'') {
                ++i;
                if (!AddLiteral(u'\''))
                    return false;
            } else
                inQuote = !inQuote;
        } else if (inQuote || !IsLetter(unit)) {
            if (!AddLiteral(unit))
                return false;
        } else {
            int count = 1;
            for (; i < m_pattern.size() && m_pattern[i] == unit; ++i)
                ++count;
            if (!AddField(unit, count))
                return false;
        }
    }
    bool const hasHalf = (m_fields >> static_cast<int>(Field::Half) & 1) != 0;
    bool const hasHourOfHalf = (m_fields >> static_cast<int>(Field::HourOfHalf) & 1) != 0;
    bool const hasHour = (m_fields >> static_cast<int>(Field::Hour) & 1) != 0;
    if (m_count == 0 || hasHalf != hasHourOfHalf || (hasHour && hasHourOfHalf))
        return false;
    JoinRuns();
    return true;
}

bool DateTextPlan::AddField(char16_t letter, int count)
{
    Field field{};
    switch (letter) {
    case u'y': field = Field::Year; break;
    case u'M': field = count < 3 ? Field::Month : Field::MonthName; break;
    case u'd': field = Field::Day; break;
    case u'H': field = Field::Hour; break;
    case u'h': field = Field::HourOfHalf; break;
    case u'm': field = Field::Minute; break;
    case u's': field = Field::Second; break;
    case u'S': field = Field::Fraction; break;
    case u'a': field = Field::Half; break;
    default: return false;
    }
    int const most = field == Field::MonthName || field == Field::Half || field == Field::Year ? 4
                     : field == Field::Fraction                                                ? 6
                                                                                               : 2;
    // A month may come in one form only.
    unsigned bit = 1u << static_cast<int>(field);
    if (field == Field::Month || field == Field::MonthName)
        bit = 1u << static_cast<int>(Field::Month) | 1u << static_cast<int>(Field::MonthName);
    if (m_count == MOST_STEPS || count > most || (m_fields & bit) != 0)
        return false;
    m_fields = static_cast<std::uint16_t>(m_fields | bit);
    m_steps[m_count++] = {field, static_cast<std::uint8_t>(count), 0, 0, 0};
    return true;
}

bool DateTextPlan::AddLiteral(char16_t unit)
{
    constexpr std::u16string_view served = u"/.,:-TZ";
    if (unit == u' ') {
        if (m_count > 0 && m_steps[m_count - 1u].field == Field::Blank)
            return true;
    } else if (served.find(unit) == served.npos)
        return false;
    if (m_count == MOST_STEPS)
        return false;
    m_steps[m_count++] = {unit == u' ' ? Field::Blank : Field::Literal, 0, 0, 0, unit};
    return true;
}

// Numbers side by side share the digits out by their counts.
void DateTextPlan::JoinRuns()
{
    auto const isNumber = [&](std::size_t at) {
        Field const field = m_steps[at].field;
        return at < m_count && field != Field::Blank && field != Field::Literal && field != Field::Half &&
               field != Field::MonthName;
    };
    for (std::size_t i = 0; i < m_count; ++i) {
        if (!isNumber(i) || i + 1 >= m_count || !isNumber(i + 1))
            continue;
        std::size_t last = i;
        int digits = 0;
        for (; last < m_count && isNumber(last); ++last) {
            m_steps[last].inRun = 1;
            digits += m_steps[last].count;
        }
        m_steps[i].run = static_cast<std::uint8_t>(digits);
        i = last;
    }
}

// --- Reading a text

struct DateTextPlan::Parts
{
    int year = -1;  // -1: not read
    int month = -1;
    int day = -1;
    int hour = 0;
    int half = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
};

class DateTextPlan::Reader
{
public:
    Reader(std::u16string_view text, bool english) : m_at(text.data()), m_end(m_at + text.size()), m_english(english) {}

    bool IsAtEnd() const { return m_at == m_end; }

    Answer Take(Step const & step, Parts & parts)
    {
        switch (step.field) {
        case Field::Literal:
            // At the end of the text every literal fits.
            if (m_at != m_end && *m_at++ != step.unit)
                return Answer::Fails;
            return Answer::Fits;
        case Field::Blank:
            if (m_at != m_end && *m_at != u' ')
                return Answer::Fails;
            SkipBlanks();
            return Answer::Fits;
        default: break;
        }
        if (step.run != 0 && !HasRun(step.run))
            return Answer::Unsure;
        SkipBlanks();
        if (m_at == m_end)
            return Answer::Fails;
        switch (step.field) {
        case Field::MonthName: return TakeMonthName(parts);
        case Field::Half: return TakeHalf(parts);
        case Field::Month:
            if (IsLetter(*m_at))
                return step.inRun != 0 ? Answer::Unsure : TakeMonthName(parts);
            break;
        default: break;
        }
        return TakeNumber(step, parts);
    }

private:
    void SkipBlanks()
    {
        while (m_at != m_end && *m_at == u' ')
            ++m_at;
    }

    // So many digits, no fewer and no more.
    bool HasRun(int digits) const
    {
        char16_t const * at = m_at;
        while (at != m_end && IsDigit(*at))
            ++at;
        return at - m_at == digits;
    }

    Answer TakeNumber(Step const & step, Parts & parts)
    {
        char16_t const * const from = m_at;
        char16_t const * const most = step.inRun != 0 ? from + step.count : m_end;
        int value = 0;
        while (m_at != most && IsDigit(*m_at))
            value = value * 10 + (*m_at++ - u'0');
        auto const digits = static_cast<int>(m_at - from);
        if (digits == 0)
            return Answer::Fails;
        // In a run, a field out of its range has ICU share the digits out anew.
        Answer const wrong = step.inRun != 0 ? Answer::Unsure : Answer::Fails;
        switch (step.field) {
        case Field::Year: return TakeYear(step, digits, value, parts);
        case Field::Month: parts.month = value; return value >= 1 && value <= 12 ? Answer::Fits : wrong;
        case Field::Day:
            parts.day = value;
            return digits >= step.count && value >= 1 && value <= 31 ? Answer::Fits : wrong;
        case Field::Hour: parts.hour = value; return value <= 23 ? Answer::Fits : wrong;
        case Field::HourOfHalf: parts.hour = value == 12 ? 0 : value; return value <= 12 ? Answer::Fits : wrong;
        case Field::Minute: parts.minute = value; return digits >= step.count && value <= 59 ? Answer::Fits : wrong;
        case Field::Second: parts.second = value; return digits >= step.count && value <= 59 ? Answer::Fits : wrong;
        default: {
            for (int i = digits; i < 3; ++i)
                value *= 10;
            for (int i = digits; i > 3; --i)
                value /= 10;
            parts.millisecond = value;
            return Answer::Fits;
        }
        }
    }

    static Answer TakeYear(Step const & step, int digits, int value, Parts & parts)
    {
        if (digits == 2 && step.count < 3) {
            int const first = FirstYearOfTwoDigits();
            // The first year of the hundred is the last one too.
            if (first == 0 || value == first % 100)
                return Answer::Unsure;
            value += first / 100 * 100 + (value < first % 100 ? 100 : 0);
        }
        parts.year = value;
        return Answer::Fits;
    }

    // Of letters in any case; a long name goes before a short one.
    Answer TakeMonthName(Parts & parts)
    {
        if (!IsLetter(*m_at))
            return Answer::Fails;
        if (!m_english)
            return Answer::Unsure;
        for (int month = 0; month < 12; ++month) {
            std::u16string_view const name = MONTHS[month];
            if (Has(name.substr(0, SHORT_MONTH))) {
                m_at += Has(name) ? name.size() : SHORT_MONTH;
                parts.month = month + 1;
                return Answer::Fits;
            }
        }
        return Answer::Fails;
    }

    Answer TakeHalf(Parts & parts)
    {
        if (!IsLetter(*m_at))
            return Answer::Fails;
        if (!m_english)
            return Answer::Unsure;
        char16_t const letter = *m_at | 0x20;
        if (letter != u'a' && letter != u'p')
            return Answer::Fails;
        parts.half = letter == u'p' ? 1 : 0;
        ++m_at;
        if (m_at != m_end && (*m_at | 0x20) == u'm')
            ++m_at;
        return Answer::Fits;
    }

    bool Has(std::u16string_view lowerCase) const
    {
        if (static_cast<std::size_t>(m_end - m_at) < lowerCase.size())
            return false;
        for (std::size_t i = 0; i < lowerCase.size(); ++i)
            if ((m_at[i] | 0x20) != lowerCase[i])
                return false;
        return true;
    }

    char16_t const * m_at;
    char16_t const * const m_end;
    bool const m_english;
};

Answer DateTextPlan::Read(DateText const & text, DateSpeech speech, DateTimeParseOptions options,
                          DateTime const & reference, DateTime & out) const
{
    if (!m_known || speech == DateSpeech::Unknown || !text.IsPlain() || (options & ParseDateOnly) == 0)
        return Answer::Unsure;
    bool const english = speech == DateSpeech::English;
    if (text.HasLetters() && !english)
        return Answer::Unsure;

    Parts parts;
    Reader reader(text.View(), english);
    for (std::size_t i = 0; i < m_count; ++i) {
        Answer const answer = reader.Take(m_steps[i], parts);
        if (answer != Answer::Fits)
            return answer;
    }
    if (!reader.IsAtEnd())
        return Answer::Fails;

    DateTime::YearMonthDay preset(1899, 12, 30);
    if (reference != DateTime() && reference.IsValid()) {
        preset = reference.GetYearMonthDay();
        if (preset.year < 400 || preset.year > 9999)
            return Answer::Unsure;
    }
    int year = parts.year < 0 ? preset.year : parts.year;
    int const month = parts.month < 0 ? preset.month : parts.month;
    int const day = parts.day < 0 ? preset.day : parts.day;
    if (year < 30)
        year += 2000;
    else if (year < 100)
        year += 1900;
    // The year 0 is not on the calendar; years below 400 are refused with a line to the log.
    if (year < 400 || year > 9999 || parts.year == 0)
        return Answer::Unsure;
    if (day > DaysOf(year, month))
        return Answer::Fails;
    long long ticks = 0;
    if ((options & ParseTimeOnly) != 0)
        ticks = (((parts.hour + 12 * parts.half) * 60LL + parts.minute) * 60 + parts.second) * 10000 +
                parts.millisecond * 10LL;
    date const dayNumber = date::gregoriandate(year, static_cast<std::int8_t>(month), static_cast<std::int8_t>(day));
    out = DateTime::FromValue(static_cast<unsigned long long>(dayNumber.GetDayNumber()) * DateTime::s_scaling +
                              static_cast<unsigned long long>(ticks));
    return Answer::Fits;
}

}  // namespace detail
