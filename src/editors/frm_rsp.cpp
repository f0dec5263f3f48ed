#include "editors/frm_rsp.h"

#include "foundation/numbers.h"

namespace pluvane {

FrmRsp::FrmRsp(EditorContext& context)
    : BasinForm(
          context, "Bassin à Qf et Qs paramétriques",
          {
              {"libell", "Identificateur (16 car maxi)=", CellType::Text()},
              {"IdAval", "Id. de la restitution aval (16 car maxi)=", CellType::List("")},
              {"IdSurv", "Id. du surverse (16 car maxi)=", CellType::List("")},
              {"Z0", "Z initiale dans le bassin entre Z1 et Z10 (ngf)=",
               CellType::Float(-99999999.99, 99999999.99, 2)},
          },
          {
              {"X", "Cote retenue (ngf)", CellType::Float(-9999999999.99, 9999999999.99, 2)},
              {"Y", "Surface au miroir (m2)", CellType::Float(0, 999999999999.99, 2)},
              {"Z", "Débit de fuite (m3/s)", CellType::Float(-9999999999.999, 9999999999.999, 3)},
              {"T", "Débit de surverse (m3/s)",
               CellType::Float(-9999999999.999, 9999999999.999, 3)},
          },
          {"Bassin à Qf et Qs paramétriques : ", ""}, kRowZ0) {}

std::string FrmRsp::LevelMessage(double z1, double zn, int n) const {
  return "La cote retenue initiale doit être rentrée\r\nentre Z1 et Z" + std::to_string(n) +
         " càd (" + NumToText(z1) + " et " + NumToText(zn) + ").";
}

}  // namespace pluvane
