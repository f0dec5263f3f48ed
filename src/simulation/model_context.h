// What one model generation works on: the drawing, the application state
// (model folder and name, scenario, map), the person at the screen, and the
// few values that the writers of one generation share between them.
#pragma once

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "simulation/simulation_state.h"

namespace pluvane {

struct ModelContext {
  Surface& surface;
  SimulationState& state;
  UserInterface& ui;
  // Ordinate shift taken off every ordinate written; set to 0 by GenFicNod.
  double YShift = 0;
  // Extent of the nodes and catchments in user coordinates, kept by GenFicNod
  // for whoever wants it; no file uses it.
  double XMin = 999999999;
  double YMin = 999999999;
  double XMax = -999999999;
  double YMax = -999999999;
};

}  // namespace pluvane
