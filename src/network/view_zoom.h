// Zooms of the drawing's view: to a rectangle, to the bounds of the network's
// elements ("ZOOM11"), to the whole logical space ("ZOOMT").
#pragma once

#include <cstdint>

#include "network/surface.h"
#include "shell/app_state.h"

namespace pluvane {

// Fits the rectangle into the client area, keeping its left and top; both
// sides must be at least 2 units. Sets ZoomFactor from the new view. False
// when the rectangle is too small or the scale would overflow.
bool ZoomToRect(Surface& surface, AppState& state, double left, double top, double right,
                double bottom);

// The view over every element of the network (iName from 1 to 99), widened by
// three client heights when the scroll bars show. False when there is none.
bool ZoomToBounds(Surface& surface, AppState& state);

// The view over the whole logical space.
void ZoomToAll(Surface& surface, AppState& state);

// The larger of ViewWidth / LogicWidth and ViewHeight / LogicHeight.
double ZoomFactorOfView(const Surface& surface);

}  // namespace pluvane
