// Test fixture for link editing: the reach fixture's four nodes A to D in a
// row (1000 logical units apart on the upright map), the context the main
// window hands to its modes, and snapshots of the whole drawing to compare a
// drawing before and after an undo.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>

#include "network/create_mode.h"
#include "reach_fixture.h"

namespace pluvane {

class LinkEditTest : public ReachTest {
 protected:
  void SetTags(int number, std::initializer_list<std::pair<const char*, const char*>> tags) {
    const int saved = surface.CurrentObject();
    surface.SetCurrentObject(number);
    for (const auto& [name, value] : tags) surface.SetObjTag(name, value);
    surface.SetCurrentObject(saved);
  }
  // Every object with its tags and geometry, in creation order.
  std::string Snapshot() { return surface.CopySelection(1); }
  int EndOf(int link, int end) {
    surface.SetCurrentObject(link);
    return surface.LinkEndObject(end);
  }
  bool Exists(int number) { return surface.ObjectShape(number) != nullptr; }

  PlacementContext context{surface, state, ui, "Pluvane - Réseau"};
};

}  // namespace pluvane
