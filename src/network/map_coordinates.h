// Keeping the coordinate tags of the drawing in step with the calibration:
// Xlog, Ylog (logical) and Xus, Yus (map) of the elements that hold a place
// of their own, and a node put back where its map coordinates say.
#pragma once

#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// Over every object of iName 99, 12, 21 or 1: Xlog, Ylog become the centre of
// its box, and Xus, Yus the map position of that centre read back as
// integers. Returns how many objects were updated. The cursor is kept.
int RecomputeUserCoordinates(Surface& surface, const NetworkState& state);

// Puts an object that keeps its own Xlog, Ylog and Xus, Yus (a node, a
// catchment, a gauge) where its map coordinates fall by the calibration,
// writing Xlog, Ylog; the links bound to it follow. An object with Xlog, Ylog
// under 1 and Xus, Yus under 0.000001 never had coordinates and stays. True
// when it moved. The cursor is kept.
bool MoveObjectToMap(Surface& surface, const Calibration& calibration, int object);

// Puts a node where its Xus, Yus fall by the calibration. When that logical
// position differs from its Xlog, Ylog or from the centre of its symbol, the
// tags are written and the symbol moved by the difference: the links bound to
// it follow, and so do the point elements standing on it (iGroup 1 or 3, its
// Id as sNodAm, their box over its centre). A node with Xlog, Ylog under 1
// and Xus, Yus under 0.000001 never had coordinates and is left alone.
// Returns true when the node moved. The cursor and the selection are kept.
bool SnapNodeToMap(Surface& surface, const Calibration& calibration, int node);

}  // namespace pluvane
