#include "tests/vectors/VectorDriver.h"

#include "velsys/ThrowSite.h"
#include "velsys/VeltriaException.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <limits>
#include <sstream>
#include <stdexcept>

#include <unistd.h>

using namespace velcoredata::vectors;

namespace {

Table TableOf(std::string const & text)
{
    std::istringstream in(text);
    return Table::Read(in);
}

/// A folder of tables that goes away with the test.
class VectorFolder : public testing::Test
{
protected:
    VectorFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "vectors-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
    }
    ~VectorFolder() override { std::filesystem::remove_all(folder_); }

    void Write(std::string const & name, std::string const & text) { std::ofstream(folder_ / name) << text; }

    int Run(Drivers const & drivers) { return RunVectors(folder_, drivers, out_, err_); }

    std::filesystem::path folder_;
    std::ostringstream out_;
    std::ostringstream err_;
};

void SumDriver(Row & row)
{
    row.ExpectInt("sum", row.Int("a") + row.Int("b"));
}

}  // namespace

TEST(VectorTable, KeepsEmptyCellsAtTheEndOfALine)
{
    Table const table = TableOf("a\tb\tc\n1\t\t\n\t\t3\n");
    ASSERT_EQ(table.rows.size(), 2u);
    EXPECT_EQ(table.rows[0], (std::vector<std::string>{"1", "", ""}));
    EXPECT_EQ(table.rows[1], (std::vector<std::string>{"", "", "3"}));
}

TEST(VectorTable, KeepsBlanksAndCarriageReturns)
{
    Table const table = TableOf("a\n x \r\n");
    EXPECT_EQ(table.rows[0][0], " x \r");
}

TEST(VectorTable, LastLineNeedsNoTerminatorAndOneColumnMayBeEmpty)
{
    EXPECT_EQ(TableOf("a\n1\n2").rows.size(), 2u);
    EXPECT_EQ(TableOf("a\n\n2\n").rows.size(), 2u);
    EXPECT_EQ(TableOf("a\n").rows.size(), 0u);
    EXPECT_THROW(TableOf(""), std::runtime_error);
}

TEST(VectorRow, CellsAreReachedByColumnName)
{
    Table const table = TableOf("text\treal\tint\tbool\n\\u0041\t0x1p-1\t-7\ttrue\n");
    Row const row(table, 0);
    EXPECT_EQ(row.Text("text"), u"A");
    EXPECT_EQ(row.Real("real"), 0.5);
    EXPECT_EQ(row.Int("int"), -7);
    EXPECT_TRUE(row.Bool("bool"));
    EXPECT_EQ(row.Line(), 2u);
    EXPECT_TRUE(row.HasColumn("int"));
    EXPECT_FALSE(row.HasColumn("none"));
    EXPECT_THROW(row.Cell("none"), std::runtime_error);
}

TEST(VectorRow, EveryExpectSeesADifference)
{
    Table const table = TableOf("text\treal\tint\tbool\n\\u0041\t0x1p-1\t7\ttrue\n");
    Row right(table, 0);
    right.ExpectCell("text", "\\u0041");
    right.ExpectText("text", u"A");
    right.ExpectReal("real", 0.5);
    right.ExpectReal("real", 0.5 + std::numeric_limits<double>::epsilon(), 2);
    right.ExpectInt("int", 7);
    right.ExpectUInt("int", 7);
    right.ExpectBool("bool", true);
    right.Expect("name", "x", "x");
    EXPECT_EQ(right.Failures(), "");
    EXPECT_TRUE(right.ComparedSomething());

    auto const fails = [&](auto const & compare) {
        Row row(table, 0);
        compare(row);
        return !row.Failures().empty();
    };
    EXPECT_TRUE(fails([](Row & row) { row.ExpectCell("text", "A"); }));
    EXPECT_TRUE(fails([](Row & row) { row.ExpectText("text", u"B"); }));
    EXPECT_TRUE(fails([](Row & row) { row.ExpectReal("real", 0.25); }));
    EXPECT_TRUE(fails([](Row & row) { row.ExpectInt("int", 8); }));
    EXPECT_TRUE(fails([](Row & row) { row.ExpectUInt("int", 8); }));
    EXPECT_TRUE(fails([](Row & row) { row.ExpectBool("bool", false); }));
    EXPECT_TRUE(fails([](Row & row) { row.Expect("name", "x", "y"); }));
    EXPECT_TRUE(fails([](Row & row) { row.Fail("why"); }));
}

