#include "simulation/frm_scn_sim_param.h"

#include <utility>

#include "network/catalogue.h"
#include "network/library_rows.h"
#include "foundation/grid_checks.h"
#include "foundation/grid_rows.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"
#include "simulation/frm_scn_sim_param_plus.h"
#include "simulation/scenario_records.h"

namespace pluvane {

FrmScnSimParam::FrmScnSimParam(Surface& surface, SimulationState& state, UserInterface& ui,
                               ShowModal show_modal)
    : surface_(surface), state_(state), ui_(ui), show_modal_(std::move(show_modal)), grid_(3, 0) {
  grid_.SetCaption(Caption());
  grid_.SetColHead(kColId, "Désignation du scénario (16 car)");
  grid_.SetColHead(kColUsId, "Titre du scénario (80 car)");
  grid_.SetColHead(kColEdit, "Paramétrage du scénario");
  grid_.SetColumnType(kColEdit, CellType::Button());
  CursorKeeper keeper(surface_);
  for (int number : FindObjectList(surface_, kTagIName, kINameScenario)) {
    surface_.SetCurrentObject(number);
    const int row = grid_.MaxRows() + 1;
    grid_.SetMaxRows(row);
    grid_.SetText(kColId, row, surface_.ObjTag(kTagId));
    grid_.SetText(kColUsId, row, surface_.ObjTag(kTagUsId));
    grid_.SetText(kColEdit, row, "&Editer...");
  }
}

std::vector<FormCommand> FrmScnSimParam::Commands() {
  return {{"mnAdd", "&Ajouter", [this] { mnAdd(); }},
          {"mnIns", "&Insérer", [this] { mnIns(); }},
          {"mnDel", "&Supprimer", [this] { mnDel(); }},
          {"mnSave", "&Enregistrer", [this] { mnSave(); }},
          {"mnClose", "&Fermer", [this] { mnClose(); }}};
}

void FrmScnSimParam::mnAdd() {
  const int previous = grid_.ActiveRow();
  const bool had_current = previous >= 1 && previous <= grid_.MaxRows();
  const std::string previous_id = had_current ? Trim(grid_.Text(kColId, previous)) : "";
  const int row = SSAddRow(grid_);
  const int created = NameNewRow(row);
  if (!had_current) return;
  if (ui_.AskYesNo("Les données du scenario '" + previous_id +
                       "'\rseront regénérées dans le nouveau scenario.\r\rVoulez-vous confirmer...",
                   "Ajout de scenario")) {
    CopySettings(previous_id, created);
  }
}

void FrmScnSimParam::mnIns() {
  int row = 0;
  if (SSInsertRow(grid_, row) == 0) return;
  NameNewRow(row);
}

void FrmScnSimParam::mnDel() {
  SSMarkRowDeleted(surface_, kINameScenario, grid_, grid_.ActiveRow());
}

void FrmScnSimParam::mnSave() {
  if (!SSCheckFilled(grid_, kColId, ui_)) return;
  deleted_ = DeleteMarkedRecords(surface_, kINameScenario);
  {
    CursorKeeper keeper(surface_);
    for (int row = 1; row <= grid_.MaxRows(); ++row) {
      const std::string id = Trim(grid_.Text(kColId, row));
      if (FindObject2(surface_, kTagIName, kINameScenario, kTagId, id) < 11) continue;
      WriteScenarioHead(surface_, id, Trim(grid_.Text(kColUsId, row)));
    }
  }
  Close();
}

void FrmScnSimParam::RenameRow(int row, const std::string& old_id) {
  if (row < 1 || row > grid_.MaxRows() || Trim(old_id).empty()) return;
  CursorKeeper keeper(surface_);
  if (FindObject2(surface_, kTagIName, kINameScenario, kTagId, old_id) > 10) {
    surface_.SetObjTag(kTagId, Trim(grid_.Text(kColId, row)));
  }
}

void FrmScnSimParam::ButtonCell(Grid& grid, int col, int row) {
  if (&grid == &grid_ && col == kColEdit) EditRow(row);
}

void FrmScnSimParam::EditRow(int row) {
  if (row < 1 || row > grid_.MaxRows()) return;
  const std::string id = Trim(grid_.Text(kColId, row));
  const int scenario = FindObject2(surface_, kTagIName, kINameScenario, kTagId, id);
  if (scenario < 11) return;
  FrmScnSimParamPlus form(surface_, state_, ui_, scenario, id, show_modal_);
  if (show_modal_) show_modal_(form);
}

int FrmScnSimParam::NameNewRow(int row) {
  std::string name = "Scn-" + std::to_string(row);
  grid_.SetText(kColId, row, name);
  if (SSFindDuplicate(grid_, kColId, ui_) != 0) {
    name += "-1";
    grid_.SetText(kColId, row, name);
  }
  grid_.SetText(kColUsId, row, name);
  grid_.SetText(kColEdit, row, "&Editer...");
  grid_.SetActiveCell(kColId, row);
  CursorKeeper keeper(surface_);
  return AddScenarioRecord(surface_, state_, name, name);
}

void FrmScnSimParam::CopySettings(const std::string& from_id, int to) {
  CursorKeeper keeper(surface_);
  const int from = FindObject2(surface_, kTagIName, kINameScenario, kTagId, from_id);
  if (from < 11 || from == to) return;
  std::vector<std::pair<std::string, std::string>> tags;
  for (int i = 0; i < surface_.ObjTagCount(); ++i) {
    const std::string name = surface_.ObjTagName(i);
    if (name == kTagId || name == kTagUsId) continue;
    tags.emplace_back(name, surface_.ObjTagValue(i));
  }
  surface_.SetCurrentObject(to);
  for (const auto& [name, value] : tags) surface_.SetObjTag(name, value);
}

}  // namespace pluvane
