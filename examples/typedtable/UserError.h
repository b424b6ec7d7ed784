// UserError: what went wrong, in one line for the user of the program.
#pragma once

#include <stdexcept>
#include <string>

#include "typedtable/Texts.h"

namespace typedtable {

/// A wrong option, a bad file or a column that is not there. The text is UTF-8 and says all that the user needs; the
/// program prints it behind its name, on one line, and ends with exit code 2.
class UserError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A fault in what a file holds. The program puts the file's name in front.
class TableError : public UserError
{
public:
    explicit TableError(std::string const & what) : UserError(what) {}

    /// "line 17: 6 cells where the header has 7". Lines count from 1.
    TableError(long long line, std::string const & what) : UserError(Text("line %1: %2", line, what)) {}
};

}  // namespace typedtable
