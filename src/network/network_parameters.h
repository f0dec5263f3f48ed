// The two hidden records that carry a network's own settings in its file:
// ParamReseau (calculation defaults, sizes, extents, calibration) and
// ZoomFactors (the saved view).
#pragma once

#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

inline constexpr const char* kParamReseau = "ParamReseau";
// The tag of ParamReseau that holds the network's coordinate system.
inline constexpr const char* kCoordinateSystemTag = "SysCoord";
inline constexpr const char* kZoomFactors = "ZoomFactors";

// Deletes any record of that Id and creates both afresh from the state and the view.
void WriteParameterRecords(Surface& surface, const NetworkState& state);

// The ParamReseau of a new network: CalcMode, CalcDuree and CalcDt, and the
// coordinate system when there is one.
void CreateBlankParamReseau(Surface& surface, const NetworkState& state);

// Reads ParamReseau: each of CalcMode, CalcDuree, CalcDt, SymbolSize,
// LinkThick, Xecran and Yecran that reads above 0 replaces the state's value;
// the coordinate system is taken as it stands (none when the tag is absent).
void ReadParamReseau(Surface& surface, NetworkState& state);

// Reads ZoomFactors (Id and iGroup -1) into the zoom factor and the view's
// left and top. False, nothing changed, when the record is absent.
bool ReadZoomFactors(Surface& surface, NetworkState& state, double& left, double& top);

}  // namespace pluvane
