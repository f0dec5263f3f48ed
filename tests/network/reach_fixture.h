// Test fixture for reaches: four nodes A to D in a row on the placement
// fixture's drawing, and helpers to draw collectors between them and to read
// a reach record.
#pragma once

#include <string>
#include <vector>

#include "network/placement_fixture.h"
#include "network/reaches.h"

namespace pluvane {

class ReachTest : public PlacementTest {
 protected:
  ReachTest() {
    for (int i = 0; i < 4; ++i) nodes_[i] = Node(1000 + 1000 * i, 5000);
  }
  // A collector of the key from node `from` to node `to` (0 to 3 for A to D).
  int Collector(int from, int to, const char* key = "X_CAC") {
    return Link(key, nodes_[from], nodes_[to]);
  }
  std::string NodeId(int index) { return TagOf(nodes_[index], "Id"); }
  void Select(const std::vector<int>& objects) {
    surface.DeselectAll();
    for (int n : objects) {
      surface.SetCurrentObject(n);
      surface.SetSelected(true);
    }
  }
  // A reach record of that number listing the collectors, as the creation
  // makes it.
  int MakeReach(int number, const std::vector<int>& collectors) {
    state.PendingReach = number;
    const int reach = AddReachRecord(surface, state, collectors);
    state.PendingReach = 0;
    return reach;
  }
  // The Ids listed by a reach record, rank by rank.
  std::vector<std::string> Listed(int reach) {
    std::vector<std::string> ids;
    for (const ReachCollector& c : ReachCollectors(surface, reach)) ids.push_back(c.id);
    return ids;
  }

  int nodes_[4] = {};
};

}  // namespace pluvane
