// The capacity map and its legend drawn into one picture (SVG, PDF or PNG by
// the extension), the legend to the right of the drawing, scaled to a third
// of its height at most.
#pragma once

#include <string>

#include "drawing/surface.h"

namespace pluvane {

// False when the picture could not be written.
bool SaveCapacityPicture(const Surface& map, const Surface& legend, const std::string& path,
                         const std::string& network_folder, const std::string& symbol_folder);

}  // namespace pluvane
