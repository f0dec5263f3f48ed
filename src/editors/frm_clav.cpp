#include "editors/frm_clav.h"

namespace pluvane {

FrmClav::FrmClav(EditorContext& context)
    : TagGridForm(context, "Condition limite aval (CLAV)",
                  {
                      {"libell", "Identificateur (16 car. maxi)=", CellType::Text()},
                      {"Export", "Export de l'hydrogramme=", CellType::CheckBox()},
                  }) {}

}  // namespace pluvane
