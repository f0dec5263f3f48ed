// What a network holds, at a glance: how many objects of each type, whether
// it is calibrated, and the text that `pluvane-cli info` prints of it.
#pragma once

#include <map>
#include <string>

#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// Objects counted by their type number (tag iName), for the types above 0.
std::map<int, int> CountsByIName(const Surface& surface);

// True when the three hidden calibration records Pt1 to Pt3 stand.
bool IsCalibrated(Surface& surface);

// One line per type present, in rising order: the iName, a tab, the count, a
// tab, the French label of the catalogue (empty when it has none); then
// "Scénario courant : " and the current scenario; then "Calé : oui" or
// "Calé : non". Lines end with a line feed.
std::string NetworkInfoText(Surface& surface, const NetworkState& state);

}  // namespace pluvane
