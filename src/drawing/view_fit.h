// Fitting the drawing's view: to a rectangle of the logical space, to the
// whole logical space ("ZOOMT"), and the zoom factor a view stands for.
#pragma once

#include "drawing/drawing_settings.h"
#include "drawing/surface.h"

namespace pluvane {

// Fits the rectangle into the client area, keeping its left and top; both
// sides must be at least 2 units. Sets ZoomFactor from the new view. False
// when the rectangle is too small or the scale would overflow.
bool ZoomToRect(Surface& surface, DrawingSettings& state, double left, double top, double right,
                double bottom);

// The view over the whole logical space.
void ZoomToAll(Surface& surface, DrawingSettings& state);

// The larger of ViewWidth / LogicWidth and ViewHeight / LogicHeight.
double ZoomFactorOfView(const Surface& surface);

}  // namespace pluvane
