#include "simulation/general_file.h"

#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "simulation/model_text_file.h"
#include "simulation/scenario_check.h"

namespace pluvane {

int GenFicGen(ModelContext& context, const std::string& path) {
  Surface& surface = context.surface;
  const std::string& name = context.state.ScenarioName;
  const int scenario = FindScenarioObject(surface, name);
  if (scenario == 0) {
    context.ui.ShowMessage("Le scénario " + name +
                               " est mal paramétré.\r\n\r\n"
                               "Revoir 'Paramétrage d'un scénario..., Réseau/Paramétrage...'",
                           "Contrôle de cohérence", MessageIcon::kNone);
    return 0;
  }
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(scenario);
  ModelTextFile file(path);
  file.Line(context.state.ModelName);
  file.Line(
      PadInt(static_cast<std::int16_t>(ValInt(CharLeft(surface.ObjTag("CalcMode"), 1)) - 1), 5));
  file.Line(FormatFixed(Val(surface.ObjTag("CalcDuree")), 10, 2));
  file.Line(FormatFixed(Val(surface.ObjTag("CalcDt")), 10, 2));
  file.Flush();
  return 1;
}

}  // namespace pluvane
