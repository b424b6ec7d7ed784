#include "tests/vectors/VectorDriver.h"

#include "velsys/VeltriaException.h"

#include <algorithm>
#include <exception>
#include <fstream>
#include <ostream>
#include <stdexcept>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velcoredata::vectors {

namespace {

constexpr std::size_t kFailuresShown = 10;

struct Tally
{
    std::size_t failed = 0;
    std::size_t skipped = 0;
    std::vector<std::string> reasons;
};

/// Checks one row; returns what differs, and leaves the reason of a skipped row in `row`.
std::string Check(Driver const & driver, Table const & table, Row & row, std::size_t index)
{
    std::size_t const cells = table.rows[index].size();
    if (cells != table.columns.size())
        return "  " + std::to_string(cells) + " cells under " + std::to_string(table.columns.size()) + " columns\n";
    try {
        driver(row);
    } catch (...) {
        return row.Failures() + "  raised " + DescribeCurrentException() + "\n";
    }
    if (row.SkipReason().empty() && row.Failures().empty() && !row.ComparedSomething())
        return "  the driver compared nothing\n";
    return row.Failures();
}

Tally RunTable(std::string const & name, Driver const & driver, Table const & table, std::ostream & err)
{
    Tally tally;
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        Row row(table, i);
        std::string const failures = Check(driver, table, row, i);
        if (!failures.empty()) {
            if (++tally.failed <= kFailuresShown) {
                err << name << ".tsv:" << row.Line() << ":";
                for (std::string const & cell : table.rows[i])
                    err << ' ' << (cell.empty() ? "<empty>" : cell);
                err << '\n' << failures;
            }
        } else if (!row.SkipReason().empty()) {
            ++tally.skipped;
            if (std::find(tally.reasons.begin(), tally.reasons.end(), row.SkipReason()) == tally.reasons.end())
                tally.reasons.push_back(row.SkipReason());
        }
    }
    if (tally.failed > kFailuresShown)
        err << name << ".tsv: " << tally.failed - kFailuresShown << " more failing rows not shown\n";
    return tally;
}

}  // namespace

Row::Row(Table const & table, std::size_t index) : table_(table), index_(index) {}

std::string const & Row::Cell(std::string_view column) const
{
    int const at = table_.Column(column);
    if (at < 0)
        throw std::runtime_error("no column '" + std::string(column) + "'");
    return table_.rows[index_].at(static_cast<std::size_t>(at));
}

void Row::Expect(std::string_view what, std::string_view expected, std::string_view actual)
{
    ++compared_;
    if (expected == actual)
        return;
    failures_.append("  ").append(what).append(": expected '").append(expected);
    failures_.append("', actual '").append(actual).append("'\n");
}

void Row::ExpectCell(std::string_view column, std::string_view actual)
{
    Expect(column, Cell(column), actual);
}

void Row::ExpectText(std::string_view column, std::u16string_view actual)
{
    Expect(column, EscapeText(Text(column)), EscapeText(actual));
}

void Row::ExpectInt(std::string_view column, long long actual)
{
    Expect(column, std::to_string(Int(column)), std::to_string(actual));
}

void Row::ExpectUInt(std::string_view column, unsigned long long actual)
{
    Expect(column, std::to_string(UInt(column)), std::to_string(actual));
}

void Row::ExpectBool(std::string_view column, bool actual)
{
    Expect(column, Bool(column) ? "true" : "false", actual ? "true" : "false");
}

void Row::ExpectReal(std::string_view column, double actual, unsigned long long ulps)
{
    double const expected = Real(column);
    if (UlpDistance(expected, actual) <= ulps)
        ++compared_;
    else
        Expect(column, EncodeReal(expected), EncodeReal(actual));
}

void Row::ExpectDeath(std::string_view what, std::function<void()> const & call)
{
    constexpr int returned = 77;
    constexpr int threw = 78;
    pid_t const child = fork();
    if (child < 0)
        throw std::runtime_error("fork failed");
    if (child == 0) {
        rlimit const noCore{0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        int const nowhere = open("/dev/null", O_WRONLY);
        if (nowhere >= 0) {
            dup2(nowhere, STDERR_FILENO);
            dup2(nowhere, STDOUT_FILENO);
        }
        try {
            call();
        } catch (...) {
            _exit(threw);
        }
        _exit(returned);
    }
    int status = 0;
    waitpid(child, &status, 0);
    char const * actual = "the process ends";
    if (WIFEXITED(status) && WEXITSTATUS(status) == returned)
        actual = "the call returns";
    if (WIFEXITED(status) && WEXITSTATUS(status) == threw)
        actual = "the call raises";
    Expect(what, "the process ends", actual);
}

void Row::Fail(std::string_view why)
{
    failures_.append("  ").append(why).append("\n");
}

void Row::Skip(std::string_view reason)
{
    skipReason_ = reason;
}

Drivers & RegisteredDrivers()
{
    static Drivers drivers;
    return drivers;
}

std::string DescribeCurrentException()
{
    try {
        throw;
    } catch (VeltriaException const & error) {
        return "!" + EscapeText(error.GetErrorInfo().GetError().GetName().View()) + "|" +
               EscapeText(error.GetConcatenatedMessages().View());
    } catch (std::exception const & error) {
        return error.what();
    } catch (...) {
        return "an exception of an unknown class";
    }
}

int RunVectors(std::filesystem::path const & folder, Drivers const & drivers, std::ostream & out, std::ostream & err)
{
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        if (entry->path().extension() == ".tsv")
            files.push_back(entry->path());
    if (error) {
        err << folder.string() << ": " << error.message() << '\n';
        return 1;
    }
    if (files.empty()) {
        err << folder.string() << ": no table\n";
        return 1;
    }
    std::sort(files.begin(), files.end());

    bool failed = false;
    for (std::filesystem::path const & file : files) {
        std::string const name = file.stem().string();
        auto const driver = drivers.find(name);
        if (driver == drivers.end()) {
            out << name << ".tsv: no driver\n";
            continue;
        }
        try {
            std::ifstream in(file, std::ios::binary);
            Table const table = Table::Read(in);
            Tally const tally = RunTable(name, driver->second, table, err);
            out << name << ".tsv: " << table.rows.size() << " rows, " << tally.failed << " failed";
            if (tally.skipped > 0) {
                out << ", " << tally.skipped << " skipped";
                char const * separator = ": ";
                for (std::string const & reason : tally.reasons) {
                    out << separator << reason;
                    separator = "; ";
                }
            }
            out << std::endl;
            failed = failed || tally.failed > 0;
        } catch (std::runtime_error const & unreadable) {
            err << name << ".tsv: " << unreadable.what() << '\n';
            failed = true;
        }
    }
    for (auto const & [name, driver] : drivers)
        if (!std::filesystem::exists(folder / (name + ".tsv"), error))
            err << name << ".tsv: a driver, but no table in " << folder.string() << '\n';
    return failed ? 1 : 0;
}

}  // namespace velcoredata::vectors
