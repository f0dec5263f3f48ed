// The data recap report (modDataRecap): a plain text file of everything a
// model is made of — the network, the scenario, its rain, then every element
// by kind with its labelled values — written beside the last model as
// ModelName.Txt and opened in a text editor.
#pragma once

#include <string>

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "simulation/simulation_state.h"

namespace pluvane {

// Writes the report and returns its path; empty, with nothing written, when
// the scenario or the network's base name is missing.
std::string WriteDataRecap(const Surface& surface, SimulationState& state, UserInterface& ui);

// The command mnuExploit_RecapData: writes the report and opens it.
void mnuExploit_RecapData(const Surface& surface, SimulationState& state, UserInterface& ui);

}  // namespace pluvane
