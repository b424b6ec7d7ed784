#include "main/core/DateDigits.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "main/core/ASCIILetter.h"
#include "velcoredata/data/DateTime.h"
#include "velicu/ICUDateFormat.h"
#include "velicu/ICULocale.h"

namespace {

using detail::IsLetter;

constexpr unsigned long long FIRST_VALUE = 1867157ULL * DateTime::s_scaling;  // 0400-01-01
constexpr unsigned long long END_VALUE = 5373484ULL * DateTime::s_scaling;    // 10000-01-01
constexpr int LONGEST_PATTERN = 64;
constexpr int MOST_LETTERS = 9;

// The digits of a number that has at most four, with zeros in front up to `width`.
char16_t * Write(char16_t * out, std::uint32_t value, int width)
{
    int const digits = value < 10 ? 1 : value < 100 ? 2 : value < 1000 ? 3 : 4;
    for (int i = digits; i < width; ++i)
        *out++ = u'0';
    switch (digits) {
    case 4: *out++ = static_cast<char16_t>(u'0' + value / 1000); [[fallthrough]];
    case 3: *out++ = static_cast<char16_t>(u'0' + value / 100 % 10); [[fallthrough]];
    case 2: *out++ = static_cast<char16_t>(u'0' + value / 10 % 10); [[fallthrough]];
    default: *out++ = static_cast<char16_t>(u'0' + value % 10);
    }
    return out;
}

class Parts
{
public:
    explicit Parts(DateTime const & value)
        : civil(value.GetYearMonthDay()),
          ticks(static_cast<std::uint32_t>(value.GetRepresentation() % DateTime::s_scaling))
    {}

    // Null for a letter that is not one of digits.
    char16_t * Write(char16_t * out, char16_t letter, int count) const
    {
        switch (letter) {
        case u'y': {
            auto const year = static_cast<std::uint32_t>(civil.year);
            return ::Write(out, count == 2 ? year % 100 : year, count);
        }
        case u'M': return count > 2 ? nullptr : ::Write(out, static_cast<std::uint32_t>(civil.month), count);
        case u'd': return ::Write(out, static_cast<std::uint32_t>(civil.day), count);
        case u'H': return ::Write(out, ticks / 36000000, count);
        case u'h': {
            std::uint32_t const hour = ticks / 36000000 % 12;
            return ::Write(out, hour == 0 ? 12 : hour, count);
        }
        case u'm': return ::Write(out, ticks / 600000 % 60, count);
        case u's': return ::Write(out, ticks / 10000 % 60, count);
        case u'S': return WriteFraction(out, count);
        default: return nullptr;
        }
    }

    DateTime::YearMonthDay const & Civil() const { return civil; }
    std::uint32_t Ticks() const { return ticks; }

private:
    // Left-justified: "S" prints tenths, and beyond the third digit come zeros. The milliseconds are those of
    // DateTime::GetMilliseconds.
    char16_t * WriteFraction(char16_t * out, int count) const
    {
        auto const milliseconds = static_cast<std::uint32_t>(ticks % 10000 / 10000.0 * 1000.0);
        switch (count) {
        case 1: return ::Write(out, milliseconds / 100, 1);
        case 2: return ::Write(out, milliseconds / 10, 2);
        default: out = ::Write(out, milliseconds, 3);
        }
        for (int i = 3; i < count; ++i)
            *out++ = u'0';
        return out;
    }

    DateTime::YearMonthDay civil;
    std::uint32_t ticks;
};

// "00" to "99", as the code units lie in memory.
constexpr auto PAIRS = [] {
    std::array<char16_t, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char16_t>(u'0' + i / 10);
        pairs[2 * i + 1] = static_cast<char16_t>(u'0' + i % 10);
    }
    return pairs;
}();

void WritePair(char16_t * out, std::uint32_t value)
{
    std::memcpy(out, &PAIRS[2 * value], 2 * sizeof(char16_t));
}

// A pattern whose text has one length, and where its digits stand. A thread prints many values by one pattern, so that
// it keeps the last one.
class Form
{
public:
    // Whether this is the form of the pattern; draws it if it is another one.
    bool IsOf(char16_t const * pattern)
    {
        std::size_t i = 0;
        for (; m_pattern[i] == pattern[i]; ++i)
            if (pattern[i] == 0)
                return m_length > 0;
        return Draw(pattern);
    }

