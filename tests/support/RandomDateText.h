// Random texts that are dates in a locale, nearly so, or not at all.
#pragma once

#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/RandomText.h"

namespace test_support {

class RandomDateText
{
public:
    // Patterns in ICU's letters, of which texts are made in the locale and in English.
    RandomDateText(unsigned seed, std::string const & icuName, std::vector<std::u16string> const & patterns)
        : m_text(seed), m_calendar(*icu::TimeZone::getGMT(), m_status)
    {
        for (std::string const & name : {icuName, std::string("en_US@calendar=gregorian")}) {
            for (std::u16string const & pattern : patterns) {
                auto format = std::make_unique<icu::SimpleDateFormat>(
                    icu::UnicodeString(pattern.data(), static_cast<std::int32_t>(pattern.size())),
                    icu::Locale(name.c_str()), m_status);
                format->setTimeZone(*icu::TimeZone::getGMT());
                m_formats.push_back(std::move(format));
            }
        }
        m_formatsOfLocale = patterns.size();
        m_patterns = patterns;
    }

    RandomText & Random() { return m_text; }
    std::size_t Below(std::size_t n) { return m_text.Below(n); }
    bool OneIn(std::size_t n) { return Below(n) == 0; }
    std::u16string const & AnyPattern() { return m_patterns[Below(m_patterns.size())]; }

    std::u16string Next()
    {
        std::u16string text;
        switch (Below(20)) {
        case 0: return m_text.Any(12);
        case 1: text = Words(); break;
        case 2:
        case 3:
        case 4: text = Numbers(); break;
        default: text = Formatted(); break;
        }
        if (OneIn(2)) {
            for (std::size_t n = 1 + Below(3); n > 0; --n)
                Spoil(text);
        }
        return text;
    }

    std::u16string Formatted()
    {
        std::size_t const count = m_formats.size();
        std::size_t const at = OneIn(4) ? Below(count) : Below(m_formatsOfLocale);
        return Format(*m_formats[at]);
    }

    // Any date of the years 1 to 10500, mostly of this age.
    std::u16string Format(icu::SimpleDateFormat const & format)
    {
        int const year = OneIn(8) ? 1 + static_cast<int>(Below(10500)) : 1900 + static_cast<int>(Below(150));
        m_calendar.clear();
        m_calendar.set(year, static_cast<int>(Below(12)), 1 + static_cast<int>(Below(28 + (OneIn(4) ? 3 : 0))),
                       static_cast<int>(Below(24)), static_cast<int>(Below(60)), static_cast<int>(Below(60)));
        m_calendar.set(UCAL_MILLISECOND, static_cast<int>(Below(1000)));
        icu::UnicodeString out;
        icu::FieldPosition ignored(icu::FieldPosition::DONT_CARE);
        format.format(m_calendar, out, ignored);
        return std::u16string(out.getBuffer(), static_cast<std::size_t>(out.length()));
    }

    void Spoil(std::u16string & text)
    {
        static constexpr std::u16string_view marks = u" /-.,:TZ'apAPmMe+01239\u00A0\u202F\u0662\uFF11\u200F";
        std::size_t const at = Below(text.size() + 1);
        switch (Below(12)) {
        case 0: text.insert(text.begin() + static_cast<std::ptrdiff_t>(at), marks[Below(marks.size())]); break;
        case 1:
        case 2:
            if (at < text.size())
                text[at] = marks[Below(marks.size())];
            break;
        case 3:
            if (at < text.size())
                text.erase(at, 1);
            break;
        case 4:
            if (at + 1 < text.size())
                std::swap(text[at], text[at + 1]);
            break;
        case 5: ChangeMarks(text); break;
        case 6: DropZero(text); break;
        case 7: ChangeDigit(text); break;
        case 8: text = (OneIn(2) ? u" " : u"\u00A0") + text + (OneIn(2) ? u"  " : u""); break;
        case 9: text = text.substr(0, at); break;
        case 10: ChangeCase(text); break;
        default: text += OneIn(2) ? u"Z" : u" AM"; break;
        }
    }

private:
    std::u16string Number(std::size_t mostDigits)
    {
        std::u16string digits;
        for (std::size_t n = 1 + Below(mostDigits); n > 0; --n)
            digits += static_cast<char16_t>(u'0' + Below(10));
        return digits;
    }

    std::u16string Numbers()
    {
        static constexpr std::u16string_view between[] = {u"/", u"-", u".", u":", u" ", u", ", u"T", u"/", u"-", u""};
        std::u16string_view const mark = between[Below(std::size(between))];
        std::u16string text;
        for (std::size_t n = 1 + Below(7); n > 0; --n) {
            text += Number(OneIn(3) ? 4 : 2);
            if (n > 1)
                text += OneIn(4) ? between[Below(std::size(between))] : mark;
        }
        if (OneIn(6))
            text += OneIn(2) ? u"pm" : u" AM";
        return text;
    }

    std::u16string Words()
    {
        static constexpr std::u16string_view words[] = {
            u"Jan", u"Sept", u"May",   u"december", u"JUNE",  u"Monday", u"of",  u"at",   u"noon", u"AM",
            u"p.m", u"Z",    u"March", u"Mai",      u"abril", u"\u6708", u"1e0", u"2020", u"5",    u"31",
        };
        std::u16string text;
        for (std::size_t n = 1 + Below(5); n > 0; --n) {
            text += words[Below(std::size(words))];
            if (n > 1)
                text += OneIn(5) ? u", " : OneIn(5) ? u"" : u" ";
        }
        return text;
    }

    void ChangeMarks(std::u16string & text)
    {
        static constexpr std::u16string_view marks = u"/-. ,:";
        char16_t const mark = marks[Below(marks.size())];
        for (char16_t & unit : text) {
            if (unit == u'/' || unit == u'-' || unit == u'.')
                unit = mark;
        }
    }

    void DropZero(std::u16string & text)
    {
        std::size_t const at = text.find(u'0', Below(text.size() + 1));
        if (at != text.npos)
            text.erase(at, 1);
    }

    void ChangeDigit(std::u16string & text)
    {
        for (char16_t & unit : text) {
            if (unit >= u'0' && unit <= u'9' && OneIn(4)) {
                unit = static_cast<char16_t>((OneIn(6) ? 0xFF10 : u'0') + Below(10));
                return;
            }
        }
    }

    void ChangeCase(std::u16string & text)
    {
        icu::UnicodeString copy(text.data(), static_cast<std::int32_t>(text.size()));
        if (OneIn(2))
            copy.toUpper(icu::Locale::getRoot());
        else
            copy.toLower(icu::Locale::getRoot());
        text.assign(copy.getBuffer(), static_cast<std::size_t>(copy.length()));
    }

    RandomText m_text;
    UErrorCode m_status = U_ZERO_ERROR;
    icu::GregorianCalendar m_calendar;
    std::vector<std::u16string> m_patterns;
    std::vector<std::unique_ptr<icu::SimpleDateFormat>> m_formats;
    std::size_t m_formatsOfLocale = 0;
};

}  // namespace test_support
