#include "network/snap.h"

#include <string>
#include <vector>

#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

struct NodePlace {
  int number;
  std::string id;
  Box box;
};

std::vector<NodePlace> Nodes(Surface& surface) {
  std::vector<NodePlace> nodes;
  for (int n : FindObjectList(surface, kTagIName, kINameNode)) {
    surface.SetCurrentObject(n);
    NodePlace node{n, surface.ObjTag(kTagId), {}};
    surface.GetObjectBounds(node.box.left, node.box.top, node.box.right, node.box.bottom);
    nodes.push_back(std::move(node));
  }
  return nodes;
}

const NodePlace* NodeOf(const std::vector<NodePlace>& nodes, const std::string& s_nod_am, double x,
                        double y) {
  for (const NodePlace& node : nodes) {
    if (!s_nod_am.empty() && node.id == s_nod_am) return &node;
  }
  for (const NodePlace& node : nodes) {
    if (x >= node.box.left && x <= node.box.right && y >= node.box.top && y <= node.box.bottom) {
      return &node;
    }
  }
  return nullptr;
}

}  // namespace

int mnuUtil_snapSymbol(Surface& surface, UserInterface& ui) {
  CursorKeeper keeper(surface);
  UndoStep step(surface, "Reposer les symboles aux noeuds");
  surface.SetRedraw(false);
  const std::vector<NodePlace> nodes = Nodes(surface);
  std::vector<int> elements;
  surface.SetCurrentObject(kPage);
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    const int group = ValInt(surface.ObjTag(kTagIGroup));
    if (group == kGroupPoint || group == kGroupRegulator) elements.push_back(n);
  }
  int count = 0;
  for (int n : elements) {
    surface.SetCurrentObject(n);
    const auto [cx, cy] = ObjectCentre(surface, n);
    const NodePlace* node = NodeOf(nodes, surface.ObjTag(kTagSNodAm), cx, cy);
    if (!node) continue;
    surface.SetObjTag(kTagSNodAm, node->id);
    surface.SetObjectBounds(node->box.left, node->box.top, node->box.right, node->box.bottom);
    ++count;
  }
  surface.SetRedraw(true);
  ui.ShowStatus("Ok " + std::to_string(count) +
                " elm uninodaux ont été reposés aux noeuds du reseau ");
  return count;
}

}  // namespace pluvane