    TString Print(Parts const & parts) const
    {
        TString text(m_text.data(), m_length);
        char16_t * const out = text.data();
        for (int i = 0; i < m_fieldCount; ++i) {
            Field const field = m_fields[static_cast<std::size_t>(i)];
            char16_t * const at = out + field.place;
            switch (field.letter) {
            case u'y':
                WritePair(at, static_cast<std::uint32_t>(parts.Civil().year) / 100);
                WritePair(at + 2, static_cast<std::uint32_t>(parts.Civil().year) % 100);
                break;
            case u'M': WritePair(at, static_cast<std::uint32_t>(parts.Civil().month)); break;
            case u'd': WritePair(at, static_cast<std::uint32_t>(parts.Civil().day)); break;
            case u'H': WritePair(at, parts.Ticks() / 36000000); break;
            case u'm': WritePair(at, parts.Ticks() / 600000 % 60); break;
            case u's': WritePair(at, parts.Ticks() / 10000 % 60); break;
            default: parts.Write(at, field.letter, 3);
            }
        }
        return text;
    }

private:
    struct Field
    {
        char16_t letter;
        std::uint8_t place;
    };

    bool Draw(char16_t const * pattern)
    {
        m_length = 0;
        m_fieldCount = 0;
        std::size_t size = 0;
        while (size + 1 < m_pattern.size() && (m_pattern[size] = pattern[size]) != 0)
            ++size;
        if (pattern[size] != 0 || size == 0) {
            m_pattern[0] = 0;  // longer than what is kept; the empty pattern has no form
            return false;
        }
        std::size_t length = 0;
        bool inQuote = false;
        for (std::size_t i = 0; i < size;) {
            char16_t const unit = pattern[i++];
            if (unit == u'\'') {
                if (pattern[i] == u'\'')
                    return false;
                inQuote = !inQuote;
            } else if (inQuote || !IsLetter(unit))
                m_text[length++] = unit;
            else {
                std::size_t count = 1;
                for (; pattern[i] == unit; ++i)
                    ++count;
                constexpr std::u16string_view pairs = u"MdHms";
                std::size_t const digits = unit == u'y' ? 4 : unit == u'S' ? 3 : pairs.find(unit) == pairs.npos ? 0 : 2;
                if (count != digits || static_cast<std::size_t>(m_fieldCount) == m_fields.size())
                    return false;
                m_fields[static_cast<std::size_t>(m_fieldCount++)] = {unit, static_cast<std::uint8_t>(length)};
                length += digits;
            }
        }
        m_length = static_cast<int>(length);
        return m_length > 0;
    }

    static constexpr std::size_t ROOM = 40;

    std::array<char16_t, ROOM> m_pattern{};
    std::array<char16_t, ROOM> m_text{};  // with anything in the places of digits
    std::array<Field, 8> m_fields{};
    int m_fieldCount = 0;
    int m_length = 0;  // 0: the pattern has no such form
};

// A call, so that the address is looked up once.
[[gnu::noinline]] Form & FormOfThread()
{
    thread_local Form t_form;
    return t_form;
}

}  // namespace

bool detail::HasASCIIDigits(VelICU::ICULocale const & gregorianLocale)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    auto const format = VelICU::ICUSimpleDateFormat::createInstance(u"yyyy-M-d HH:mm:ss.SSS", gregorianLocale, status);
    auto const calendar = VelICU::ICUGregorianCalendar::createInstance(gregorianLocale, status);
    if (VelICU::ICU_FAILURE(status))
        return false;
    calendar->clear();
    calendar->set(2034, 4, 16, 17, 28, 59);
    return format->format(*calendar, status) == TString(u"2034-5-16 17:28:59.000");
}

bool detail::FormatDateDigits(DateTime const & value, char16_t const * pattern, TString & out)
{
    if (value.GetRepresentation() < FIRST_VALUE || value.GetRepresentation() >= END_VALUE || pattern == nullptr)
        return false;
    Parts const parts(value);
    Form & form = FormOfThread();
    if (form.IsOf(pattern)) {
        out = form.Print(parts);
        return true;
    }
    // A run of n letters gives n digits or up to four.
    char16_t text[4 * LONGEST_PATTERN + MOST_LETTERS];
    char16_t * end = text;
    bool inQuote = false;
    for (char16_t const * p = pattern; *p != 0;) {
        if (p - pattern >= LONGEST_PATTERN)
            return false;
        char16_t const unit = *p++;
        if (unit == u'\'') {
            if (*p == u'\'')
                *end++ = *p++;
            else
                inQuote = !inQuote;
        } else if (inQuote || !IsLetter(unit))
            *end++ = unit;
        else {
            int count = 1;
            for (; *p == unit; ++p)
                ++count;
            if (count > MOST_LETTERS || (end = parts.Write(end, unit, count)) == nullptr)
                return false;
        }
    }
    out = TString(text, static_cast<int>(end - text));
    return true;
}
