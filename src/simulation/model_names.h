// The names of a model: its folder (the network's folder and the scenario's
// name), its name (the scenario, "_", the base of the network file) and the
// paths of its files.
#pragma once

#include <string>
#include <string_view>

#include "simulation/simulation_state.h"

namespace pluvane {

// The scenario, "_" and the base of the network file (its name up to the first ".").
std::string ModelNameOf(std::string_view scenario, std::string_view network_file);
// Sets NetworkBase, ModelFolder and ModelName from NetworkFile and ScenarioName.
void SetModelNames(SimulationState& state);
// Makes the model folder when it is missing; false when it is still missing.
bool MakeModelFolder(const SimulationState& state);
// ModelFolder, the separator, ModelName and the extension (".NOD"...).
std::string ModelFilePath(const SimulationState& state, std::string_view extension);

}  // namespace pluvane
