// The Visu button of the editors' tables: the grid's columns drawn as curves
// against its first column, shown in the plot viewer.
#pragma once

#include <string>

#include "editors/editor_context.h"
#include "foundation/grid.h"

namespace pluvane {

// Writes xy.crb and the script xy.mst in the working folder, copies the
// script to Vistrel.Mst there and opens the viewer on it under the title.
// The kind of plot ("SEC" for a section, "Pluvio"...) is the viewer's mode.
// False when no plot came out (too few points).
bool ShowGridPlot(EditorContext& context, const Grid& grid, const std::string& curve_word,
                  const std::string& title, const std::string& kind = "");

}  // namespace pluvane
