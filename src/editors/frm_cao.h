// frmCao, the editor of an open collector: a channel whose minor bed is a
// section of the library (IdSect), with the width and the Strickler
// coefficient of its major bed. Renaming one reminds the user to carry the
// new name into the identifiers of the network (the maintenance command).
#pragma once

#include "editors/tag_grid_form.h"

namespace pluvane {

class FrmCao : public TagGridForm {
 public:
  explicit FrmCao(EditorContext& context);

  void ClickCell(Grid& grid, int col, int row) override;
  void cmdOk() override;
};

}  // namespace pluvane
