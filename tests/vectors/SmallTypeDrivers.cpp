// Drivers of the tables small_version_* and small_pane_*.

#include <string>
#include <vector>

#include "tests/vectors/VectorDriver.h"
#include "velcoredata/core/VersionNumber.h"
#include "velcoredata/formalism/PaneGridGeometry.h"
#include "velsys/VeltriaException.h"

namespace {

using velcoredata::vectors::DecodeUInt;
using velcoredata::vectors::Row;

std::vector<unsigned> Numbers(std::string const & cell)
{
    std::vector<unsigned> numbers;
    std::size_t start = 0;
    for (std::size_t comma; (comma = cell.find(',', start)) != cell.npos; start = comma + 1)
        numbers.push_back(static_cast<unsigned>(DecodeUInt(cell.substr(start, comma - start))));
    numbers.push_back(static_cast<unsigned>(DecodeUInt(cell.substr(start))));
    return numbers;
}

// With three numbers or four, cut to those of the cell.
VersionNumber Version(std::string const & cell)
{
    std::vector<unsigned> numbers = Numbers(cell);
    std::size_t const count = numbers.size();
    numbers.resize(count < 3 ? 3 : count);
    VersionNumber version = numbers.size() == 3 ? VersionNumber(numbers[0], numbers[1], numbers[2])
                                                : VersionNumber(numbers[0], numbers[1], numbers[2], numbers.at(3));
    version.Truncate(count);
    return version;
}

std::string CommaJoined(VersionNumber const & version)
{
    return version.GetNumbersAsString(u',').toStdString();
}

RowAndColumnAndLayer Cell(std::vector<unsigned> const & numbers)
{
    return {numbers.at(0), numbers.at(1), numbers.at(2)};
}

template <class Index>
void ExpectIndex(Row & row, char const * column, Index index)
{
    std::string actual;
    try {
        actual = std::to_string(index());
    } catch (VeltriaException const & e) {
        actual = TString(e.GetErrorInfo().GetError().GetName()).toStdString();
    }
    row.Expect(column, row.Cell(column), actual);
}

template <class T>
void ExpectOrder(Row & row, T const & a, T const & b)
{
    row.ExpectBool("less", a < b);
    row.ExpectBool("equal", a == b);
    row.Expect("not both", "true", (a < b && b < a) || ((a < b) && a == b) ? "false" : "true");
}

}  // namespace

VECTOR_DRIVER("small_version_text")
{
    auto const separator = [&row](char const * column) { return row.Text(column).at(0); };
    VersionNumber const version(TString::fromStdU16String(row.Text("text")), separator("number_sep"),
                                separator("descriptor_sep"), row.UInt("number_index"));
    row.ExpectCell("numbers", CommaJoined(version));
    row.ExpectUInt("descriptors_count", version.GetDescriptors().size());
    std::u16string descriptors;
    for (TString const & descriptor : version.GetDescriptors())
        (&descriptor == version.GetDescriptors().data() ? descriptors : descriptors += u'|') += descriptor.View();
    row.ExpectText("descriptors", descriptors);
    row.ExpectText("as_string", version.GetAsString().View());
    row.ExpectText("major_minor_colon", version.GetMajorAndMinorAsString(u':').View());
}

VECTOR_DRIVER("small_version_compare")
{
    VersionNumber const a = Version(row.Cell("a"));
    row.ExpectInt("compare", a.compare(Version(row.Cell("b"))));
    if (!row.Cell("as_string_a_3_or_4").empty())
        row.ExpectCell("as_string_a_3_or_4", a.GetAsString().toStdString());
}

VECTOR_DRIVER("small_version_misc")
{
    VersionNumber version(0, 0, 0);
    if (row.Cell("op") == "FromFileVersion") {
        version = VersionNumber::FromFileVersion(static_cast<unsigned>(row.UInt("a1")),
                                                 static_cast<unsigned>(row.UInt("a2")));
    } else if (row.Cell("op") == "Truncate") {
        version = VersionNumber(TString::fromStdU16String(row.Text("a1")));
        version.Truncate(row.UInt("a2"));
    } else {
        row.Fail("no such operation");
    }
    row.ExpectCell("numbers", CommaJoined(version));
    row.ExpectCell("as_string", version.GetAsString().toStdString());
}

VECTOR_DRIVER("small_pane_index")
{
    auto const number = [&row](char const * column) { return static_cast<unsigned>(row.UInt(column)); };
    PaneGridGeometry const grid(number("rows"), number("columns"), number("layers"));
    PageCountAndPaneGridGeometry const paged(grid, number("pages"));
    RowAndColumnAndLayer const cell(number("row"), number("column"), number("layer"));
    PaneId const pane(cell, number("page"));
    row.ExpectUInt("grid_size", grid.GetSize());
    row.ExpectUInt("paged_size", paged.GetSize());
    row.ExpectBool("grid_contains", grid.Contains(cell));
    row.ExpectBool("paged_contains", paged.Contains(pane));
    ExpectIndex(row, "grid_index_or_error", [&] { return GetPaneIndex(grid, cell); });
    ExpectIndex(row, "paged_index_or_error", [&] { return GetPaneIndex(paged, pane); });
}

VECTOR_DRIVER("small_pane_order")
{
    std::vector<unsigned> const a = Numbers(row.Cell("a"));
    std::vector<unsigned> const b = Numbers(row.Cell("b"));
    if (row.Cell("kind") == "cell")
        ExpectOrder(row, Cell(a), Cell(b));
    else
        ExpectOrder(row, PaneId(Cell(a), a.at(3)), PaneId(Cell(b), b.at(3)));
}
