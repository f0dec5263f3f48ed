#include "simulation/model_steps.h"

#include "simulation/general_file.h"
#include "simulation/link_files.h"
#include "simulation/node_file.h"
#include "simulation/model_names.h"
#include "simulation/rain_file.h"
#include "simulation/record_lists.h"

namespace pluvane {

namespace {

// The rain step: the .PLU, and the .Scn beside it (not listed in the log).
int WriteRainFiles(ModelContext& context, const std::string& path) {
  return GenFicPlu(context.surface, context.ui, context.state.calibration,
                   context.state.ScenarioName, ModelFilePath(context.state, ".Scn"), path,
                   context.YShift);
}

}  // namespace

const std::vector<ModelStep>& ModelSteps() {
  static const std::vector<ModelStep> steps = {
      {".NOD", true, true, GenFicNod},
      {".GEN", true, true, GenFicGen},
      {".LI1", true, true, GenFicLi1},
      {".LI2", true, false, GenFicLi2},
      {".BRN", false, true, GenFicBrn},
      {".SEC", true, true, GenFicSec},
      {".APP", true, true, GenFicApp},
      {".PLU", true, true, WriteRainFiles},
  };
  return steps;
}

}  // namespace pluvane
