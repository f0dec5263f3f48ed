// The column dialog of an import, "Import des CI ou PF": the eleven columns of circular and closed
// collectors.
#pragma once

#include <string>

#include "exchange/column_dialog.h"

namespace pluvane {

class FrmParamCI_PF2Import : public ColumnDialog {
 public:
  FrmParamCI_PF2Import(UserInterface& ui, const std::string& fld_file);
};

}  // namespace pluvane
