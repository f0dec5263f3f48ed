// The network's own calculation settings (tool X_PARAM, "Paramétrage..."):
// the simulation length, the calculation step and the calculation mode that
// new scenarios start from, and the coordinate system of the map, kept in the hidden record ParamReseau of the
// drawing. Ok checks them, sets them and writes the record anew.
#pragma once

#include "drawing/surface.h"
#include "foundation/form_controller.h"
#include "foundation/grid.h"
#include "foundation/user_interface.h"
#include "shell/app_state.h"

namespace pluvane {

class FrmParamReseau : public FormController {
 public:
  static constexpr int kRowDuree = 1;
  static constexpr int kRowDt = 2;
  static constexpr int kRowMode = 3;
  static constexpr int kRowCoordinates = 4;  // EPSG code or WKT, for the GIS layers

  FrmParamReseau(Surface& surface, AppState& state, UserInterface& ui);

  std::string Caption() const override { return "Paramétrage du réseau"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }
  void cmdOk();
  void cmdCancel() { Close(); }

 private:
  Surface& surface_;
  AppState& state_;
  UserInterface& ui_;
  Grid grid_;
};

// mnuMyUtil_SetParamReg: writes ParamReseau and ZoomFactors anew from the
// settings as they stand, and says so in the status line.
void mnuMyUtil_SetParamReg(Surface& surface, AppState& state, UserInterface& ui);

}  // namespace pluvane
