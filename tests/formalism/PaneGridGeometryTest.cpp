#include "velcoredata/formalism/PaneGridGeometry.h"

#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

using Cell = RowAndColumnAndLayer;

static_assert(sizeof(Cell) == 12 && sizeof(PaneGridGeometry) == 12);
static_assert(sizeof(PaneId) == 16 && sizeof(PageCountAndPaneGridGeometry) == 16);
static_assert(std::is_trivially_copyable_v<Cell> && std::is_trivially_copyable_v<PaneGridGeometry> &&
              std::is_trivially_copyable_v<PaneId> && std::is_trivially_copyable_v<PageCountAndPaneGridGeometry>);

auto const outside =
    ThrowsAssert("paneGridGeometry.Contains(rowAndColumnAndLayer)", "LogicException_LogicAssert_0x3E4D2E10");

template <class T>
std::vector<unsigned> Fields(T const & value)
{
    std::vector<unsigned> fields(sizeof value / sizeof(unsigned));
    std::memcpy(fields.data(), &value, sizeof value);
    return fields;
}

TEST(PaneGridGeometry, FieldsStandInTheirOrderAndAreZeroAtFirst)
{
    using Numbers = std::vector<unsigned>;
    EXPECT_EQ(Fields(Cell()), Numbers({0, 0, 0}));
    EXPECT_EQ(Fields(Cell(1, 2)), Numbers({1, 2, 0}));
    EXPECT_EQ(Fields(Cell(1, 2, 3)), Numbers({1, 2, 3}));
    EXPECT_EQ(Fields(PaneGridGeometry()), Numbers({0, 0, 0}));
    EXPECT_EQ(Fields(PaneGridGeometry(1, 2, 3)), Numbers({1, 2, 3}));
    EXPECT_EQ(Fields(PaneId()), Numbers({0, 0, 0, 0}));
    EXPECT_EQ(Fields(PaneId(Cell(1, 2, 3), 4)), Numbers({1, 2, 3, 4}));
    EXPECT_EQ(Fields(PageCountAndPaneGridGeometry()), Numbers({0, 0, 0, 0}));
    EXPECT_EQ(Fields(PageCountAndPaneGridGeometry(PaneGridGeometry(1, 2, 3), 4)), Numbers({1, 2, 3, 4}));
}

TEST(PaneGridGeometry, TellsItsCounts)
{
    PaneGridGeometry const grid(2, 3, 4);
    EXPECT_EQ(grid.GetRowCount(), 2u);
    EXPECT_EQ(grid.GetColumnCount(), 3u);
    EXPECT_EQ(grid.GetLayerCount(), 4u);
    EXPECT_EQ(grid.GetSize(), 24u);
    PageCountAndPaneGridGeometry const paged(grid, 5);
    EXPECT_EQ(Fields(paged.GetPaneGridGeometry()), Fields(grid));
    EXPECT_EQ(paged.GetPageCount(), 5u);
    EXPECT_EQ(paged.GetSize(), 120u);
    EXPECT_EQ(PaneGridGeometry(0, 3, 4).GetSize(), 0u);
    EXPECT_EQ(PageCountAndPaneGridGeometry(grid, 0).GetSize(), 0u);
}

TEST(PaneGridGeometry, SizesWrap)
{
    EXPECT_EQ(PaneGridGeometry(65536, 65536, 1).GetSize(), 0u);
    EXPECT_EQ(PaneGridGeometry(65537, 65537, 3).GetSize(), 3u * 131073u);
    EXPECT_EQ(PageCountAndPaneGridGeometry(PaneGridGeometry(3, 1, 1), 0x80000000u).GetSize(), 0x80000000u);
}

TEST(PaneGridGeometry, ContainsCellsBelowEachCount)
{
    PaneGridGeometry const grid(2, 3, 4);
    EXPECT_TRUE(grid.Contains(Cell()));
    EXPECT_TRUE(grid.Contains(Cell(1, 2, 3)));
    EXPECT_FALSE(grid.Contains(Cell(2, 2, 3)));
    EXPECT_FALSE(grid.Contains(Cell(1, 3, 3)));
    EXPECT_FALSE(grid.Contains(Cell(1, 2, 4)));
    EXPECT_FALSE(grid.Contains(Cell(std::numeric_limits<unsigned>::max(), 0, 0)));
    for (PaneGridGeometry const & empty :
         {PaneGridGeometry(), PaneGridGeometry(0, 3, 4), PaneGridGeometry(2, 0, 4), PaneGridGeometry(2, 3, 0)})
        EXPECT_FALSE(empty.Contains(Cell()));
}

