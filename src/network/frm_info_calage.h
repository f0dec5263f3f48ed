// The small form that asks the map coordinates of a calibration point just
// placed on the drawing. Ok writes them to the point as Xcal, Ycal; Cancel
// takes the point away again.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

class FrmInfoCalage : public FormController {
 public:
  // `record`: the object number of the point placed.
  FrmInfoCalage(Surface& surface, UserInterface& ui, int record);

  std::string Caption() const override { return "Coordonnées du point de calage"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }
  const std::string& PointId() const { return point_id_; }

  void cmdOk();
  void cmdCancel();

 private:
  Surface& surface_;
  UserInterface& ui_;
  int record_;
  std::string point_id_;
  Grid grid_;
};

}  // namespace pluvane
