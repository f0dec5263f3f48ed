// The checks that come before a model generation: the scenario's name, the
// network's file, the length of the model name and the scenario's rain. Also
// the look-up of a calculation scenario that every model writer shares.
#pragma once

#include <string>
#include <string_view>

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "simulation/simulation_state.h"

namespace pluvane {

// The first calculation scenario (iName 111) whose Id equals `scenario_name`,
// both trimmed and in capitals; 0 if none. The cursor does not move.
int FindScenarioObject(const Surface& surface, std::string_view scenario_name);

// True when the run must stop: a message titled "Contrôle de cohérence" has
// then told why. The network file is the state's. When all passed, a missing
// ParamReseau record is created with its defaults.
bool CheckScenarioNames(Surface& surface, SimulationState& state, UserInterface& ui,
                        const std::string& scenario_name);

}  // namespace pluvane
