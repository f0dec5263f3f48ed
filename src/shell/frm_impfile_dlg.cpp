#include "shell/frm_impfile_dlg.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "foundation/settings_keys.h"
#include "foundation/ini_profile.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "shell/configuration.h"

namespace pluvane {

namespace {

constexpr const char* kTitle = "Pluvane";
constexpr int kFactorBuffer = 255;
// Under this the factor is taken as unset.
constexpr double kFactorFloor = 0.000001;

}  // namespace

FrmImpfileDlg::FrmImpfileDlg(Surface& surface, AppState& state, UserInterface& ui)
    : surface_(surface), state_(state), ui_(ui) {}

const std::vector<std::string>& FrmImpfileDlg::TypeFilters() {
  static const std::vector<std::string> filters = {"*.emf", "*.bmp", "*.jpg", "*.tif",
                                                   "*.gif", "*.wmf", "*.*"};
  return filters;
}

const std::vector<std::string>& FrmImpfileDlg::PlacingModes() {
  static const std::vector<std::string> modes = {"1. Coin supérieur gauche",
                                                 "2. Centrage au milieu"};
  return modes;
}

bool FrmImpfileDlg::IsAcceptedExtension(const std::string& path) {
  std::string folder, name, base, extension;
  SplitPath(path, folder, name, base, extension);
  const std::string ext = LCase(extension);
  for (const char* accepted : {"mtf", "gif", "wmf", "tif", "jpg", "emf", "bmp"}) {
    if (ext == accepted) return true;
  }
  return false;
}

bool FrmImpfileDlg::cmdOk(const std::string& path, int mode) {
  if (!IsAcceptedExtension(path)) {
    ui_.ShowMessage("Format non supporté comme fond de plan !", kTitle, MessageIcon::kExclamation);
    return false;
  }
  const std::string ini = IniFilePath(state_);
  double f = Val(IniRead(kSectionParameters, kKeyDisplayFactor, kFactorBuffer, ini));
  if (std::fabs(f) < kFactorFloor) f = 1;

  const bool readable = picture_readable ? picture_readable(path) : FileExist(path);
  if (!readable) {
    ui_.ShowMessage("erreur dans pFileImportExt", kTitle, MessageIcon::kExclamation);
    return false;
  }
  surface_.SetCurrentObject(kPage);
  surface_.SetBackgroundPicture(path);
  surface_.SetBackgroundMode(mode == kCentred ? kCentredBackgroundMode : 0);
  if (f > 0) {
    surface_.SetBackgroundScale(f);
    if (!ZoomOnBackground(mode, f)) {
      ui_.ShowMessage("erreur DisplayZoomToutBkGround", kTitle, MessageIcon::kExclamation);
    }
  }
  state_.BackgroundFactor = f;
  IniWrite(kSectionParameters, kKeyDisplayFactor, NumToText(f), ini);
  ui_.ShowStatus("Image de fond d'ecran : " + path);
  surface_.Refresh();
  return true;
}

bool FrmImpfileDlg::ZoomOnBackground(int mode, double f) {
  const double width = state_.LogicWidth * f;
  const double height = state_.LogicHeight * f;
  constexpr double kLargest = std::numeric_limits<std::int32_t>::max();
  if (!(width >= 1 && height >= 1 && width < kLargest && height < kLargest)) return false;
  if (mode == kCentred) {
    surface_.SetViewLeft((width - surface_.ViewWidth()) / 2);
    surface_.SetViewTop((height - surface_.ViewHeight()) / 2);
    return true;
  }
  surface_.SetViewLeft(0);
  surface_.SetViewTop(0);
  surface_.SetViewWidth(width);
  surface_.SetViewHeight(height);
  return true;
}

}  // namespace pluvane
