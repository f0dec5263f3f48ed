#include "simulation/scenario_records.h"

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"
#include "network/scenario_mode.h"

namespace pluvane {

std::string CalcModeList() { return std::string(kModeDiagnostic) + "\t" + kModeDimensioning; }

std::int16_t CalcModeValue(const std::string& calc_mode) {
  return static_cast<std::int16_t>(ValInt(CharLeft(calc_mode, 1)) - 1);
}

int FindRecord(Surface& surface, int i_name, const std::string& id) {
  const int found = FindRecordIn(surface, i_name, id);
  if (found) surface.SetCurrentObject(found);
  return found;
}

int FindRecordIn(const Surface& surface, int i_name, const std::string& id) {
  const std::string wanted = UCase(Trim(id));
  for (int number : surface.FindAllByTag(kTagIName, i_name)) {
    if (UCase(Trim(surface.TagOf(number, kTagId))) == wanted) return number;
  }
  return 0;
}

void WriteScenarioHead(Surface& surface, const std::string& id, const std::string& title) {
  surface.SetObjTag(kTagIGroup, -1);
  surface.SetObjTag(kTagIName, kINameScenario);
  surface.SetObjTag(kTagId, id);
  surface.SetObjTag(kTagUsId, title);
}

int AddScenarioRecord(Surface& surface, const SimulationState& state, const std::string& id,
                      const std::string& title) {
  const int number = AddHiddenRecord(surface, state);
  WriteScenarioHead(surface, id, title);
  return number;
}

void TakeScenarioSettings(Surface& surface, SimulationState& state, int scenario) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(scenario);
  if (surface.CurrentObject() != scenario) return;
  state.CalcDuree = Val(surface.ObjTag("CalcDuree"));
  state.CalcDt = Val(surface.ObjTag("CalcDt"));
  state.CalcMode = CalcModeValue(surface.ObjTag("CalcMode"));
}

std::string ScenarioStatusText(Surface& surface, const std::string& scenario_name) {
  return scenario_name + ScenarioModeText(surface, scenario_name);
}

void ShowScenarioPanel(Surface& surface, const SimulationState& state, UserInterface& ui) {
  ui.ShowPanel("sbrSCN", ScenarioStatusText(surface, state.ScenarioName));
}

std::string GenerationMenuCaption(Surface& surface, const SimulationState& state) {
  return "Génération du &modèle " + ScenarioStatusText(surface, state.ScenarioName);
}

}  // namespace pluvane
