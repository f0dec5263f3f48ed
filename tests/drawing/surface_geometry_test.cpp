#include <gtest/gtest.h>

#include "drawing/surface.h"

namespace pluvane {
namespace {

class SurfaceGeometry : public ::testing::Test {
 protected:
  void SetUp() override {
    a_ = surface_.AddObject(kKindPicture, 0, 0, 100, 100);         // centre (50, 50)
    b_ = surface_.AddObject(kKindPicture, 1000, 0, 1100, 100);     // centre (1050, 50)
    c_ = surface_.AddObject(kKindPicture, 1000, 900, 1100, 1100);  // centre (1050, 1000)
    ab_ = surface_.AddLink(a_, b_);
    bc_ = surface_.AddLink(b_, c_);
  }
  std::vector<Point> PointsOf(int number) {
    surface_.SetCurrentObject(number);
    return surface_.ObjectPoints();
  }
  Surface surface_;
  int a_ = 0, b_ = 0, c_ = 0, ab_ = 0, bc_ = 0;
};

TEST_F(SurfaceGeometry, LinkRunsBetweenTheCentresOfItsEnds) {
  surface_.SetCurrentObject(ab_);
  EXPECT_EQ(surface_.ObjectKind(), kKindLink);
  EXPECT_EQ(surface_.LinkEndObject(0), a_);
  EXPECT_EQ(surface_.LinkEndObject(1), b_);
  EXPECT_EQ(surface_.LinkEndObject(2), 0);
  EXPECT_EQ(PointsOf(ab_), (std::vector<Point>{{50, 50}, {1050, 50}}));
  surface_.SetCurrentObject(ab_);
  EXPECT_EQ(surface_.ObjLeft(), 50);
  EXPECT_EQ(surface_.ObjRight(), 1050);
  surface_.SetCurrentObject(b_);
  EXPECT_EQ(surface_.NodeLinkCount(), 2);
  surface_.SetCurrentObject(a_);
  EXPECT_EQ(surface_.NodeLinkCount(), 1);
}

TEST_F(SurfaceGeometry, LinksRefuseBadEnds) {
  EXPECT_EQ(surface_.AddLink(a_, a_), 0);
  EXPECT_EQ(surface_.AddLink(a_, 999), 0);
  EXPECT_EQ(surface_.AddLink(a_, ab_), 0);
}

TEST_F(SurfaceGeometry, LinkTakesTheDefaultsStyle) {
  surface_.SetCurrentObject(kDefaults);
  surface_.SetLineColor(255);
  surface_.SetLineWidth(-50);
  surface_.SetLineStyle(2);
  surface_.SetLinkEndMarker(1, 5);
  const int link = surface_.AddLink(a_, c_);
  EXPECT_EQ(surface_.CurrentObject(), link);
  EXPECT_EQ(surface_.LineColor(), 255);
  EXPECT_EQ(surface_.LineWidth(), -50);
  EXPECT_EQ(surface_.LineStyle(), 2);
  EXPECT_EQ(surface_.LinkEndMarker(1), 5);
  EXPECT_EQ(surface_.LinkEndMarker(0), 0);
}

TEST_F(SurfaceGeometry, MovingAnObjectMovesTheEndsOfItsLinks) {
  surface_.SetCurrentObject(b_);
  surface_.MoveObject(0, 500);
  EXPECT_EQ(surface_.ObjTop(), 500);
  EXPECT_EQ(surface_.ObjBottom(), 600);
  EXPECT_EQ(PointsOf(ab_), (std::vector<Point>{{50, 50}, {1050, 550}}));
  EXPECT_EQ(PointsOf(bc_), (std::vector<Point>{{1050, 550}, {1050, 1000}}));
  surface_.SetCurrentObject(bc_);
  EXPECT_EQ(surface_.ObjTop(), 550);
  EXPECT_EQ(surface_.ObjBottom(), 1000);
}

TEST_F(SurfaceGeometry, SetObjectBoundsMovesTheLinksToo) {
  surface_.SetCurrentObject(a_);
  surface_.SetObjectBounds(200, 200, 400, 400);
  std::int32_t l, t, r, b;
  surface_.GetObjectBounds(l, t, r, b);
  EXPECT_EQ(l, 200);
  EXPECT_EQ(t, 200);
  EXPECT_EQ(r, 400);
  EXPECT_EQ(b, 400);
  EXPECT_EQ(PointsOf(ab_).front(), (Point{300, 300}));
}

TEST_F(SurfaceGeometry, MovingTheSelectionMovesEveryObject) {
  surface_.SetCurrentObject(a_);
  surface_.SetSelected(true);
  surface_.SetCurrentObject(c_);
  surface_.SetSelected(true);
  surface_.SetCurrentObject(kSelection);
  surface_.MoveObject(10, 20);
  surface_.SetCurrentObject(a_);
  EXPECT_EQ(surface_.ObjLeft(), 10);
  surface_.SetCurrentObject(c_);
  EXPECT_EQ(surface_.ObjTop(), 920);
  surface_.SetCurrentObject(b_);
  EXPECT_EQ(surface_.ObjLeft(), 1000);
  EXPECT_EQ(PointsOf(ab_).front(), (Point{60, 70}));
}

TEST_F(SurfaceGeometry, DeletingAnObjectDeletesItsLinks) {
  EXPECT_EQ(surface_.DeleteObject(b_), 3);
  EXPECT_EQ(surface_.ObjectCount(kPage), 2);
  surface_.SetCurrentObject(a_);
  EXPECT_EQ(surface_.NodeLinkCount(), 0);
  surface_.SetCurrentObject(ab_);
  EXPECT_NE(surface_.CurrentObject(), ab_);
}

TEST_F(SurfaceGeometry, DeletingALinkFreesItsEnds) {
  EXPECT_EQ(surface_.DeleteObject(ab_), 1);
  surface_.SetCurrentObject(b_);
  EXPECT_EQ(surface_.NodeLinkCount(), 1);
  EXPECT_EQ(surface_.ObjectCount(kPage), 4);
}

TEST_F(SurfaceGeometry, DeletingTheSelectionTakesItsLinks) {
  surface_.SetCurrentObject(c_);
  surface_.SetSelected(true);
  surface_.SetCurrentObject(a_);
  surface_.SetSelected(true);
  EXPECT_EQ(surface_.DeleteObject(kSelection), 4);
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 0);
}

TEST_F(SurfaceGeometry, SetLinkPointAtTwoWithZeroLeavesTheTwoEnds) {
  surface_.SetCurrentObject(ab_);
  surface_.SetLinkPoint(2, 500, 400);  // a vertex before the last end
  EXPECT_EQ(PointsOf(ab_), (std::vector<Point>{{50, 50}, {500, 400}, {1050, 50}}));
  surface_.SetCurrentObject(ab_);
  EXPECT_EQ(surface_.ObjBottom(), 400);
  surface_.SetLinkPoint(2, 600, 300);
  EXPECT_EQ(PointsOf(ab_)[1], (Point{600, 300}));
  surface_.SetCurrentObject(ab_);
  surface_.SetLinkPoint(2, 0, 0);
  EXPECT_EQ(PointsOf(ab_), (std::vector<Point>{{50, 50}, {1050, 50}}));
  // Inner vertices stay when an end moves.
  surface_.SetCurrentObject(ab_);
  surface_.SetLinkPoint(2, 500, 400);
  surface_.SetCurrentObject(a_);
  surface_.MoveObject(-50, -50);
  EXPECT_EQ(PointsOf(ab_), (std::vector<Point>{{0, 0}, {500, 400}, {1050, 50}}));
}

TEST_F(SurfaceGeometry, MarkersAtEndsAndMiddle) {
  surface_.SetCurrentObject(ab_);
  surface_.SetLinkEndMarker(4, 5);
  surface_.SetLinkMarkerWidth(4, -30);
  surface_.SetLinkMarkerHeight(4, -40);
  surface_.SetLinkMarkerColor(4, 255);
  surface_.SetLinkMarkerFill(4, 1);
  EXPECT_EQ(surface_.LinkEndMarker(4), 5);
  EXPECT_EQ(surface_.LinkMarkerWidth(4), -30);
  EXPECT_EQ(surface_.LinkMarkerHeight(4), -40);
  EXPECT_EQ(surface_.LinkMarkerColor(4), 255);
  EXPECT_EQ(surface_.LinkMarkerFill(4), 1);
  EXPECT_EQ(surface_.LinkEndMarker(0), 0);
  surface_.SetLinkEndMarker(3, 5);  // no such position
  EXPECT_EQ(surface_.LinkEndMarker(3), 0);
}

TEST_F(SurfaceGeometry, HitTestFindsTheTopmostObject) {
  const int over = surface_.AddObject(kKindRectangle, 10, 10, 30, 30);
  EXPECT_EQ(surface_.HitTest(20, 20), over);
  EXPECT_EQ(surface_.CurrentObject(), over);
  surface_.Arrange(2);  // behind all others
  EXPECT_EQ(surface_.HitTest(20, 20), a_);
  // The link drawn last lies over its end; sent behind, the symbol is hit.
  EXPECT_EQ(surface_.HitTest(50, 50), ab_);
  surface_.Arrange(2);
  EXPECT_EQ(surface_.HitTest(50, 50), a_);
  EXPECT_EQ(surface_.HitTest(5000, 5000), 0);
  EXPECT_EQ(surface_.CurrentObject(), a_);
}

TEST_F(SurfaceGeometry, HitTestReachesLinksWithinTheTolerance) {
  EXPECT_EQ(surface_.HitTest(500, 60), 0);
  EXPECT_EQ(surface_.HitTest(500, 60, 15), ab_);
  EXPECT_EQ(surface_.HitTest(1060, 500, 15), bc_);
}

TEST_F(SurfaceGeometry, HitTestPassesOverHiddenObjects) {
  surface_.SetCurrentObject(a_);
  surface_.SetObjectVisible(false);
  EXPECT_FALSE(surface_.ObjectVisible());
  EXPECT_EQ(surface_.HitTest(10, 10), 0);
}

TEST_F(SurfaceGeometry, EllipsesAreHitInsideTheirCurve) {
  const int e = surface_.AddObject(kKindEllipse, 2000, 2000, 2200, 2200);
  EXPECT_EQ(surface_.HitTest(2100, 2100), e);
  EXPECT_EQ(surface_.HitTest(2005, 2005), 0);
}

TEST_F(SurfaceGeometry, SelectInRectTakesWhatTouchesAndReplacesTheSelection) {
  surface_.SetCurrentObject(c_);
  surface_.SetSelected(true);
  // Touches a (box) and ab (segment along y = 50), not b, c or bc.
  EXPECT_EQ(surface_.SelectInRect(90, 40, 500, 60, 12288), 2);
  surface_.SetCurrentObject(a_);
  EXPECT_TRUE(surface_.Selected());
  surface_.SetCurrentObject(ab_);
  EXPECT_TRUE(surface_.Selected());
  surface_.SetCurrentObject(c_);
  EXPECT_FALSE(surface_.Selected());
  // Edges count; a rectangle beside a diagonal's box but off the line does not.
  EXPECT_EQ(surface_.SelectInRect(100, 100, 200, 200, 8192), 1);
}

TEST_F(SurfaceGeometry, SelectAllPassesOverHiddenRecordsAndDeselectAllClears) {
  surface_.AddObject(kKindRectangle, 0, 0, 1, 1);
  surface_.SetObjectVisible(false);
  surface_.SetEditMode(0);
  EXPECT_EQ(surface_.SelectAll(), 5);
  EXPECT_EQ(surface_.EditMode(), 11);
  surface_.SetSelectionEnabled(false);
  const int cursor = surface_.CurrentObject();
  surface_.DeselectAll();
  EXPECT_EQ(surface_.ObjectCount(kSelection), 0);
  EXPECT_TRUE(surface_.SelectionEnabled());
  EXPECT_EQ(surface_.CurrentObject(), cursor);
}

TEST_F(SurfaceGeometry, SelectedOnTheAllObjectsPseudoObject) {
  surface_.SetCurrentObject(kAllObjects);
  surface_.SetSelected(true);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 5);
  surface_.SetSelected(false);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 0);
}

