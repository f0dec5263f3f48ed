// The column dialogs of the imports: one row per parameter of the table, the
// number of the table's column that holds it, OK and Annuler. The answer is
// kept in the .Fld beside the data and shown again the next time. RowCount()
// is the number of rows once OK wrote the file, 0 while nothing was accepted:
// an import goes on only when it is set.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"

namespace pluvane {

// The heads of the import dialogs' grids.
inline const std::vector<std::string> kParamHeads{"Paramètre", "Numéro de colonne"};

class ColumnDialog : public FormController {
 public:
  // `heads`: the two column heads; `rows`: the parameters in order.
  ColumnDialog(UserInterface& ui, std::string caption, std::vector<std::string> heads,
               std::vector<std::string> rows, std::string fld_file);

  std::string Caption() const override { return caption_; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }
  int RowCount() const { return row_count_; }
  const std::string& FldFile() const { return fld_file_; }

  void cmdOk();
  void cmdAnnul();

 protected:
  // False, with the cursor on the cell at fault, when a row cannot be taken.
  virtual bool CheckRows() { return true; }

  UserInterface& ui_;

 private:
  std::string caption_;
  std::string fld_file_;
  Grid grid_;
  int row_count_ = 0;
};

}  // namespace pluvane
