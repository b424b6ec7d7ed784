#include "velcoreplatform/NumberText.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <QString>

#include <gtest/gtest.h>

#include "velcoreplatform/TString.h"

namespace {

using detail::NumberVerdict;

// The readers beside Qt's: what they decide, they decide alike. Returns whether both were decided.
bool ExpectAlike(std::u16string const & text)
{
    // fromStdU16String would drop a byte order mark.
    QString const plain(reinterpret_cast<QChar const *>(text.data()), static_cast<qsizetype>(text.size()));
    bool ok = false;
    double real = -7.0;
    double const plainReal = plain.toDouble(&ok);
    auto const ofReal = detail::ReadReal(text, real);
    if (ofReal != NumberVerdict::Undecided) {
        EXPECT_EQ(ofReal == NumberVerdict::Number, ok) << plain.toStdString();
    }
    double const expected = ofReal == NumberVerdict::Number ? plainReal : -7.0;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(real), std::bit_cast<std::uint64_t>(expected)) << plain.toStdString();
    long long integer = -7;
    long long const plainInteger = plain.toLongLong(&ok);
    auto const ofInteger = detail::ReadInteger(text, integer);
    if (ofInteger != NumberVerdict::Undecided) {
        EXPECT_EQ(ofInteger == NumberVerdict::Number, ok) << plain.toStdString();
    }
    EXPECT_EQ(integer, ofInteger == NumberVerdict::Number ? plainInteger : -7) << plain.toStdString();
    return ofReal != NumberVerdict::Undecided && ofInteger != NumberVerdict::Undecided;
}

std::u16string Wide(std::string const & text)
{
    return std::u16string(text.begin(), text.end());
}

// Random draws by default; VELCOREDATA_NUMBER_DRAWS sets another number, 20000000 for the full proof.
long Draws(long usual)
{
    char const * const asked = std::getenv("VELCOREDATA_NUMBER_DRAWS");
    return asked != nullptr ? std::atol(asked) : usual;
}

}  // namespace

TEST(NumberText, ReadsReals)
{
    struct Row
    {
        char16_t const * text;
        NumberVerdict verdict;
        double value;
    };
    double const none = 0.0;
    Row const rows[] = {
        {u"0", NumberVerdict::Number, 0.0},
        {u"-0", NumberVerdict::Number, -0.0},
        {u"1.5", NumberVerdict::Number, 1.5},
        {u"+1.5", NumberVerdict::Number, 1.5},
        {u"-1.5e3", NumberVerdict::Number, -1500},
        {u"1.", NumberVerdict::Number, 1},
        {u".5", NumberVerdict::Number, 0.5},
        {u"1E+2", NumberVerdict::Number, 100},
        {u"0.1", NumberVerdict::Number, 0.1},
        {u"123456789012345678901234567890", NumberVerdict::Number, 123456789012345678901234567890.0},
        {u"9007199254740993", NumberVerdict::Number, 9007199254740992.0},
        {u"1.7976931348623157e308", NumberVerdict::Number, std::numeric_limits<double>::max()},
        {u"5e-324", NumberVerdict::Number, std::numeric_limits<double>::denorm_min()},
        {u"", NumberVerdict::NoNumber, none},
        {u"12abc", NumberVerdict::NoNumber, none},
        {u"Paris", NumberVerdict::NoNumber, none},
        {u"1,5", NumberVerdict::NoNumber, none},
        {u"0x10", NumberVerdict::NoNumber, none},
        {u"50%", NumberVerdict::NoNumber, none},
        {u"2020-01-02 10:00", NumberVerdict::NoNumber, none},
        {u" ", NumberVerdict::NoNumber, none},
        {u"--1", NumberVerdict::NoNumber, none},
        {u"1e", NumberVerdict::NoNumber, none},
        {u".", NumberVerdict::NoNumber, none},
        {u"-", NumberVerdict::NoNumber, none},
        {u"2020-01-02", NumberVerdict::NoNumber, none},
        {u"1 2", NumberVerdict::NoNumber, none},
        {u"\u6771\u4EAC", NumberVerdict::NoNumber, none},
        {u"\u0661", NumberVerdict::NoNumber, none},
        {u" 1", NumberVerdict::Number, 1},
        {u"\u3000-1.5e3\t\u00A0", NumberVerdict::Number, -1500},
        {u"1e400", NumberVerdict::Undecided, none},
        {u"1e-400", NumberVerdict::Undecided, none},
        {u"inf", NumberVerdict::Undecided, none},
        {u"-nan", NumberVerdict::Undecided, none},
        {u"\u22121", NumberVerdict::Undecided, none},
    };
    for (Row const & row : rows) {
        double value = 0.0;
        EXPECT_EQ(detail::ReadReal(row.text, value), row.verdict) << TString(row.text).toStdString();
        EXPECT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(row.value))
            << TString(row.text).toStdString();
        ExpectAlike(row.text);
    }
}

