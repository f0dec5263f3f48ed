// Zooms of the drawing's view: to a rectangle, to the bounds of the network's
// elements ("ZOOM11"), to the whole logical space ("ZOOMT").
#pragma once

#include <cstdint>

#include "drawing/surface.h"
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

// The bounds of every element of the network (iName from 1 to 99); false when
// there is none.
bool NetworkBounds(Surface& surface, std::int32_t& left, std::int32_t& top, std::int32_t& right,
                   std::int32_t& bottom);

// The first view of a network that brings no view of its own: when an element
// lies outside the present view, the whole network, centred in the client
// area with a margin; otherwise the present view stays. True when it moved.
bool ShowWholeNetwork(Surface& surface, AppState& state);

// The view over the whole logical space.
void ZoomToAll(Surface& surface, AppState& state);

// The larger of ViewWidth / LogicWidth and ViewHeight / LogicHeight.
double ZoomFactorOfView(const Surface& surface);

}  // namespace pluvane
