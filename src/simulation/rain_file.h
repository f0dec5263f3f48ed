// The rain of a model: the .Scn file that names the calculation scenario and
// the .PLU file that holds the one block of the scenario's rain, whatever its
// kind (gauge records, design storms, radar, or a block taken from an
// external rain file). The generation calls GenFicPlu as its last step.
#pragma once

#include <string>

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/catalogue.h"
#include "simulation/simulation_state.h"

namespace pluvane {

// R of a design storm that no radius of action places: it covers everything.
inline constexpr double kWholeNetworkRadius = 9999999.0;

// The head keywords of the .PLU blocks, blanks included.
std::string RainKeyword(int i_pluie);

// Where a design storm stands: the first object of kind `radius_kind` (17)
// gives its radius (tag Rayon) and its centre (Xlog, Ylog on the map);
// without one the storm is centred on the middle of the logical extent with
// the radius 9999999. X and Y are map coordinates.
void LocateRainCentre(const Surface& surface, const Calibration& calibration, int radius_kind,
                      double& x, double& y, double& r);

// Writes the .Scn file: the scenario's Id, then its Design. False when the
// file cannot be written.
bool GenFicScn(const std::string& path, const std::string& id, const std::string& design);

// The rain step of a generation. Finds the scenario record (kind 111) named
// `scenario_name`; without one it says "scenario de pluie non trouvé !" and
// returns 0, writing nothing. Otherwise it writes `scn_path` and `plu_path`
// and returns 1, even when the rain is missing (the .PLU is then empty).
// `y_shift` is taken off every ordinate. An external rain whose file cannot
// be read throws AppError (the driver's handler ends the generation).
int GenFicPlu(const Surface& surface, UserInterface& ui, const Calibration& calibration,
              const std::string& scenario_name, const std::string& scn_path,
              const std::string& plu_path, double y_shift = 0);

}  // namespace pluvane
