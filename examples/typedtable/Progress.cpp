#include "typedtable/Progress.h"

#include <unistd.h>

#include <cstdio>
#include <string>

namespace typedtable {

Progress::Progress(char const * doing) : m_doing(doing), m_isTerminal(isatty(STDERR_FILENO) == 1) {}

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
    m_width = std::fprintf(stderr, "\r%s rows %s", count.c_str(), m_doing) - 1;
    std::fflush(stderr);
}

}  // namespace typedtable
