#include "network/create_mode.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "network/catalogue.h"
#include "drawing/surface_helpers.h"
#include "placement_fixture.h"

namespace pluvane {
namespace {

constexpr const char* kCaption = "Pluvane - reseau.mtf";

class CreateModeTest : public PlacementTest {
 protected:
  PlacementResult Press(int hit, std::int32_t x = 0, std::int32_t y = 0) {
    return PressInCreateMode(context, placement, hit, x, y);
  }
  PlacementResult Click(int hit, std::int32_t x = 0, std::int32_t y = 0, int drawn = 0) {
    Press(hit, x, y);
    return ReleaseInCreateMode(context, placement, drawn);
  }
  // A node with `n` collectors leaving it.
  int NodeWithDownstream(int n) {
    const int node = Node(5000, 5000);
    for (int i = 0; i < n; ++i) Link("X_CAC", node, Node(6000, 3000 + 800 * i));
    return node;
  }

  // The key refused on `hit` with that message, and nothing created.
  void ExpectRefused(const char* key, int hit, const std::string& text, const std::string& title) {
    ArmCreation(placement, key);
    const int objects = surface.ObjectCount(kPage);
    EXPECT_EQ(Click(hit).created, 0) << key;
    ExpectLastMessage(ui, text, title, MessageIcon::kExclamation);
    EXPECT_EQ(surface.ObjectCount(kPage), objects) << key;
  }

