#include "foundation/grid_rows.h"

#include <algorithm>

namespace pluvane {

int SSAddRow(Grid& grid) {
  grid.SetMaxRows(grid.MaxRows() + 1);
  grid.SetActiveCell(1, grid.MaxRows());
  grid.SetEditMode(true);
  return grid.MaxRows();
}

int SSInsertRow(Grid& grid, int& row) {
  if (grid.MaxRows() < 1) return 0;
  int at = std::clamp(grid.ActiveRow(), 1, grid.MaxRows());
  grid.InsertRows(at, 1);
  grid.SetActiveCell(grid.ActiveCol(), at);
  row = at;
  return grid.MaxRows();
}

int SSDeleteRow(Grid& grid, int row) {
  if (grid.MaxRows() < 1) return 0;
  grid.DeleteRows(row, 1);
  grid.SetActiveCell(grid.ActiveCol(), std::max(1, std::min(row, grid.MaxRows())));
  return grid.MaxRows();
}

int SSDataRows(const Grid& grid, int max_rows) {
  for (int row = 1; row <= max_rows; ++row) {
    if (grid.IsBlank(1, row)) return row - 1;
  }
  return std::max(max_rows, 0);
}

void SSClearRowNotes(Grid& grid, int row) {
  for (int col = 0; col <= grid.MaxCols(); ++col) {
    if (!grid.Note(col, row).empty()) grid.SetNote(col, row, "");
  }
}

}  // namespace pluvane
