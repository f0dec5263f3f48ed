#include "simulation/general_file.h"

#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "simulation/model_text_file.h"
#include "simulation/scenario_check.h"

namespace pluvane {

int GenFicGen(ModelContext& context, const std::string& path) {
  const Surface& surface = context.surface;
  const std::string& name = context.state.ScenarioName;
  const int scenario = FindScenarioObject(surface, name);
  if (scenario == 0) {
    context.ui.ShowMessage("Le scénario " + name +
                               " est mal paramétré.\r\n\r\n"
                               "Revoir 'Paramétrage d'un scénario..., Réseau/Paramétrage...'",
                           "Contrôle de cohérence", MessageIcon::kNone);
    return 0;
  }
  ModelTextFile file(path);
  file.Line(context.state.ModelName);
  file.Line(PadInt(
      static_cast<std::int16_t>(ValInt(CharLeft(surface.TagOf(scenario, "CalcMode"), 1)) - 1), 5));
  file.Line(FormatFixed(Val(surface.TagOf(scenario, "CalcDuree")), 10, 2));
  file.Line(FormatFixed(Val(surface.TagOf(scenario, "CalcDt")), 10, 2));
  file.Flush();
  return 1;
}

}  // namespace pluvane
