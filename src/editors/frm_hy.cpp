#include "editors/frm_hy.h"

#include <algorithm>

#include "foundation/numbers.h"

namespace pluvane {

FrmHy::FrmHy(EditorContext& context)
    : PointForm(context, "Injection d'Hydrogramme",
                {
                    {"libell", "Identificateur (16 car maxi)=", CellType::Text()},
                    {"Qsec", "Débit de temps sec (m3/s)=", CellType::Float(0, 99999999.999, 3)},
                    {"SR", "Surface au miroir équivalente du réseau amont (m2)=",
                     CellType::Float(0, 99999999.99, 2)},
                },
                {
                    {"X", "Temps (mn)", CellType::Float(-99999999.99, 99999999.99, 2)},
                    {"Y", "Débit (m3/s)", CellType::Float(-9999999999.999, 9999999999.999, 3)},
                },
                kPointLimit, {"", " hydrogramme d'apport "}) {
  LoadPoints(std::clamp(static_cast<int>(ValLong(Tag("NbPt"))), 0, kPointLimit));
}

void FrmHy::cmdOk() {
  if (!TableAccepted("Les temps doivent être croissants !")) return;
  if (!StoreRows()) return;
  StorePoints();
  Close();
}

}  // namespace pluvane
