// RowSink: what becomes of the rows of the second reading.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

#include "typedtable/TypedReader.h"

namespace typedtable {

/// Takes the rows one by one and prints what it made of them.
class RowSink
{
public:
    virtual ~RowSink() = default;

    /// Indices of the columns that a row needs.
    virtual std::vector<std::size_t> GetColumns() const = 0;

    /// What is done with the rows, for the progress line: "%1 rows grouped" in the language in force.
    virtual std::string GetDoing() const = 0;

    /// Throws TableError if it cannot take the row.
    virtual void Add(TypedReader const & row) = 0;

    /// Once, behind the last row. Throws TableError, before anything is printed, if a result cannot be had.
    virtual void Print(std::ostream & out) = 0;
};

}  // namespace typedtable