TEST_F(SurfaceGeometry, BringToFrontAndSendBehind) {
  surface_.SetCurrentObject(a_);
  surface_.Arrange(3);
  const std::int64_t front = surface_.ObjectShape(a_)->layer;
  for (int n : {b_, c_, ab_, bc_}) EXPECT_LT(surface_.ObjectShape(n)->layer, front);
  surface_.Arrange(2);
  for (int n : {b_, c_, ab_, bc_})
    EXPECT_GT(surface_.ObjectShape(n)->layer, surface_.ObjectShape(a_)->layer);
  EXPECT_TRUE(surface_.Arrange(10));
  EXPECT_FALSE(surface_.Arrange(7));
}

TEST_F(SurfaceGeometry, GroupTakesTheSelectionAndItsInnerLinks) {
  const int lone = surface_.AddObject(kKindRectangle, 5000, 5000, 5100, 5100);
  surface_.SetObjTag("Id", "Lone");
  // a link leaving the group refuses it
  surface_.SetCurrentObject(a_);
  surface_.SetSelected(true);
  surface_.SetCurrentObject(b_);
  surface_.SetSelected(true);
  surface_.SetCurrentObject(kSelection);
  EXPECT_FALSE(surface_.Arrange(0));
  EXPECT_EQ(surface_.ObjectCount(kPage), 6);
  surface_.SetCurrentObject(c_);
  surface_.SetSelected(true);
  surface_.SetCurrentObject(kSelection);
  ASSERT_TRUE(surface_.Arrange(0));
  EXPECT_EQ(surface_.ObjectCount(kPage), 2);
  const int group = surface_.CurrentObject();
  EXPECT_EQ(surface_.ObjectKind(), kKindGroup);
  EXPECT_EQ(surface_.ObjLeft(), 0);
  EXPECT_EQ(surface_.ObjBottom(), 1100);
  EXPECT_EQ(surface_.ObjectShape(group)->children.size(), 5u);
  // Moving a group moves what it holds.
  surface_.MoveObject(10, 0);
  EXPECT_EQ(surface_.ObjectShape(group)->children[0].shape.box.left, 10);
  // Ungrouping gives new objects, selected, with their links bound again.
  EXPECT_TRUE(surface_.Arrange(1));
  EXPECT_EQ(surface_.ObjectCount(kPage), 6);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 5);
  int links = 0;
  surface_.SetCurrentObject(kSelection);
  for (int n = surface_.FirstSelected(); n > 10; n = surface_.NextSelected()) {
    if (surface_.ObjectKind() == kKindLink) {
      ++links;
      EXPECT_GT(surface_.LinkEndObject(0), group);
    }
  }
  EXPECT_EQ(links, 2);
  surface_.SetCurrentObject(lone);
  EXPECT_EQ(surface_.ObjTag("Id"), "Lone");
}

