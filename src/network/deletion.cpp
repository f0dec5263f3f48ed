#include "network/deletion.h"

#include <vector>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"
#include "network/topology.h"

namespace pluvane {

namespace {

// The node whose Id is `id`, 0 if none; the cursor does not move.
int NodeWithId(Surface& surface, const std::string& id) {
  CursorKeeper keeper(surface);
  return FindObject2(surface, kTagIName, kINameNode, kTagId, id);
}

void LowerLinkCount(Surface& surface, int node) {
  surface.SetCurrentObject(node);
  if (surface.CurrentObject() != node) return;
  const double links = Val(surface.ObjTag(kTagILink));
  if (links > 0) surface.SetObjTag(kTagILink, links - 1);
}

}  // namespace

int DeleteSelection(Surface& surface, NetworkState& state) {
  UndoStep step(surface, "Supprimer");
  int deleted = 0;
  for (;;) {
    surface.SetCurrentObject(kSelection);
    const int object = surface.FirstSelected();
    if (object <= 0) break;
    const int i_name = ValInt(surface.ObjTag(kTagIName));
    if (i_name >= kINameReach || surface.ObjTag(kTagId) == "ObjAlpha") {
      surface.SetSelected(false);
      continue;
    }
    if (i_name == kINameCalage && state.ElementCounters[kINameCalage] > 0) {
      --state.ElementCounters[kINameCalage];
    }
    int noted = 0;
    if (surface.ObjectKind() == kKindLink) {
      const int upstream = surface.LinkEndObject(0);
      if (upstream > 0 && IsNode(surface, upstream)) noted = upstream;
    }
    if (i_name == kINameNode) {
      // The elements standing on the node join the rest of the selection.
      std::vector<int> selected = SelectedObjects(surface);
      const std::vector<int> standing = ElementsOnNode(surface, object);
      selected.insert(selected.end(), standing.begin(), standing.end());
      for (int n : selected) {
        surface.SetCurrentObject(n);
        surface.SetSelected(true);
      }
    } else {
      surface.SetCurrentObject(object);
      const std::string s_nod_am = Trim(surface.ObjTag(kTagSNodAm));
      if (noted == 0 && !s_nod_am.empty()) noted = NodeWithId(surface, s_nod_am);
    }
    deleted += surface.DeleteObject(object);
    if (noted > 0) LowerLinkCount(surface, noted);
  }
  return deleted;
}

}  // namespace pluvane
