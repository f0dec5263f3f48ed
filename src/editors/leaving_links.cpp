#include "editors/leaving_links.h"

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/network_tags.h"

namespace pluvane {

std::string LeavingLinks::List() const {
  std::string list;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    if (i > 0) list += '\t';
    list += labels[i];
  }
  return list;
}

int LeavingLinks::HandleOf(std::string_view label) const {
  for (std::size_t i = 0; i < labels.size(); ++i) {
    if (EqualsNoCase(labels[i], label)) return handles[i];
  }
  return 0;
}

int NodeOfElement(Surface& surface, int element) {
  const std::string id = TagOfObject(surface, element, kTagSNodAm);
  if (Trim(id).empty()) return 0;
  // The index of Ids finds the node at once; a node that shares its Id with
  // another object is searched by both tags.
  const int first = surface.FindById(id);
  if (first > 0 && ValInt(TagOfObject(surface, first, kTagIName)) == kINameNode) return first;
  if (surface.CountById(id) < 2) return 0;
  CursorKeeper keeper(surface);
  return FindObject2(surface, kTagIName, kINameNode, kTagId, id);
}

LeavingLinks LinksLeavingNode(Surface& surface, int element) {
  LeavingLinks links;
  const int node = NodeOfElement(surface, element);
  if (node < kFirstObjectNumber) return links;
  CursorKeeper keeper(surface);
  for (int link : surface.LinksOf(node)) {
    surface.SetCurrentObject(link);
    if (surface.CurrentObject() != link || surface.ObjectKind() != kKindLink) continue;
    if (ValInt(surface.ObjTag(kTagIGroup)) != kGroupLink) continue;
    if (surface.LinkEndObject(0) != node) continue;
    links.handles.push_back(link);
    links.labels.push_back(surface.ObjTag("libell"));
  }
  return links;
}

void HighlightObjects(Surface& surface, const std::vector<int>& objects) {
  CursorKeeper keeper(surface);
  surface.DeselectAll();
  for (int object : objects) {
    surface.SetCurrentObject(object);
    if (surface.CurrentObject() == object) surface.SetSelected(true);
  }
  surface.Refresh();
}

void ClearHighlight(Surface& surface) { surface.DeselectAll(); }

}  // namespace pluvane
