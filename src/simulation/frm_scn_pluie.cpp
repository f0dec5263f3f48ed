#include "simulation/frm_scn_pluie.h"

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"
#include "simulation/scenario_records.h"

namespace pluvane {

namespace {

bool IsRealRain(int kind) { return kind == kINameRealRain || kind == kINameRadar; }

std::string KindText(int kind) {
  switch (kind) {
    case kINameCaquot:
      return " : Pluie Caquot : ";
    case kINameSimpleTriangle:
      return " : Pluie simple triangle : ";
    case kINameDoubleTriangle:
      return " : Pluie double triangle : ";
    case kINameSynthetic:
      return " : Pluie synthétique I(t) : ";
    default:
      return " : ";
  }
}

// The cell tag of the saved table: L, the row, C, the column.
std::string CellTag(int row, int col) {
  return "L" + std::to_string(row) + "C" + std::to_string(col);
}

// The parts of a list entry split at ":", trimmed; missing parts are empty.
std::vector<std::string> ItemParts(const std::string& item) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  while (parts.size() < 4) {
    const std::size_t colon = item.find(':', start);
    const bool last = colon == std::string::npos || parts.size() == 3;
    parts.push_back(Trim(item.substr(start, last ? std::string::npos : colon - start)));
    if (last) break;
    start = colon + 1;
  }
  parts.resize(4);
  return parts;
}

}  // namespace

std::string RainChoiceItem(Surface& surface, int kind) {
  const std::string id = surface.ObjTag(kTagId);
  const std::string design = surface.ObjTag("Design");
  if (IsRealRain(kind)) {
    return std::to_string(kind) + " : " + id + " : " + design + " : " + surface.ObjTag("iMode");
  }
  return std::to_string(kind) + " : " + id + KindText(kind) + design;
}

FrmScnPluie::FrmScnPluie(Surface& surface, SimulationState& state, UserInterface& /*ui*/)
    : surface_(surface), state_(state), grid_(3, kRows) {
  grid_.SetCaption(Caption());
  grid_.SetColHead(kColChoice, "choix d'une pluie");
  grid_.SetColHead(kColTitle, "Identif. du scénario");
  grid_.SetColHead(kColType, "Type de pluie");
  CursorKeeper keeper(surface_);
  std::string items;
  for (int kind = kINameRealRain; kind <= kINameRadar; ++kind) {
    for (int number : FindObjectList(surface_, kTagIName, kind)) {
      surface_.SetCurrentObject(number);
      if (!items.empty()) items += "\t";
      items += RainChoiceItem(surface_, kind);
    }
  }
  grid_.SetColumnType(kColChoice, CellType::List(items));
  grid_.SetColumnLocked(kColType, true);
  if (FindRecord(surface_, kINameRainScenario, kScnPluieId) == 0) return;
  for (int row = 1; row <= kRows; ++row) {
    for (int col = 1; col <= grid_.MaxCols(); ++col) {
      grid_.SetText(col, row, surface_.ObjTag(CellTag(row, col)));
    }
  }
}

std::vector<FormCommand> FrmScnPluie::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }},
          {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }}};
}

void FrmScnPluie::cmdOk() {
  CursorKeeper keeper(surface_);
  if (FindRecord(surface_, kINameRainScenario, kScnPluieId) == 0) {
    AddHiddenRecord(surface_, state_);
    surface_.SetObjTag(kTagIName, kINameRainScenario);
    surface_.SetObjTag(kTagIGroup, -1);
    surface_.SetObjTag(kTagId, kScnPluieId);
  }
  const std::vector<std::string> parts = ItemParts(grid_.Text(kColChoice, 1));
  const int kind = ValInt(parts[0]);
  const bool real = IsRealRain(kind);
  grid_.SetText(kColType, 1, real ? "Real" : "Project");
  surface_.SetObjTag("iPluie", kind);
  surface_.SetObjTag("IdPluie", parts[1]);
  surface_.SetObjTag("Design", parts[2]);
  surface_.SetObjTag(kTagUsId, grid_.Text(kColChoice, 1));
  surface_.SetObjTag("Type", real ? "Real" : "Project");
  if (real) surface_.SetObjTag("iMode", parts[3]);
  surface_.SetObjTag("iRow", kRows);
  surface_.SetObjTag("iCol", grid_.MaxCols());
  for (int row = 1; row <= kRows; ++row) {
    for (int col = 1; col <= grid_.MaxCols(); ++col) {
      surface_.SetObjTag(CellTag(row, col), grid_.Text(col, row));
    }
  }
  Close();
}

}  // namespace pluvane
