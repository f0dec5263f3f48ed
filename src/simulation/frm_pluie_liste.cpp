#include "simulation/frm_pluie_liste.h"

#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/catalogue.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {


bool HasMode(int kind) {
  return kind == kINameRealRain || kind == kINameRadar || kind == kINameExternalGauge;
}
bool IsExternal(int kind) {
  return kind == kINameRadar || kind == kINameExternalGauge || kind == kINameExternalHyeto;
}

}  // namespace

FrmPluieListe::FrmPluieListe(Surface& surface, SimulationState& state, UserInterface& ui)
    : surface_(surface), state_(state), ui_(ui), grid_(kColExternal, 0) {
  grid_.SetCaption(Caption());
  grid_.SetColHead(kColId, "Identifiant de la pluie");
  grid_.SetColHead(kColUsId, "Libellé de la pluie");
  grid_.SetColHead(kColKind, kTagIName);
  grid_.SetColHead(kColMode, "iMode (project ou real)");
  grid_.SetColHead(kColExternal, "Mode externe");
  grid_.SetColWidth(kColKind, 0);
  grid_.SetColWidth(kColMode, 0);
  for (int col = 1; col <= kColExternal; ++col) grid_.SetColumnLocked(col, true);
  grid_.SetRowSelect(true);
  state_.ScnPluieState.clear();
  if (!GaugeNamesAreUnique()) {
    Close();
    return;
  }
  Load();
  Preselect();
}

std::vector<FormCommand> FrmPluieListe::Commands() {
  return {{"mnuSelect", "&Sélectionner", [this] { mnuSelect(); }},
          {"mnuImport", "&Importer", [this] { mnuImport(); }},
          {"mnuClose", "&Fermer", [this] { mnuClose(); }}};
}

void FrmPluieListe::mnuSelect() {
  const int row = grid_.ActiveRow();
  if (row >= 1 && row <= grid_.MaxRows()) {
    state_.IdPluie = grid_.Text(kColId, row);
    state_.UsIdPluie = grid_.Text(kColUsId, row);
    state_.iPluie = grid_.Text(kColKind, row);
    state_.iModePluie = grid_.Text(kColMode, row);
    state_.ScnPluieState = kScnPluieSelected;
  }
  Close();
}

void FrmPluieListe::Load() {
  CursorKeeper keeper(surface_);
  for (int kind : kRainListKinds) {
    for (int number : FindObjectList(surface_, kTagIName, kind)) {
      surface_.SetCurrentObject(number);
      const int row = grid_.MaxRows() + 1;
      grid_.SetMaxRows(row);
      grid_.SetText(kColId, row, surface_.ObjTag(kTagId));
      grid_.SetText(kColUsId, row, surface_.ObjTag(kTagUsId));
      grid_.SetText(kColKind, row, std::to_string(kind));
      grid_.SetText(kColMode, row, HasMode(kind) ? surface_.ObjTag("iMode") : "");
      grid_.SetText(kColExternal, row, IsExternal(kind) ? "x" : "");
    }
  }
}

bool FrmPluieListe::GaugeNamesAreUnique() {
  CursorKeeper keeper(surface_);
  for (int number : FindObjectList(surface_, kTagIName, kINamePLU)) {
    surface_.SetCurrentObject(number);
    const std::string name = surface_.ObjTag("libell");
    const int count = CountLabel(surface_, kINamePLU, name);
    if (count < 2) continue;
    ui_.ShowMessage("Attention, doublon de pluviomètre non autorisé\r\n" + std::to_string(count) +
                        " pluviomètres " + name + " ont été trouvés.",
                    "Controle de cohérence de pluviomètre", MessageIcon::kNone);
    return false;
  }
  return true;
}

void FrmPluieListe::Preselect() {
  if (Trim(state_.IdPluie).empty()) return;
  for (int row = 1; row <= grid_.MaxRows(); ++row) {
    if (!EqualsNoCase(Trim(grid_.Text(kColId, row)), Trim(state_.IdPluie))) continue;
    if (!Trim(state_.iPluie).empty() && Trim(grid_.Text(kColKind, row)) != Trim(state_.iPluie)) {
      continue;
    }
    grid_.SetActiveCell(kColId, row);
    return;
  }
}

}  // namespace pluvane
