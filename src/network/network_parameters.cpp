#include "network/network_parameters.h"

#include <cmath>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "network/hidden_record.h"
#include "drawing/surface_helpers.h"

namespace pluvane {

namespace {

void NewRecord(Surface& surface, const NetworkState& state, const char* id) {
  DeleteByTagId(surface, id);
  AddHiddenRecord(surface, state);
  surface.SetObjTag(kTagId, id);
}

void WriteCalculationDefaults(Surface& surface, const NetworkState& state) {
  surface.SetObjTag("CalcMode", static_cast<double>(state.CalcMode));
  surface.SetObjTag("CalcDuree", state.CalcDuree);
  surface.SetObjTag("CalcDt", state.CalcDt);
}

}  // namespace

void WriteParameterRecords(Surface& surface, const NetworkState& state) {
  const int saved = surface.CurrentObject();
  const Calibration& c = state.calibration;
  NewRecord(surface, state, kParamReseau);
  WriteCalculationDefaults(surface, state);
  surface.SetObjTag("SymbolSize", state.SymbolSize);
  surface.SetObjTag("LinkThick", state.LinkThick);
  surface.SetObjTag("Xecran", state.LogicWidth);
  surface.SetObjTag("Yecran", state.LogicHeight);
  surface.SetObjTag("XORI", c.XORI);
  surface.SetObjTag("YORI", c.YORI);
  surface.SetObjTag("XMUCOS", c.XMUCOS);
  surface.SetObjTag("XMUSIN", c.XMUSIN);
  surface.SetObjTag("XLAMU", c.XLAMU);
  surface.SetObjTag("XLACOS", c.XLACOS);
  surface.SetObjTag("XLASIN", c.XLASIN);
  // Written only when there is one, so that a network without stays as it was.
  if (!state.CoordinateSystem.empty()) surface.SetObjTag(kCoordinateSystemTag, state.CoordinateSystem);

  NewRecord(surface, state, kZoomFactors);
  surface.SetObjTag(kTagIGroup, -1);
  surface.SetObjTag("zZoom", state.ZoomFactor);
  surface.SetObjTag("zDx", RoundLong(surface.ViewLeft()));
  surface.SetObjTag("zDy", RoundLong(surface.ViewTop()));
  surface.SetCurrentObject(saved);
}

void CreateBlankParamReseau(Surface& surface, const NetworkState& state) {
  const int saved = surface.CurrentObject();
  NewRecord(surface, state, kParamReseau);
  WriteCalculationDefaults(surface, state);
  if (!state.CoordinateSystem.empty()) surface.SetObjTag(kCoordinateSystemTag, state.CoordinateSystem);
  surface.SetCurrentObject(saved);
}

void ReadParamReseau(Surface& surface, NetworkState& state) {
  const int saved = surface.CurrentObject();
  if (FindObject(surface, kTagId, kParamReseau) > 10) {
    state.CoordinateSystem = surface.ObjTag(kCoordinateSystemTag);
    auto take = [&](const char* tag, double& field) {
      const double value = Val(surface.ObjTag(tag));
      if (value > 0) field = value;
    };
    const double mode = Val(surface.ObjTag("CalcMode"));
    if (mode > 0) state.CalcMode = ToInt(mode);
    take("CalcDuree", state.CalcDuree);
    take("CalcDt", state.CalcDt);
    take("SymbolSize", state.SymbolSize);
    take("LinkThick", state.LinkThick);
    const double x = Val(surface.ObjTag("Xecran")), y = Val(surface.ObjTag("Yecran"));
    if (x > 0) state.LogicWidth = ToLong(x);
    if (y > 0) state.LogicHeight = ToLong(y);
  }
  surface.SetCurrentObject(saved);
}

bool ReadZoomFactors(Surface& surface, NetworkState& state, double& left, double& top) {
  const int saved = surface.CurrentObject();
  const bool found = FindObject2(surface, kTagId, kZoomFactors, kTagIGroup, -1) > 10;
  if (found) {
    state.ZoomFactor = Val(surface.ObjTag("zZoom"));
    // A factor of nothing would leave no view at all.
    if (state.ZoomFactor < 0.00001) state.ZoomFactor = 1;
    left = Val(surface.ObjTag("zDx"));
    top = Val(surface.ObjTag("zDy"));
  }
  surface.SetCurrentObject(saved);
  return found;
}

}  // namespace pluvane
