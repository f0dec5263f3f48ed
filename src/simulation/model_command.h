// A model generation as a command runs it: the checks on the names and the
// rain, the model's names and folder, then the driver.
#pragma once

#include <string>

#include "simulation/model_context.h"

namespace pluvane {

// Makes `scenario_name` the current scenario, checks it (CheckScenarioNames),
// sets the model names, makes the model folder and generates. Returns the
// driver's step count (8 when all went through), or -1 when a check refused.
int RunModelGeneration(ModelContext& context, const std::string& scenario_name);

}  // namespace pluvane
