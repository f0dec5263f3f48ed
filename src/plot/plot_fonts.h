// The fonts of plot frames and comments, by the index their statements give.
#pragma once

#include <array>

namespace pluvane {

inline constexpr std::array<const char*, 13> kPlotFonts = {
    "ARIAL",       "BOOK ANTIQUA",    "CG TIMES", "COURIER NEW", "MODERN",
    "MS LINEDRAW", "MS SANS SERIF",   "MS SERIF", "ROMAN",       "SYSTEM",
    "TERMINAL",    "TIMES NEW ROMAN", "SYMBOL"};

// An index outside the table means its first entry.
inline int PlotFontIndex(double index) {
  return index >= 0 && index < static_cast<double>(kPlotFonts.size()) ? static_cast<int>(index) : 0;
}

}  // namespace pluvane
