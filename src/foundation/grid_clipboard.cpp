#include "foundation/grid_clipboard.h"

#include <algorithm>
#include <string>

namespace pluvane {

void SSPaste(Grid& grid, std::string_view clipboard_text) {
  if (!grid.IsBlockSelected()) {
    grid.ClipboardPaste(grid.ActiveCol(), grid.ActiveRow(), clipboard_text);
    return;
  }
  bool was_on = grid.Redraw();
  grid.SetRedraw(false);
  for (int i = 0; i < grid.SelectionCount(); ++i) {
    GridBlock block = grid.GetSelection(i);
    grid.ClipboardPaste(block.col1, block.row1, clipboard_text);
    std::string value = grid.Text(block.col1, block.row1);
    for (int row = std::max(block.row1, 1); row <= std::min(block.row2, grid.MaxRows()); ++row) {
      for (int col = std::max(block.col1, 1); col <= std::min(block.col2, grid.MaxCols()); ++col) {
        if (!grid.Locked(col, row)) grid.SetText(col, row, value);
      }
    }
  }
  grid.SetRedraw(was_on);
}

std::string SSCopy(const Grid& grid) {
  GridBlock block{grid.ActiveCol(), grid.ActiveRow(), grid.ActiveCol(), grid.ActiveRow()};
  if (grid.IsBlockSelected()) block = grid.GetSelection(0);
  block.col1 = std::max(block.col1, 1);
  block.row1 = std::max(block.row1, 1);
  block.col2 = std::min(block.col2, grid.MaxCols());
  block.row2 = std::min(block.row2, grid.MaxRows());
  std::string text;
  for (int row = block.row1; row <= block.row2; ++row) {
    for (int col = block.col1; col <= block.col2; ++col) {
      if (col > block.col1) text += '\t';
      text += grid.Text(col, row);
    }
    if (block.col1 <= block.col2) text += "\r\n";
  }
  return text;
}

bool IsPasteKey(int key_code, bool control) {
  return control && (key_code == 86 || key_code == 118);
}

}  // namespace pluvane
