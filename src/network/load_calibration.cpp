#include "network/load_calibration.h"

#include <string>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/calibration_points.h"
#include "drawing/surface_guards.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "drawing/surface_helpers.h"

namespace pluvane {

namespace {

// A saved parameter replaces the one in memory only when the tag holds something.
void TakeParameter(const Surface& surface, const char* tag, double& parameter) {
  const std::string value = surface.ObjTag(tag);
  if (!Trim(value).empty()) parameter = Val(value);
}

void ReadParamReseau(Surface& surface, Calibration& c) {
  CursorKeeper keeper(surface);
  if (FindObject(surface, kTagId, "ParamReseau") < 1) return;
  TakeParameter(surface, "XORI", c.XORI);
  TakeParameter(surface, "YORI", c.YORI);
  TakeParameter(surface, "XMUCOS", c.XMUCOS);
  TakeParameter(surface, "XMUSIN", c.XMUSIN);
  TakeParameter(surface, "XLAMU", c.XLAMU);
  TakeParameter(surface, "XLASIN", c.XLASIN);
  TakeParameter(surface, "XLACOS", c.XLACOS);
}

}  // namespace

bool SolveCalibrationOrWarn(Calibration& calibration, UserInterface& ui) {
  if (SolveCalibration(calibration)) return true;
  ui.ShowMessage("Les valeurs de calage sont incohérentes !\nRecommencez le calage s.v.p.",
                 "Calage", MessageIcon::kExclamation);
  return false;
}

void LoadCalibration(Surface& surface, NetworkState& state, UserInterface& ui) {
  if (ReadCalibrationPoints(surface, kINameHiddenCalage, state.calibration)) {
    SolveCalibrationOrWarn(state.calibration, ui);
  } else {
    ReadParamReseau(surface, state.calibration);
  }
  HideCalibrationPoints(surface, state);
}

}  // namespace pluvane
