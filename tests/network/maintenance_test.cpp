// Moving, snapping, reversing and deleting elements.
#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "network/catalogue.h"
#include "network/default_tags.h"
#include "network/deletion.h"
#include "network/link_direction.h"
#include "network/move_rules.h"
#include "network/snap.h"
#include "drawing/surface_helpers.h"
#include "placement_fixture.h"

namespace pluvane {
namespace {

void Select(Surface& surface, std::initializer_list<int> objects) {
  surface.DeselectAll();
  for (int n : objects) {
    surface.SetCurrentObject(n);
    surface.SetSelected(true);
  }
}

class MoveTest : public PlacementTest {
 protected:
  // The surface drags the selection; then the move is finished.
  MoveOutcome Drag(std::initializer_list<int> objects, std::int32_t dx, std::int32_t dy,
                   bool ctrl = false) {
    Select(surface, objects);
    surface.SetCurrentObject(kSelection);
    surface.MoveObject(dx, dy);
    return FinishMove(surface, state, ctrl);
  }
};

TEST_F(MoveTest, PointsNoteTheirNewCentre) {
  const int node = Node(1000, 1000);
  const int outlet = Symbol("X_HYBV", 0, 0, node);
  const int bv = Symbol("X_BV", 3000, 3000);
  const MoveOutcome outcome = Drag({node, outlet, bv}, 101, 50);
  EXPECT_EQ(outcome.updated, 2);
  EXPECT_EQ(TagOf(node, "Xlog"), "1101");
  EXPECT_EQ(TagOf(node, "Ylog"), "1050");
  EXPECT_EQ(TagOf(node, "Xus"), "1000");  // untouched without Ctrl
  EXPECT_EQ(TagOf(bv, "Xlog"), "3101");
  EXPECT_EQ(Tags(outlet).size(), 7u);  // nothing written on an outlet
  EXPECT_EQ(surface.ObjectCount(kSelection), 0);
}

TEST_F(MoveTest, HalfUnitCentresAreWrittenAsDoubles) {
  const int node = surface.AddObject(kKindPicture, 0, 0, 101, 101);
  surface.SetObjTag("iName", 99);
  Select(surface, {node});
  FinishMove(surface, state, false);
  EXPECT_EQ(TagOf(node, "Xlog"), "50.5");
}

TEST_F(MoveTest, WithCtrlTheMapPositionAndLinkLengthsFollow) {
  const int a = Node(1000, 1000);
  const int b = Node(4000, 1000);
  const int c = Node(1000, 5000);
  const int ab = Link("X_CAC", a, b);
  const int ca = Link("X_CAO", c, a);
  const int tr = Link("X_TR", a, c);
  EXPECT_EQ(TagOf(ab, "L"), "3000");
  Drag({a}, 0, 4000, true);
  EXPECT_EQ(TagOf(a, "Xlog"), "1000");
  EXPECT_EQ(TagOf(a, "Ylog"), "5000");
  EXPECT_EQ(TagOf(a, "Xus"), "1000");
  EXPECT_EQ(TagOf(a, "Yus"), "5000");
  EXPECT_EQ(TagOf(ab, "L"), "5000");
  EXPECT_EQ(TagOf(ca, "L"), "0");
  EXPECT_EQ(TagOf(tr, "L"), "");  // a connection has no length
}

TEST_F(MoveTest, MovingACalibrationPointSolvesTheMapAgain) {
  // Three points of the upright map: moving Pt3 doubles the X scale.
  const std::pair<int, int> logical[] = {{0, 0}, {0, 1000}, {1000, 1000}};
  for (int i = 0; i < 3; ++i) {
    const int point = Symbol("X_CALAGE", logical[i].first, logical[i].second);
    surface.SetCurrentObject(point);
    surface.SetObjTag("Id", "Pt" + std::to_string(i + 1));
    state.calibration.logic_x[i + 1] = logical[i].first;
    state.calibration.logic_y[i + 1] = logical[i].second;
    state.calibration.user_x[i + 1] = logical[i].first;
    state.calibration.user_y[i + 1] = 10000 - logical[i].second;
  }
  ASSERT_TRUE(SolveCalibration(state.calibration));
  const int pt3 = FindObject(surface, "Id", "Pt3");
  const MoveOutcome outcome = Drag({pt3}, -500, 0);
  EXPECT_TRUE(outcome.calibration_moved);
  EXPECT_TRUE(outcome.calibration_solved);
  EXPECT_EQ(state.calibration.logic_x[3], 500);
  EXPECT_NEAR(LogicToUserX(state.calibration, 500, 1000), 1000, 1e-6);
}

TEST_F(MoveTest, TheRadiusOfActionFollows) {
  const int ellipse = surface.AddObject(kKindEllipse, 1000, 1000, 1400, 1400);
  CreateDefaultTags(surface, state, "X_RAYON", false);
  Drag({ellipse}, 100, 0);
  EXPECT_EQ(TagOf(ellipse, "Xlog"), "1300");
  EXPECT_EQ(TagOf(ellipse, "Xus"), "1300");
  EXPECT_EQ(TagOf(ellipse, "Rayon"), "200");
}

// Snap.

using SnapTest = PlacementTest;

TEST_F(SnapTest, ElementsGoBackOnTheirNodes) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 3000);
  const int outlet = Symbol("X_HYBV", 0, 0, a);
  const int rs = Symbol("X_RS", 0, 0, b);
  const int free_bv = Symbol("X_BV", 6000, 6000);
  // The outlet was dragged away; the basin lost its node's name but sits on it.
  surface.SetCurrentObject(outlet);
  surface.MoveObject(700, 0);
  surface.SetCurrentObject(rs);
  surface.SetObjTag("sNodAm", "");
  surface.MoveObject(30, 30);
  EXPECT_EQ(mnuUtil_snapSymbol(surface, ui), 2);
  EXPECT_EQ(BoxOf(outlet), BoxOf(a));
  EXPECT_EQ(BoxOf(rs), BoxOf(b));
  EXPECT_EQ(TagOf(rs, "sNodAm"), "Nod_2");
  EXPECT_EQ(BoxOf(free_bv), (Box{5800, 5800, 6200, 6200}));
  ASSERT_FALSE(ui.Statuses().empty());
  EXPECT_EQ(ui.Statuses().back(), "Ok 2 elm uninodaux ont été reposés aux noeuds du reseau ");
  EXPECT_TRUE(ui.Empty());
}

