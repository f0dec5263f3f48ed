#include "editors/frm_hy_bv.h"

namespace pluvane {

FrmHyBv::FrmHyBv(EditorContext& context)
    : TagGridForm(context, "Exutoire de BV",
                  {
                      {"libell", "Identificateur (16 car maxi)=", CellType::Text()},
                      {"Qsec", "Débit de temps sec (m3/s)", CellType::Float(0, 99999.999, 3)},
                      {"SR", "Surface au miroir équivalente du réseau amont (m2)=",
                       CellType::Float(0, 99999999.99, 2)},
                  }) {}

}  // namespace pluvane
