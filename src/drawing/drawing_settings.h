// How the drawing is laid out and shown: its logical extents, the size of
// symbols and links, the screen colour, the zoom factor and the size of the
// client area that views fit into. Part of the application's record; the
// drawing's own functions take this part alone.
#pragma once

#include <cstdint>

namespace pluvane {

struct DrawingSettings {
  std::int32_t LogicWidth = 0;
  std::int32_t LogicHeight = 0;
  double SymbolSize = 0;
  double LinkThick = 0;
  double ZoomFactor = 1;
  std::int32_t ScreenBackColor = 16777215;
  // Symbols follow the zoom (on at start).
  bool ScaleWithZoom = true;
  // Size of the drawing's client area in pixels, kept up to date by the view;
  // zooms to a rectangle fit the rectangle into it.
  std::int32_t ClientWidth = 1000;
  std::int32_t ClientHeight = 750;
};

}  // namespace pluvane
