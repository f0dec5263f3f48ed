// The column dialog of an import, "Import des BV": label, Xc, Yc, area, length, slope,
// imperviousness.
#pragma once

#include <string>

#include "exchange/column_dialog.h"

namespace pluvane {

class FrmParamBV2Import : public ColumnDialog {
 public:
  FrmParamBV2Import(UserInterface& ui, const std::string& fld_file);
};

}  // namespace pluvane
