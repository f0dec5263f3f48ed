// The preferences form: symbol size, link thickness, drawing resolution and
// the about picture at start, read from and written to pluvane.ini.
#pragma once

#include <functional>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "shell/app_state.h"

namespace pluvane {

class FrmPreference : public FormController {
 public:
  // Rows of the grid.
  static constexpr int kRowSymbolSize = 1;
  static constexpr int kRowLinkThick = 2;
  static constexpr int kRowResolution = 3;
  static constexpr int kRowFlashScreen = 4;

  // `rescale` is run after Ok has set the new extents, to rescale the drawing.
  FrmPreference(AppState& state, UserInterface& ui, std::function<void()> rescale);

  std::string Caption() const override { return "Préférences"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }
  void cmdOk();
  void cmdCancel() { Close(); }

 private:
  AppState& state_;
  UserInterface& ui_;
  std::function<void()> rescale_;
  Grid grid_;
};

}  // namespace pluvane
