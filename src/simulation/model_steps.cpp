#include "simulation/model_steps.h"

#include "simulation/general_file.h"
#include "simulation/link_files.h"
#include "simulation/node_file.h"
#include "simulation/record_lists.h"

namespace pluvane {

const std::vector<ModelStep>& ModelSteps() {
  static const std::vector<ModelStep> steps = {
      {".NOD", true, true, GenFicNod},
      {".GEN", true, true, GenFicGen},
      {".LI1", true, true, GenFicLi1},
      {".LI2", true, false, GenFicLi2},
      {".BRN", false, true, GenFicBrn},
      {".SEC", true, true, GenFicSec},
      {".APP", true, true, GenFicApp},
      // The rain file and the .Scn beside it: GenFicPlu.
      {".PLU", true, true, nullptr},
  };
  return steps;
}

}  // namespace pluvane