TEST(PaneGridGeometry, ContainsPanesOfItsPages)
{
    PageCountAndPaneGridGeometry const paged(PaneGridGeometry(2, 3, 4), 2);
    EXPECT_TRUE(paged.Contains(PaneId(Cell(1, 2, 3), 1)));
    EXPECT_FALSE(paged.Contains(PaneId(Cell(1, 2, 3), 2)));
    EXPECT_FALSE(paged.Contains(PaneId(Cell(2, 2, 3), 1)));
    EXPECT_FALSE(PageCountAndPaneGridGeometry(PaneGridGeometry(2, 3, 4), 0).Contains(PaneId()));
}

TEST(PaneGridGeometry, CellsAreOrderedByColumnThenRowThenLayer)
{
    EXPECT_TRUE(Cell(5, 0) < Cell(0, 1));
    EXPECT_FALSE(Cell(0, 1) < Cell(5, 0));
    EXPECT_TRUE(Cell(0, 1, 9) < Cell(1, 1, 0));
    EXPECT_FALSE(Cell(1, 1, 0) < Cell(0, 1, 9));
    EXPECT_TRUE(Cell(1, 1, 0) < Cell(1, 1, 1));
    EXPECT_FALSE(Cell(1, 1, 1) < Cell(1, 1, 1));
    EXPECT_EQ(Cell(1, 2, 3).GetFieldsForValueEqualityAsTuple(), std::make_tuple(2u, 1u, 3u));
}

TEST(PaneGridGeometry, PanesAreOrderedByCellThenPage)
{
    EXPECT_TRUE(PaneId(Cell(5, 0), 9) < PaneId(Cell(0, 1), 0));
    EXPECT_FALSE(PaneId(Cell(0, 1), 0) < PaneId(Cell(5, 0), 9));
    EXPECT_TRUE(PaneId(Cell(1, 1), 0) < PaneId(Cell(1, 1), 1));
    EXPECT_FALSE(PaneId(Cell(1, 1), 1) < PaneId(Cell(1, 1), 1));
}

TEST(PaneGridGeometry, EqualityIsThatOfAllFields)
{
    EXPECT_TRUE(Cell(1, 2, 3) == Cell(1, 2, 3));
    for (Cell const & other : {Cell(0, 2, 3), Cell(1, 0, 3), Cell(1, 2, 0)})
        EXPECT_FALSE(Cell(1, 2, 3) == other);
    EXPECT_TRUE(PaneId(Cell(1, 2, 3), 4) == PaneId(Cell(1, 2, 3), 4));
    EXPECT_FALSE(PaneId(Cell(1, 2, 3), 4) != PaneId(Cell(1, 2, 3), 4));
    for (PaneId const & other : {PaneId(Cell(1, 2, 3), 0), PaneId(Cell(1, 2, 0), 4)}) {
        EXPECT_FALSE(PaneId(Cell(1, 2, 3), 4) == other);
        EXPECT_TRUE(PaneId(Cell(1, 2, 3), 4) != other);
    }
}

TEST(PaneGridGeometry, CellsHaveFlatIndexes)
{
    PaneGridGeometry const grid(2, 3, 2);
    EXPECT_EQ(GetPaneIndex(grid, Cell(0, 0, 0)), 0u);
    EXPECT_EQ(GetPaneIndex(grid, Cell(0, 1, 0)), 1u);
    EXPECT_EQ(GetPaneIndex(grid, Cell(1, 0, 0)), 3u);
    EXPECT_EQ(GetPaneIndex(grid, Cell(0, 0, 1)), 6u);
    EXPECT_EQ(GetPaneIndex(grid, Cell(1, 2, 1)), 11u);
    EXPECT_EQ(GetPaneIndex(PaneGridGeometry(65537, 65537, 65537), Cell(65536, 65536, 65536)),
              (65536u * 65537u + 65536u) * 65537u + 65536u);
}

