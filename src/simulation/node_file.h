// The .NOD file: the node numbering of the whole model. Nodes (iName 99) and
// then catchments (iName "1") in search order, each with its number, position
// and label; each catchment's number is written back into its tag sNodAm,
// where the link files read it.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"
#include "simulation/model_context.h"

namespace pluvane {

// The nodes in search order: their object numbers, or their Id tags. The
// place in this list (from 1) is a node's number in every model file.
int GetTabNodHdle(const Surface& surface, std::vector<int>& handles);
int GetTabNodId(const Surface& surface, std::vector<std::string>& ids);

// Writes the .NOD file at `path` and the catchments' sNodAm; returns the count
// of lines after the head. Throws AppError when the file cannot be written.
int GenFicNod(ModelContext& context, const std::string& path);

}  // namespace pluvane
