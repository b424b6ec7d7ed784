// Options: the command line.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "typedtable/GroupBy.h"

namespace typedtable {

struct Options
{
    bool help = false;  // then nothing else is set
    std::string file;   // "-" is standard input
    std::size_t rows = 5;
    std::optional<GroupByRequest> groupBy;
};

/// Reads the arguments behind the program's name; "--help" among them wins over everything else. Throws UserError for
/// an unknown option, a missing or bad value, an option given twice, options that contradict each other, and for none
/// or more than one file.
Options ReadOptions(std::vector<std::string> const & arguments);

/// The text of --help.
extern char const * const kUsage;

}  // namespace typedtable
