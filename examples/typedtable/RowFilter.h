// RowFilter: the rows that the user asked for.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "typedtable/Condition.h"
#include "typedtable/Schema.h"
#include "typedtable/TypedReader.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/utility/DataValueOperators.h"

namespace typedtable {

/// Both hold for a row that is taken.
struct FilterRequest
{
    std::optional<Condition> where;
    std::optional<std::string> find;  // UTF-8, not empty
};

/// Compares by DataValueOperators and searches texts under their collation. A null lies below everything else and
/// equals a null; with SQL semantics no comparison with a null holds.
class RowFilter
{
public:
    /// Throws TableError if the column is missing or does not compare with the literal, and for a search where no
    /// column is text.
    RowFilter(FilterRequest const & request, Schema const & schema, Collation const & collation, bool sqlNulls);

    /// Appends the indices of the columns that a row needs.
    void AppendIndices(std::vector<std::size_t> & indices) const;

    bool Matches(TypedReader const & row) const;

private:
    struct Where
    {
        std::size_t column;
        Comparison comparison;
        DataValue literal;
    };

    bool Satisfies(DataValue const & value) const;
    bool FindsText(TypedReader const & row) const;

    std::optional<Where> m_where;
    TString m_pattern;  // empty if nothing is searched for
    std::vector<std::size_t> m_textColumns;
    Collation m_collation;
    bool m_sqlNulls;
    DataValueOperators m_operators;
};

}  // namespace typedtable