  PlacementContext context{surface, state, ui, kCaption, true};
  PlacementState placement;
};

TEST_F(CreateModeTest, ArmingTakesTheKeysPair) {
  placement.ClickCount = 1;
  placement.FirstEnd = 12;
  ArmCreation(placement, "X_CALAGE");
  EXPECT_EQ(placement.CreationKey, "X_CALAGE");
  EXPECT_EQ(placement.NextIName, 15);
  EXPECT_EQ(placement.NextIGroup, 1);
  EXPECT_EQ(placement.ClickCount, 0);
  EXPECT_EQ(placement.FirstEnd, 0);
}

// Links.

TEST_F(CreateModeTest, ClickOnNothingResetsThePendingLink) {
  const int a = Node(1000, 1000);
  ArmCreation(placement, "X_CAC");
  Press(a);
  EXPECT_EQ(placement.ClickCount, 1);
  EXPECT_EQ(placement.FirstEnd, a);
  Press(0, 3000, 3000);
  EXPECT_EQ(placement.ClickCount, 0);
  EXPECT_EQ(placement.FirstEnd, 0);
  EXPECT_EQ(placement.SecondEnd, 0);
  EXPECT_TRUE(placement.CancelRelease);
  EXPECT_EQ(CountByName(surface, kINameCAC), 0);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(CreateModeTest, TwoClicksOnTheSameNodeDrawNoLinkAndLeaveTheModeArmed) {
  const int a = Node(1000, 1000);
  ArmCreation(placement, "X_CAF");
  Click(a);
  const PlacementResult second = Click(a);
  EXPECT_EQ(second.created, 0);
  EXPECT_FALSE(second.leave_mode);
  EXPECT_EQ(placement.ClickCount, 0);
  EXPECT_EQ(placement.CreationKey, "X_CAF");
  EXPECT_EQ(CountByName(surface, kINameCAF), 0);
  // The mode goes on: the next two clicks draw.
  const int b = Node(3000, 1000);
  Click(a);
  Press(b);
  EXPECT_EQ(CountByName(surface, kINameCAF), 1);
}

TEST_F(CreateModeTest, LinksAreDrawnInChains) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  const int c = Node(3000, 3000);
  ArmCreation(placement, "X_CAC");
  Click(a, 1000, 1000);
  EXPECT_EQ(surface.ObjectCount(kSelection), 1);
  const PlacementResult ab = Press(b);
  ReleaseInCreateMode(context, placement);
  ASSERT_GT(ab.created, 0);
  EXPECT_TRUE(ab.refresh);
  EXPECT_EQ(placement.FirstEnd, b);
  EXPECT_EQ(placement.ClickCount, 1);
  const int bc = Press(c).created;
  ASSERT_GT(bc, 0);
  EXPECT_EQ(TagOf(ab.created, "sNodAm"), "Nod_1");
  EXPECT_EQ(TagOf(ab.created, "sNodAv"), "Nod_2");
  EXPECT_EQ(TagOf(bc, "sNodAm"), "Nod_2");
  EXPECT_EQ(TagOf(bc, "sNodAv"), "Nod_3");
  EXPECT_EQ(placement.FirstEnd, c);
  // Esc ends the chain.
  CancelPendingLink(placement);
  EXPECT_EQ(placement.ClickCount, 0);
}

TEST_F(CreateModeTest, ACollectorStartsOnTheNodeUnderAnElement) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  const int outlet = Symbol("X_CLAV", 0, 0, a);
  ArmCreation(placement, "X_CAO");
  Press(outlet);
  EXPECT_EQ(placement.FirstEnd, a);
  const int link = Press(b).created;
  EXPECT_EQ(TagOf(link, "sNodAm"), "Nod_1");
  // A free element with no node gives no end.
  CancelPendingLink(placement);
  const int gauge = Symbol("X_PLU", 6000, 6000);
  Press(gauge);
  EXPECT_EQ(placement.ClickCount, 0);
  EXPECT_TRUE(placement.CancelRelease);
  EXPECT_EQ(surface.ObjectCount(kSelection), 0);
}

TEST_F(CreateModeTest, ARouteGoesFromACatchmentToAnOutlet) {
  const int node = Node(1000, 1000);
  const int outlet = Symbol("X_HYBV", 0, 0, node);
  const int bv = Symbol("X_BV", 3000, 3000);
  const int bare = Node(5000, 5000);
  ArmCreation(placement, "X_ROUT");
  // Not from a node that holds no catchment.
  Press(bare);
  EXPECT_EQ(placement.ClickCount, 0);
  EXPECT_TRUE(placement.CancelRelease);
  // Not from an outlet.
  Press(outlet);
  EXPECT_EQ(placement.ClickCount, 0);
  // From a catchment, but not to a node.
  Press(bv);
  EXPECT_EQ(placement.FirstEnd, bv);
  Press(bare);
  EXPECT_EQ(placement.ClickCount, 0);
  EXPECT_EQ(CountByName(surface, kINameRout), 0);
  // From a catchment to an outlet: the route ends on the outlet's node.
  Press(bv);
  const int route = Press(outlet).created;
  ASSERT_GT(route, 0);
  EXPECT_EQ(TagOf(route, "sNodAm"), "Bv_1");
  EXPECT_EQ(TagOf(route, "sNodAv"), "Nod_1");
  EXPECT_TRUE(ui.Empty());
}

// Elements on nodes.

TEST_F(CreateModeTest, UninodalOnNothingIsSilentlyCancelled) {
  ArmCreation(placement, "X_HY");
  const PlacementResult result = Click(0, 4000, 4000);
  EXPECT_TRUE(placement.CancelRelease);
  EXPECT_EQ(result.created, 0);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(surface.ObjectCount(kPage), 0);
}

TEST_F(CreateModeTest, UninodalOnAnotherObjectIsRefused) {
  const int bv = Symbol("X_BV", 3000, 3000);
  ExpectRefused("X_CLAV", bv, "un obj ne peut pas être déposé sur un autre", kCaption);
  EXPECT_EQ(CountByName(surface, kINameCLAV), 0);
}

TEST_F(CreateModeTest, ThirdElementOnANodeIsRefusedTheSecondAccepted) {
  const int node = Node(1000, 1000);
  ArmCreation(placement, "X_HYBV");
  const int first = Click(node, 1010, 990).created;
  ASSERT_GT(first, 0);
  EXPECT_EQ(BoxOf(first), BoxOf(node));
  ArmCreation(placement, "X_MARK");
  EXPECT_GT(Click(node).created, 0);
  EXPECT_TRUE(ui.Empty());
  ExpectRefused("X_HY", node, "un noeud ne peut supporter qu'un obj au plus", kCaption);
  EXPECT_EQ(CountByName(surface, kINameHY), 0);
}

TEST_F(CreateModeTest, BasinNeedsTwoCollectorsDownstream) {
  const int node = NodeWithDownstream(1);
  ExpectRefused("X_RS", node, "If faut 2 collecteurs en aval de ce noeud!", "Bassin");
  Link("X_CAF", node, Node(7000, 7000));
  ui.Clear();
  const int rs = Click(node).created;
  ASSERT_GT(rs, 0);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(TagOf(rs, "sNodAm"), TagOf(node, "Id"));
  EXPECT_EQ(surface.ObjectCount(kSelection), 0);
}

TEST_F(CreateModeTest, SeriesBasinRSPAlsoNeedsExactlyTwo) {
  const int node = NodeWithDownstream(3);
  ExpectRefused("X_RSP", node, "If faut 2 collecteurs en aval de ce noeud!", "Bassin");
}

TEST_F(CreateModeTest, DerivationNeedsTwoToFourCollectorsDownstream) {
  const char* kText = "If faut au moins 2 et au plus 4 collecteurs en aval de ce noeud!";
  const int five = NodeWithDownstream(5);
  ExpectRefused("X_DQQ", five, kText, "Dérivation");
  EXPECT_EQ(CountByName(surface, kINameDQQ), 0);
}

TEST_F(CreateModeTest, DerivationAcceptedWithFourAndRefusedWithOne) {
  const char* kText = "If faut au moins 2 et au plus 4 collecteurs en aval de ce noeud!";
  const int four = NodeWithDownstream(4);
  ArmCreation(placement, "X_DQZ");
  EXPECT_GT(Click(four).created, 0);
  EXPECT_TRUE(ui.Empty());
  const int one = Node(9000, 9000);
  Link("X_CAC", one, Node(9500, 9500));
  ExpectRefused("X_DQQ", one, kText, "Dérivation");
}

// Nodes, catchments, gauges.

TEST_F(CreateModeTest, NodeOnAFreeSpotOnly) {
  ArmCreation(placement, "X_NOD");
  const PlacementResult made = Click(0, 2000, 3000);
  ASSERT_GT(made.created, 0);
  EXPECT_FALSE(made.refresh_menus);
  EXPECT_EQ(TagOf(made.created, "Xlog"), "2000");
  EXPECT_EQ(TagOf(made.created, "Ylog"), "3000");
  // On a node the release does nothing; on another element the press cancels it.
  EXPECT_EQ(Click(made.created).created, 0);
  const int bv = Symbol("X_BV", 6000, 6000);
  Press(bv);
  EXPECT_TRUE(placement.CancelRelease);
  EXPECT_EQ(CountByName(surface, kINameNode), 1);
  context.stay_armed = false;
  EXPECT_TRUE(Click(0, 8000, 3000).refresh_menus);
}

TEST_F(CreateModeTest, CatchmentOnAFreeSpotOrAsAComplex) {
  ArmCreation(placement, "X_BV");
  const int free_bv = Click(0, 7000, 7000).created;
  EXPECT_EQ(TagOf(free_bv, "iName"), "1");
  const int node = Node(1000, 1000);
  const int complex_bv = Click(node).created;
  ASSERT_GT(complex_bv, 0);
  EXPECT_EQ(placement.CreationKey, "X_BV");
  EXPECT_EQ(placement.NextIName, 1);
  const int outlet = FindObject(surface, "Id", "Hbv_1");
  ASSERT_GT(outlet, 0);
  EXPECT_GT(Click(outlet).created, 0);
  EXPECT_EQ(CountByName(surface, kINameHYBV), 1);
  EXPECT_EQ(CountByName(surface, kINameRout), 2);
  // Not on a gauge.
  const int gauge = Symbol("X_PLU", 4000, 4000);
  EXPECT_EQ(Click(gauge).created, 0);
  EXPECT_EQ(CountByName(surface, kINameBV), 3);
}

TEST_F(CreateModeTest, GaugeWhereNoNodeIsHit) {
  const int node = Node(1000, 1000);
  ArmCreation(placement, "X_PLU");
  EXPECT_EQ(Click(node).created, 0);
  EXPECT_GT(Click(0, 3000, 3000).created, 0);
  const int outlet = Symbol("X_HYBV", 0, 0, node);
  const int on_outlet = Click(outlet, 1020, 1030).created;
  ASSERT_GT(on_outlet, 0);
  EXPECT_EQ(TagOf(on_outlet, "Xlog"), "1020");
}

// Calibration points and the radius of action.

TEST_F(CreateModeTest, CalibrationPointTakesThePendingName) {
  ArmCreation(placement, "X_CALAGE");
  placement.PendingCalagePoint = "Pt2";
  const PlacementResult made = Click(0, 2500, 2600);
  ASSERT_GT(made.created, 0);
  EXPECT_TRUE(made.open_info_calage);
  EXPECT_EQ(TagOf(made.created, "Id"), "Pt2");
  EXPECT_EQ(TagOf(made.created, "Xcal"), "2500");
  // Not on an object.
  EXPECT_EQ(Click(made.created).created, 0);
}

TEST_F(CreateModeTest, NoFourthCalibrationPoint) {
  ArmCreation(placement, "X_CALAGE");
  for (int i = 1; i <= 3; ++i) {
    placement.PendingCalagePoint = "Pt" + std::to_string(i);
    EXPECT_GT(Click(0, 1000 * i, 1000).created, 0);
  }
  placement.PendingCalagePoint = "Pt1";
  const PlacementResult fourth = Click(0, 5000, 5000);
  EXPECT_EQ(fourth.created, 0);
  EXPECT_FALSE(fourth.open_info_calage);
  EXPECT_EQ(CountByName(surface, kINameCalage), 3);
}

TEST_F(CreateModeTest, CircleOneUnitOffSquareIsAccepted) {
  ArmCreation(placement, "X_RAYON");
  Press(0, 1000, 1000);
  const int ellipse = surface.AddObject(kKindEllipse, 1000, 1000, 1400, 1401);
  const PlacementResult made = ReleaseInCreateMode(context, placement, ellipse);
  EXPECT_EQ(made.created, ellipse);
  EXPECT_TRUE(made.leave_mode);
  EXPECT_TRUE(made.open_plu_rayon);
  EXPECT_EQ(TagOf(ellipse, "Id"), "Rayon");
  EXPECT_EQ(TagOf(ellipse, "iName"), "17");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(CreateModeTest, CircleTwoUnitsOffSquareIsRefused) {
  ArmCreation(placement, "X_RAYON");
  Press(0, 1000, 1000);
  const int ellipse = surface.AddObject(kKindEllipse, 1000, 1000, 1402, 1400);
  const PlacementResult made = ReleaseInCreateMode(context, placement, ellipse);
  EXPECT_EQ(made.created, 0);
  EXPECT_FALSE(made.open_plu_rayon);
  ExpectLastMessage(ui, "Cf. barre de message ci-dessous pour tracer un cercle et non un ellipse.",
                    "Définition d'un rayon d'action", MessageIcon::kExclamation);
  EXPECT_EQ(surface.ObjectCount(kPage), 0);
}

TEST_F(CreateModeTest, CancelledReleaseDoesNothing) {
  ArmCreation(placement, "X_NOD");
  placement.CancelRelease = true;
  EXPECT_EQ(ReleaseInCreateMode(context, placement).created, 0);
  EXPECT_EQ(surface.ObjectCount(kPage), 0);
}

TEST_F(CreateModeTest, EachPlacementIsOneUndoStep) {
  ArmCreation(placement, "X_BV");
  const int node = Node(1000, 1000);
  Click(node);
  EXPECT_EQ(surface.ObjectCount(kPage), 4);
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(surface.ObjectCount(kPage), 1);
}

}  // namespace
}  // namespace pluvane
