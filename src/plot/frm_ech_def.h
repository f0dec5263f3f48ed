// The scale dialogue of the plot viewer: the limits, tick steps and label
// spacings of the script's first scale, and its grid spacings, edited in a
// grid and written back into the script. Apply redraws with the new scale,
// the second button goes back to the script's initial form, cancel leaves it.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/grid.h"
#include "foundation/user_interface.h"
#include "plot/plot_viewer.h"

namespace pluvane {

class FrmEchDef : public FormController {
 public:
  // Loads the first ECHELLE and GRILLE statements of the viewer's script.
  FrmEchDef(UserInterface& ui, ViewerState& state);

  std::string Caption() const override { return "Définition des Echelles"; }
  std::vector<Grid*> Grids() override { return {&Spread1}; }
  std::vector<FormCommand> Commands() override;
  void LeaveCell(Grid& grid, int col, int row) override {
    if (&grid == &Spread1) Spread1_LeaveCell(col, row);
  }

  // Checks the min/max pair of the cell's column when leaving it; false,
  // with its message, when the pair is reversed (the cursor stays).
  bool Spread1_LeaveCell(int col, int row);
  void Command1();  // apply
  void Command2();  // back to the initial script
  void Command3();  // cancel

  // Rows 1 to 5: minimum, maximum, tick step, label spacing, grid spacing;
  // column 1 X, column 2 Y.
  Grid Spread1;

 private:
  bool Load(const std::string& script);
  void Rewrite();

  UserInterface& ui_;
  ViewerState& state_;
  std::vector<std::string> scale_words_;  // the ECHELLE words as read
  std::vector<std::string> grid_words_;   // the GRILLE words as read, empty when none
};

}  // namespace pluvane