// Direction of flow.

using DirectionTest = PlacementTest;

TEST_F(DirectionTest, NothingSelected) {
  const int a = Node(1000, 1000);
  Select(surface, {a});
  EXPECT_EQ(mnuUtil_XChange(surface, ui), 0);
  ExpectLastMessage(ui, "Une liaison binodale au moins doit etre selectionnée !!!", "",
                    MessageIcon::kNone);
  EXPECT_TRUE(ui.Statuses().empty());
}

TEST_F(DirectionTest, ReversingKeepsTagsAndStyleAndExchangesTheEnds) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  const int link = Link("X_CAC", a, b);
  surface.SetCurrentObject(link);
  surface.SetObjTag("ZRam", 12.5);
  surface.SetObjTag("ZRav", 11);
  surface.SetLinkEndMarker(1, 5);
  surface.SetLinkMarkerColor(1, 255);
  const TagList before = Tags(link);
  const double width = surface.LineWidth();
  Select(surface, {link, a});
  EXPECT_EQ(mnuUtil_XChange(surface, ui), 1);
  EXPECT_EQ(ui.Statuses().back(), "1 elm ont été changés.");
  EXPECT_EQ(surface.ObjectShape(link), nullptr);
  const int reversed = FindObject(surface, "Id", "Cac_1");
  ASSERT_GT(reversed, 0);
  EXPECT_EQ(surface.LinkEndObject(0), b);
  EXPECT_EQ(surface.LinkEndObject(1), a);
  TagList expected = before;
  for (auto& [name, value] : expected) {
    if (name == "sNodAm") value = "Nod_2";
    if (name == "sNodAv") value = "Nod_1";
  }
  EXPECT_EQ(Tags(reversed), expected);
  EXPECT_EQ(TagOf(reversed, "ZRam"), "12.5");
  EXPECT_EQ(surface.LineColor(), 16711680);
  EXPECT_DOUBLE_EQ(surface.LineWidth(), width);
  EXPECT_EQ(surface.LinkEndMarker(1), 5);
  EXPECT_EQ(surface.LinkMarkerColor(1), 255);
  EXPECT_TRUE(surface.Selected());
  // One undo step gives the old link back.
  EXPECT_TRUE(surface.Undo());
  surface.SetCurrentObject(link);
  EXPECT_EQ(surface.LinkEndObject(0), a);
}

