#include "simulation/frm_scn_sim_param_plus.h"

#include <utility>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "simulation/frm_pluie_liste.h"
#include "simulation/scenario_records.h"

namespace pluvane {

FrmScnSimParamPlus::FrmScnSimParamPlus(Surface& surface, SimulationState& state, UserInterface& ui,
                                       int scenario, std::string id, ShowModal show_modal)
    : surface_(surface),
      state_(state),
      ui_(ui),
      scenario_(scenario),
      id_(std::move(id)),
      show_modal_(std::move(show_modal)),
      spread1_(1, 3),
      spread0_(4, 1) {
  spread1_.SetCaption(Caption());
  spread1_.SetText(0, kRowDuree, "Durée de simulation (mn)");
  spread1_.SetText(0, kRowDt, "Pas de temps de calcul (mn)");
  spread1_.SetText(0, kRowMode, "Mode de calcul");
  spread1_.SetType(1, kRowMode, CellType::List(CalcModeList()));
  spread0_.SetCaption(Caption());
  spread0_.SetText(0, 1, "Scénario de pluie");
  spread0_.SetColHead(kColId, "Identifiant");
  spread0_.SetColHead(kColUsId, "Commentaire");
  spread0_.SetColHead(kColKind, kTagIName);
  spread0_.SetColHead(kColMode, "iMode");
  for (int col = 1; col <= kColMode; ++col) spread0_.SetColumnLocked(col, true);

  spread1_.SetText(1, kRowDuree, TagOrDefault("CalcDuree", kDefaultCalcDuree));
  spread1_.SetText(1, kRowDt, TagOrDefault("CalcDt", kDefaultCalcDt));
  // The list is read by its first digit: an unknown text shows the first mode.
  const std::string mode = Tag("CalcMode");
  const int index = CalcModeValue(mode);
  spread1_.SetListIndex(1, kRowMode, Trim(mode).empty() || index < 0 || index > 1 ? 0 : index);

  state_.IdPluie = TagOrDefault("IdPluie", kBrowseRain);
  state_.UsIdPluie = Tag("UsIdPluie");
  state_.iPluie = Tag("iPluie");
  state_.iModePluie = Tag("iModePluie");
  spread0_.SetText(kColId, 1, state_.IdPluie);
  spread0_.SetText(kColUsId, 1, state_.UsIdPluie);
  spread0_.SetText(kColKind, 1, state_.iPluie);
  spread0_.SetText(kColMode, 1, state_.iModePluie);
}

std::vector<FormCommand> FrmScnSimParamPlus::Commands() {
  return {{"mnSave", "&Enregistrer", [this] { mnSave(); }},
          {"mnClose", "&Fermer", [this] { mnClose(); }}};
}

void FrmScnSimParamPlus::ClickCell(Grid& grid, int col, int row) {
  if (&grid == &spread0_ && col == kColId && row == 1) ClickRain();
}

void FrmScnSimParamPlus::ClickRain() {
  const std::string shown = spread0_.Text(kColId, 1);
  if (shown.find("Parcourir") != std::string::npos) {
    state_.IdPluie.clear();
    state_.UsIdPluie.clear();
    state_.iPluie.clear();
    state_.iModePluie.clear();
  } else {
    state_.IdPluie = shown;
    state_.UsIdPluie = spread0_.Text(kColUsId, 1);
    state_.iPluie = spread0_.Text(kColKind, 1);
    state_.iModePluie = spread0_.Text(kColMode, 1);
  }
  FrmPluieListe list(surface_, state_, ui_);
  if (!list.Closed() && show_modal_) show_modal_(list);
  if (state_.ScnPluieState != kScnPluieSelected || Trim(state_.IdPluie).empty()) return;
  spread0_.SetText(kColId, 1, state_.IdPluie);
  spread0_.SetText(kColUsId, 1, state_.UsIdPluie);
  spread0_.SetText(kColKind, 1, state_.iPluie);
  spread0_.SetText(kColMode, 1, state_.iModePluie);
}

void FrmScnSimParamPlus::mnSave() {
  {
    CursorKeeper keeper(surface_);
    surface_.SetCurrentObject(scenario_);
    if (surface_.CurrentObject() == scenario_) {
      surface_.SetObjTag("CalcDuree", spread1_.Text(1, kRowDuree));
      surface_.SetObjTag("CalcDt", spread1_.Text(1, kRowDt));
      surface_.SetObjTag("CalcMode", spread1_.Text(1, kRowMode));
      surface_.SetObjTag("IdPluie", spread0_.Text(kColId, 1));
      surface_.SetObjTag("UsIdPluie", spread0_.Text(kColUsId, 1));
      surface_.SetObjTag("iPluie", spread0_.Text(kColKind, 1));
      surface_.SetObjTag("iModePluie", spread0_.Text(kColMode, 1));
    }
  }
  state_.CalcDuree = spread1_.Value(1, kRowDuree);
  state_.CalcDt = spread1_.Value(1, kRowDt);
  state_.CalcMode = static_cast<std::int16_t>(spread1_.ListIndex(1, kRowMode));
  Close();
}

std::string FrmScnSimParamPlus::Tag(const char* name) {
  CursorKeeper keeper(surface_);
  surface_.SetCurrentObject(scenario_);
  return surface_.CurrentObject() == scenario_ ? surface_.ObjTag(name) : std::string();
}

std::string FrmScnSimParamPlus::TagOrDefault(const char* name, const char* fallback) {
  std::string value = Tag(name);
  if (!Trim(value).empty()) return value;
  CursorKeeper keeper(surface_);
  surface_.SetCurrentObject(scenario_);
  if (surface_.CurrentObject() == scenario_) surface_.SetObjTag(name, fallback);
  return fallback;
}

}  // namespace pluvane
