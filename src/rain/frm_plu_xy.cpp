#include "rain/frm_plu_xy.h"

#include "drawing/surface_guards.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/network_tags.h"
#include "rain/rain_records.h"

namespace pluvane {

FrmPluXy::FrmPluXy(EditorContext& context)
    : context_(context), gauge_(context.surface.CurrentObject()), grid_(1, 3) {
  Surface& surface = context_.surface;
  grid_.SetCaption(Caption());
  grid_.SetText(0, kRowLabel, "Identificateur (16 car maxi)=");
  grid_.SetText(0, kRowX, "Abscisse X (m)=");
  grid_.SetText(0, kRowY, "Ordonnée Y (m)=");
  grid_.SetType(1, kRowLabel, CellType::Text(16));
  grid_.SetColWidth(1, 16);
  old_label_ = surface.ObjTag("libell");
  grid_.SetText(1, kRowLabel, old_label_);
  grid_.SetText(1, kRowX, surface.ObjTag(kTagXus));
  grid_.SetText(1, kRowY, surface.ObjTag(kTagYus));
}

std::vector<FormCommand> FrmPluXy::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }}, {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }}};
}

void FrmPluXy::cmdOk() {
  Surface& surface = context_.surface;
  const std::string label = Trim(grid_.Text(1, kRowLabel));
  {
    CursorKeeper keeper(surface);
    for (int number : RecordsOfKind(surface, kINamePLU)) {
      if (number == gauge_) continue;
      if (IdKey(RecordTag(surface, number, "libell")) != IdKey(label)) continue;
      context_.ui.ShowMessage(label + " existe déjà.", Caption(), MessageIcon::kExclamation);
      grid_.SetText(1, kRowLabel, old_label_);
      grid_.SetActiveCell(1, kRowLabel);
      return;
    }
  }
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(gauge_);
  if (surface.CurrentObject() != gauge_) return;
  surface.SetObjTag("libell", label);
  surface.SetObjTag(kTagXus, Trim(grid_.Text(1, kRowX)));
  surface.SetObjTag(kTagYus, Trim(grid_.Text(1, kRowY)));
  Close();
}

}  // namespace pluvane
