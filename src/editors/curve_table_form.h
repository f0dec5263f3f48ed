// A form that edits one table of points row by row: add, insert and delete a
// row, save, show the curve in the viewer, close.
#pragma once

#include <vector>

#include "foundation/form_controller.h"
#include "foundation/grid.h"

namespace pluvane {

class CurveTableForm : public FormController {
 public:
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }

  virtual void mnAdd();
  virtual void mnIns();
  virtual void mnDel();
  virtual void mnSave() = 0;
  virtual void mnVisu() = 0;
  void mnClose() { Close(); }

 protected:
  explicit CurveTableForm(int columns) : grid_(columns, 0) {}

  Grid grid_;
};

}  // namespace pluvane
