// frmCoEchelle: the colour classes of the capacity map in a grid, the highest
// class on top as in the legend. A click on a colour cell chooses its colour;
// percents are typed as "20%". Ok writes the classes to the "Co Echelle"
// section of the settings file and raises the flag the map reads to draw its
// legend and colours again; Annuler leaves the file and the flag alone.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/grid.h"
#include "foundation/user_interface.h"
#include "results/capacity_map.h"

namespace pluvane {

class FrmCoEchelle : public FormController {
 public:
  FrmCoEchelle(UserInterface& ui, std::vector<CapacityClass> classes, std::string ini_file);

  std::string Caption() const override { return "Echelle de couleurs"; }
  std::vector<Grid*> Grids() override { return {&Spread1}; }
  std::vector<FormCommand> Commands() override;
  void ClickCell(Grid& grid, int col, int row) override;

  void cmdOk();
  void cmdAnnul();

  // "1" once Ok wrote the scale, "0" otherwise.
  const std::string& Flag() const { return flag_; }
  // The classes as Ok read them back (in the order of their keys).
  const std::vector<CapacityClass>& Classes() const { return classes_; }

  // Column 1 the colour (as the cell's back colour), column 2 the percent.
  Grid Spread1;

 private:
  UserInterface& ui_;
  std::vector<CapacityClass> classes_;
  std::string ini_file_;
  std::string flag_ = "0";
};

}  // namespace pluvane
