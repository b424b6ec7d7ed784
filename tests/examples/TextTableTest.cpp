#include "typedtable/TextTable.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "typedtable/ValueText.h"

namespace typedtable {
namespace {

std::string Printed(TextTable const & table)
{
    std::ostringstream out;
    table.Print(out);
    return out.str();
}

TEST(TextTable, AlignsByCodePointsAndEndsLinesWithoutBlanks)
{
    TextTable table;
    table.AddColumn("n", TextTable::Align::Right);
    table.AddColumn("name", TextTable::Align::Left);
    table.AddRow({"1", "caf\xC3\xA9"});
    table.AddRow({"200", "ab"});
    table.AddRow({"", ""});
    EXPECT_EQ(Printed(table), "  n  name\n  1  caf\xC3\xA9\n200  ab\n\n");
}

TEST(TextTable, CutsCellsWiderThan40Characters)
{
    TextTable table;
    table.AddColumn(std::string(41, 'c'), TextTable::Align::Left);
    std::string wide;
    std::string cut;
    for (int i = 0; i < 41; ++i)
        wide += "\xC3\xA9";
    for (int i = 0; i < 37; ++i)
        cut += "\xC3\xA9";
    table.AddRow({wide});
    table.AddRow({wide.substr(2)});
    EXPECT_EQ(Printed(table), std::string(37, 'c') + "...\n" + cut + "...\n" + wide.substr(2) + "\n");
}

TEST(OnOneLine, EscapesControlCharacters)
{
    EXPECT_EQ(OnOneLine("a\nb\rc\td"), "a\\nb\\rc\\td");
    EXPECT_EQ(OnOneLine("\x1B[31m\x7F"), "\\x1B[31m\\x7F");
    EXPECT_EQ(OnOneLine("\xC2\x9B"
                        "1m\xC2\xA0\xC3\x9F"),
              "\\x9B1m\xC2\xA0\xC3\x9F");
    EXPECT_EQ(OnOneLine("\xC2"), "\xC2");
}

}  // namespace
}  // namespace typedtable
