// Library and parameter records live on the drawing as small rectangles out of
// sight: around the far corner (LogicWidth, LogicHeight) of the logical space,
// SymbolSize on each side, drawn in the screen's background colour and hidden.
#pragma once

#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// Adds such a record with the defaults' style and makes it current; returns
// its number.
int AddHiddenRecord(Surface& surface, const NetworkState& state);

// Puts an existing object out of sight the same way: its centre moved to the
// far corner, line and fill in the background colour, not visible. The cursor
// is put back.
void HideRecord(Surface& surface, const NetworkState& state, int number);

}  // namespace pluvane
