// Condition: a comparison of a column with a literal, as the user writes it.
#pragma once

#include <string>

#include "typedtable/ColumnName.h"
#include "velcoredata/data/DataValue.h"

namespace typedtable {

enum class Comparison
{
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual
};

/// `temp_max > 20`.
struct Condition
{
    ColumnName column;
    Comparison comparison;
    DataValue literal;  // a text has the unknown collation; `null` is a typeless null
};

/// Reads COLUMN COMPARISON LITERAL, blanks between them as one likes. The comparison is the first of = != < <= > >=;
/// a column whose name holds one of them stands in double quotes, `"a<b" > 3`, or is a qualified name, `[a<b] > 3`.
/// Literals:
///
///   20  -0.5  1e3         Integer or Real, as cells are read
///   "rain"  'rain'        text; a quote inside is written twice
///   true  false           Boolean, in any case
///   2012-01-31            Date, and DateTime with a time behind it; also between two #
///   null                  in lower case
///
/// Throws UserError "--where: ..." for everything else.
Condition ReadCondition(std::string const & text);

/// Whether the answer of DataValueOperators::Compare, -1, 0 or 1, is what the comparison asks for.
bool Holds(Comparison comparison, int order) noexcept;

}  // namespace typedtable
