#include "exchange/frm_tmp_mid.h"

namespace pluvane {

FrmTmpMid::FrmTmpMid(UserInterface& ui, const std::string& fld_file)
    : ColumnDialog(
          ui, "Table des collecteurs", {"Nom de champs", "Position"},
          {"Id. du collecteur", "Id. du noeud amont", "Id. du noeud aval", "Z radier amont",
           "Z radier aval", "Longueur du collecteur", "Diamètre du collecteur", "Coef. Strickler"},
          fld_file) {}

bool FrmTmpMid::CheckRows() {
  for (int row = 1; row <= grid().MaxRows(); ++row) {
    if (grid().Value(2, row) != 0) continue;
    ui_.ShowMessage("Position non valide pour le champs " + grid().Text(1, row), "",
                    MessageIcon::kNone);
    grid().SetActiveCell(2, row);
    return false;
  }
  return true;
}

}  // namespace pluvane
