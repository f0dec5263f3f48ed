// frmCaf, the editor of a closed collector: its cross-section is taken from
// the section library by name (IdSect); no test is made on that name.
#pragma once

#include "editors/tag_grid_form.h"

namespace pluvane {

class FrmCaf : public TagGridForm {
 public:
  explicit FrmCaf(EditorContext& context);

  // A click on the list of sections tells of an empty library.
  void ClickCell(Grid& grid, int col, int row) override;
};

}  // namespace pluvane
