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

// The number of a code point, from its first byte on; well-formed UTF-8 is taken for granted.
char32_t CodePointAt(std::string_view text, std::size_t at) noexcept
{
    auto const lead = static_cast<unsigned char>(text[at]);
    char32_t point = lead < 0x80 ? lead : lead & (lead < 0xE0 ? 0x1F : lead < 0xF0 ? 0x0F : 0x07);
    for (++at; at < text.size() && !BeginsCodePoint(text[at]); ++at)
        point = point << 6 | (static_cast<unsigned char>(text[at]) & 0x3F);
    return point;
}

// The blocks of East Asian wide characters; ambiguous ones count as narrow.
constexpr std::pair<char32_t, char32_t> kWide[] = {
    {0x1100, 0x115F}, {0x2E80, 0x303E}, {0x3041, 0xA4CF}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F}, {0xFF01, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F}, {0x20000, 0x3FFFD},
};

std::size_t WidthAt(std::string_view text, std::size_t at) noexcept
{
    char32_t const point = CodePointAt(text, at);
    for (auto const & [first, last] : kWide) {
        if (point >= first && point <= last)
            return 2;
    }
    return 1;
}

void CutToWidest(std::string & text)
{
    if (TextTable::WidthOf(text) <= TextTable::kWidestCell)
        return;
    std::size_t width = 0;
    std::size_t end = 0;
    while (width + WidthAt(text, end) <= TextTable::kWidestCell - 3) {
        width += WidthAt(text, end++);
        while (!BeginsCodePoint(text[end]))
            ++end;
    }
    text.resize(end);
    text += "...";
}

}  // namespace

std::size_t TextTable::WidthOf(std::string_view text) noexcept
{
    std::size_t width = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
        width += BeginsCodePoint(text[at]) ? WidthAt(text, at) : 0;
    return width;
}

void TextTable::AddColumn(std::string title, Align align)
{
    CutToWidest(title);
    m_columns.push_back({align, WidthOf(title)});
    m_titles.push_back(std::move(title));
}

void TextTable::AddRow(std::vector<std::string> cells)
{
    assert(cells.size() == m_columns.size());
    for (std::size_t i = 0; i < cells.size(); ++i) {
        CutToWidest(cells[i]);
        m_columns[i].width = std::max(m_columns[i].width, WidthOf(cells[i]));
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
        std::string const blanks(m_columns[i].width - WidthOf(cells[i]), ' ');
        if (i != 0)
            line += "  ";
        line += m_columns[i].align == Align::Left ? cells[i] + blanks : blanks + cells[i];
    }
    line.resize(line.find_last_not_of(' ') + 1);
    out << line << '\n';
}

}  // namespace typedtable
