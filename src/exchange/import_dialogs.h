// The four column dialogs of the imports (frmParamNod2Import,
// frmParamBV2Import, frmParamCI_PF2Import, frmParamPO2Import) and the older
// frmTmpMid of the collectors' MapInfo table.
#pragma once

#include <memory>
#include <string>

#include "exchange/column_dialog.h"

namespace pluvane {

// "Import des noeuds": label, X, Y, Z.
class FrmParamNod2Import : public ColumnDialog {
 public:
  FrmParamNod2Import(UserInterface& ui, const std::string& fld_file);
};

// "Import des BV": label, Xc, Yc, area, length, slope, imperviousness.
class FrmParamBV2Import : public ColumnDialog {
 public:
  FrmParamBV2Import(UserInterface& ui, const std::string& fld_file);
};

// "Import des CI ou PF": the eleven columns of circular and closed collectors.
class FrmParamCI_PF2Import : public ColumnDialog {
 public:
  FrmParamCI_PF2Import(UserInterface& ui, const std::string& fld_file);
};

// "Import des PO": the eleven columns of open collectors.
class FrmParamPO2Import : public ColumnDialog {
 public:
  FrmParamPO2Import(UserInterface& ui, const std::string& fld_file);
};

// "Table des collecteurs": eight positions, none of which may be 0.
class FrmTmpMid : public ColumnDialog {
 public:
  FrmTmpMid(UserInterface& ui, const std::string& fld_file);

 protected:
  bool CheckRows() override;
};

// The dialog of an import kind: "NOD", "BV", "CI", "PF" or "PO".
std::unique_ptr<ColumnDialog> MakeColumnDialog(const std::string& kind, UserInterface& ui,
                                               const std::string& fld_file);

}  // namespace pluvane
