// Plotxy: the columns of an editor's grid shown as curves. Column 1 holds X,
// each further column a curve; the curves go to xy.crb in the work folder and
// a one-frame script is written over a scale rounded from their extents.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/grid.h"
#include "foundation/user_interface.h"

namespace pluvane {

struct PlotxyRequest {
  std::string kind;        // the grid's element kind: "Pluvio", "SEC", "SAPP" or another
  std::string curve_word;  // curve i is named this word and its column number
  std::string work_dir;    // where xy.crb is written
  std::string script;      // the script to write
  std::string page_title;
};

// Writes the curves and the script; returns the script's path, or an empty
// text when the last curve has fewer than 2 points (no script then).
// "Pluvio" drops each curve's first point; "SEC" unfolds a section of
// heights (X) and widths into a closed outline with equal scales; "SAPP"
// caps Y at 1.
std::string Plotxy(UserInterface& ui, const Grid& grid, const PlotxyRequest& request);

// The colour of the platform's 16-colour table (QBColor), the index taken
// modulo 16.
std::int32_t QBColor(int index);

}  // namespace pluvane
