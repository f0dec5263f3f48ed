#include "network/scenario_mode.h"

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_helpers.h"
#include "network/catalogue.h"

namespace pluvane {

std::string ScenarioModeText(Surface& surface, const std::string& scenario_name) {
  const int saved = surface.CurrentObject();
  std::string text;
  if (FindObject2(surface, kTagIName, kINameScenario, kTagId, scenario_name) > 10) {
    const int mode = ValInt(CharLeft(surface.ObjTag("CalcMode"), 1)) - 1;
    text = mode == 0 ? " (diag)" : " (dim)";
  }
  surface.SetCurrentObject(saved);
  return text;
}

}  // namespace pluvane
