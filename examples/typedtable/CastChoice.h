// CastChoice: --cast, the types that the user gives to columns.
#pragma once

#include <string>

#include "typedtable/ColumnName.h"
#include "velcoredata/data/DataType.h"

namespace typedtable {

struct CastChoice
{
    ColumnName column;
    DataType type;
};

/// Reads COLUMN:TYPE, the type one of those of `--help` in any case. Throws UserError for what is not of this form and
/// for another type.
CastChoice ReadCastChoice(std::string const & text);

/// Where the last colon that does not stand within the brackets of a qualified name is; npos without one, and where
/// nothing stands before it. Throws UserError as ReadColumnName does if a colon stands within brackets alone.
std::size_t FindColonBehindColumn(std::string const & option, std::string const & text);

}  // namespace typedtable
