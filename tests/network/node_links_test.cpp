#include "network/node_links.h"

#include <gtest/gtest.h>

#include "network/placement_fixture.h"

namespace pluvane {
namespace {

class NodeLinksTest : public PlacementTest {};

TEST_F(NodeLinksTest, EveryNodeCountsTheLinksAtItsEnds) {
  const int a = Node(1000, 1000), b = Node(3000, 1000), c = Node(5000, 1000), d = Node(7000, 1000);
  Link("X_CAC", a, b);
  Link("X_CAF", b, c);
  Link("X_TR", b, c);
  surface.SetCurrentObject(d);
  surface.SetObjTag("iLink", 9);  // stale
  EXPECT_EQ(RecountNodeLinks(surface), 3);
  EXPECT_EQ(TagOf(a, "iLink"), "1");
  EXPECT_EQ(TagOf(b, "iLink"), "3");
  EXPECT_EQ(TagOf(c, "iLink"), "2");
  EXPECT_EQ(TagOf(d, "iLink"), "0");
}

TEST_F(NodeLinksTest, ACatchmentAtTheEndOfARouteGetsNoCount) {
  const int node = Node(5000, 5000);
  const HydrologicalComplex complex = PlaceHydrologicalComplex(surface, state, ui, node);
  ASSERT_GT(complex.route, 10);
  surface.SetCurrentObject(complex.route);
  EXPECT_EQ(RecountNodeLinks(surface), 1);
  EXPECT_EQ(surface.CurrentObject(), complex.route);
  EXPECT_EQ(TagOf(complex.catchment, "iLink"), "");
  EXPECT_EQ(TagOf(complex.outlet, "iLink"), "");
  EXPECT_EQ(TagOf(node, "iLink"), "0");
}

}  // namespace
}  // namespace pluvane
