// The address of a pane in a grid of rows, columns and layers, which may be repeated over pages, and its flat index.
// All are plain values of 32-bit numbers; sizes and indexes wrap at 32 bits.
//
//   With n = grid.GetSize(), no count zero and n below 2^32 before wrapping:
//   GetPaneIndex(grid, cell) is a bijection from the cells that grid contains onto 0 to n - 1
//   exactly one of a < b, b < a, a == b holds; a < b and b < c imply a < c    for cells and for panes
#pragma once

#include <tuple>

#include "velcoredata/core/Export.h"

struct VELCOREDATA_API RowAndColumnAndLayer
{
    constexpr RowAndColumnAndLayer() noexcept = default;
    constexpr RowAndColumnAndLayer(unsigned row_, unsigned column_, unsigned layer_ = 0) noexcept
        : row(row_), column(column_), layer(layer_)
    {}

    /// Column by column, though rows stand first: (5, 0) < (0, 1). Then by row, then by layer.
    bool operator<(RowAndColumnAndLayer const & other) const noexcept
    {
        return GetFieldsForValueEqualityAsTuple() < other.GetFieldsForValueEqualityAsTuple();
    }
    bool operator==(RowAndColumnAndLayer const & other) const noexcept
    {
        return GetFieldsForValueEqualityAsTuple() == other.GetFieldsForValueEqualityAsTuple();
    }

    /// Column, row, layer.
    std::tuple<unsigned const &, unsigned const &, unsigned const &> GetFieldsForValueEqualityAsTuple() const noexcept
    {
        return std::tie(column, row, layer);
    }

    unsigned row = 0;
    unsigned column = 0;
    unsigned layer = 0;
};

class VELCOREDATA_API PaneGridGeometry
{
public:
    constexpr PaneGridGeometry() noexcept = default;
    constexpr PaneGridGeometry(unsigned rows, unsigned columns, unsigned layers) noexcept
        : m_rows(rows), m_columns(columns), m_layers(layers)
    {}

    unsigned GetRowCount() const noexcept { return m_rows; }
    unsigned GetColumnCount() const noexcept { return m_columns; }
    unsigned GetLayerCount() const noexcept { return m_layers; }
    /// Rows times columns times layers.
    unsigned GetSize() const noexcept { return m_rows * m_columns * m_layers; }
    /// Never true if one count is zero.
    bool Contains(RowAndColumnAndLayer const & cell) const noexcept
    {
        return cell.row < m_rows && cell.column < m_columns && cell.layer < m_layers;
    }

private:
    unsigned m_rows = 0;
    unsigned m_columns = 0;
    unsigned m_layers = 0;
};

/// (layer * rows + row) * columns + column: 11 for the cell (1, 2, 1) in a grid of 2, 3 and 2. A cell outside the grid
/// raises the logic assertion "paneGridGeometry.Contains(rowAndColumnAndLayer)", LogicException_LogicAssert_0x3E4D2E10.
VELCOREDATA_API unsigned GetPaneIndex(PaneGridGeometry const & paneGridGeometry,
                                      RowAndColumnAndLayer const & rowAndColumnAndLayer);

struct VELCOREDATA_API PaneId
{
    constexpr PaneId() noexcept = default;
    constexpr PaneId(RowAndColumnAndLayer const & cell, unsigned page_) noexcept
        : rowAndColumnAndLayer(cell), page(page_)
    {}

    /// By cell, then by page.
    bool operator<(PaneId const & other) const noexcept
    {
        return std::tie(rowAndColumnAndLayer, page) < std::tie(other.rowAndColumnAndLayer, other.page);
    }
    bool operator==(PaneId const & other) const noexcept
    {
        return rowAndColumnAndLayer == other.rowAndColumnAndLayer && page == other.page;
    }

    RowAndColumnAndLayer rowAndColumnAndLayer;
    unsigned page = 0;
};

class VELCOREDATA_API PageCountAndPaneGridGeometry
{
public:
    constexpr PageCountAndPaneGridGeometry() noexcept = default;
    constexpr PageCountAndPaneGridGeometry(PaneGridGeometry const & grid, unsigned pageCount) noexcept
        : m_grid(grid), m_pageCount(pageCount)
    {}

    PaneGridGeometry GetPaneGridGeometry() const noexcept { return m_grid; }
    unsigned GetPageCount() const noexcept { return m_pageCount; }
    /// The grid's size times the pages.
    unsigned GetSize() const noexcept { return m_grid.GetSize() * m_pageCount; }
    bool Contains(PaneId const & pane) const noexcept
    {
        return pane.page < m_pageCount && m_grid.Contains(pane.rowAndColumnAndLayer);
    }

private:
    PaneGridGeometry m_grid;
    unsigned m_pageCount = 0;
};

/// The index of the pane's cell, with that of the other overload's assertion, and the grid's size for each page before.
/// The page is not tested: a page beyond the last gives the index that it would have.
VELCOREDATA_API unsigned GetPaneIndex(PageCountAndPaneGridGeometry const & pagedGrid, PaneId const & pane);
