// TextTable: rows of texts, printed in columns.
#pragma once

#include <iosfwd>
#include <string>
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

    /// In characters; a longer cell is cut and ends in "...".
    static constexpr std::size_t kWidestCell = 40;

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
