// Reading a text by a pattern that was taken apart.

#include <string_view>

#include "main/core/ASCIILetter.h"
#include "main/core/DateTextPlan.h"
#include "velcoredata/data/Date.h"
#include "velcoredata/data/DateTime.h"
#include "velicu/ICUDateFormat.h"
#include "velicu/ICULocale.h"

namespace detail {

namespace {

using Answer = DateTextPlan::Answer;

constexpr std::uint8_t DAYS[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool IsDigit(char16_t unit)
{
    return static_cast<unsigned>(unit - u'0') < 10;
}

int DaysOf(int year, int month)
{
    if (month == 2 && year % 4 == 0 && (year % 100 != 0 || year % 400 == 0))
        return 29;
    return DAYS[month - 1];
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
            std::u16string_view const name = ENGLISH_MONTHS[month];
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
    if (CannotFit(text))
        return Answer::Fails;

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

bool DateTextPlan::ReadExactForm(char16_t const * text, DateTimeParseOptions options, DateTime & out) const noexcept
{
    if (m_formLength == 0 || text == nullptr || (options & ParseDateOnly) == 0)
        return false;
    // Stops at the terminator: no form has it.
    for (std::size_t i = 0; i < m_formLength; ++i)
        if (static_cast<std::uint16_t>(text[i] - m_least[i]) > m_range[i])
            return false;
    if (text[m_formLength] != 0)
        return false;
    auto const two = [](char16_t const * at) { return (at[0] - u'0') * 10 + (at[1] - u'0'); };
    auto const clock = [&](Field field) {
        int const place = m_places[static_cast<std::size_t>(field)];
        return place < 0 ? 0 : two(text + place);
    };
    char16_t const * const yearAt = text + m_places[static_cast<std::size_t>(Field::Year)];
    int const year = two(yearAt) * 100 + two(yearAt + 2);
    int const month = clock(Field::Month);
    int const day = clock(Field::Day);
    int const hour = clock(Field::Hour);
    int const minute = clock(Field::Minute);
    int const second = clock(Field::Second);
    if (year < 400 || month < 1 || month > 12 || day < 1 || day > DaysOf(year, month) || hour > 23 || minute > 59 ||
        second > 59)
        return false;
    std::uint32_t ticks = 0;
    if ((options & ParseTimeOnly) != 0) {
        int const place = m_places[static_cast<std::size_t>(Field::Fraction)];
        int const milliseconds = place < 0 ? 0 : two(text + place) * 10 + (text[place + 2] - u'0');
        ticks = static_cast<std::uint32_t>(((hour * 60 + minute) * 60 + second) * 10000 + milliseconds * 10);
    }
    date const dayNumber = date::gregoriandate(year, static_cast<std::int8_t>(month), static_cast<std::int8_t>(day));
    out = DateTime::FromValue(static_cast<unsigned long long>(dayNumber.GetDayNumber()) * DateTime::s_scaling + ticks);
    return true;
}

}  // namespace detail
