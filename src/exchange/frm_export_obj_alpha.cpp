#include "exchange/frm_export_obj_alpha.h"

#include "drawing/surface_helpers.h"
#include "exchange/obj_alpha_export.h"
#include "foundation/dialogs.h"
#include "foundation/text.h"
#include "network/catalogue.h"

namespace pluvane {

bool ObjAlphaNetworkLoaded(Surface& surface, UserInterface& ui) {
  if (CountByName(surface, kINameNode) >= 2) return true;
  ui.ShowMessage("Un réseau doit être chargé.", "Pluvane", MessageIcon::kExclamation);
  return false;
}

FrmExportObjAlpha::FrmExportObjAlpha(Surface& surface, const NetworkState& state, UserInterface& ui)
    : surface_(surface), state_(state), ui_(ui), grid_(1, 2) {
  grid_.SetCaption(Caption());
  grid_.SetColHead(1, "");
  grid_.SetColWidth(0, 26);
  grid_.SetColWidth(1, 48);
  grid_.SetText(0, kRowType, "Type de données à exporter:");
  grid_.SetText(0, kRowFile, "Fichier Mtf destination:");
  std::string entries;
  for (const std::string& entry : ObjAlphaKinds(surface_)) {
    if (!entries.empty()) entries += '\t';
    entries += entry;
  }
  CellType type = CellType::List(entries);
  type.typed = true;
  grid_.SetType(1, kRowType, type);
  // The box starts on the form of a typed entry, which is not in the list.
  grid_.SetText(1, kRowType, kObjAlphaTypedEntry);
  grid_.SetType(1, kRowFile, CellType::Text());
  grid_.SetNote(1, kRowFile, "Double cliques ici pour parcourir les fichiers Mtf...");
  grid_.SetActiveCell(1, kRowType);
}

std::vector<FormCommand> FrmExportObjAlpha::Commands() {
  return {{"cmdGo", "&Exporter", [this] { cmdGo(); }},
          {"cmdCancel", "&Fermer", [this] { cmdCancel(); }}};
}

void FrmExportObjAlpha::DoubleClickCell(Grid& grid, int col, int row) {
  if (&grid != &grid_ || col != 1 || row != kRowFile) return;
  const std::string file = AskSaveFile(ui_, "Spécifiez le fichier Mtf destination",
                                       "fichier Pluvane|*.mtf", "mtf", "*.mtf");
  if (!file.empty()) grid_.SetText(1, kRowFile, file);
}

void FrmExportObjAlpha::cmdGo() {
  const ObjAlphaResult result =
      ExportObjAlpha(surface_, state_, ui_, grid_.Text(1, kRowType), Trim(grid_.Text(1, kRowFile)));
  if (result.outcome == ObjAlphaResult::kDone) Close();
}

}  // namespace pluvane
