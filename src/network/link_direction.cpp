#include "network/link_direction.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

struct LinkCopy {
  int line_style = 0;
  std::int32_t line_color = 0;
  double line_width = 0;
  std::array<Marker, 3> markers;
  std::vector<Point> points;
  std::vector<std::pair<std::string, std::string>> tags;
};

LinkCopy Save(const Surface& surface) {
  LinkCopy copy;
  copy.line_style = surface.LineStyle();
  copy.line_color = surface.LineColor();
  copy.line_width = surface.LineWidth();
  copy.markers = ReadLinkMarkers(surface);
  copy.points = surface.ObjectPoints();
  for (int i = 0; i < surface.ObjTagCount(); ++i) {
    copy.tags.emplace_back(surface.ObjTagName(i), surface.ObjTagValue(i));
  }
  return copy;
}

void Restore(Surface& surface, const LinkCopy& copy) {
  // The tags in their order, with the values of sNodAm and sNodAv exchanged.
  std::string upstream, downstream;
  for (const auto& [name, value] : copy.tags) {
    if (name == kTagSNodAm) upstream = value;
    if (name == kTagSNodAv) downstream = value;
  }
  surface.SetObjTagCount(static_cast<int>(copy.tags.size()));
  for (std::size_t i = 0; i < copy.tags.size(); ++i) {
    const std::string& name = copy.tags[i].first;
    const std::string& value = name == kTagSNodAm   ? downstream
                               : name == kTagSNodAv ? upstream
                                                  : copy.tags[i].second;
    surface.SetObjTagName(static_cast<int>(i), name);
    surface.SetObjTagValue(static_cast<int>(i), value);
  }
  // Markers stay by position, so an arrow at the downstream end shows the new way.
  WriteLinkMarkers(surface, copy.markers);
  if (copy.points.size() > 2) {
    surface.SetObjectPoints(std::vector<Point>(copy.points.rbegin(), copy.points.rend()));
  }
  surface.SetLineStyle(copy.line_style);
  surface.SetLineColor(copy.line_color);
  surface.SetLineWidth(copy.line_width);
  surface.Arrange(2);
}

}  // namespace

int mnuUtil_XChange(Surface& surface, UserInterface& ui) {
  std::vector<int> links;
  for (int n : SelectedObjects(surface)) {
    surface.SetCurrentObject(n);
    if (surface.ObjectKind() == kKindLink) links.push_back(n);
  }
  if (links.empty()) {
    ui.ShowMessage("Une liaison binodale au moins doit etre selectionnée !!!", "",
                   MessageIcon::kNone);
    return 0;
  }
  UndoStep step(surface, "Inverser le sens d'écoulement");
  std::vector<int> made;
  for (int old_link : links) {
    surface.SetCurrentObject(old_link);
    const int end0 = surface.LinkEndObject(0);
    const int end1 = surface.LinkEndObject(1);
    const LinkCopy copy = Save(surface);
    const int link = surface.AddLink(end1, end0);
    if (link == 0) continue;
    Restore(surface, copy);
    surface.DeleteObject(old_link);
    made.push_back(link);
  }
  surface.DeselectAll();
  for (int link : made) {
    surface.SetCurrentObject(link);
    surface.SetSelected(true);
  }
  ui.ShowStatus(std::to_string(made.size()) + " elm ont été changés.");
  return static_cast<int>(made.size());
}

}  // namespace pluvane
