// The arrow keys on the window's drawing move the selected elements and
// rewrite their logical and map places, as any move does; one undo step each.
#include <gtest/gtest.h>

#include <QTest>
#include <cmath>

#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "network/georeferencing.h"
#include "shell/main_keys.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"

namespace pluvane {
namespace {

TEST(ArrowKeys, TheMovedNodeOfTheCalibratedExampleTakesItsNewPlaces) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  Surface& surface = window.surface();
  ASSERT_GT(CountByTag(surface, "iName", 150), 0);  // calibrated
  const int node = FindObject(surface, "Id", "Nod_2");
  ASSERT_GT(node, 10);
  surface.DeselectAll();
  surface.SetCurrentObject(node);
  surface.SetSelected(true);
  const auto [x0, y0] = ObjectCentre(surface, node);
  const std::string xus0 = TagOfObject(surface, node, "Xus");

  window.view()->setFocus();
  QTest::keyClick(window.view(), Qt::Key_Right);
  QTest::keyClick(window.view(), Qt::Key_Down);
  QApplication::processEvents();

  const auto [x1, y1] = ObjectCentre(surface, node);
  EXPECT_GT(x1, x0);
  EXPECT_GT(y1, y0);
  const std::string xlog = TagOfObject(surface, node, "Xlog");
  const std::string ylog = TagOfObject(surface, node, "Ylog");
  EXPECT_EQ(Val(xlog), std::round(x1));
  EXPECT_EQ(Val(ylog), std::round(y1));
  // The map place follows the calibration from the new logical place.
  const Calibration& c = window.application().state().calibration;
  EXPECT_NEAR(Val(TagOfObject(surface, node, "Xus")), LogicToUserX(c, Val(xlog), Val(ylog)), 0.01);
  EXPECT_NEAR(Val(TagOfObject(surface, node, "Yus")), LogicToUserY(c, Val(xlog), Val(ylog)), 0.01);
  EXPECT_NE(TagOfObject(surface, node, "Xus"), xus0);
  EXPECT_TRUE(surface.IsSelected(node));

  // Each key is one step: two undos put the node and its tags back.
  window.interaction().Key(90, kCtrlMask);
  window.interaction().Key(90, kCtrlMask);
  EXPECT_EQ(ObjectCentre(surface, node), std::make_pair(x0, y0));
  EXPECT_EQ(TagOfObject(surface, node, "Xus"), xus0);
  Quit(window);
}

}  // namespace
}  // namespace pluvane
