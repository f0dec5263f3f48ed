#include "editors/frm_trans.h"

#include <string>

#include "drawing/object_tags.h"
#include "editors/element_tags.h"

namespace pluvane {

FrmTrans::FrmTrans(EditorContext& context)
    : TagGridForm(context, "Translateur d'hydrogramme",
                  {{"libell", "Identificateur (16 car. maxi)=", CellType::Text()}}) {}

void FrmTrans::cmdOk() {
  const std::string label = grid().Text(kValueCol, kLabelRow);
  if (StoreRows()) {
    Close();
    return;
  }
  SetTagOfObject(context_.surface, Element(), "libell", label);
  SetTagOfObject(context_.surface, Element(), kTagId, OldLabel());
}

}  // namespace pluvane
