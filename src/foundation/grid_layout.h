// The look and the size of the forms around their grids. Sizes are in twips;
// the screen and the form are given, so the rules stay free of any toolkit.
#pragma once

#include "foundation/grid.h"

namespace pluvane {

// A form and the grid it shows, in twips.
struct FormSize {
  double width = 0;
  double height = 0;
  double grid_width = 0;
  double grid_height = 0;
};

// Sizes the grid to show `rows_shown` rows: (rows shown + 2) times the height
// of row 1 plus 1.5 times that of row 0, at most the screen height less 800
// and at least 1500. The form keeps its margins around the grid. A form with
// an empty grid keeps its size.
FormSize SSFitForm(const Grid& grid, int rows_shown, const FormSize& form, double screen_height);

// Makes the grid as wide as all its columns (the form's width less 500 for a
// grid without rows) and the form 500 wider than its grid.
FormSize SSFitWidth(const Grid& grid, const FormSize& form);

// The look of the library grids: whole-row selection, selected rows in yellow
// on dark blue, "Arial" at size 11.
void SSSetStyle(Grid& grid);

}  // namespace pluvane
