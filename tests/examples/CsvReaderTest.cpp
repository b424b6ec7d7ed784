#include "typedtable/CsvReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "typedtable/UserError.h"

namespace typedtable {
namespace {

using namespace std::string_literals;
using Records = std::vector<std::vector<std::string>>;

// Gives so many bytes at a time.
class SlowBytes : public ByteSource
{
public:
    SlowBytes(std::string const & text, std::size_t step) : m_bytes(text), m_step(step) {}
    std::size_t Read(char * bytes, std::size_t size) override { return m_bytes.Read(bytes, std::min(size, m_step)); }

private:
    MemoryBytes m_bytes;
    std::size_t m_step;
};

// One byte, over and over.
class EndlessByte : public ByteSource
{
public:
    explicit EndlessByte(char first, char byte) : m_first(first), m_byte(byte) {}
    std::size_t Read(char * bytes, std::size_t size) override
    {
        std::memset(bytes, m_byte, size);
        if (m_first != '\0')
            bytes[0] = m_first;
        m_first = '\0';
        return size;
    }

private:
    char m_first;
    char m_byte;
};

Records ReadAll(ByteSource & source)
{
    CsvReader reader(source);
    Records records;
    while (reader.Next())
        records.emplace_back(reader.GetCells().begin(), reader.GetCells().end());
    return records;
}

std::string ErrorOf(ByteSource & source)
{
    try {
        ReadAll(source);
    } catch (UserError const & error) {
        return error.what();
    }
    return "no error";
}

struct Case
{
    char const * name;
    std::string text;
    Records records;
};

class CsvReaderReads : public testing::TestWithParam<Case>
{};

TEST_P(CsvReaderReads, TheSameWhateverTheSizeOfTheReads)
{
    for (std::size_t const step : {std::size_t{1}, std::size_t{2}, std::size_t{7}, std::size_t{100000}}) {
        SlowBytes source(GetParam().text, step);
        EXPECT_EQ(ReadAll(source), GetParam().records) << "in steps of " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CsvReaderReads,
    testing::Values(Case{"Nothing", "", {}}, Case{"LineFeeds", "a,b\n1,2\n", {{"a", "b"}, {"1", "2"}}},
                    Case{"CarriageReturns", "a,b\r\n1,2\r\n", {{"a", "b"}, {"1", "2"}}},
                    Case{"MixedLineEnds", "a,b\r\n1,2\n3,4\r\n", {{"a", "b"}, {"1", "2"}, {"3", "4"}}},
                    Case{"NoLastLineEnd", "a,b\n1,2", {{"a", "b"}, {"1", "2"}}},
                    Case{"CutOffInALineEnd", "a,b\r\n1,2\r", {{"a", "b"}, {"1", "2"}}},
                    Case{"LoneCarriageReturnIsText", "a,b\n1\r2,\r\n", {{"a", "b"}, {"1\r2", ""}}},
                    Case{"TwoCarriageReturns", "a,b\r\r\n", {{"a", "b\r"}}},
                    Case{"ByteOrderMark", "\xEF\xBB\xBF\"a\",b\n1,2\n", {{"a", "b"}, {"1", "2"}}},
                    Case{"ByteOrderMarkAlone", "\xEF\xBB\xBF", {}},
                    Case{"ByteOrderMarkLaterIsText", "a\n\xEF\xBB\xBF\n", {{"a"}, {"\xEF\xBB\xBF"}}},
                    Case{"ShorterThanAByteOrderMark", "a", {{"a"}}},
                    Case{"EmptyCells", "a,b,c\n,,\n", {{"a", "b", "c"}, {"", "", ""}}},
                    Case{"EmptyLastCellAtTheEnd", "a,b\n1,", {{"a", "b"}, {"1", ""}}},
                    Case{"QuotedComma", "a,b\n\"1,2\",3\n", {{"a", "b"}, {"1,2", "3"}}},
                    Case{"QuotedQuote", "a\n\"say \"\"so\"\"\"\n", {{"a"}, {"say \"so\""}}},
                    Case{"QuotedQuoteAlone", "a\n\"\"\"\"\n", {{"a"}, {"\""}}},
                    Case{"QuotedLineBreaks", "a,b\n\"1\n2\r\n3\",4\n", {{"a", "b"}, {"1\n2\r\n3", "4"}}},
                    Case{"QuotedEmpty", "a,b\n\"\",\"\"\r\n", {{"a", "b"}, {"", ""}}},
                    Case{"QuotedAtTheEnd", "a,b\n1,\"2\"", {{"a", "b"}, {"1", "2"}}},
                    Case{"QuoteInsideACell", "a,b\n5\" pipe,x\"y\"\n", {{"a", "b"}, {"5\" pipe", "x\"y\""}}},
                    Case{"BlankBeforeAQuote", "a\n \"b\"\n", {{"a"}, {" \"b\""}}},
                    Case{"BlankLinesAreSkipped", "\n\r\na,b\n\n1,2\r\n\r\n\n", {{"a", "b"}, {"1", "2"}}},
                    Case{"BlankLinesOfOneColumnAreCells", "a\n1\n\n\r\n2\n", {{"a"}, {"1"}, {""}, {""}, {"2"}}},
                    Case{"OneQuotedEmptyColumn", "\"\"\n\n", {{""}, {""}}},
                    Case{"Utf8", "a\ncaf\xC3\xA9 \xF0\x9F\x8C\xA7\n", {{"a"}, {"caf\xC3\xA9 \xF0\x9F\x8C\xA7"}}}),
    [](auto const & info) { return info.param.name; });

struct BadCase
{
    char const * name;
    std::string text;
    char const * error;
};

class CsvReaderRefuses : public testing::TestWithParam<BadCase>
{};

TEST_P(CsvReaderRefuses, WithTheNumberOfTheLine)
{
    for (std::size_t const step : {std::size_t{1}, std::size_t{100000}}) {
        SlowBytes source(GetParam().text, step);
        EXPECT_EQ(ErrorOf(source), GetParam().error) << "in steps of " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CsvReaderRefuses,
    testing::Values(BadCase{"ShortRecord", "a,b\n1,2\n3\n", "line 3: 1 cell where the header has 2"},
                    BadCase{"LongRecord", "a,b\r\n1,2,3\r\n", "line 2: 3 cells where the header has 2"},
                    BadCase{"ARecordBehindLineBreaks", "a,b\n\"1\n\n2\",3\n4\n",
                            "line 5: 1 cell where the header has 2"},
                    BadCase{"ARecordBehindBlankLines", "a,b\n\n\n4\n", "line 4: 1 cell where the header has 2"},
                    BadCase{"QuotedEmptyIsNoBlankLine", "a,b\n\"\"\n", "line 2: 1 cell where the header has 2"},
                    BadCase{"OpenQuote", "a,b\n1,\"2\n3,4\n", "line 2: a quote is never closed"},
                    BadCase{"OpenQuoteAtTheEnd", "a,b\n1,2\n\"", "line 3: a quote is never closed"},
                    BadCase{"TextBehindAQuote", "a,b\n1,\"2\"x\n", "line 2: text behind a closing quote"},
                    BadCase{"BlankBehindAQuote", "a,b\n\"1\" ,2\n", "line 2: text behind a closing quote"},
                    BadCase{"CarriageReturnBehindAQuote", "a\n\"1\"\r2\n", "line 2: text behind a closing quote"},
                    BadCase{"TextBehindALongQuote", "a\n\"1\n2\"x\n", "line 3: text behind a closing quote"},
                    BadCase{"LoneContinuationByte", "a\n\x80\n", "line 2: text that is not UTF-8"},
                    BadCase{"Latin1", "a\nb\ncaf\xE9\n", "line 3: text that is not UTF-8"},
                    BadCase{"OverlongSlash", "a\n\xC0\xAF\n", "line 2: text that is not UTF-8"},
                    BadCase{"Surrogate", "a\n\xED\xA0\x80\n", "line 2: text that is not UTF-8"},
                    BadCase{"BeyondUnicode", "a\n\xF4\x90\x80\x80\n", "line 2: text that is not UTF-8"},
                    BadCase{"CutOffSequence", "a\n\xE2\x82", "line 2: text that is not UTF-8"},
                    BadCase{"SequenceAcrossCells", "a,b\n\xC3,\xA9\n", "line 2: text that is not UTF-8"},
                    BadCase{"Utf16",
                            "\xFF\xFE"
                            "a\0\n\0"s,
                            "line 1: a zero byte: this is not a text file"},
                    BadCase{"ZeroByteInQuotes", "a\n\"b\0\"\n"s, "line 2: a zero byte: this is not a text file"}),
    [](auto const & info) { return info.param.name; });

TEST(CsvReader, CountsTheLinesOnWhichRecordsBegin)
{
    MemoryBytes source("a,b\r\n\"1\n2\",3\n\n4,5");
    CsvReader reader(source);
    std::vector<long long> lines;
    while (reader.Next())
        lines.push_back(reader.GetLine());
    EXPECT_THAT(lines, testing::ElementsAre(1, 2, 5));
}

TEST(CsvReader, StaysAtTheEnd)
{
    MemoryBytes source("a\n");
    CsvReader reader(source);
    EXPECT_TRUE(reader.Next());
    EXPECT_FALSE(reader.Next());
    EXPECT_FALSE(reader.Next());
}

TEST(CsvReader, BoundsTheMemoryOfARecord)
{
    char const * const error = "line 1: a record of more than 16 MiB: is a quote not closed?";
    EndlessByte quoted('"', 'a');
    EXPECT_EQ(ErrorOf(quoted), error);
    EndlessByte plain('\0', 'a');
    EXPECT_EQ(ErrorOf(plain), error);
    EndlessByte commas('\0', ',');
    EXPECT_EQ(ErrorOf(commas), "line 1: a record of more than 16 MiB");
}

TEST(CsvReader, ReadsARecordOfTheLongestLength)
{
    std::string const cell(CsvReader::kLongestRecord, 'a');
    MemoryBytes source(cell);
    EXPECT_EQ(ReadAll(source), Records{{cell}});
}

}  // namespace
}  // namespace typedtable
