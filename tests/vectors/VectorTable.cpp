#include "tests/vectors/VectorTable.h"

#include <istream>
#include <stdexcept>

namespace velcoredata::vectors {

namespace {

std::vector<std::string> Split(std::string_view line)
{
    std::vector<std::string> cells;
    for (;;) {
        std::size_t const tab = line.find('\t');
        cells.emplace_back(line.substr(0, tab));
        if (tab == std::string_view::npos)
            return cells;
        line.remove_prefix(tab + 1);
    }
}

}  // namespace

Table Table::Read(std::istream & in)
{
    Table table;
    std::string line;
    if (!std::getline(in, line) || line.empty())
        throw std::runtime_error("no line of column names");
    table.columns = Split(line);
    while (std::getline(in, line))
        table.rows.push_back(Split(line));
    return table;
}

int Table::Column(std::string_view name) const
{
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i] == name)
            return static_cast<int>(i);
    return -1;
}

}  // namespace velcoredata::vectors
