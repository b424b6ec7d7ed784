// DateInference: how the texts of a column are dates.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DataType.h"
#include "velcoredata/data/DataValue.h"
#include "velcoreplatform/TString.h"

namespace typedtable {

/// A pattern that reads cells, with its own object for reading: it holds the formatter that found the pattern.
struct DatePattern
{
    TString pattern;  // in ICU's letters; empty for the platform's parser, which tells none
    TString example;  // the cell whose search found it
    std::unique_ptr<TLocale> locale;
    long long cells = 0;    // that it reads
    bool hasTimes = false;  // of day in one of them
};

/// The dates of one column: the patterns of its cells, those that read most cells first.
class DateColumn
{
public:
    /// `disagreeing`: cells that the first pattern does not read. There is at least one pattern.
    DateColumn(std::vector<DatePattern> patterns, long long cells);

    /// By the first pattern that reads the cell; an empty cell is a null; nothing for a cell that none reads.
    std::optional<DataValue> Read(std::string_view cell) const;

    /// DateTime if a pattern has a time of day, else Date.
    DataType GetType() const noexcept { return m_type; }

    /// The pattern that reads most cells, of equal ones the one that the search finds first.
    DatePattern const & GetWinner() const noexcept { return m_patterns.front(); }
    /// Cells that the winner does not read.
    long long GetDisagreeing() const noexcept { return m_cells - GetWinner().cells; }
    /// The winner's pattern with day and month changed round; null behind a year and for the platform's parser.
    DatePattern const * GetTwin() const noexcept;

private:
    std::vector<DatePattern> m_patterns;
    long long m_cells;
    DataType m_type;
};

/// Finds the patterns of one column in two readings: Look at every cell in the first and Count every cell in the
/// second. A column is one of dates if each of its cells that is not empty is found by the locale's search under a
/// pattern with a day, a month and a year, and there are at most twelve patterns.
class DateInference
{
public:
    explicit DateInference(TLocale const & locale);

    void Look(std::string_view cell);
    bool IsDates() const noexcept { return m_isDates && !m_patterns.empty(); }
    void Count(std::string_view cell);
    /// Precondition: IsDates.
    std::shared_ptr<DateColumn const> Finish();

private:
    void AddTwins();

    TLocale m_locale;
    bool m_isDates = true;
    bool m_hasTwins = false;
    std::vector<DatePattern> m_patterns;
    long long m_cells = 0;
};

}  // namespace typedtable
