// The background plan of the drawing (MnuFi_Import_Fond): the choice of a
// picture file among the accepted formats and of one of two placings, then
// the picture laid under the page at the display factor of the configuration,
// with the view moved over it. The dialog's file list is the window's
// business; this is what its Ok does.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "shell/app_state.h"

namespace pluvane {

class FrmImpfileDlg {
 public:
  // The placings, as the list numbers them.
  static constexpr int kTopLeft = 1;
  static constexpr int kCentred = 2;
  // BackgroundMode of a centred plan; the top-left corner is mode 0.
  static constexpr int kCentredBackgroundMode = 4;

  FrmImpfileDlg(Surface& surface, AppState& state, UserInterface& ui);

  std::string Caption() const { return "Fond de plan"; }
  // The type filters of the file list, and the placings.
  static const std::vector<std::string>& TypeFilters();
  static const std::vector<std::string>& PlacingModes();
  // mtf, gif, wmf, tif, jpg, emf, bmp, in any case.
  static bool IsAcceptedExtension(const std::string& path);

  // Whether the picture can be loaded; without one, a file that exists can.
  std::function<bool(const std::string& path)> picture_readable;

  // Lays the picture in the placing `mode`. False when the format is refused
  // or the picture could not be loaded (each with its message); the drawing
  // is left as it was then.
  bool cmdOk(const std::string& path, int mode);

 private:
  // The view over the plan at factor `f`; false when it does not fit the
  // logical space.
  bool ZoomOnBackground(int mode, double f);

  Surface& surface_;
  AppState& state_;
  UserInterface& ui_;
};

}  // namespace pluvane
