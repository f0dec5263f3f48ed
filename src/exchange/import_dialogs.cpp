#include "exchange/import_dialogs.h"

namespace pluvane {

std::unique_ptr<ColumnDialog> MakeColumnDialog(const std::string& kind, UserInterface& ui,
                                               const std::string& fld_file) {
  if (kind == "NOD") return std::make_unique<FrmParamNod2Import>(ui, fld_file);
  if (kind == "BV") return std::make_unique<FrmParamBV2Import>(ui, fld_file);
  if (kind == "PO") return std::make_unique<FrmParamPO2Import>(ui, fld_file);
  return std::make_unique<FrmParamCI_PF2Import>(ui, fld_file);
}

}  // namespace pluvane
