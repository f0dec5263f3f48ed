// Restoring the calibration of a network after it was opened: from its three
// hidden calibration records when it has them, else from the seven parameters
// saved in ParamReseau.
#pragma once

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// SolveCalibration, telling the user when the three points cannot be used
// ("Les valeurs de calage sont incohérentes !", titled "Calage"); the previous
// parameters then stand.
bool SolveCalibrationOrWarn(Calibration& calibration, UserInterface& ui);

// The records Pt1 to Pt3 of iName 150 win: the tables are filled from them and
// solved. Without all three, each of the seven tags of ParamReseau that is
// not blank replaces its parameter, with no test of coherence. Last, visible
// calibration symbols are put back out of sight. The cursor is kept.
void LoadCalibration(Surface& surface, NetworkState& state, UserInterface& ui);

}  // namespace pluvane
