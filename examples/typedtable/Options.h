// Options: the command line.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "typedtable/CollationChoice.h"
#include "typedtable/ColumnOptions.h"
#include "typedtable/DateChoice.h"
#include "typedtable/Distinct.h"
#include "typedtable/GroupBy.h"
#include "typedtable/Listing.h"
#include "typedtable/LocaleList.h"
#include "typedtable/RowFilter.h"
#include "typedtable/Summary.h"

namespace typedtable {

struct HelpRequest
{};

struct ExplainRequest
{
    std::string collation;  // a collator name
};

/// The columns and the first rows.
struct SchemaRequest
{
    std::size_t rows;
};

struct Options
{
    /// What the program does. The last four read the rows a second time.
    using Task = std::variant<HelpRequest, ExplainRequest, LocalesRequest, DateOrderRequest, SchemaRequest,
                              ListingRequest, SummaryRequest, DistinctRequest, GroupByRequest>;

    Task task;
    std::string file;  // "-" is standard input; empty for the first four tasks
    FilterRequest filter;
    CollationChoice collation;
    DateChoice dates;
    std::vector<CastChoice> casts;
    std::vector<FormatChoice> formats;
    bool sqlNulls = false;
};

/// Reads the arguments behind the program's name; "--help" among them wins over everything else. Throws UserError for
/// an unknown option, a missing or bad value, an option given twice, options that contradict each other or do
/// nothing, and for none or more than one file.
Options ReadOptions(std::vector<std::string> const & arguments);

/// What stands behind "--language", for texts that are needed before the arguments are read; nothing if it is not
/// there, has no value, or "--help" is there.
std::optional<std::string> FindLanguage(std::vector<std::string> const & arguments);

/// The text of --help, in English.
extern char const * const kUsage;

}  // namespace typedtable
