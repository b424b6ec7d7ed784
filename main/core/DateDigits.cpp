#include "main/core/DateDigits.h"

#include <cstdint>

#include "velcoredata/data/DateTime.h"
#include "velicu/ICUDateFormat.h"
#include "velicu/ICULocale.h"

namespace {

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

struct Parts
{
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

bool IsLetter(char16_t unit)
{
    return static_cast<unsigned>((unit | 0x20) - u'a') < 26;
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
    // A run of n letters gives n digits or up to four.
    char16_t text[4 * LONGEST_PATTERN + MOST_LETTERS];
    char16_t * end = text;
    Parts const parts(value);
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
