// frmTmpMid, "Table des collecteurs": the older column dialog of the
// collectors' MapInfo table, eight positions none of which may be 0.
#pragma once

#include <string>

#include "exchange/column_dialog.h"

namespace pluvane {

class FrmTmpMid : public ColumnDialog {
 public:
  FrmTmpMid(UserInterface& ui, const std::string& fld_file);

 protected:
  bool CheckRows() override;
};

}  // namespace pluvane
