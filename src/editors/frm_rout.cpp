#include "editors/frm_rout.h"

namespace pluvane {

FrmRout::FrmRout(EditorContext& context)
    : TagGridForm(
          context, "Routage hydrologique",
          {
              {"libell", "Identificateur (16 car maxi)=", CellType::Text()},
              {"S", "Section moyenne du collecteur (m2)=", CellType::Float(0, 99999999.99, 2)},
              {"L", "Longueur de routage (m)=", CellType::Float(0, 99999999.99, 2)},
              {"m", "Pente moyenne du collecteur (-)=", CellType::Float(-9.99999, 9.99999, 5)},
          }) {}

}  // namespace pluvane
