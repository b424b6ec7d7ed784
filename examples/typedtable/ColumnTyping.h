// ColumnTyping: the type of a column, found by looking at its cells, and the typed value of a cell.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataType.h"
#include "velcoredata/data/DataValue.h"

namespace typedtable {

/// A cell as DataValueOperators::ExplicitCast makes it a value of a type that the user named: %error% if it does not.
/// Blanks and tabs around anything but text are ignored, and a cell of nothing else is the null of the type. Text that
/// is no shape is a null of Spatial, as the cast has it. Nothing casts to Boolean.
DataValue CastCell(std::string_view cell, DataType type, Collation const & collation = GetUnknownCollation());

/// The same for a type that nobody named: nothing if the cell is not written as one (HasShapeOf) or the cast fails. The
/// value is that of the cast. What each type reads:
///
///   Integer   an optional sign and digits within 64 signed bits: `42`, `-7`. Not `007`: a leading zero marks an
///             identifier, which as a number would lose it
///   Real      the same with a point, an exponent or both: `0.5`, `.5`, `1e-3`; and every Integer and whole number
///             beyond 64 bits. Not `inf`, `nan` or what a double cannot hold
///   Boolean   `true` and `false` in any case, which no cast reads
///   Date      yyyy-MM-dd: a day of the years 0400 to 9999
///   DateTime  yyyy-MM-dd, a T or a blank, HH:mm, then perhaps :ss, then perhaps a point and 1 to 9 digits, of which
///   the
///             first three are read; and every Date as its midnight. No time zone. Up to 9999-12-31 23:59:59
///   String    every cell, with its blanks, under the collation
///
/// Only these types are asked for.
std::optional<DataValue> ReadCell(std::string_view cell, DataType type,
                                  Collation const & collation = GetUnknownCollation());

/// Gathers the type of one column. Every cell that is not null narrows it: cells of one type give this type, integers
/// with reals give Real, dates with date-times give DateTime, everything else String. So does a column of nulls alone.
class ColumnTyping
{
public:
    /// The cell that made a text of a column whose cells before it were all of another type.
    struct Breaker
    {
        long long line;
        std::string cell;
    };

    /// `line` is where the cell's row begins.
    void Add(std::string_view cell, long long line = 0);

    DataType GetType() const noexcept { return m_type == DataType::Unknown ? DataType::String : m_type; }

    /// Nothing for a column that is no text, and for one that was text from its first cell on.
    std::optional<Breaker> const & GetBreaker() const noexcept { return m_breaker; }

    /// Empty cells, and those of blanks and tabs alone.
    long long GetNulls() const noexcept { return m_nulls; }

private:
    DataType m_type = DataType::Unknown;
    long long m_nulls = 0;
    std::optional<Breaker> m_breaker;
};

}  // namespace typedtable
