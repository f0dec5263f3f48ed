// The edition of a synthetic storm I(t): the points of its intensity curve,
// time rising, at least two of them, and the curve shown in the viewer.
#pragma once

#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "foundation/form_controller.h"

namespace pluvane {

class FrmPitPlus : public FormController {
 public:
  // `id` and `number` are the current rain: its name and its record.
  FrmPitPlus(EditorContext& context, std::string id, int number);

  std::string Caption() const override { return "Pluie de projet I(t)"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }

  void mnAdd();
  void mnIns();
  void mnDel();
  void mnSave();
  void mnVisu();
  void mnClose() { Close(); }

 private:
  EditorContext& context_;
  std::string id_;
  int number_;
  Grid grid_;
};

}  // namespace pluvane
