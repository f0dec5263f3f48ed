#include "editors/frm_mark.h"

namespace pluvane {

FrmMark::FrmMark(EditorContext& context)
    : ElementForm(context, "Marquage de sortie du résultat",
                  {
      {"libell", "Identificateur (16 car. maxi)=", CellType::Text()},
      {"Export", "Export de l'hydrogramme=", CellType::CheckBox()},
                  }) {
  LoadRows();
}

}  // namespace pluvane
