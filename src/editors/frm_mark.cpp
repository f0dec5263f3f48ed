#include "editors/frm_mark.h"

namespace pluvane {

FrmMark::FrmMark(EditorContext& context)
    : TagGridForm(context, "Marquage de sortie du résultat",
                  {
                      {"libell", "Identificateur (16 car. maxi)=", CellType::Text()},
                      {"Export", "Export de l'hydrogramme=", CellType::CheckBox()},
                  }) {}

}  // namespace pluvane
