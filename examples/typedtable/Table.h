// Table: rows of values under named columns.
#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "velcoredata/data/DataType.h"
#include "velcoredata/data/DataValue.h"

namespace typedtable {

class NumberFormat;

/// Rows of a file, or groups: what the program prints. Each row has one value a column, of the column's type or a null
/// of it.
struct Table
{
    struct Column
    {
        std::string name;  // UTF-8
        DataType type;
        std::shared_ptr<NumberFormat const> format = nullptr;  // of a column of numbers that has one
    };

    std::vector<Column> columns;
    std::vector<std::vector<DataValue>> rows;
};

/// Names and rows in columns, numbers to the right.
void PrintTable(std::ostream & out, Table const & table);

}  // namespace typedtable
