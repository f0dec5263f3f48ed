// The column dialog of an import, "Import des noeuds": label, X, Y, Z.
#pragma once

#include <string>

#include "exchange/column_dialog.h"

namespace pluvane {

class FrmParamNod2Import : public ColumnDialog {
 public:
  FrmParamNod2Import(UserInterface& ui, const std::string& fld_file);
};

}  // namespace pluvane
