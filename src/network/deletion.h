// Deleting the selected elements: one at a time, a node taking with it its
// links (through the surface) and the elements standing on it, the node at the
// upstream end of a deleted link losing one from its count of links. Library
// records and the alphanumeric marks are never deleted this way.
#pragma once

#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// Deletes the selection by those rules and returns how many objects went
// (links removed with their ends included). One undo step.
int DeleteSelection(Surface& surface, NetworkState& state);

}  // namespace pluvane
