// Taking a pattern apart; DateTextReader.cpp reads by it.

#include "main/core/DateTextPlan.h"

#include <string_view>

#include "main/core/ASCIILetter.h"

namespace detail {

DateTextPlan::DateTextPlan(std::u16string_view pattern) : m_pattern(pattern)
{
    m_known = TakeApart();
    if (m_known) {
        DrawSignature();
        DrawForm();
    }
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
    return !HasNumberBehindName();
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

// Behind three letters the minus of a plain text is taken for a mark. If a number follows there, it is a sign, which
// ICU reads: "Jan-0" by "MMMHH".
bool DateTextPlan::HasNumberBehindName() const noexcept
{
    int letters = 0;  // that the steps just before may take
    for (std::size_t i = 0; i < m_count; ++i) {
        Step const & step = m_steps[i];
        switch (step.field) {
        case Field::MonthName: letters += 3; break;
        case Field::Half: letters += 2; break;
        case Field::Blank: letters = 0; break;
        case Field::Literal: letters = IsLetter(step.unit) ? letters + 1 : 0; break;
        default:
            if (letters >= 3)
                return true;
            letters = step.field == Field::Month && step.inRun == 0 ? 3 : 0;
        }
    }
    return false;
}

// A number of the text is taken by one field of digits, or by none, and a mark by one literal; only behind the last
// field may literals lack.
void DateTextPlan::DrawSignature()
{
    std::size_t last = m_count;
    while (last > 0 && (m_steps[last - 1].field == Field::Literal || m_steps[last - 1].field == Field::Blank))
        --last;
    m_hasSignature = true;
    for (std::size_t i = 0; i < m_count; ++i) {
        Step const & step = m_steps[i];
        switch (step.field) {
        case Field::Blank: break;
        case Field::Literal:
            m_takesLetters = m_takesLetters || IsLetter(step.unit);
            m_needsLetters = m_needsLetters || (i < last && IsLetter(step.unit));
            m_signature += DateText::SignatureOf(step.unit);
            m_hasSignature = m_hasSignature && (i < last || DateText::SignatureOf(step.unit) == 0);
            break;
        case Field::MonthName:
        case Field::Half: m_takesLetters = m_needsLetters = true; break;
        case Field::Month: m_takesLetters = true; [[fallthrough]];
        default: m_signature += DateText::ONE_NUMBER; m_hasSignature = m_hasSignature && step.inRun == 0;
        }
    }
}

bool DateTextPlan::CannotFit(DateText const & text) const noexcept
{
    if (text.HasLetters() ? !m_takesLetters : m_needsLetters)
        return true;
    if (!m_hasSignature || text.GetSignature() == m_signature)
        return false;
    // A month in letters stands for one number.
    bool const hasMonth = (m_fields & 1u << static_cast<int>(Field::Month)) != 0;
    return !(text.HasLetters() && hasMonth && text.GetSignature() + DateText::ONE_NUMBER == m_signature);
}

void DateTextPlan::DrawForm()
{
    m_places.fill(-1);
    std::size_t length = 0;
    auto const add = [&](char16_t least, int range) {
        m_least[length] = least;
        m_range[length++] = static_cast<std::uint16_t>(range);
    };
    for (std::size_t i = 0; i < m_count; ++i) {
        Step const & step = m_steps[i];
        if (length + 6 > LONGEST_FORM)
            return;
        switch (step.field) {
        case Field::Literal: add(step.unit, 0); break;
        case Field::Blank:
            // Texts are read without blanks at their ends.
            if (i == 0 || i + 1u == m_count)
                return;
            add(u' ', 0);
            break;
        case Field::MonthName:
        case Field::Half:
        case Field::HourOfHalf: return;
        default: {
            int const digits = step.field == Field::Year ? 4 : step.field == Field::Fraction ? 3 : 2;
            if (step.count != digits)
                return;
            m_places[static_cast<std::size_t>(step.field)] = static_cast<std::int8_t>(length);
            for (int k = 0; k < digits; ++k)
                add(u'0', 9);
        }
        }
    }
    if (m_places[static_cast<int>(Field::Year)] >= 0 && m_places[static_cast<int>(Field::Month)] >= 0 &&
        m_places[static_cast<int>(Field::Day)] >= 0)
        m_formLength = static_cast<std::uint8_t>(length);
}

}  // namespace detail
