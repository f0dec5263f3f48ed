#include "network/topology.h"

#include <gtest/gtest.h>

#include "network/catalogue.h"
#include "placement_fixture.h"

namespace pluvane {
namespace {

using TopologyTest = PlacementTest;

TEST_F(TopologyTest, IsNodeLeavesTheCursor) {
  const int node = Node(1000, 1000);
  const int bv = Symbol("X_BV", 3000, 3000);
  surface.SetCurrentObject(bv);
  EXPECT_TRUE(IsNode(surface, node));
  EXPECT_FALSE(IsNode(surface, bv));
  EXPECT_FALSE(IsNode(surface, 0));
  EXPECT_FALSE(IsNode(surface, 9999));
  EXPECT_EQ(surface.CurrentObject(), bv);
}

TEST_F(TopologyTest, NodeUnder) {
  const int node = Node(1000, 1000);
  const int outlet = Symbol("X_HYBV", 0, 0, node);
  const int free_bv = Symbol("X_BV", 3000, 3000);
  EXPECT_EQ(NodeUnder(surface, node), node);
  EXPECT_EQ(NodeUnder(surface, outlet), node);
  EXPECT_EQ(surface.CurrentObject(), outlet);
  EXPECT_EQ(NodeUnder(surface, free_bv), 0);
  EXPECT_EQ(surface.CurrentObject(), free_bv);
  // An sNodAm naming something that is not a node gives none.
  surface.SetCurrentObject(outlet);
  surface.SetObjTag("sNodAm", "Bv_1");
  EXPECT_EQ(NodeUnder(surface, outlet), 0);
}

TEST_F(TopologyTest, CountOnNodeIsGeometric) {
  const int node = Node(1000, 1000);
  const int other = Node(5000, 1000);
  EXPECT_EQ(CountOnNode(surface, node), 0);
  Symbol("X_HYBV", 0, 0, node);
  EXPECT_EQ(CountOnNode(surface, node), 1);
  // A free catchment drawn over the node counts, though it names no node.
  const int bv = Symbol("X_BV", 1050, 1050);
  EXPECT_EQ(TagOf(bv, "sNodAm"), "");
  EXPECT_EQ(CountOnNode(surface, node), 2);
  // Links, the radius of action and objects without Id do not.
  Link("X_CAC", node, other);
  surface.AddObject(kKindEllipse, 950, 950, 1050, 1050);
  surface.SetObjTag("Id", "Rayon");
  surface.AddObject(kKindRectangle, 950, 950, 1050, 1050);
  EXPECT_EQ(CountOnNode(surface, node), 2);
  EXPECT_EQ(CountOnNode(surface, other), 0);
}

TEST_F(TopologyTest, CountOnNodeClearsTheSelectionButSelectsTheCursor) {
  const int node = Node(1000, 1000);
  const int outlet = Symbol("X_HYBV", 0, 0, node);
  surface.SetCurrentObject(outlet);
  CountOnNode(surface, node);
  EXPECT_EQ(surface.CurrentObject(), outlet);
  EXPECT_EQ(surface.ObjectCount(kSelection), 1);
  EXPECT_TRUE(surface.Selected());
}

TEST_F(TopologyTest, ElementsOnNode) {
  const int node = Node(1000, 1000);
  const int outlet = Symbol("X_HYBV", 0, 0, node);
  const int rs = Symbol("X_RS", 0, 0, node);
  Symbol("X_NOD", 3000, 3000);
  EXPECT_EQ(ElementsOnNode(surface, node), (std::vector<int>{outlet, rs}));
  EXPECT_EQ(CountGroupOnNode(surface, node, kGroupRegulator), 1);
  EXPECT_EQ(CountGroupOnNode(surface, node, kGroupPoint), 1);
  EXPECT_EQ(surface.ObjectCount(kSelection), 0);
}

TEST_F(TopologyTest, DownstreamAndUpstreamLinks) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  const int c = Node(3000, 3000);
  const int d = Node(5000, 1000);
  const int ab = Link("X_CAC", a, b);
  const int bc = Link("X_CAF", b, c);
  const int bd = Link("X_TR", b, d);
  const int cb = Link("X_CAO", c, b);
  EXPECT_EQ(DownstreamCollectors(surface, b), (std::vector<int>{bc, bd}));
  EXPECT_EQ(UpstreamLinks(surface, b), (std::vector<int>{ab, cb}));
  EXPECT_EQ(DownstreamCollectors(surface, a), (std::vector<int>{ab}));
  EXPECT_TRUE(UpstreamLinks(surface, a).empty());
  EXPECT_EQ(surface.ObjectCount(kSelection), 0);
}

TEST_F(TopologyTest, LinkLengthGoesThroughTheMap) {
  // A map of 2 metres per logical unit.
  Calibration& c = state.calibration;
  c.logic_x = {0, 0, 0, 1000};
  c.logic_y = {0, 0, 1000, 1000};
  c.user_x = {0, 0, 0, 2000};
  c.user_y = {0, 2000, 0, 0};
  ASSERT_TRUE(SolveCalibration(c));
  const int a = Node(1000, 1000);
  const int b = Node(4000, 5000);
  const int link = Link("X_CAC", a, b);
  EXPECT_NEAR(LinkLength(surface, state.calibration, link), 10000, 1e-6);
  EXPECT_EQ(TagOf(link, "L"), "10000");
  // Positions are rounded to whole logical units first.
  surface.SetCurrentObject(b);
  surface.SetObjTag("Xlog", "4000.4");
  EXPECT_NEAR(LinkLength(surface, state.calibration, link), 10000, 1e-6);
  surface.SetObjTag("Xlog", "4000.6");
  EXPECT_GT(LinkLength(surface, state.calibration, link), 10000.5);
  EXPECT_EQ(LinkLength(surface, state.calibration, a), 0);
  EXPECT_EQ(LinkLength(surface, state.calibration, 0), 0);
  EXPECT_EQ(surface.CurrentObject(), b);
}

TEST_F(TopologyTest, LinkLengthFromUserTags) {
  const int a = Node(1000, 1000);
  const int b = Node(4000, 5000);
  const int link = Link("X_CAC", a, b);
  surface.SetCurrentObject(b);
  surface.SetObjTag("Xus", 1000 + 30);
  surface.SetObjTag("Yus", 9000 - 40);
  EXPECT_DOUBLE_EQ(LinkLengthFromUserTags(surface, link), 50);
  EXPECT_EQ(LinkLengthFromUserTags(surface, a), 0);
}

}  // namespace
}  // namespace pluvane
