#include "network/frm_info_calage.h"

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "drawing/surface_guards.h"

namespace pluvane {

FrmInfoCalage::FrmInfoCalage(Surface& surface, UserInterface& ui, int record)
    : surface_(surface), ui_(ui), record_(record), grid_(2, 1) {
  CursorKeeper keeper(surface_);
  surface_.SetCurrentObject(record_);
  if (surface_.CurrentObject() == record_) point_id_ = surface_.ObjTag(kTagId);
  grid_.SetCaption(Caption());
  grid_.SetColHead(1, "X");
  grid_.SetColHead(2, "Y");
  grid_.SetText(0, 1, point_id_);
  grid_.SetColumnType(1, CellType::Float(0, 0, 2));
  grid_.SetColumnType(2, CellType::Float(0, 0, 2));
  grid_.SetActiveCell(1, 1);
}

std::vector<FormCommand> FrmInfoCalage::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }},
          {"cmdCancel", "&Annuler", [this] { cmdCancel(); }}};
}

void FrmInfoCalage::cmdOk() {
  for (int col = 1; col <= 2; ++col) {
    if (!grid_.IsBlank(col, 1)) continue;
    ui_.ShowMessage("Renseignez les coordonnées X,Y du point " + point_id_, "", MessageIcon::kNone);
    grid_.SetActiveCell(col, 1);
    return;
  }
  CursorKeeper keeper(surface_);
  surface_.SetCurrentObject(record_);
  if (surface_.CurrentObject() == record_) {
    surface_.SetObjTag("Xcal", grid_.Value(1, 1));
    surface_.SetObjTag("Ycal", grid_.Value(2, 1));
  }
  Close();
}

void FrmInfoCalage::cmdCancel() {
  if (record_ >= kFirstObjectNumber) {
    CursorKeeper keeper(surface_);
    surface_.DeleteObject(record_);
  }
  Close();
}

}  // namespace pluvane
