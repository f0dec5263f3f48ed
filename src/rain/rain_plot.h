// The curves of a rain form's grid shown in the plot viewer: written to
// xy.crb with their script xy.mst in the working folder, the script copied to
// Vistrel.Mst there, and the viewer opened on it.
#pragma once

#include <string>

#include "editors/editor_context.h"
#include "foundation/grid.h"

namespace pluvane {

// `kind` is the grid's kind for the plot ("Pluvio" drops each curve's first
// row, the head of the gauges' states); the curves are named `word` and their
// column. False when there was nothing to show.
bool ShowRainCurves(EditorContext& context, const Grid& grid, const std::string& kind,
                    const std::string& word, const std::string& title);

}  // namespace pluvane
