#include "exchange/frm_param_bv2_import.h"

namespace pluvane {

FrmParamBV2Import::FrmParamBV2Import(UserInterface& ui, const std::string& fld_file)
    : ColumnDialog(
          ui, "Import des BV", kParamHeads,
          {"Libellé du BV", "Coord. Xc", "Coord. Yc", "Superficie du BV",
           "Longueur du cheminnement", "Pente du cheminnement", "Coef. d'imperméabilisation"},
          fld_file) {}

}  // namespace pluvane
