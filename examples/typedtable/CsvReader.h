// CsvReader: the records of a CSV file, one at a time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "typedtable/ByteSource.h"

namespace typedtable {

/// Reads UTF-8 text in comma-separated form, with memory for one record at a time.
///
///   - Cells are separated by commas, records by LF or CR LF; the last record needs no line end. A CR elsewhere is
///   text.
///   - A cell that begins with a quote ends at the next single quote; inside it "" is one quote, and commas and line
///     breaks are text. A quote further inside an unquoted cell is text: `5" pipe`.
///   - A byte order mark at the front is skipped.
///   - Every record has as many cells as the first one. Blank lines are skipped, but where the first record has one
///   cell:
///     there they are records with an empty cell.
///
/// Throws UserError, with the number of the line, for a record with more or fewer cells than the first, text between a
/// closing quote and the next comma, a quote that is never closed, text that is not UTF-8, a zero byte, and a record of
/// more than 16 MiB. After an error the reader is of no more use.
class CsvReader
{
public:
    static constexpr std::size_t kLongestRecord = std::size_t{16} << 20;

    /// The source stays the caller's and outlives the reader.
    explicit CsvReader(ByteSource & source);

    /// Reads the next record; false at the end.
    bool Next();

    /// Cells of the last record, without their quotes; valid until the next call of Next.
    std::vector<std::string_view> const & GetCells() const noexcept { return m_cells; }

    /// The line, from 1, on which the last record begins.
    long long GetLine() const noexcept { return m_recordLine; }

private:
    int Peek();
    int Get();
    bool Fill();
    void Append(char byte);
    bool SkipLineEnd();
    bool ReadRecord();
    void ReadQuotedCell();
    void ReadPlainCell();

    ByteSource & m_source;
    std::vector<char> m_buffer;
    std::size_t m_next = 0;  // in m_buffer
    std::size_t m_end = 0;
    long long m_line = 1;
    long long m_recordLine = 0;
    std::size_t m_width = 0;  // cells of the first record; 0 before it
    bool m_hasHighBytes = false;
    bool m_isBlank = false;
    std::string m_bytes;              // cells of the record, one behind the other
    std::vector<std::size_t> m_ends;  // of the cells, in m_bytes
    std::vector<std::string_view> m_cells;
};

}  // namespace typedtable
