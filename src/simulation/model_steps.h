// The files of a model, in the order the generation writes them, each with its
// writer. The rain file's writer plugs in here.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "simulation/model_context.h"

namespace pluvane {

// Writes one model file at `path` (the old file is gone already); returns a
// count of what it wrote. A run-time error it does not trap (AppError) ends
// the generation.
using ModelWriter = std::function<int(ModelContext&, const std::string& path)>;

struct ModelStep {
  std::string extension;  // ".NOD"...
  // The progress bar is set before the step (the reaches share the step of .LI2).
  bool shows_progress = true;
  // The step counter moves on after the step.
  bool counts = true;
  // An empty writer leaves the file absent; its path is still logged.
  ModelWriter write;
};

// .NOD, .GEN, .LI1, .LI2, .BRN, .SEC, .APP, .PLU. The .PLU step's writer also
// writes the .Scn file.
const std::vector<ModelStep>& ModelSteps();

}  // namespace pluvane