TEST(PaneGridGeometry, ACellOutsideHasNoIndex)
{
    PaneGridGeometry const grid(2, 3, 2);
    for (Cell const & cell : {Cell(2, 0, 0), Cell(0, 3, 0), Cell(0, 0, 2)}) {
        EXPECT_THAT([&] { GetPaneIndex(grid, cell); }, outside);
        EXPECT_THAT([&] { GetPaneIndex(PageCountAndPaneGridGeometry(grid, 1), PaneId(cell, 0)); }, outside);
    }
    EXPECT_THAT([&] { GetPaneIndex(PaneGridGeometry(), Cell()); }, outside);
}

TEST(PaneGridGeometry, APageBeyondTheLastHasAnIndexAllTheSame)
{
    PageCountAndPaneGridGeometry const paged(PaneGridGeometry(2, 3, 2), 2);
    EXPECT_EQ(GetPaneIndex(paged, PaneId(Cell(1, 2, 1), 0)), 11u);
    EXPECT_EQ(GetPaneIndex(paged, PaneId(Cell(1, 2, 1), 1)), 23u);
    EXPECT_EQ(GetPaneIndex(paged, PaneId(Cell(1, 2, 1), 7)), 95u);
    EXPECT_EQ(GetPaneIndex(paged, PaneId(Cell(0, 0, 0), 0x80000001u)), 12u);
    EXPECT_EQ(GetPaneIndex(PageCountAndPaneGridGeometry(PaneGridGeometry(2, 3, 2), 0), PaneId(Cell(1, 2, 1), 1)), 23u);
}

TEST(PaneGridGeometryLaws, IndexesAreABijection)
{
    std::mt19937 random(50);
    for (int i = 0; i < 10'000; ++i) {
        auto const upTo4 = [&random] { return static_cast<unsigned>(1 + random() % 4); };
        PaneGridGeometry const grid(upTo4(), upTo4(), upTo4());
        PageCountAndPaneGridGeometry const paged(grid, upTo4());
        std::vector<int> hits(paged.GetSize(), 0);
        for (unsigned page = 0; page < paged.GetPageCount(); ++page)
            for (unsigned row = 0; row < grid.GetRowCount(); ++row)
                for (unsigned column = 0; column < grid.GetColumnCount(); ++column)
                    for (unsigned layer = 0; layer < grid.GetLayerCount(); ++layer) {
                        Cell const cell(row, column, layer);
                        unsigned const index = GetPaneIndex(grid, cell);
                        ASSERT_LT(index, grid.GetSize());
                        unsigned const pagedIndex = GetPaneIndex(paged, PaneId(cell, page));
                        ASSERT_LT(pagedIndex, hits.size());
                        ASSERT_EQ(pagedIndex % grid.GetSize(), index);
                        ++hits[pagedIndex];
                    }
        for (int const hit : hits)
            ASSERT_EQ(hit, 1);
    }
}

TEST(PaneGridGeometryLaws, OrdersAreTotal)
{
    std::mt19937 random(50);
    auto const small = [&random] { return static_cast<unsigned>(random() % 3); };
    auto const pane = [&] { return PaneId(Cell(small(), small(), small()), small()); };
    for (int i = 0; i < 10'000; ++i) {
        PaneId const a = pane();
        PaneId const b = pane();
        PaneId const c = pane();
        ASSERT_EQ((a < b) + (b < a) + (a == b), 1);
        Cell const & x = a.rowAndColumnAndLayer;
        Cell const & y = b.rowAndColumnAndLayer;
        Cell const & z = c.rowAndColumnAndLayer;
        ASSERT_EQ((x < y) + (y < x) + (x == y), 1);
        if (a < b && b < c) {
            ASSERT_TRUE(a < c);
        }
        if (x < y && y < z) {
            ASSERT_TRUE(x < z);
        }
        if (x.column != y.column) {
            ASSERT_EQ(x < y, x.column < y.column);
        }
    }
}

}  // namespace
