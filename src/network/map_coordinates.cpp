#include "network/map_coordinates.h"

#include <cmath>
#include <optional>
#include <tuple>
#include <string>
#include <vector>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

bool HoldsAPlace(int i_name) {
  return i_name == kINameNode || i_name == kINamePLU || i_name == kINameBVS || i_name == kINameBV;
}

// The point elements standing on the node, found by their sNodAm and by the
// rule that their box covers the node's centre; the selection is not touched.
std::vector<int> StandingOn(Surface& surface, const std::string& node_id, double cx, double cy) {
  std::vector<int> standing;
  if (Trim(node_id).empty()) return standing;
  for (int number : FindObjectList(surface, kTagSNodAm, node_id)) {
    surface.SetCurrentObject(number);
    const int group = ValInt(surface.ObjTag(kTagIGroup));
    if (group != 1 && group != 3) continue;
    if (cx < surface.ObjLeft() || cx > surface.ObjRight()) continue;
    if (cy < surface.ObjTop() || cy > surface.ObjBottom()) continue;
    standing.push_back(number);
  }
  return standing;
}

}  // namespace

int RecomputeUserCoordinates(Surface& surface, const NetworkState& state) {
  CursorKeeper keeper(surface);
  const bool redraw = surface.Redraw();
  surface.SetRedraw(false);
  int count = 0;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    if (!HoldsAPlace(ValInt(surface.ObjTag(kTagIName)))) continue;
    auto [cx, cy] = ObjectCentre(surface, n);
    surface.SetObjTag(kTagXlog, cx);
    surface.SetObjTag(kTagYlog, cy);
    const std::int32_t x = RoundLong(Val(surface.ObjTag(kTagXlog)));
    const std::int32_t y = RoundLong(Val(surface.ObjTag(kTagYlog)));
    surface.SetObjTag(kTagXus, LogicToUserX(state.calibration, x, y));
    surface.SetObjTag(kTagYus, LogicToUserY(state.calibration, x, y));
    ++count;
  }
  surface.SetRedraw(redraw);
  return count;
}

namespace {

// Where the current object's Xus, Yus put it, and how far that is from its
// centre. None when it never had coordinates or already stands there.
struct MapShift {
  std::int32_t x = 0, y = 0, dx = 0, dy = 0;
  double cx = 0, cy = 0;
};

std::optional<MapShift> ShiftToMap(Surface& surface, const Calibration& calibration) {
  const double x_log = Val(surface.ObjTag(kTagXlog)), y_log = Val(surface.ObjTag(kTagYlog));
  const double x_us = Val(surface.ObjTag(kTagXus)), y_us = Val(surface.ObjTag(kTagYus));
  if (std::fabs(x_log) < 1 && std::fabs(y_log) < 1 && std::fabs(x_us) < 0.000001 &&
      std::fabs(y_us) < 0.000001) {
    return std::nullopt;
  }
  MapShift shift;
  shift.x = UserToLogicX(calibration, x_us, y_us);
  shift.y = UserToLogicY(calibration, x_us, y_us);
  std::tie(shift.cx, shift.cy) = ObjectCentre(surface, surface.CurrentObject());
  shift.dx = shift.x - RoundLong(shift.cx);
  shift.dy = shift.y - RoundLong(shift.cy);
  if (shift.dx == 0 && shift.dy == 0 && shift.x == RoundLong(x_log) &&
      shift.y == RoundLong(y_log)) {
    return std::nullopt;
  }
  return shift;
}

// Writes the logical position and moves the current object there.
void ApplyShift(Surface& surface, const MapShift& shift) {
  surface.SetObjTag(kTagXlog, shift.x);
  surface.SetObjTag(kTagYlog, shift.y);
  surface.MoveObject(shift.dx, shift.dy);
}

bool MakeCurrent(Surface& surface, int number) {
  surface.SetCurrentObject(number);
  return surface.CurrentObject() == number && number >= kFirstObjectNumber;
}

}  // namespace

bool MoveObjectToMap(Surface& surface, const Calibration& calibration, int object) {
  CursorKeeper keeper(surface);
  if (!MakeCurrent(surface, object)) return false;
  const std::optional<MapShift> shift = ShiftToMap(surface, calibration);
  if (!shift) return false;
  ApplyShift(surface, *shift);
  return true;
}

bool SnapNodeToMap(Surface& surface, const Calibration& calibration, int node) {
  CursorKeeper keeper(surface);
  if (!MakeCurrent(surface, node)) return false;
  const std::optional<MapShift> shift = ShiftToMap(surface, calibration);
  if (!shift) return false;
  const std::vector<int> standing =
      StandingOn(surface, surface.ObjTag(kTagId), shift->cx, shift->cy);
  surface.SetCurrentObject(node);
  ApplyShift(surface, *shift);
  for (int number : standing) {
    surface.SetCurrentObject(number);
    surface.MoveObject(shift->dx, shift->dy);
  }
  return true;
}

}  // namespace pluvane
