#include "simulation/frm_scn_sim_param_select.h"

#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"
#include "network/network_parameters.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"
#include "simulation/scenario_records.h"

namespace pluvane {

FrmScnSimParamSelect::FrmScnSimParamSelect(Surface& surface, SimulationState& state, UserInterface& ui)
    : surface_(surface), state_(state), ui_(ui), grid_(1, 1) {
  grid_.SetCaption(Caption());
  grid_.SetColHead(1, "Liste de scénarii disponibles");
  CursorKeeper keeper(surface_);
  if (CountByName(surface_, kINameScenario) == 0) AddScenarioRecord(surface_, state_, "", "");
  std::string items;
  int preselected = -1;
  int index = 0;
  for (int number : FindObjectList(surface_, kTagIName, kINameScenario)) {
    surface_.SetCurrentObject(number);
    const std::string id = surface_.ObjTag(kTagId);
    if (index > 0) items += "\t";
    items += id + " : " + surface_.ObjTag(kTagUsId);
    if (preselected < 0 && EqualsNoCase(Trim(id), Trim(state_.ScenarioName))) preselected = index;
    ++index;
  }
  grid_.SetType(1, 1, CellType::List(items));
  if (preselected >= 0) grid_.SetListIndex(1, 1, preselected);
}

std::vector<FormCommand> FrmScnSimParamSelect::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }},
          {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }}};
}

void FrmScnSimParamSelect::cmdOk() {
  CursorKeeper keeper(surface_);
  const std::string item = grid_.Text(1, 1);
  const std::size_t colon = item.find(':');
  const std::string id = Trim(item.substr(0, colon));
  const std::string title = colon == std::string::npos ? "" : Trim(item.substr(colon + 1));
  int scenario = FindRecord(surface_, kINameScenario, id);
  if (scenario == 0) {
    scenario = AddScenarioRecord(surface_, state_, id, title);
  }
  state_.ScenarioName = id;
  TakeScenarioSettings(surface_, state_, scenario);
  WriteCurrentScenarioRecord(id, title);
  ShowScenarioPanel(surface_, state_, ui_);
  ReadParamReseau(surface_, state_);
  Close();
}

void FrmScnSimParamSelect::WriteCurrentScenarioRecord(const std::string& id,
                                                      const std::string& title) {
  CursorKeeper keeper(surface_);
  if (FindObject(surface_, kTagIName, kINameCurrentScenario) < 11) {
    AddHiddenRecord(surface_, state_);
    surface_.SetObjTag(kTagIName, kINameCurrentScenario);
    surface_.SetObjTag(kTagIGroup, -1);
  }
  surface_.SetObjTag(kTagId, id);
  surface_.SetObjTag(kTagUsId, title);
}

}  // namespace pluvane
