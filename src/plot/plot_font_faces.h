// The installed font that stands for each entry of the plot font table: the
// old families map to the DejaVu faces that every desktop has.
#pragma once

#include <string>

namespace pluvane {

// The face of font index `index` (an index outside the table is entry 0).
std::string PlotFontFace(int index);
// The face of a font named as the old table names it ("ARIAL", "COURIER NEW"),
// any case; an unknown name is returned as it stands.
std::string PlotFontFace(const std::string& name);

}  // namespace pluvane
