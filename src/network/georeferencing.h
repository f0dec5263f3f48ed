// The affine map between the drawing's integer logical units and the user's
// map coordinates, solved from three calibration points. Logical ordinates
// grow downwards and map ordinates upwards: the sign change of y is the whole
// of the flip.
#pragma once

#include <cstdint>

#include "network/network_state.h"

namespace pluvane {

// Solves the seven parameters from the three points held in the calibration's
// tables (index 1 to 3). False, parameters untouched, when the points are
// aligned or two are equal.
bool SolveCalibration(Calibration& calibration);

double LogicToUserX(const Calibration& c, double x_log, double y_log);
double LogicToUserY(const Calibration& c, double x_log, double y_log);
// The inverse, rounded half to even. It is exact only for maps without shear
// (XLACOS equal to XLAMU); sheared maps drift on a round trip, as they always did.
std::int32_t UserToLogicX(const Calibration& c, double x_user, double y_user);
std::int32_t UserToLogicY(const Calibration& c, double x_user, double y_user);

// The map of a network without calibration records, from the thirds of the
// logical extents (at the first load of the main window).
void DefaultCalibrationFromThirds(Calibration& c, std::int32_t width, std::int32_t height);
// Maps a map extent (its lower left and upper right corners) to the middle
// third of the sheet. False, calibration untouched, when the extent is a
// point or a line.
bool CalibrateOnExtent(Calibration& c, std::int32_t width, std::int32_t height, double x_min,
                       double y_min, double x_max, double y_max);
// The same from the corners of the drawing: X = Xlog, Y = height - Ylog.
void DefaultCalibrationFromCorners(Calibration& c, std::int32_t width, std::int32_t height);

}  // namespace pluvane
