#include "network/node_links.h"

#include <unordered_map>
#include <vector>

#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "drawing/surface_guards.h"
#include "network/network_tags.h"

namespace pluvane {

int RecountNodeLinks(Surface& surface) {
  CursorKeeper keeper(surface);
  std::unordered_map<int, int> counts;  // node -> links
  std::vector<int> nodes, links;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    if (ValInt(surface.ObjTag(kTagIName)) == kINameNode) {
      nodes.push_back(n);
      counts[n] = 0;
    } else if (ValInt(surface.ObjTag(kTagIGroup)) == kGroupLink &&
               surface.ObjectKind() == kKindLink) {
      links.push_back(n);
    }
  }
  // Only nodes keep the count: a route's catchment or outlet has none.
  for (int link : links) {
    surface.SetCurrentObject(link);
    for (int end = 0; end < 2; ++end) {
      auto found = counts.find(surface.LinkEndObject(end));
      if (found != counts.end()) ++found->second;
    }
  }
  for (int node : nodes) {
    surface.SetCurrentObject(node);
    surface.SetObjTag(kTagILink, counts[node]);
  }
  return static_cast<int>(links.size());
}

}  // namespace pluvane
