#include "network/move_rules.h"

#include <algorithm>
#include <vector>

#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "network/default_tags.h"
#include "network/georeferencing.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"
#include "network/topology.h"

namespace pluvane {

namespace {

// Index 1 to 3 of a calibration point from its Id "Pt1" to "Pt3", 0 otherwise.
int CalibrationIndex(const std::string& id) {
  if (id.size() != 3 || id.compare(0, 2, "Pt") != 0) return 0;
  const int index = id[2] - '0';
  return index >= 1 && index <= 3 ? index : 0;
}

bool CarriesLength(int i_name) {
  return i_name == kINameRout || i_name == kINameCAC || i_name == kINameCAF || i_name == kINameCAO;
}

}  // namespace

MoveOutcome FinishMove(Surface& surface, NetworkState& state, bool ctrl) {
  MoveOutcome outcome;
  UndoStep step(surface, "Déplacer");
  const std::vector<int> moved = SelectedObjects(surface);
  std::vector<int> links;
  for (int number : moved) {
    surface.SetCurrentObject(number);
    const int i_name = ValInt(surface.ObjTag(kTagIName));
    if (i_name == kINameRayon) {
      WriteRadiusTags(surface, state.calibration);
      ++outcome.updated;
      continue;
    }
    if (i_name != kINameBV && i_name != kINamePLU && i_name != kINameCalage &&
        i_name != kINameNode) {
      continue;
    }
    surface.SetSelected(true);
    const auto [cx, cy] = ObjectCentre(surface, number);
    surface.SetObjTag(kTagXlog, cx);
    surface.SetObjTag(kTagYlog, cy);
    ++outcome.updated;
    if (ctrl) {
      const std::int32_t x = RoundLong(cx), y = RoundLong(cy);
      surface.SetObjTag(kTagXlog, x);
      surface.SetObjTag(kTagYlog, y);
      surface.SetObjTag(kTagXus, LogicToUserX(state.calibration, x, y));
      surface.SetObjTag(kTagYus, LogicToUserY(state.calibration, x, y));
      for (int link : surface.LinksOf(number)) links.push_back(link);
    }
    if (i_name == kINameCalage) {
      const int index = CalibrationIndex(surface.ObjTag(kTagId));
      if (index > 0) {
        state.calibration.logic_x[index] = RoundLong(cx);
        state.calibration.logic_y[index] = RoundLong(cy);
        outcome.calibration_moved = true;
      }
    }
  }
  // Lengths once every end has its new map position.
  std::sort(links.begin(), links.end());
  links.erase(std::unique(links.begin(), links.end()), links.end());
  for (int link : links) {
    surface.SetCurrentObject(link);
    if (!CarriesLength(ValInt(surface.ObjTag(kTagIName)))) continue;
    surface.SetObjTag("L", LinkLengthFromUserTags(surface, link));
  }
  if (outcome.calibration_moved) outcome.calibration_solved = SolveCalibration(state.calibration);
  surface.DeselectAll();
  return outcome;
}

}  // namespace pluvane
