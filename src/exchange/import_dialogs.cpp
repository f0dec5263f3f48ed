#include "exchange/import_dialogs.h"

namespace pluvane {

namespace {

const std::vector<std::string> kParamHeads{"Paramètre", "Numéro de colonne"};

}  // namespace

FrmParamNod2Import::FrmParamNod2Import(UserInterface& ui, const std::string& fld_file)
    : ColumnDialog(ui, "Import des noeuds", kParamHeads,
                   {"Libellé du noeud", "Coord. X ", "Coord. Y", "Coord. Z  (tn)"}, fld_file) {}

FrmParamBV2Import::FrmParamBV2Import(UserInterface& ui, const std::string& fld_file)
    : ColumnDialog(ui, "Import des BV", kParamHeads,
                   {"Libellé du BV", "Coord. Xc", "Coord. Yc", "Superficie du BV",
                    "Longueur du cheminnement", "Pente du cheminnement",
                    "Coef. d'imperméabilisation"},
                   fld_file) {}

FrmParamCI_PF2Import::FrmParamCI_PF2Import(UserInterface& ui, const std::string& fld_file)
    : ColumnDialog(ui, "Import des CI ou PF", kParamHeads,
                   {"Libellé du collecteur", "Libellé du noeud amont", "Libellé du noeud aval",
                    "Z radier amont", "Z radier aval", "Diamètre ou Id. Section",
                    "Longueur du collecteur", "Type de section (CI ou PF)", "Coef. Strickler",
                    "Hmoy sous chaussée", "Surface réseau amont"},
                   fld_file) {}

FrmParamPO2Import::FrmParamPO2Import(UserInterface& ui, const std::string& fld_file)
    : ColumnDialog(ui, "Import des PO", kParamHeads,
                   {"Libellé du collecteur", "Libellé du noeud amont", "Libellé du noeud aval",
                    "Z radier amont", "Z radier aval", "Id. Section", "Longueur du collecteur",
                    "Type de section (PO)", "Coef. Strickler du lit mineur",
                    "Largeur du lit majeur", "Coef. Strickler du lit majeur"},
                   fld_file) {}

FrmTmpMid::FrmTmpMid(UserInterface& ui, const std::string& fld_file)
    : ColumnDialog(ui, "Table des collecteurs", {"Nom de champs", "Position"},
                   {"Id. du collecteur", "Id. du noeud amont", "Id. du noeud aval",
                    "Z radier amont", "Z radier aval", "Longueur du collecteur",
                    "Diamètre du collecteur", "Coef. Strickler"},
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

std::unique_ptr<ColumnDialog> MakeColumnDialog(const std::string& kind, UserInterface& ui,
                                               const std::string& fld_file) {
  if (kind == "NOD") return std::make_unique<FrmParamNod2Import>(ui, fld_file);
  if (kind == "BV") return std::make_unique<FrmParamBV2Import>(ui, fld_file);
  if (kind == "PO") return std::make_unique<FrmParamPO2Import>(ui, fld_file);
  return std::make_unique<FrmParamCI_PF2Import>(ui, fld_file);
}

}  // namespace pluvane
