// What a move of elements leaves to do once the surface has moved the
// selection: point elements and nodes note their new position (and, with
// Ctrl held, their map position and the lengths of their links), the radius
// of action its new centre, and moved calibration points solve the map again.
#pragma once

#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

struct MoveOutcome {
  int updated = 0;                  // objects whose tags were rewritten
  bool calibration_moved = false;   // a calibration point was among them
  bool calibration_solved = false;  // and the map was solved again from them
};

// Handles each selected object by its iName, then clears the selection.
MoveOutcome FinishMove(Surface& surface, NetworkState& state, bool ctrl);

}  // namespace pluvane
