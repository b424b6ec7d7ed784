#include <unicode/uchar.h>

#include "LocaleAnswers.h"

namespace VelNLS::detail {

namespace {

bool IsMinus(char16_t unit)
{
    return unit == u'-' || unit == u'\u2212' || unit == u'\u2013' || unit == u'\u2010';
}

bool IsDirectionMark(char16_t unit)
{
    return unit == u'\u200E' || unit == u'\u200F' || unit == u'\u061C';
}

std::u16string WithoutDirectionMarks(std::u16string_view text)
{
    std::u16string kept;
    for (char16_t const unit : text) {
        if (!IsDirectionMark(unit))
            kept += unit;
    }
    return kept;
}

// The printed amount reduced to its layout: '1' for the number, '$' for the symbol, '-', '(' and ')' for themselves and
// ' ' for any blanks between two of them.
std::string Shape(std::u16string_view printed, std::u16string_view symbol)
{
    std::u16string const text = WithoutDirectionMarks(printed);
    std::u16string const sign = WithoutDirectionMarks(symbol);
    std::size_t const signStart = sign.empty() ? text.npos : text.find(sign);

    std::string shape;
    auto const add = [&shape](char c) {
        if (shape.empty() || shape.back() != c)
            shape += c;
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i == signStart) {
            add('$');
            i += sign.size() - 1;
        } else if (IsMinus(text[i])) {
            add('-');
        } else if (text[i] == u'(' || text[i] == u')') {
            add(static_cast<char>(text[i]));
        } else if (u_isUWhiteSpace(text[i])) {
            add(' ');
        } else {
            // Digits beyond the 16 bits come as two units; separators stand inside the number.
            add('1');
        }
    }
    return shape;
}

struct Layout
{
    char const * shape;
    int number;
};

template <std::size_t N>
int Find(Layout const (&layouts)[N], std::string const & shape, int otherwise)
{
    for (Layout const & layout : layouts) {
        if (shape == layout.shape)
            return layout.number;
    }
    return otherwise;
}

}  // namespace

int NegativeNumberLayout(std::u16string_view printed)
{
    static constexpr Layout layouts[] = {{"(1)", 0}, {"-1", 1}, {"- 1", 2}, {"1-", 3}, {"1 -", 4}};
    return Find(layouts, Shape(printed, {}), 1);
}

int CurrencyLayout(std::u16string_view printed, std::u16string_view symbol)
{
    static constexpr Layout layouts[] = {{"$1", 0}, {"1$", 1}, {"$ 1", 2}, {"1 $", 3}};
    return Find(layouts, Shape(printed, symbol), 0);
}

int NegativeCurrencyLayout(std::u16string_view printed, std::u16string_view symbol)
{
    static constexpr Layout layouts[] = {
        {"($1)", 0}, {"-$1", 1},  {"$-1", 2},   {"$1-", 3},   {"(1$)", 4},  {"-1$", 5},   {"1-$", 6},    {"1$-", 7},
        {"-1 $", 8}, {"-$ 1", 9}, {"1 $-", 10}, {"$ 1-", 11}, {"$ -1", 12}, {"1- $", 13}, {"($ 1)", 14}, {"(1 $)", 15},
        {"- $1", 1}, {"- 1$", 5}, {"- 1 $", 8}, {"- $ 1", 9}, {"$- 1", 12}, {"1 -$", 13},
    };
    return Find(layouts, Shape(printed, symbol), 1);
}

}  // namespace VelNLS::detail
