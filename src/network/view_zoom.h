// Zooms of the drawing's view over the network: to the bounds of its elements
// ("ZOOM11") and the first view of a network; the fits of any drawing
// (a rectangle, "ZOOMT") are the drawing's own.
#pragma once

#include <cstdint>

#include "drawing/surface.h"
#include "drawing/view_fit.h"
#include "network/network_state.h"

namespace pluvane {

// The view over every element of the network (iName from 1 to 99), widened by
// three client heights when the scroll bars show. False when there is none.
bool ZoomToBounds(Surface& surface, NetworkState& state);

// The bounds of every element of the network (iName from 1 to 99); false when
// there is none.
bool NetworkBounds(const Surface& surface, std::int32_t& left, std::int32_t& top,
                   std::int32_t& right, std::int32_t& bottom);

// The first view of a network that brings no view of its own: when an element
// lies outside the present view, the whole network, centred in the client
// area with a margin; otherwise the present view stays. True when it moved.
bool ShowWholeNetwork(Surface& surface, NetworkState& state);

}  // namespace pluvane
