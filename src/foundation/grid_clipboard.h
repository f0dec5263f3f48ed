// Ctrl+C and Ctrl+V in the forms' grids. The text of the clipboard is handed in by the
// view, so the rule stays testable.
#pragma once

#include <string>
#include <string_view>

#include "foundation/grid.h"

namespace pluvane {

// With blocks selected, each block is filled with what the clipboard puts in
// its first cell; otherwise the clipboard is pasted at the cursor, filling the
// cells from there as a spreadsheet paste does.
void SSPaste(Grid& grid, std::string_view clipboard_text);

// What Ctrl+C puts on the clipboard: the first selected block, or the cell
// at the cursor, as a spreadsheet copies it: cells joined by tabs, rows ended
// by CR LF. Empty when the cursor stands outside the grid.
std::string SSCopy(const Grid& grid);

// True for the key of a paste: V (86 or 118) with the control key held.
bool IsPasteKey(int key_code, bool control);

}  // namespace pluvane
