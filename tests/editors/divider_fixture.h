// Test fixture for the divider editors: a node drained by four links (three
// circular collectors and an open channel) with a divider of either kind on
// it, and a fifth node upstream.
#pragma once

#include "editors/network_editor_fixture.h"

namespace pluvane {

class DividerTest : public NetworkEditorTest {
 protected:
  // Builds the node, its links and the divider of that key, which is left current.
  void Build(const char* key) {
    up = Node(1000, 1000);
    node = Node(3000, 1000);
    const int down2 = Node(5000, 1000), down3 = Node(3000, 3000), down4 = Node(5000, 3000),
              down5 = Node(1000, 3000);
    Link("X_CAC", up, node);  // Cac_1, arriving
    cac2 = Link("X_CAC", node, down2);
    Set(cac2, {{"ZRam", "12.5"}, {"K", "70"}});
    cac3 = Link("X_CAC", node, down3);
    Set(cac3, {{"ZRam", "12.25"}, {"K", "65"}});
    cao = Link("X_CAO", node, down4);
    Set(cao, {{"ZRam", "11"}, {"Kmin", "45"}, {"libell", "Fossé"}});
    cac4 = Link("X_CAC", node, down5);
    Set(cac4, {{"ZRam", "12"}});
    divider = Symbol(key, 0, 0, node);
    surface.DeselectAll();
    surface.SetCurrentObject(divider);
  }

  // The tags of the divider, to show that a refusal changed none.
  TagList DividerTags() { return Tags(divider); }

  int up = 0, node = 0, cac2 = 0, cac3 = 0, cao = 0, cac4 = 0, divider = 0;
};

}  // namespace pluvane
