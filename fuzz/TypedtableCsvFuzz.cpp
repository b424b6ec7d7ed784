// The bytes of a CSV file.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/support/FuzzText.h"
#include "typedtable/ByteSource.h"
#include "typedtable/ColumnTyping.h"
#include "typedtable/CsvReader.h"
#include "typedtable/Schema.h"
#include "typedtable/TypedReader.h"
#include "typedtable/UserError.h"
#include "typedtable/ValueText.h"

namespace {

using namespace typedtable;
using Records = std::vector<std::vector<std::string>>;

class SlowBytes : public ByteSource
{
public:
    explicit SlowBytes(std::string_view text) : m_bytes(text) {}
    std::size_t Read(char * bytes, std::size_t size) override
    {
        return m_bytes.Read(bytes, std::min<std::size_t>(size, 3));
    }

private:
    MemoryBytes m_bytes;
};

// The records, and behind them the error as a record of one cell.
Records ReadAll(ByteSource & source, bool & failed)
{
    Records records;
    failed = false;
    try {
        CsvReader reader(source);
        while (reader.Next())
            records.emplace_back(reader.GetCells().begin(), reader.GetCells().end());
    } catch (UserError const & error) {
        failed = true;
        records.push_back({error.what()});
    }
    return records;
}

std::string Written(Records const & records)
{
    std::string text;
    for (auto const & record : records) {
        for (std::size_t i = 0; i < record.size(); ++i) {
            text += i == 0 ? "\"" : ",\"";
            for (char const c : record[i])
                text.append(c == '"' ? 2 : 1, c);
            text += '"';
        }
        text += "\r\n";
    }
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    using fuzz_support::Require;
    std::string_view const text(reinterpret_cast<char const *>(data), size);
    bool failed = false;
    bool slowFailed = false;
    MemoryBytes whole(text);
    SlowBytes slow(text);
    Records const records = ReadAll(whole, failed);
    Require(ReadAll(slow, slowFailed) == records && slowFailed == failed, "the size of the reads does not matter");
    if (failed || records.empty())
        return 0;

    bool writtenFailed = false;
    std::string const written = Written(records);
    MemoryBytes again(written);
    Require(ReadAll(again, writtenFailed) == records && !writtenFailed, "reading undoes writing");

    MemoryBytes first(text);
    Schema const schema = ReadSchema(first, records.size());
    Require(schema.rows + 1 == static_cast<long long>(records.size()), "a row a record");
    std::vector<std::size_t> columns;
    for (std::size_t i = 0; i < schema.columns.size(); ++i)
        columns.push_back(i);
    MemoryBytes second(text);
    TypedReader reader(second, schema, columns);
    std::vector<long long> nulls(columns.size(), 0);
    for (auto const & row : schema.firstRows.rows) {
        Require(reader.Next(), "as many rows in both readings");
        for (std::size_t const i : columns) {
            Require(ValueText(reader.GetValue(i)) == ValueText(row[i]), "the same values in both readings");
            Require(row[i].GetDataType() == schema.columns[i].type, "values of their column's type");
            nulls[i] += row[i].IsNull();
        }
    }
    for (std::size_t const i : columns)
        Require(nulls[i] == schema.columns[i].nulls, "as many nulls as the schema counts");
    return 0;
}
