#include "shell/frm_param_reseau.h"

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "gis/gis_gdal.h"
#include "network/network_parameters.h"
#include "simulation/scenario_records.h"

namespace pluvane {

namespace {

const char* const kLabels[] = {"", "Durée de simulation (mn)", "Pas de temps de calcul (mn)",
                               "Mode de calcul", "Système de coordonnées (EPSG ou WKT)"};

}  // namespace

FrmParamReseau::FrmParamReseau(Surface& surface, AppState& state, UserInterface& ui)
    : surface_(surface), state_(state), ui_(ui), grid_(1, 4) {
  grid_.SetCaption(Caption());
  grid_.SetColHead(1, "Valeur");
  grid_.SetColWidth(0, 34);
  grid_.SetColWidth(1, 20);
  for (int row = 1; row <= kRowCoordinates; ++row) grid_.SetText(0, row, kLabels[row]);
  grid_.SetType(1, kRowDuree, CellType::Float(0, 1e9, 2));
  grid_.SetType(1, kRowDt, CellType::Float(0, 1e9, 2));
  grid_.SetType(1, kRowMode, CellType::List(CalcModeList()));
  grid_.SetText(1, kRowDuree, NumToText(state_.CalcDuree));
  grid_.SetText(1, kRowDt, NumToText(state_.CalcDt));
  grid_.SetListIndex(1, kRowMode, state_.CalcMode == 1 ? 1 : 0);
  grid_.SetText(1, kRowCoordinates, state_.CoordinateSystem);
}

std::vector<FormCommand> FrmParamReseau::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }},
          {"cmdCancel", "&Annuler", [this] { cmdCancel(); }}};
}

void FrmParamReseau::cmdOk() {
  for (int row : {kRowDuree, kRowDt}) {
    if (Val(grid_.Text(1, row)) > 0) continue;
    ui_.ShowMessage(std::string("La valeur de '") + kLabels[row] + "' doit être un nombre positif.",
                    Caption(), MessageIcon::kExclamation);
    grid_.SetActiveCell(1, row);
    return;
  }
  if (Val(grid_.Text(1, kRowDt)) > Val(grid_.Text(1, kRowDuree))) {
    ui_.ShowMessage("Le pas de temps de calcul ne peut dépasser la durée de simulation.",
                    Caption(), MessageIcon::kExclamation);
    grid_.SetActiveCell(1, kRowDt);
    return;
  }
  const std::string crs = Trim(grid_.Text(1, kRowCoordinates));
  if (!crs.empty() && !IsKnownCoordinateSystem(crs)) {
    ui_.ShowMessage("Le système de coordonnées (" + crs + ") est inconnu.", Caption(),
                    MessageIcon::kExclamation);
    grid_.SetActiveCell(1, kRowCoordinates);
    return;
  }
  state_.CoordinateSystem = crs;
  state_.CalcDuree = Val(grid_.Text(1, kRowDuree));
  state_.CalcDt = Val(grid_.Text(1, kRowDt));
  state_.CalcMode = static_cast<std::int16_t>(grid_.ListIndex(1, kRowMode) == 1 ? 1 : 0);
  WriteParameterRecords(surface_, state_);
  Close();
}

void mnuMyUtil_SetParamReg(Surface& surface, AppState& state, UserInterface& ui) {
  WriteParameterRecords(surface, state);
  ui.ShowStatus("ok paramètres du réseau écrits dans le dessin");
}

}  // namespace pluvane
