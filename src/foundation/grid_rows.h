// Row handling shared by the forms' grids: the buttons Ajouter, Insérer and
// Supprimer, the count of the rows that make a table, and the notes of a row.
#pragma once

#include "foundation/grid.h"

namespace pluvane {

// Adds one row at the end, puts the cursor on its first cell in editing mode;
// returns the new row count.
int SSAddRow(Grid& grid);

// When the grid has rows, inserts one row before the cursor's row and keeps
// the cursor there; `row` receives that row. Returns the new row count, 0 for
// an empty grid (then `row` is left alone).
int SSInsertRow(Grid& grid, int& row);

// When the grid has rows, deletes `row` and puts the cursor on the same row
// number, within 1 and the new last row, in the same column. A row outside
// the grid deletes nothing. Returns the new row count.
int SSDeleteRow(Grid& grid, int row);

// The number of rows before the first blank cell of column 1, looking at no
// more than `max_rows` rows; `max_rows` when none is blank.
int SSDataRows(const Grid& grid, int max_rows);

// Clears the note of every cell of the row.
void SSClearRowNotes(Grid& grid, int row);

}  // namespace pluvane
