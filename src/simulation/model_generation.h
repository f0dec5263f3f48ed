// The model generation driver: scenario.nom, then each model file in turn,
// with the progress bar, the step counter and the .msg log of the paths.
#pragma once

#include <string>
#include <vector>

#include "simulation/model_context.h"
#include "simulation/model_steps.h"

namespace pluvane {

// The number of counted steps of a whole model.
inline constexpr int kModelStepCount = 8;

// Generates the model `model_name` (trimmed, it becomes the state's
// ModelName) in the state's ModelFolder. Returns the step counter reached:
// 8 when every file went through, 0 for an empty name (after a message).
// A run-time error ends it at once, with the files closed and the progress
// bar at 0; the .msg then lists the files finished before.
int GenerateModel(ModelContext& context, const std::string& model_name,
                  const std::vector<ModelStep>& steps = ModelSteps());

}  // namespace pluvane
