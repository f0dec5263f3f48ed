// The column dialog of each kind of import table.
#pragma once

#include <memory>
#include <string>

#include "exchange/column_dialog.h"
#include "exchange/frm_param_bv2_import.h"
#include "exchange/frm_param_ci_pf2_import.h"
#include "exchange/frm_param_nod2_import.h"
#include "exchange/frm_param_po2_import.h"
#include "exchange/frm_tmp_mid.h"

namespace pluvane {

// The dialog of an import kind: "NOD", "BV", "CI", "PF" or "PO".
std::unique_ptr<ColumnDialog> MakeColumnDialog(const std::string& kind, UserInterface& ui,
                                               const std::string& fld_file);

}  // namespace pluvane
