// The five columns of a Montana entry, as the Montana library and the storms'
// pickers show them: identifier, place, return period, coefficients a and b.
#pragma once

#include "drawing/surface.h"
#include "foundation/grid.h"

namespace pluvane {

inline constexpr int kMontanaColId = 1;
inline constexpr int kMontanaColDesign = 2;
inline constexpr int kMontanaColPret = 3;
inline constexpr int kMontanaColCa = 4;
inline constexpr int kMontanaColCb = 5;

// Heads and widths of the five columns.
void MontanaHeads(Grid& grid);
// Appends one row per Montana entry of the drawing, in search order.
void AppendMontanaEntries(Surface& surface, Grid& grid);

}  // namespace pluvane
