#include "editors/frm_rs.h"

#include "foundation/fixed_width.h"

namespace pluvane {

FrmRs::FrmRs(EditorContext& context)
    : BasinForm(context, "Bassin à Qf et Qs constants",
                {
                    {"libell", "Identificateur (16 car maxi)=", CellType::Text()},
                    {"IdAval", "Id. de la restitution aval=", CellType::List("")},
                    {"IdSurv", "Id. du surverse=", CellType::List("")},
                    {"Qf", "Débit de fuite (m3/s)=", CellType::Float(0, 99999.999, 3)},
                    {"Z0", "Z initiale dans le bassin entre Z1 et Z10 (ngf)=",
                     CellType::Float(-99999999.99, 99999999.99, 2)},
                },
                {
                    {"X", "Z retenue (ngf)", CellType::Float(-9999999999.99, 9999999999.99, 2)},
                    {"Y", "Surface au miroir (m2)",
                     CellType::Float(-999999999999.99, 999999999999.99, 2)},
                },
                {"Bassin à Qf et Qs constants : ", ""}, kRowZ0) {}

std::string FrmRs::LevelMessage(double z1, double zn, int n) const {
  return "La cote retenue initiale doit être rentrée entre Z1 et Z" + std::to_string(n) +
         "\r\n càd (" + FormatFixed(z1, 10, 2) + " et" + FormatFixed(zn, 10, 2) + ").";
}

}  // namespace pluvane