TEST_F(SurfaceGeometry, StyleAndTextProperties) {
  const int t = surface_.AddObject(kKindText, 0, 0, 100, 20);
  surface_.SetTextString("Nœud été");
  surface_.SetTextFontName("Arial");
  surface_.SetTextSize(-200);
  surface_.SetTextBold(true);
  surface_.SetTextItalic(true);
  surface_.SetTextUnderline(true);
  surface_.SetTextStrike(true);
  surface_.SetTextColor(128);
  surface_.SetTextAngle(90);
  surface_.SetTextAlign(2);
  surface_.SetTextFillBack(true);
  surface_.SetFillColor(65280);
  surface_.SetFillStyle(0);
  surface_.SetObjectPicture("NOD.svg");
  surface_.SetCurrentObject(kPage);
  EXPECT_EQ(surface_.TextString(), "");
  surface_.SetCurrentObject(t);
  EXPECT_EQ(surface_.TextString(), "Nœud été");
  EXPECT_EQ(surface_.TextFontName(), "Arial");
  EXPECT_EQ(surface_.TextSize(), -200);
  EXPECT_TRUE(surface_.TextBold() && surface_.TextItalic() && surface_.TextUnderline() &&
              surface_.TextStrike() && surface_.TextFillBack());
  EXPECT_EQ(surface_.TextColor(), 128);
  EXPECT_EQ(surface_.TextAngle(), 90);
  EXPECT_EQ(surface_.TextAlign(), 2);
  EXPECT_EQ(surface_.FillColor(), 65280);
  EXPECT_EQ(surface_.FillStyle(), 0);
  EXPECT_EQ(surface_.ObjectPicture(), "NOD.svg");
}

