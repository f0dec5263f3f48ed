// The three calibration points "Pt1" to "Pt3" on the drawing. While the
// calibration form is open they are picture symbols of iName 15 that the user
// can see, click and move; at all other times they are hidden records of
// iName 150, and those records are what marks a network as calibrated. Both
// forms carry the same tags: Xlog, Ylog (logical position) and Xcal, Ycal
// (the map coordinates the user gave).
#pragma once

#include <string>

#include "drawing/surface.h"
#include "network/catalogue.h"
#include "network/network_state.h"

namespace pluvane {

inline constexpr int kCalibrationPointCount = 3;
inline constexpr const char* kCalibrationSymbol = "CAL.wmf";

// "Pt1", "Pt2", "Pt3".
std::string CalibrationPointId(int index);

// The visible point of that Id (iName 15), 0 if none. The cursor is kept.
int FindCalibrationPoint(Surface& surface, const std::string& id);

// Turns every hidden record (iName 150) into a visible point: the record is
// deleted and a symbol of the calibration picture, SymbolSize wide and high,
// is made centred on its Xlog, Ylog, with the same tags and iName 15.
// Returns how many. The cursor is kept.
int ShowCalibrationPoints(Surface& surface, const NetworkState& state);

// The reverse: every visible point (iName 15) becomes a hidden record of
// iName 150 with the same tags. Returns how many. The cursor is kept.
int HideCalibrationPoints(Surface& surface, const NetworkState& state);

// Makes the three visible points afresh from the calibration's tables (after
// a merge deleted those of both networks). The cursor is kept.
void AddCalibrationPoints(Surface& surface, const NetworkState& state);

// Fills entry `index` of the tables from the tags of the object.
void ReadCalibrationPoint(Surface& surface, int number, Calibration& calibration, int index);

// When the three points of that iName all stand, fills the tables from them
// and returns true; otherwise leaves the tables and returns false.
bool ReadCalibrationPoints(Surface& surface, int i_name, Calibration& calibration);

}  // namespace pluvane