TEST(NumberText, ReadsIntegers)
{
    struct Row
    {
        char16_t const * text;
        NumberVerdict verdict;
        long long value;
    };
    using Limits = std::numeric_limits<long long>;
    Row const rows[] = {
        {u"0", NumberVerdict::Number, 0},
        {u"-0", NumberVerdict::Number, 0},
        {u"007", NumberVerdict::Number, 7},
        {u"+12", NumberVerdict::Number, 12},
        {u"123456789", NumberVerdict::Number, 123456789},
        {u"9223372036854775807", NumberVerdict::Number, Limits::max()},
        {u"-9223372036854775808", NumberVerdict::Number, Limits::min()},
        {u"9223372036854775808", NumberVerdict::NoNumber, 0},
        {u"-9223372036854775809", NumberVerdict::NoNumber, 0},
        {u"9999999999999999999", NumberVerdict::NoNumber, 0},
        {u"18446744073709551617", NumberVerdict::NoNumber, 0},
        {u"00000000000000000000001", NumberVerdict::Undecided, 0},
        {u"", NumberVerdict::NoNumber, 0},
        {u"1.5", NumberVerdict::NoNumber, 0},
        {u"1e3", NumberVerdict::NoNumber, 0},
        {u"12abc", NumberVerdict::NoNumber, 0},
        {u"-", NumberVerdict::NoNumber, 0},
        {u"1-2", NumberVerdict::NoNumber, 0},
        {u" 5", NumberVerdict::Number, 5},
        {u"5\u00A0", NumberVerdict::Undecided, 0},
        {u"\u22125", NumberVerdict::Undecided, 0},
        {u"nan", NumberVerdict::Undecided, 0},
    };
    for (Row const & row : rows) {
        long long value = 0;
        EXPECT_EQ(detail::ReadInteger(row.text, value), row.verdict) << TString(row.text).toStdString();
        EXPECT_EQ(value, row.value) << TString(row.text).toStdString();
        ExpectAlike(row.text);
    }
}

// Every text of up to seven of the characters that numbers are made of: 335,922 of them.
TEST(NumberText, EveryShortTextOfNumberCharactersIsDecidedAsByQt)
{
    constexpr std::u16string_view characters = u"01.e+-";
    std::vector<std::u16string> texts = {u""};
    std::size_t decided = 0, all = 0;
    for (int length = 1; length <= 7; ++length) {
        std::vector<std::u16string> longer;
        for (std::u16string const & text : texts)
            for (char16_t const c : characters)
                decided += ExpectAlike(longer.emplace_back(text + c)) ? 1 : 0;
        all += longer.size();
        texts = std::move(longer);
    }
    EXPECT_EQ(all, 335'922u);
    // But those beyond a double.
    EXPECT_GT(decided, all - 1'000);
}

TEST(NumberText, EveryCharacterIsTakenAsByQt)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        auto const c = static_cast<char16_t>(unit);
        for (std::u16string const & text :
             {std::u16string(1, c), u"1" + std::u16string(1, c), c + std::u16string(u"1"),
              u"1" + std::u16string(1, c) + u"2", u"1." + std::u16string(1, c) + u"e2", u"-" + std::u16string(1, c)})
            ExpectAlike(text);
    }
}

// Up to one text longer than every bound of the readers.
TEST(NumberText, EveryLengthIsRead)
{
    for (std::size_t n = 0; n <= 70; ++n)
        for (char16_t const * const end : {u"", u".", u".5", u"e5", u"e-5", u"x", u" ", u"e", u"-", u"\u4E2D"})
            for (char16_t const * const sign : {u"", u"-", u"+"})
                for (char16_t const digit : {u'0', u'1', u'9'}) {
                    std::u16string const digits(n, digit);
                    ExpectAlike(sign + digits + end);
                    ExpectAlike(sign + (u"." + digits) + end);
                    ExpectAlike(sign + digits + u"." + digits + end);
                }
}

