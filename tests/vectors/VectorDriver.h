#pragma once

#include "tests/vectors/VectorCells.h"
#include "tests/vectors/VectorTable.h"

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <map>
#include <string>
#include <string_view>

/// Drivers of the acceptance tables. A driver checks one row of the table that it is named for:
///
///     VECTOR_DRIVER("dates_lastday")
///     {
///         row.ExpectInt("result", LastDay(row.Int("year"), row.Int("month")));
///     }
///
/// It reads cells by column name and compares through the Expect functions, which record what differs; the row fails
/// when one of them does, when the driver throws, or when the driver compares nothing. A row that a driver leaves out
/// is reported by Skip with the reason, so that it is seen in the table's line.
namespace velcoredata::vectors {

class Row
{
public:
    Row(Table const & table, std::size_t index);

    /// Cells. All throw std::runtime_error when there is no such column or the cell is not of that form.
    std::string const & Cell(std::string_view column) const;
    std::u16string Text(std::string_view column) const { return DecodeText(Cell(column)); }
    double Real(std::string_view column) const { return DecodeReal(Cell(column)); }
    long long Int(std::string_view column) const { return DecodeInt(Cell(column)); }
    unsigned long long UInt(std::string_view column) const { return DecodeUInt(Cell(column)); }
    bool Bool(std::string_view column) const { return DecodeBool(Cell(column)); }
    bool HasColumn(std::string_view column) const { return table_.Column(column) >= 0; }

    /// Line of the row in its file, counted from 1; the first row stands on line 2.
    std::size_t Line() const { return index_ + 2; }

    /// Compares the cell of a column, decoded as the actual value's kind, with the actual value.
    void ExpectCell(std::string_view column, std::string_view actual);
    void ExpectText(std::string_view column, std::u16string_view actual);
    void ExpectInt(std::string_view column, long long actual);
    void ExpectUInt(std::string_view column, unsigned long long actual);
    void ExpectBool(std::string_view column, bool actual);
    /// Equal to the bit, sign of zero included, unless `ulps` units in the last place are allowed. Any NaN meets `nan`.
    void ExpectReal(std::string_view column, double actual, unsigned long long ulps = 0);

    /// Compares two texts under a name of the driver's choice.
    void Expect(std::string_view what, std::string_view expected, std::string_view actual);

    /// Runs the call in a forked child and expects that it does not return: the child dies by a signal or ends.
    void ExpectDeath(std::string_view what, std::function<void()> const & call);

    /// Fails the row.
    void Fail(std::string_view why);

    /// Leaves the row out. The reason is printed in the table's line, each reason once.
    void Skip(std::string_view reason);

    std::string const & SkipReason() const { return skipReason_; }
    /// One line per difference; empty when the row holds.
    std::string const & Failures() const { return failures_; }
    bool ComparedSomething() const { return compared_ > 0; }

private:
    Table const & table_;
    std::size_t index_;
    std::size_t compared_ = 0;
    std::string failures_;
    std::string skipReason_;
};

using Driver = std::function<void(Row &)>;
using Drivers = std::map<std::string, Driver, std::less<>>;

/// The drivers of this program by table name without the ending.
Drivers & RegisteredDrivers();

/// Text of the exception in flight, for a failing row: `!Name|message` for an error of the library, else its `what()`.
/// Call it in a catch block only.
std::string DescribeCurrentException();

/// Runs the driver of each `*.tsv` of a folder, in the order of the names. Prints to `out` for each
///     NAME.tsv: N rows, F failed
///     NAME.tsv: N rows, F failed, S skipped: reason; reason
///     NAME.tsv: no driver
/// and to `err` the first failing rows of each table, and a line for each driver whose table is not in the folder.
/// N counts all rows, skipped ones included. Returns 0 when no row failed, else 1; 1 also for a folder that cannot be
/// read or holds no table, and for a table that cannot be read.
int RunVectors(std::filesystem::path const & folder, Drivers const & drivers, std::ostream & out, std::ostream & err);

struct DriverRegistration
{
    DriverRegistration(char const * table, void (*driver)(Row &))
    {
        RegisteredDrivers().insert_or_assign(table, driver);
    }
};

}  // namespace velcoredata::vectors

#define VECTOR_DRIVER_JOIN_(a, b) a##b
#define VECTOR_DRIVER_NAME_(prefix, line) VECTOR_DRIVER_JOIN_(prefix, line)
#define VECTOR_DRIVER(table)                                                                                           \
    static void VECTOR_DRIVER_NAME_(VectorDriver, __LINE__)(velcoredata::vectors::Row & row);                          \
    static velcoredata::vectors::DriverRegistration const VECTOR_DRIVER_NAME_(vectorRegistration, __LINE__)(           \
        table, &VECTOR_DRIVER_NAME_(VectorDriver, __LINE__));                                                          \
    static void VECTOR_DRIVER_NAME_(VectorDriver, __LINE__)([[maybe_unused]] velcoredata::vectors::Row & row)
