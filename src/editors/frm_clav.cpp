#include "editors/frm_clav.h"

namespace pluvane {

FrmClav::FrmClav(EditorContext& context)
    : ElementForm(context, "Condition limite aval (CLAV)",
                  {
      {"libell", "Identificateur (16 car. maxi)=", CellType::Text()},
      {"Export", "Export de l'hydrogramme=", CellType::CheckBox()},
                  }) {
  LoadRows();
}

}  // namespace pluvane