TEST(NumberText, AnswersAsQtDoesForRandomTexts)
{
    std::mt19937_64 random(1);
    constexpr std::u16string_view likely = u"0123456789012345678901234567890.-+eE";
    constexpr std::u16string_view odd =
        u" \t\n\v\u00A0\u2009\u3000\uFEFF,;:%/_xXpPdDfFiInNaAtTyY$#'\"\0\u0660\u0661\u2212\uFF11\uFF0D"
        u"\u066B\u221E\xD835\xDFCE";
    long decided = 0;
    long const draws = Draws(200'000);
    for (long i = 0; i < draws && !testing::Test::HasFailure(); ++i) {
        std::u16string text;
        for (auto n = random() % 24 + 1; n > 0; --n)
            text += random() % 40 == 0 ? odd[random() % odd.size()] : likely[random() % likely.size()];
        decided += ExpectAlike(text) ? 1 : 0;
    }
    EXPECT_GT(decided, draws / 4);
}

TEST(NumberText, AnswersAsQtDoesForRandomNumbers)
{
    std::mt19937_64 random(2);
    long decided = 0;
    long const draws = Draws(200'000);
    char const * const formats[] = {"%.17g", "%.15g", "%.6g", "%.2f", "%.3e", "%.20e", "%.0f", "%.40f"};
    for (long i = 0; i < draws && !testing::Test::HasFailure(); ++i) {
        double const any = std::bit_cast<double>(random());
        double const value = i % 2 == 0 ? any : static_cast<double>(random() >> 20) / 1000.0 * (i % 4 == 1 ? 1 : -1);
        if (!std::isfinite(value))
            continue;
        char buffer[512];
        std::snprintf(buffer, sizeof buffer, formats[random() % std::size(formats)], value);
        decided += ExpectAlike(Wide(buffer)) ? 1 : 0;
        ExpectAlike(Wide(std::to_string(static_cast<long long>(random() >> (random() % 64)))));
        ExpectAlike(Wide('-' + std::to_string(random() >> (random() % 64))));
    }
    EXPECT_GT(decided, draws / 2);
}

TEST(NumberText, WritesIntegersAsToCharsDoes)
{
    std::mt19937_64 random(3);
    auto const expectAlike = [](long long value) {
        char narrow[24];
        std::string const plain(narrow, std::to_chars(narrow, narrow + sizeof narrow, value).ptr);
        ASSERT_EQ(TString::number(value).toStdString(), plain);
        auto const magnitude =
            value < 0 ? 0 - static_cast<unsigned long long>(value) : static_cast<unsigned long long>(value);
        char16_t wide[20];
        detail::WriteInteger(std::end(wide), magnitude);
        std::u16string const digits(std::end(wide) - detail::DigitCount(magnitude), std::end(wide));
        ASSERT_EQ((value < 0 ? u"-" : u"") + digits, Wide(plain));
    };
    for (long long value = -100'000; value <= 100'000; ++value)
        expectAlike(value);
    for (long i = 0; i < Draws(200'000); ++i)
        expectAlike(static_cast<long long>(random() >> (random() % 64)));
    using Limits = std::numeric_limits<long long>;
    for (long long const value : {Limits::min(), Limits::min() + 1, Limits::max()})
        expectAlike(value);
    for (unsigned long long power = 1; power < 10'000'000'000'000'000'000u; power *= 10)
        for (long long const sign : {1, -1}) {
            expectAlike(sign * static_cast<long long>(power));
            expectAlike(sign * static_cast<long long>(power - 1));
        }
    EXPECT_EQ(detail::DigitCount(18446744073709551615ull), 20);
    EXPECT_EQ(detail::DigitCount(10000000000000000000ull), 20);
    EXPECT_EQ(detail::DigitCount(9999999999999999999ull), 19);
    EXPECT_EQ(TString::number(18446744073709551615ull), TString(u"18446744073709551615"));
    EXPECT_EQ(TString::number(4294967295u), TString(u"4294967295"));
    EXPECT_EQ(TString::number(-2147483647 - 1), TString(u"-2147483648"));
}
