#include "simulation/node_file.h"

#include <algorithm>

#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"
#include "simulation/model_text_file.h"

namespace pluvane {

namespace {


struct UserPoint {
  double x = 0;
  double y = 0;
};

// The centre of the object's box, rounded to whole logical units, on the map.
UserPoint UserCentre(const Surface& surface, const Calibration& calibration, int number) {
  const auto [cx, cy] = ObjectCentre(surface, number);
  const double x = RoundLong(cx), y = RoundLong(cy);
  return {LogicToUserX(calibration, x, y), LogicToUserY(calibration, x, y)};
}

void Extend(ModelContext& context, const UserPoint& p) {
  context.XMin = std::min(context.XMin, p.x);
  context.YMin = std::min(context.YMin, p.y);
  context.XMax = std::max(context.XMax, p.x);
  context.YMax = std::max(context.YMax, p.y);
}

// Numbers go through the 32-bit formatter: it writes what the 16-bit one does
// for every number that fits 16 bits, and keeps counting beyond.
std::string NodLine(std::int32_t sequence, std::int32_t links, const UserPoint& p, double y_shift,
                    std::string_view label) {
  return PadLong(sequence, 10) + PadLong(links, 10) + FormatFixed(p.x, 10, 0) +
         FormatFixed(p.y - y_shift, 10, 0) + PadText(label, 20, 2);
}

}  // namespace

int GetTabNodHdle(const Surface& surface, std::vector<int>& handles) {
  handles = surface.FindAllByTag(kTagIName, kINameNode);
  return static_cast<int>(handles.size());
}

int GetTabNodId(const Surface& surface, std::vector<std::string>& ids) {
  std::vector<int> handles;
  GetTabNodHdle(surface, handles);
  ids.clear();
  ids.reserve(handles.size());
  for (int n : handles) ids.emplace_back(surface.TagOf(n, kTagId));
  return static_cast<int>(ids.size());
}

int GenFicNod(ModelContext& context, const std::string& path) {
  Surface& surface = context.surface;
  const Calibration& calibration = context.state.calibration;
  CursorKeeper keeper(surface);
  std::vector<int> nodes;
  GetTabNodHdle(surface, nodes);
  std::vector<UserPoint> node_points;
  node_points.reserve(nodes.size());
  for (int n : nodes) {
    node_points.push_back(UserCentre(surface, calibration, n));
    Extend(context, node_points.back());
  }
  context.YShift = 0;
  const std::vector<int> catchments = surface.FindAllByTag(kTagIName, std::to_string(kINameBV));

  ModelTextFile file(path);
  const auto node_count = static_cast<std::int32_t>(nodes.size());
  file.Line(PadLong(node_count, 10) + PadLong(static_cast<std::int32_t>(catchments.size()), 10));
  for (std::int32_t i = 0; i < node_count; ++i) {
    const int n = nodes[i];
    file.Line(NodLine(i + 1, ValRoundLong(surface.TagOf(n, kTagILink)), node_points[i],
                      context.YShift, surface.TagOf(n, "libell")));
  }
  // The catchments' numbers are part of the drawing from now on: one undo
  // step for all of them.
  UndoStep step(surface, "Génération du modèle");
  std::int32_t sequence = node_count;
  for (int n : catchments) {
    ++sequence;
    surface.SetCurrentObject(n);
    surface.SetObjTag(kTagSNodAm, std::to_string(sequence));
    const UserPoint p = UserCentre(surface, calibration, n);
    Extend(context, p);
    file.Line(NodLine(sequence, 0, p, context.YShift, surface.TagOf(n, "libell")));
  }
  file.Flush();
  return sequence;
}

}  // namespace pluvane
