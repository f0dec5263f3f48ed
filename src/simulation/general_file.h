// The .GEN file: the model's name and the calculation settings of the current
// scenario (mode, duration, time step).
#pragma once

#include <string>

#include "simulation/model_context.h"

namespace pluvane {

// Writes .GEN from the scenario named by the state's ScenarioName; returns 1.
// When that scenario does not exist, says so and writes nothing (0).
int GenFicGen(ModelContext& context, const std::string& path);

}  // namespace pluvane