TEST_F(SurfaceGeometry, NewObjectsTakeTheDefaults) {
  surface_.SetCurrentObject(kDefaults);
  surface_.SetLineColor(77);
  surface_.SetFillStyle(0);
  surface_.SetObjectPicture("NOD.svg");
  const int n = surface_.AddObjectAtDefaults(kKindPicture);
  EXPECT_EQ(surface_.CurrentObject(), n);
  EXPECT_EQ(surface_.LineColor(), 77);
  EXPECT_EQ(surface_.FillStyle(), 0);
  EXPECT_EQ(surface_.ObjectPicture(), "NOD.svg");
  surface_.SetObjectBounds(10, 20, 30, 40);
  EXPECT_EQ(surface_.ObjRight(), 30);
}

TEST(SurfaceView, ScaleAndPageState) {
  Surface surface;
  surface.SetScale(0, 0, 20000, 20000, 4096);
  EXPECT_EQ(surface.LogicWidth(), 20000);
  EXPECT_EQ(surface.ViewWidth(), 100000);
  surface.SetScale(0, 0, 30000, 30000, 16384);
  EXPECT_EQ(surface.ViewWidth(), 30000);
  surface.SetAutoScale(0);
  surface.SetViewLeft(100);
  surface.SetViewWidth(500);
  EXPECT_EQ(surface.ViewLeft(), 100);
  surface.SetPageColor(1);
  surface.SetBackColor1(2);
  surface.SetBackColor2(3);
  surface.SetGridOn(2);
  surface.SetGridStepX(50);
  surface.SetGridStepY(60);
  surface.SetScrollBars(2);
  surface.SetBackgroundPicture("plan.png");
  surface.SetBackgroundMode(4);
  surface.SetBackgroundScale(0.8);
  EXPECT_EQ(surface.PageColor() + surface.BackColor1() + surface.BackColor2(), 6);
  EXPECT_EQ(surface.GridOn(), 2);
  EXPECT_EQ(surface.GridStepX(), 50);
  EXPECT_EQ(surface.GridStepY(), 60);
  EXPECT_EQ(surface.ScrollBars(), 2);
  EXPECT_EQ(surface.BackgroundPicture(), "plan.png");
  EXPECT_EQ(surface.BackgroundMode(), 4);
  EXPECT_EQ(surface.BackgroundScale(), 0.8);
}

TEST(SurfaceView, RefreshReachesEveryListenerTillRemoved) {
  Surface surface;
  int first = 0;
  int second = 0;
  const int id = surface.AddListener([&] { ++first; });
  surface.AddListener([&] { ++second; });
  surface.Refresh();
  surface.RemoveListener(id);
  surface.Refresh();
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 2);
}

TEST(SurfaceView, RefreshReachesTheListenerUnlessPaintingIsOff) {
  Surface surface;
  int calls = 0;
  surface.AddListener([&] { ++calls; });
  surface.Refresh();
  surface.SetRedraw(false);
  surface.Refresh();
  EXPECT_EQ(calls, 1);
  surface.SetRedraw(true);
  EXPECT_EQ(calls, 2);
}

}  // namespace
}  // namespace pluvane
