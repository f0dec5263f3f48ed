#include "network/topology.h"

#include <cmath>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

// The topology rules select in the mode that takes what touches.
constexpr int kTouchFlags = 12288;

int INameOf(Surface& surface, int number) {
  surface.SetCurrentObject(number);
  return surface.CurrentObject() == number ? ValInt(surface.ObjTag(kTagIName)) : 0;
}

std::string IdOf(Surface& surface, int number) {
  surface.SetCurrentObject(number);
  return surface.CurrentObject() == number ? surface.ObjTag(kTagId) : std::string();
}

// The links touching the node whose end `end` is an object with the node's Id
// and whose iName passes `accept`.
template <typename Accept>
std::vector<int> LinksAtEnd(Surface& surface, int node, int end, Accept accept) {
  CursorKeeper keeper(surface);
  std::vector<int> links;
  const std::string node_id = IdOf(surface, node);
  for (int n : ObjectsTouching(surface, node)) {
    surface.SetCurrentObject(n);
    if (surface.ObjectKind() != kKindLink || !accept(surface)) continue;
    const int end_object = surface.LinkEndObject(end);
    if (end_object > 0 && IdOf(surface, end_object) == node_id) links.push_back(n);
  }
  return links;
}

}  // namespace

std::pair<double, double> LogicalPosition(Surface& surface, int number) {
  surface.SetCurrentObject(number);
  const std::string x = surface.ObjTag(kTagXlog);
  if (Trim(x).empty()) return ObjectCentre(surface, number);
  return {RoundLong(Val(x)), RoundLong(Val(surface.ObjTag(kTagYlog)))};
}

std::vector<int> ObjectsTouching(Surface& surface, int object) {
  CursorKeeper keeper(surface);
  std::vector<int> found;
  surface.SetCurrentObject(object);
  if (surface.CurrentObject() != object || object < kFirstObjectNumber) return found;
  std::int32_t left, top, right, bottom;
  surface.GetObjectBounds(left, top, right, bottom);
  surface.SelectInRect(left, top, right, bottom, kTouchFlags);
  found = SelectedObjects(surface);
  surface.DeselectAll();
  return found;
}

bool IsNode(Surface& surface, int object) {
  CursorKeeper keeper(surface);
  return object >= kFirstObjectNumber && INameOf(surface, object) == kINameNode;
}

int NodeUnder(Surface& surface, int element) {
  int node = 0;
  if (IsNode(surface, element)) {
    node = element;
  } else if (element >= kFirstObjectNumber) {
    surface.SetCurrentObject(element);
    const std::string s_nod_am = surface.ObjTag(kTagSNodAm);
    if (surface.CurrentObject() == element && !Trim(s_nod_am).empty()) {
      node = FindObject2(surface, kTagIName, kINameNode, kTagId, s_nod_am);
    }
  }
  surface.SetCurrentObject(element);
  return node;
}

int CountOnNode(Surface& surface, int node) {
  const int saved = surface.CurrentObject();
  int count = 0;
  for (int n : ObjectsTouching(surface, node)) {
    surface.SetCurrentObject(n);
    const std::string id = UCase(Trim(surface.ObjTag(kTagId)));
    if (id.empty() || id == "RAYON") continue;
    if (ValInt(surface.ObjTag(kTagIGroup)) == kGroupLink) continue;
    if (ValInt(surface.ObjTag(kTagIName)) == kINameNode) continue;
    ++count;
  }
  if (saved >= 1) {
    surface.SetCurrentObject(saved);
    if (saved >= kFirstObjectNumber) surface.SetSelected(true);
  }
  return count;
}

std::vector<int> ElementsOnNode(Surface& surface, int node) {
  CursorKeeper keeper(surface);
  std::vector<int> elements;
  for (int n : ObjectsTouching(surface, node)) {
    surface.SetCurrentObject(n);
    const int group = ValInt(surface.ObjTag(kTagIGroup));
    if (group == kGroupPoint || group == kGroupRegulator) elements.push_back(n);
  }
  return elements;
}

int CountGroupOnNode(Surface& surface, int node, int group) {
  CursorKeeper keeper(surface);
  int count = 0;
  for (int n : ElementsOnNode(surface, node)) {
    surface.SetCurrentObject(n);
    if (ValInt(surface.ObjTag(kTagIGroup)) == group) ++count;
  }
  return count;
}

std::vector<int> DownstreamCollectors(Surface& surface, int node) {
  return LinksAtEnd(surface, node, 0,
                    [](Surface& s) { return ValInt(s.ObjTag(kTagIGroup)) == kGroupLink; });
}

std::vector<int> UpstreamLinks(Surface& surface, int node) {
  return LinksAtEnd(surface, node, 1, [](Surface& s) {
    switch (ValInt(s.ObjTag(kTagIName))) {
      case kINameRout:
      case kINameCAC:
      case kINameCAF:
      case kINameCAO:
      case kINameTR:
        return true;
      default:
        return false;
    }
  });
}

double LinkLength(Surface& surface, const Calibration& calibration, int link) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(link);
  if (surface.CurrentObject() != link || surface.ObjectKind() != kKindLink) return 0;
  const int end0 = surface.LinkEndObject(0);
  const int end1 = surface.LinkEndObject(1);
  const auto [x0, y0] = LogicalPosition(surface, end0);
  const auto [x1, y1] = LogicalPosition(surface, end1);
  const double dx = LogicToUserX(calibration, x1, y1) - LogicToUserX(calibration, x0, y0);
  const double dy = LogicToUserY(calibration, x1, y1) - LogicToUserY(calibration, x0, y0);
  return std::sqrt(dx * dx + dy * dy);
}

double LinkLengthFromUserTags(Surface& surface, int link) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(link);
  if (surface.CurrentObject() != link || surface.ObjectKind() != kKindLink) return 0;
  const int end0 = surface.LinkEndObject(0);
  const int end1 = surface.LinkEndObject(1);
  surface.SetCurrentObject(end0);
  const double x0 = Val(surface.ObjTag(kTagXus)), y0 = Val(surface.ObjTag(kTagYus));
  surface.SetCurrentObject(end1);
  const double x1 = Val(surface.ObjTag(kTagXus)), y1 = Val(surface.ObjTag(kTagYus));
  return std::hypot(x1 - x0, y1 - y0);
}

}  // namespace pluvane