TEST(VectorRow, DeathIsToldFromReturningAndRaising)
{
    Table const table = TableOf("a\n1\n");
    Row dies(table, 0);
    dies.ExpectDeath("abort", [] { std::abort(); });
    dies.ExpectDeath("exit", [] { _exit(3); });
    EXPECT_EQ(dies.Failures(), "");
    Row returns(table, 0);
    returns.ExpectDeath("call", [] {});
    EXPECT_NE(returns.Failures().find("the call returns"), std::string::npos);
    Row raises(table, 0);
    raises.ExpectDeath("call", [] { throw 1; });
    EXPECT_NE(raises.Failures().find("the call raises"), std::string::npos);
}

TEST_F(VectorFolder, OneLinePerTableInTheOrderOfNames)
{
    Write("sums.tsv", "a\tb\tsum\n1\t2\t3\n2\t2\t4\n");
    Write("other.tsv", "x\n1\n");
    Write("README.md", "not a table");
    EXPECT_EQ(Run({{"sums", SumDriver}}), 0);
    EXPECT_EQ(out_.str(), "other.tsv: no driver\nsums.tsv: 2 rows, 0 failed\n");
    EXPECT_EQ(err_.str(), "");
}

TEST_F(VectorFolder, AFailingRowIsShownAndFailsTheRun)
{
    Write("sums.tsv", "a\tb\tsum\n1\t2\t3\n2\t2\t5\n");
    EXPECT_EQ(Run({{"sums", SumDriver}}), 1);
    EXPECT_EQ(out_.str(), "sums.tsv: 2 rows, 1 failed\n");
    EXPECT_EQ(err_.str(), "sums.tsv:3: 2 2 5\n  sum: expected '5', actual '4'\n");
}

TEST_F(VectorFolder, SkippedRowsAreCountedWithTheirReasons)
{
    Write("sums.tsv", "a\tb\tsum\n1\t2\t3\n9\t2\t0\n9\t3\t0\n8\t1\t0\n");
    auto const driver = [](Row & row) {
        if (row.Int("a") == 9)
            return row.Skip("nine is left out");
        if (row.Int("a") == 8)
            return row.Skip("so is eight");
        SumDriver(row);
    };
    EXPECT_EQ(Run({{"sums", driver}}), 0);
    EXPECT_EQ(out_.str(), "sums.tsv: 4 rows, 0 failed, 3 skipped: nine is left out; so is eight\n");
}

TEST_F(VectorFolder, ARowFailsWhenNothingIsComparedOrTheDriverThrowsOrCellsAreMissing)
{
    Write("sums.tsv", "a\tb\tsum\n1\t2\t3\n");
    EXPECT_EQ(Run({{"sums", [](Row &) {}}}), 1);
    EXPECT_EQ(Run({{"sums", [](Row & row) { row.Int("none"); }}}), 1);
    EXPECT_EQ(Run({{"sums", [](Row &) { throw 1; }}}), 1);
    Write("sums.tsv", "a\tb\tsum\n1\t2\n");
    EXPECT_EQ(Run({{"sums", SumDriver}}), 1);
    EXPECT_NE(err_.str().find("2 cells under 3 columns"), std::string::npos);
}

TEST_F(VectorFolder, AnErrorOfTheLibraryIsShownByNameAndMessage)
{
    Write("sums.tsv", "a\tb\tsum\n1\t2\t3\n");
    EXPECT_EQ(Run({{"sums", [](Row &) { VELTRIA_THROW(VeltriaException, 0x00000001, TStringCore(u"no \u00E4")); }}}),
              1);
    EXPECT_NE(err_.str().find("raised !VeltriaException_AutoGen_0x00000001|no \\u00E4\n"), std::string::npos);
}

TEST_F(VectorFolder, OnlyTheFirstFailuresAreShown)
{
    std::string text = "a\tb\tsum\n";
    for (int i = 0; i < 25; ++i)
        text += "1\t1\t3\n";
    Write("sums.tsv", text);
    EXPECT_EQ(Run({{"sums", SumDriver}}), 1);
    EXPECT_EQ(out_.str(), "sums.tsv: 25 rows, 25 failed\n");
    EXPECT_NE(err_.str().find("15 more failing rows not shown"), std::string::npos);
}

TEST_F(VectorFolder, AFolderWithoutTablesFails)
{
    EXPECT_EQ(Run({}), 1);
    EXPECT_EQ(RunVectors(folder_ / "none", {}, out_, err_), 1);
    Write("empty.tsv", "");
    EXPECT_EQ(Run({{"empty", SumDriver}}), 1);
}

TEST_F(VectorFolder, ADriverWithoutItsTableIsTold)
{
    Write("other.tsv", "x\n1\n");
    EXPECT_EQ(Run({{"sums", SumDriver}}), 0);
    EXPECT_NE(err_.str().find("sums.tsv: a driver, but no table"), std::string::npos);
}
