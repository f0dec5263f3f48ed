#include "editors/frm_trans.h"

#include <string>

namespace pluvane {

FrmTrans::FrmTrans(EditorContext& context)
    : ElementForm(context, "Translateur d'hydrogramme",
                  {{"libell", "Identificateur (16 car. maxi)=", CellType::Text()}}) {
  LoadRows();
}

void FrmTrans::cmdOk() {
  const std::string label = spread1_.Text(kValueCol, 1);
  if (!LabelAccepted()) {
    SetTag("libell", label);
    SetTag("Id", old_label_);
    return;
  }
  StoreRows(1, 1);
  Close();
}

}  // namespace pluvane
