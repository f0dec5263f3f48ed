#include "exchange/frm_param_po2_import.h"

namespace pluvane {

FrmParamPO2Import::FrmParamPO2Import(UserInterface& ui, const std::string& fld_file)
    : ColumnDialog(ui, "Import des PO", kParamHeads,
                   {"Libellé du collecteur", "Libellé du noeud amont", "Libellé du noeud aval",
                    "Z radier amont", "Z radier aval", "Id. Section", "Longueur du collecteur",
                    "Type de section (PO)", "Coef. Strickler du lit mineur",
                    "Largeur du lit majeur", "Coef. Strickler du lit majeur"},
                   fld_file) {}

}  // namespace pluvane
