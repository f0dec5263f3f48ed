#include "exchange/frm_param_ci_pf2_import.h"

namespace pluvane {

FrmParamCI_PF2Import::FrmParamCI_PF2Import(UserInterface& ui, const std::string& fld_file)
    : ColumnDialog(ui, "Import des CI ou PF", kParamHeads,
                   {"Libellé du collecteur", "Libellé du noeud amont", "Libellé du noeud aval",
                    "Z radier amont", "Z radier aval", "Diamètre ou Id. Section",
                    "Longueur du collecteur", "Type de section (CI ou PF)", "Coef. Strickler",
                    "Hmoy sous chaussée", "Surface réseau amont"},
                   fld_file) {}

}  // namespace pluvane
