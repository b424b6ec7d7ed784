// Progress: how far a long reading is.
#pragma once

#include <string>

namespace typedtable {

/// Counts rows and, where standard error is a terminal, shows their number there: one line, written anew every 65,536
/// rows and wiped at the end. Anywhere else it writes nothing.
class Progress
{
public:
    /// `doing` has a place for the number: "%1 rows typed" shows as "131,072 rows typed".
    explicit Progress(std::string doing);
    ~Progress();
    Progress(Progress const &) = delete;
    Progress & operator=(Progress const &) = delete;

    void CountRow()
    {
        if ((++m_rows & 0xFFFF) == 0 && m_isTerminal)
            Show();
    }

private:
    void Show();

    std::string m_doing;
    long long m_rows = 0;
    bool m_isTerminal;
    int m_width = 0;  // of the line that stands on the terminal
};

}  // namespace typedtable