// Deletion.

using DeletionTest = PlacementTest;

TEST_F(DeletionTest, ANodeTakesItsLinksAndTheElementsOnIt) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  const int c = Node(5000, 1000);
  Link("X_CAC", a, b);
  Link("X_CAC", b, c);
  const int outlet = Symbol("X_CLAV", 0, 0, b);
  const int rs = Symbol("X_RS", 0, 0, b);
  Select(surface, {b});
  EXPECT_EQ(DeleteSelection(surface, state), 5);
  EXPECT_EQ(surface.ObjectShape(outlet), nullptr);
  EXPECT_EQ(surface.ObjectShape(rs), nullptr);
  EXPECT_EQ(CountByName(surface, kINameCAC), 0);
  EXPECT_EQ(surface.ObjectCount(kPage), 2);
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(surface.ObjectCount(kPage), 7);
}

TEST_F(DeletionTest, OtherSelectedObjectsGoAsWell) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  const int bv = Symbol("X_BV", 6000, 6000);
  Symbol("X_HYBV", 0, 0, a);
  Select(surface, {a, bv});
  EXPECT_EQ(DeleteSelection(surface, state), 3);
  EXPECT_EQ(surface.ObjectCount(kPage), 1);
  EXPECT_NE(surface.ObjectShape(b), nullptr);
}

TEST_F(DeletionTest, ADeletedLinkLowersTheCountOfItsUpstreamNode) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  const int link = Link("X_CAC", a, b);
  for (int node : {a, b}) {
    surface.SetCurrentObject(node);
    surface.SetObjTag("iLink", 1);
  }
  Select(surface, {link});
  EXPECT_EQ(DeleteSelection(surface, state), 1);
  EXPECT_EQ(TagOf(a, "iLink"), "0");
  EXPECT_EQ(TagOf(b, "iLink"), "1");
}

TEST_F(DeletionTest, LibraryRecordsAndAlphaMarksStay) {
  const int section = surface.AddObject(kKindRectangle, 0, 0, 10, 10);
  surface.SetObjTag("iName", 101);
  const int alpha = surface.AddObject(kKindText, 20, 20, 30, 30);
  surface.SetObjTag("Id", "ObjAlpha");
  const int node = Node(1000, 1000);
  Select(surface, {section, alpha, node});
  EXPECT_EQ(DeleteSelection(surface, state), 1);
  EXPECT_NE(surface.ObjectShape(section), nullptr);
  EXPECT_NE(surface.ObjectShape(alpha), nullptr);
  EXPECT_EQ(surface.ObjectShape(node), nullptr);
}

TEST_F(DeletionTest, CalibrationPointGivesBackItsNumber) {
  const int point = Symbol("X_CALAGE", 1000, 1000);
  EXPECT_EQ(state.ElementCounters[15], 1);
  Select(surface, {point});
  DeleteSelection(surface, state);
  EXPECT_EQ(state.ElementCounters[15], 0);
  const int other = Symbol("X_CALAGE", 1000, 1000);
  EXPECT_EQ(TagOf(other, "Id"), "Pt_1");
}

TEST_F(DeletionTest, NothingSelectedDeletesNothing) {
  Node(1000, 1000);
  surface.DeselectAll();
  EXPECT_EQ(DeleteSelection(surface, state), 0);
  EXPECT_EQ(surface.ObjectCount(kPage), 1);
}

}  // namespace
}  // namespace pluvane
