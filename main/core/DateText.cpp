#include "main/core/DateText.h"

#include <QtCore/QChar>

#include <array>
#include <string>

namespace {

constexpr std::size_t LONGEST_PLAIN = 100;
constexpr int MOST_DIGITS = 9;

enum Kind : unsigned char
{
    Odd,
    Digit,
    Letter,
    Blank,
    Mark,
    Minus
};

constexpr auto KINDS = [] {
    std::array<Kind, 128> kinds{};
    for (char16_t unit = u'0'; unit <= u'9'; ++unit)
        kinds[unit] = Digit;
    for (char16_t unit = u'a'; unit <= u'z'; ++unit)
        kinds[unit] = kinds[unit - 32u] = Letter;
    kinds[u' '] = Blank;
    kinds[u'/'] = kinds[u'.'] = kinds[u','] = kinds[u':'] = Mark;
    kinds[u'-'] = Minus;
    return kinds;
}();

bool IsSpace(char16_t unit)
{
    return unit < 128 ? unit == u' ' || (unit >= 9 && unit <= 13) : QChar::isSpace(unit);
}

}  // namespace

detail::DateText detail::DateText::Trimmed(char16_t const * text) noexcept
{
    if (text == nullptr)
        return DateText(std::u16string_view());
    while (*text != 0 && IsSpace(*text))
        ++text;
    char16_t const * end = text;
    while (*end != 0)
        ++end;
    while (end != text && IsSpace(end[-1]))
        --end;
    return DateText({text, static_cast<std::size_t>(end - text)});
}

TString const & detail::DateText::AsTString() const
{
    if (!m_copy)
        m_copy = TString::fromView(m_text);
    return *m_copy;
}

void detail::DateText::Judge() noexcept
{
    if (m_text.size() > LONGEST_PLAIN)
        return;
    int digits = 0;
    int letters = 0;
    Kind before = Blank;
    for (std::size_t i = 0; i < m_text.size(); ++i) {
        char16_t const unit = m_text[i];
        Kind const kind = unit < KINDS.size() ? KINDS[unit] : Odd;
        switch (kind) {
        case Odd: return;
        case Digit:
            if (++digits > MOST_DIGITS)
                return;
            if (digits == 1)
                m_signature += ONE_NUMBER;
            break;
        case Letter:
            // An exponent, or the name of the number that is none.
            if ((before == Digit && (unit | 0x20) == u'e') ||
                ((unit | 0x20) == u'n' && i >= 2 && (m_text[i - 1] | 0x20) == u'a' && (m_text[i - 2] | 0x20) == u'n'))
                return;
            m_letters = true;
            ++letters;
            break;
        case Minus:
            // Behind the name of a month it is a mark, behind the T of ISO 8601 a sign.
            if (before != Digit && (before != Letter || letters < 3))
                return;
            [[fallthrough]];
        case Mark: m_signature += SignatureOf(unit); break;
        case Blank: break;
        }
        if (kind != Digit)
            digits = 0;
        if (kind != Letter)
            letters = 0;
        before = kind;
    }
    m_plain = true;
}
