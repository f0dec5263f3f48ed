// New lines, rectangles and texts put on a plot by the user: the placing
// modes (mnuOpt_PlacerLigne, mnuOpt_PlacerRect, mnuOpt_PlacerTxt) leave the
// kind to draw in the surface's edit mode, and the window hands the press and
// release points here. The new object takes the defaults' line style, so that
// a colour chosen for the selection also goes to what is drawn next.
#pragma once

#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

// True when the surface waits for a line, a rectangle or a text.
bool IsPlacingMode(int edit_mode);

// Places the object of the surface's edit mode from (x1, y1) to (x2, y2) in
// logical units: a line between them, a rectangle over them, or a text asked
// in an input box with its top left at the press. The edit mode goes back to
// selection. Returns the new object, 0 when nothing was placed (a line or
// rectangle of no size, a cancelled or empty text, another mode).
int PlaceViewerObject(UserInterface& ui, Surface& surface, double x1, double y1, double x2,
                      double y2);

}  // namespace pluvane
