#include "main/parser/DecimalNumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <string_view>

#include <boost/spirit/include/karma_generate.hpp>
#include <boost/spirit/include/karma_real.hpp>

namespace {

namespace karma = boost::spirit::karma;

// A decimal reader of 38 digits has no infinity: 10^37.
constexpr std::string_view kInfinity = "10000000000000000000000000000000000000";

// Karma measures a fraction by the logarithm of its digits, and so loses a leading zero now and then; it prints all the
// trailing ones. The parts are written here from the digits as an integer.
class Policies : public karma::real_policies<double>
{
public:
    Policies(int digits, bool showTrailingZero) : m_digits(digits), m_showTrailingZero(showTrailingZero) {}

    bool trailing_zeros(double) const { return m_showTrailingZero; }

    static int floatfield(double value)
    {
        double const magnitude = std::fabs(value);
        return magnitude == 0.0 || (magnitude >= 0.0001 && magnitude < 1e16) ? fmtflags::fixed : fmtflags::scientific;
    }

    // Digits of the fraction of a value that is not negative; Karma writes 16 of them at most.
    unsigned precision(double value) const
    {
        int fraction = m_digits - 1;
        if (floatfield(value) == fmtflags::fixed)
            fraction = value >= 1.0 ? m_digits - static_cast<int>(detail::IntegerDigits(value))
                                    : m_digits + ZerosBehindPoint(value);
        return static_cast<unsigned>(std::max(fraction, m_showTrailingZero ? 1 : 0));
    }

    template <class Sink>
    static bool integer_part(Sink & sink, double value, bool negative, bool)
    {
        return Write(sink, negative ? "-" : "") && Write(sink, static_cast<unsigned long long>(value), 1, false);
    }

    template <class Sink>
    bool dot(Sink & sink, double fraction, unsigned) const
    {
        return Write(sink, fraction != 0.0 || m_showTrailingZero ? "." : "");
    }

    template <class Sink>
    bool fraction_part(Sink & sink, double fraction, unsigned width, unsigned) const
    {
        if (fraction == 0.0)
            return Write(sink, m_showTrailingZero ? "0" : "");
        return Write(sink, static_cast<unsigned long long>(fraction), width, true);
    }

    template <class CharEncoding, class Tag, class Sink>
    static bool inf(Sink & sink, double value, bool)
    {
        return Write(sink, std::signbit(value) ? "-" : "") && Write(sink, kInfinity);
    }

private:
    static int ZerosBehindPoint(double value)
    {
        if (value == 0.0)
            return 0;
        int zeros = 0;
        for (double bound : {0.1, 0.01, 0.001})
            zeros += value < bound ? 1 : 0;
        return zeros;
    }

    template <class Sink>
    static bool Write(Sink & sink, std::string_view text)
    {
        for (char const c : text)
            *sink++ = static_cast<char16_t>(c);
        return true;
    }

    template <class Sink>
    static bool Write(Sink & sink, unsigned long long number, unsigned width, bool stripZeros)
    {
        char digits[20];
        std::string_view text(digits,
                              static_cast<std::size_t>(std::to_chars(digits, std::end(digits), number).ptr - digits));
        for (std::size_t i = text.size(); i < width; ++i)
            *sink++ = u'0';
        while (stripZeros && text.back() == '0')
            text.remove_suffix(1);
        return Write(sink, text);
    }

    int m_digits;
    bool m_showTrailingZero;
};

}  // namespace

TString detail::DecimalNumberText(double value, int digits, bool showTrailingZero)
{
    TString text;
    karma::real_generator<double, Policies> const number(Policies(digits, showTrailingZero));
    karma::generate(std::back_inserter(text), number, value);
    return text;
}

unsigned detail::IntegerDigits(double value)
{
    double const magnitude = std::fabs(value);
    if (!(magnitude < 0x1p64))
        return 20;
    unsigned digits = 1;
    for (auto rest = static_cast<unsigned long long>(magnitude); rest >= 10; rest /= 10)
        ++digits;
    return digits;
}
