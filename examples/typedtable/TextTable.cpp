#include "typedtable/TextTable.h"

#include <algorithm>
#include <cassert>
#include <ostream>
#include <utility>

namespace typedtable {

namespace {

bool BeginsCodePoint(char c) noexcept
{
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

std::size_t CountCodePoints(std::string const & text) noexcept
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), BeginsCodePoint));
}

void CutToWidest(std::string & text)
{
    if (CountCodePoints(text) <= TextTable::kWidestCell)
        return;
    std::size_t points = 0;
    std::size_t end = 0;
    while (points < TextTable::kWidestCell - 3 || !BeginsCodePoint(text[end])) {
        if (BeginsCodePoint(text[end]))
            ++points;
        ++end;
    }
    text.resize(end);
    text += "...";
}

}  // namespace

void TextTable::AddColumn(std::string title, Align align)
{
    CutToWidest(title);
    m_columns.push_back({align, CountCodePoints(title)});
    m_titles.push_back(std::move(title));
}

void TextTable::AddRow(std::vector<std::string> cells)
{
    assert(cells.size() == m_columns.size());
    for (std::size_t i = 0; i < cells.size(); ++i) {
        CutToWidest(cells[i]);
        m_columns[i].width = std::max(m_columns[i].width, CountCodePoints(cells[i]));
    }
    m_rows.push_back(std::move(cells));
}

void TextTable::Print(std::ostream & out) const
{
    PrintRow(out, m_titles);
    for (auto const & row : m_rows)
        PrintRow(out, row);
}

void TextTable::PrintRow(std::ostream & out, std::vector<std::string> const & cells) const
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        std::string const blanks(m_columns[i].width - CountCodePoints(cells[i]), ' ');
        if (i != 0)
            line += "  ";
        line += m_columns[i].align == Align::Left ? cells[i] + blanks : blanks + cells[i];
    }
    line.resize(line.find_last_not_of(' ') + 1);
    out << line << '\n';
}

}  // namespace typedtable
