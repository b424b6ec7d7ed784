#include "velcoredata/formalism/PaneGridGeometry.h"

#include "velsys/ThrowSite.h"

unsigned GetPaneIndex(PaneGridGeometry const & paneGridGeometry, RowAndColumnAndLayer const & rowAndColumnAndLayer)
{
    VELTRIA_ASSERT(paneGridGeometry.Contains(rowAndColumnAndLayer), 0x3E4D2E10);
    return (rowAndColumnAndLayer.layer * paneGridGeometry.GetRowCount() + rowAndColumnAndLayer.row) *
               paneGridGeometry.GetColumnCount() +
           rowAndColumnAndLayer.column;
}

unsigned GetPaneIndex(PageCountAndPaneGridGeometry const & pagedGrid, PaneId const & pane)
{
    PaneGridGeometry const grid = pagedGrid.GetPaneGridGeometry();
    return GetPaneIndex(grid, pane.rowAndColumnAndLayer) + pane.page * grid.GetSize();
}
