#include "typedtable/Progress.h"

#include <unistd.h>

#include <cstdio>
#include <string>
#include <utility>

#include "typedtable/TextTable.h"
#include "typedtable/Texts.h"

namespace typedtable {

Progress::Progress(std::string doing) : m_doing(std::move(doing)), m_isTerminal(isatty(STDERR_FILENO) == 1) {}

Progress::~Progress()
{
    if (m_width != 0)
        std::fprintf(stderr, "\r%*s\r", m_width, "");
}

void Progress::Show()
{
    std::string count = std::to_string(m_rows);
    for (std::size_t place = count.size(); place > 3;) {
        place -= 3;
        count.insert(place, ",");
    }
    std::string const line = detail::Fill(m_doing, {count});
    m_width = static_cast<int>(TextTable::WidthOf(line));
    std::fprintf(stderr, "\r%s", line.c_str());
    std::fflush(stderr);
}

}  // namespace typedtable
