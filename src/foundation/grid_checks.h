// The column checks of the forms' grids. A check that fails tells the user
// itself, through the port, and leaves the cursor on the cell at fault; the
// caller only tests the result. A grid with no rows passes every check.
#pragma once

#include <string_view>

#include "foundation/grid.h"
#include "foundation/user_interface.h"

namespace pluvane {

// 0 when no two cells of the column are equal (trimmed, case-blind; two blank
// cells are equal), otherwise the later row of the first pair, after the
// message "Contrôle de doublon" with the cursor on the earlier row.
int SSFindDuplicate(Grid& grid, int col, UserInterface& ui);

// True when no cell of the column is blank; otherwise the message titled by
// the grid's caption, the cursor on the cell when the grid is visible, false.
bool SSCheckFilled(Grid& grid, int col, UserInterface& ui);

// True when a cell of the column holds a blank inside its trimmed text (after
// the message "Contrôle de valeur interdite", the cursor on it); false when
// none does. It guards names that stand unquoted in blank-separated files.
bool SSCheckNoBlank(Grid& grid, int col, UserInterface& ui);

// True when no cell of the grid is blank; rows first, columns inside.
bool SSCheckAllFilled(Grid& grid, UserInterface& ui);

// True when the column rises by at least 0.0001 from each row to the next.
// Otherwise false, `row` gets the row before the step at fault and the cursor
// goes there. No message: each caller words its own.
bool SSCheckRising(Grid& grid, int col, int& row);
// The step rule of SSCheckRising: `to` is at least 0.0001 above `from` (a hair
// is allowed for the binary rounding of decimal steps, so 1 to 1.0001 rises).
bool RisesEnough(double from, double to);

// The first row whose cell of the column equals the text, case-blind; 0 if none.
int SSFindValue(std::string_view text, int col, const Grid& grid);

}  // namespace pluvane
