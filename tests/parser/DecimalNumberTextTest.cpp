#include "main/parser/DecimalNumberText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <regex>
#include <string>

#include "tests/support/ErrorMatchers.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

std::string Text(double value, int digits = 17, bool showTrailingZero = true)
{
    return detail::DecimalNumberText(value, digits, showTrailingZero).toStdString();
}

}  // namespace

TEST(DecimalNumberText, WritesFixedAndScientific)
{
    struct Case
    {
        double value;
        int digits;
        char const * text;
        char const * bare;
    };
    std::string const infinity = "1" + std::string(37, '0');
    std::string const negative = "-" + infinity;
    for (auto const & [value, digits, text, bare] : {
             Case{0.0, 17, "0.0", "0"},
             Case{-0.0, 17, "0.0", "0"},
             Case{1.0, 17, "1.0", "1"},
             Case{-1.0, 17, "-1.0", "-1"},
             Case{100.0, 17, "100.0", "100"},
             Case{0.25, 17, "0.25", "0.25"},
             Case{0.1, 17, "0.1", "0.1"},
             Case{123456.75, 17, "123456.75", "123456.75"},
             Case{1000000000000000.5, 17, "1000000000000000.5", "1000000000000000.5"},
             Case{9007199254740991.0, 17, "9007199254740991.0", "9007199254740991"},
             Case{9999999999999998.0, 17, "9999999999999998.0", "9999999999999998"},
             Case{1e16, 17, "1.0e16", "1e16"},
             Case{-1e16, 17, "-1.0e16", "-1e16"},
             Case{1e100, 17, "1.0e100", "1e100"},
             Case{0.0001, 17, "0.0001", "0.0001"},
             Case{0.00001, 17, "1.0e-05", "1e-05"},
             // The zeros behind a point are digits like others; scaling in binary loses the last one.
             Case{1.1e-05, 17, "1.0999999999999999e-05", "1.0999999999999999e-05"},
             Case{1.0625, 17, "1.0625", "1.0625"},
             Case{0.0078125, 17, "0.0078125", "0.0078125"},
             Case{1.00390625, 17, "1.00390625", "1.00390625"},
             Case{3.05e-10, 3, "3.05e-10", "3.05e-10"},
             // Fewer digits.
             Case{123.456, 5, "123.46", "123.46"},
             Case{123.456, 3, "123.5", "123"},
             Case{123.456, 1, "123.5", "123"},
             Case{123.456, -5, "123.5", "123"},
             Case{0.00123456, 3, "0.00123", "0.00123"},
             Case{999.96, 4, "1000.0", "1000"},
             Case{1.5e20, 1, "1.5e20", "2e20"},
             // What rounds to zero has no sign.
             Case{-0.04, 0, "0.0", "0"},
             Case{-0.4, 0, "-0.4", "0"},
             Case{-0.04, -1, "0.0", "0"},
             Case{kInfinity, 17, infinity.c_str(), infinity.c_str()},
             Case{-kInfinity, 1, negative.c_str(), negative.c_str()},
             Case{kNaN, 17, "nan", "nan"},
             Case{-kNaN, 17, "-nan", "-nan"},
         })
    {
        EXPECT_EQ(Text(value, digits), text) << value << ' ' << digits;
        EXPECT_EQ(Text(value, digits, false), bare) << value << ' ' << digits;
    }
}

TEST(DecimalNumberText, AFractionHasSixteenDigitsAtMost)
{
    EXPECT_EQ(Text(0.00012345678901234567), "0.0001234567890123");
    EXPECT_EQ(Text(1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(Text(1.0 / 3, 30), "0.3333333333333333");
}

// Every finite real: its form, and how near it reads back.
TEST(DecimalNumberText, ReadsBackUpToTheLastDigits)
{
    std::regex const form("-?[0-9]+\\.([0-9]*[1-9]|0)(e-?[0-9]{2,3})?");
    std::regex const bareForm("-?[0-9]+(\\.[0-9]*[1-9])?(e-?[0-9]{2,3})?");
    std::mt19937_64 random(71);
    for (int i = 0; i < 20000; ++i) {
        double value = std::bit_cast<double>(random());
        if (i % 2 == 0)
            value = std::ldexp(static_cast<double>(random() >> 11), static_cast<int>(random() % 80) - 70);
        if (!std::isfinite(value))
            continue;
        std::string const text = Text(value);
        std::string const bare = Text(value, 17, false);
        ASSERT_TRUE(std::regex_match(text, form)) << text;
        ASSERT_TRUE(std::regex_match(bare, bareForm)) << bare;
        bool const fixed = value == 0.0 || (std::fabs(value) >= 0.0001 && std::fabs(value) < 1e16);
        ASSERT_EQ(text.find('e') == std::string::npos, fixed) << text;
        // Half of the last digit that is written, and what the steps in binary lose.
        double const read = std::strtod(text.c_str(), nullptr);
        double const error = std::fabs(value) * 1e-15 + (fixed ? 0.5e-16 : 0.0) + 5e-324;
        ASSERT_LE(std::fabs(read - value), error) << text;
        ASSERT_EQ(std::strtod(bare.c_str(), nullptr), read) << text << ' ' << bare;
    }
}
