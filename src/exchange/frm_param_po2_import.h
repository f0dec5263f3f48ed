// The column dialog of an import, "Import des PO": the eleven columns of open collectors.
#pragma once

#include <string>

#include "exchange/column_dialog.h"

namespace pluvane {

class FrmParamPO2Import : public ColumnDialog {
 public:
  FrmParamPO2Import(UserInterface& ui, const std::string& fld_file);
};

}  // namespace pluvane
