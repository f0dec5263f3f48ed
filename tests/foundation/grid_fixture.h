// Grids filled from literal rows, for the tests of the grid toolkit.
#pragma once

#include <initializer_list>

#include "foundation/grid.h"

namespace pluvane {

using GridRows = std::initializer_list<std::initializer_list<const char*>>;

// A grid of `cols` columns and one row per given row, its texts from column 1.
inline Grid FilledGrid(int cols, GridRows rows, const char* caption = "") {
  Grid grid(cols, static_cast<int>(rows.size()));
  grid.SetCaption(caption);
  int r = 1;
  for (const auto& row : rows) {
    int c = 1;
    for (const char* text : row) grid.SetText(c++, r, text);
    ++r;
  }
  return grid;
}

}  // namespace pluvane
