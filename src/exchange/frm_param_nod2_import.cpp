#include "exchange/frm_param_nod2_import.h"

namespace pluvane {

FrmParamNod2Import::FrmParamNod2Import(UserInterface& ui, const std::string& fld_file)
    : ColumnDialog(ui, "Import des noeuds", kParamHeads,
                   {"Libellé du noeud", "Coord. X ", "Coord. Y", "Coord. Z  (tn)"}, fld_file) {}

}  // namespace pluvane
