// TextTable: rows of texts, printed in columns.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace typedtable {

/// Holds its rows until it is printed, since the widest cell sets the width of a column.
class TextTable
{
public:
    enum class Align
    {
        Left,
        Right
    };

    /// In columns of a terminal; a longer cell is cut and ends in "...".
    static constexpr std::size_t kWidestCell = 40;

    /// How many columns of a terminal a UTF-8 text takes: one a code point, two for the wide ones of East Asia.
    static std::size_t WidthOf(std::string_view text) noexcept;

    void AddColumn(std::string title, Align align);

    /// One UTF-8 text a column.
    void AddRow(std::vector<std::string> cells);

    /// Titles and rows, two blanks between columns, none at the end of a line. Widths count code points.
    void Print(std::ostream & out) const;

private:
    struct Column
    {
        Align align;
        std::size_t width = 0;
    };

    void PrintRow(std::ostream & out, std::vector<std::string> const & cells) const;

    std::vector<Column> m_columns;
    std::vector<std::string> m_titles;
    std::vector<std::vector<std::string>> m_rows;
};

}  // namespace typedtable
