#include "ui/interaction_binder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "drawing/surface_helpers.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "network/placement.h"
#include "network/topology.h"
#include "shell/app_state.h"
#include "test_app.h"

namespace pluvane {
namespace {

// An 800 x 600 client over the logical rectangle (0, 0)-(4000, 3000): five
// logical units a pixel, new nodes 40 units (8 pixels) wide.
class InteractionBinderTest : public ::testing::Test {
 protected:
  void SetUp() override {
    TestApp();
    state_.SymbolDir = std::string(PLUVANE_DATA) + "/Symboles";
    state_.LogicWidth = 4000;
    state_.LogicHeight = 3000;
    state_.SymbolSize = 20;
    state_.LinkThick = 3;
    state_.ClientWidth = 800;
    state_.ClientHeight = 600;
    surface_.SetScale(0, 0, 4000, 3000, 16384);
    DefaultCalibrationFromCorners(state_.calibration, 4000, 3000);
    // A cursor picture for every number: a cross in a square.
    QImage cursor(24, 24, QImage::Format_ARGB32);
    cursor.fill(Qt::transparent);
    QPainter paint(&cursor);
    paint.drawRect(0, 0, 23, 23);
    paint.drawLine(12, 0, 12, 23);
    paint.end();
    cursor_file_ = folder_.File("200.png");
    cursor.save(QString::fromStdString(cursor_file_));

    view_ = std::make_unique<SurfaceView>(surface_);
    view_->resize(800, 600);
    view_->show();
    binder_ = std::make_unique<InteractionBinder>(*view_, interaction_,
                                                  [this](int) { return cursor_file_; });
  }

  QPoint At(double x, double y) const {
    return QPoint(static_cast<int>(view_->LogicToClientX(x)),
                  static_cast<int>(view_->LogicToClientY(y)));
  }
  // The pointer moves to (x, y), delivered at once.
  void MoveTo(double x, double y) {
    const QPointF at = At(x, y);
    QMouseEvent event(QEvent::MouseMove, at, view_->viewport()->mapToGlobal(at), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view_->viewport(), &event);
  }
  void ClickAt(double x, double y) {
    MoveTo(x, y);
    QTest::mouseClick(view_->viewport(), Qt::LeftButton, Qt::NoModifier, At(x, y));
  }
  void Press(int key) { QTest::keyClick(view_.get(), static_cast<Qt::Key>(key)); }
  int NodeAt(double x, double y) { return DrawSymbol(surface_, state_, ui_, x, y, "X_NOD", 0); }
  int Count() { return surface_.ObjectCount(kPage); }

  TempFolder folder_;
  std::string cursor_file_;
  Surface surface_;
  AppState state_;
  ScriptedUi ui_;
  MainInteraction interaction_{surface_, state_, ui_};
  std::unique_ptr<SurfaceView> view_;
  std::unique_ptr<InteractionBinder> binder_;
};

TEST_F(InteractionBinderTest, NodesArePlacedWithTheNodeTool) {
  binder_->ToolClick("X_NOD");
  EXPECT_EQ(view_->viewport()->cursor().shape(), Qt::BitmapCursor);
  EXPECT_EQ(view_->viewport()->cursor().hotSpot(), QPoint(12, 12));
  ClickAt(1000, 1000);
  ClickAt(2000, 1500);
  ASSERT_EQ(CountByName(surface_, kINameNode), 2);
  const auto nodes = FindObjectList(surface_, "iName", kINameNode);
  const auto [x, y] = ObjectCentre(surface_, nodes[1]);
  EXPECT_NEAR(x, 2000, 5);
  EXPECT_NEAR(y, 1500, 5);
  EXPECT_EQ(ui_.Panel("sbrXY"), "2000, 1500");
}

TEST_F(InteractionBinderTest, AChainOfThreeCollectors) {
  NodeAt(500, 1500);
  NodeAt(1500, 1500);
  NodeAt(2500, 1500);
  NodeAt(3500, 1500);
  binder_->ToolClick("X_CAC");
  ClickAt(500, 1500);
  EXPECT_TRUE(view_->HasRubberLine());
  ClickAt(1500, 1500);
  ClickAt(2500, 1500);
  ClickAt(3500, 1500);
  EXPECT_EQ(CountByName(surface_, kINameCAC), 3);
  EXPECT_TRUE(view_->HasRubberLine());
}

TEST_F(InteractionBinderTest, EscInTheMiddleOfALink) {
  NodeAt(500, 1500);
  binder_->ToolClick("X_CAC");
  ClickAt(500, 1500);
  ASSERT_TRUE(view_->HasRubberLine());
  QSignalSpy menus(binder_.get(), &InteractionBinder::RefreshMenusRequested);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(view_->HasRubberLine());
  EXPECT_EQ(interaction_.placement().ClickCount, 0);
  EXPECT_EQ(view_->viewport()->cursor().shape(), Qt::ArrowCursor);
  EXPECT_EQ(menus.count(), 1);
}

TEST_F(InteractionBinderTest, AThirdElementOnANodeIsRefused) {
  const int node = NodeAt(2000, 1500);
  binder_->ToolClick("X_HY");
  ClickAt(2000, 1500);
  binder_->ToolClick("X_MARK");
  ClickAt(2000, 1500);
  const int before = Count();
  binder_->ToolClick("X_CLAV");
  ClickAt(2000, 1500);
  EXPECT_EQ(Count(), before);
  ASSERT_FALSE(ui_.Empty());
  EXPECT_EQ(ui_.Last().text, "un noeud ne peut supporter qu'un obj au plus");
  EXPECT_EQ(CountByName(surface_, kINameCLAV), 0);
  EXPECT_EQ(ElementsOnNode(surface_, node).size(), 2u);
}

TEST_F(InteractionBinderTest, DownstreamCountsOfReservoirAndDivider) {
  const int node = NodeAt(2000, 1500);
  DrawLink(surface_, state_, "X_CAC", node, NodeAt(3000, 1000), 0, 0);
  binder_->ToolClick("X_RS");
  ClickAt(2000, 1500);
  EXPECT_EQ(ui_.Last().text, "If faut 2 collecteurs en aval de ce noeud!");
  EXPECT_EQ(ui_.Last().title, "Bassin");
  binder_->ToolClick("X_DQQ");
  ClickAt(2000, 1500);
  EXPECT_EQ(ui_.Last().text, "If faut au moins 2 et au plus 4 collecteurs en aval de ce noeud!");
  EXPECT_EQ(ui_.Last().title, "Dérivation");
  DrawLink(surface_, state_, "X_CAC", node, NodeAt(3000, 2000), 0, 0);
  ui_.Clear();
  ClickAt(2000, 1500);
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(CountByName(surface_, kINameDQQ), 1);
}

TEST_F(InteractionBinderTest, DelWithNothingSelected) {
  NodeAt(2000, 1500);
  surface_.DeselectAll();
  Press(Qt::Key_Delete);
  EXPECT_EQ(interaction_.CurrentMode(), "MDDELETE");
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(view_->viewport()->cursor().shape(), Qt::BitmapCursor);
}

TEST_F(InteractionBinderTest, BubbleFollowsThePointer) {
  NodeAt(2000, 1500);
  binder_->ToolClick("MYMDBUBLE");
  MoveTo(2000, 1500);
  EXPECT_TRUE(binder_->bubble()->isVisible());
  EXPECT_TRUE(binder_->bubble()->text().startsWith("Id : "));
  MoveTo(500, 500);
  EXPECT_FALSE(binder_->bubble()->isVisible());
}

TEST_F(InteractionBinderTest, ZoomWindowWithTheMouse) {
  Press(Qt::Key_F3);
  ASSERT_EQ(surface_.EditMode(), 24);
  QTest::mousePress(view_->viewport(), Qt::LeftButton, Qt::NoModifier, At(1000, 1000));
  QTest::mouseMove(view_->viewport(), At(1500, 1300));
  QTest::mouseMove(view_->viewport(), At(2000, 1750));
  QTest::mouseRelease(view_->viewport(), Qt::LeftButton, Qt::NoModifier, At(2000, 1750));
  EXPECT_NEAR(surface_.ViewLeft(), 1000, 10);
  EXPECT_NEAR(surface_.ViewTop(), 1000, 10);
  EXPECT_LT(surface_.ViewWidth(), 1100);
  EXPECT_EQ(interaction_.CurrentMode(), "");
}

TEST_F(InteractionBinderTest, FormsAndBandsGoToTheWindow) {
  QSignalSpy bands(binder_.get(), &InteractionBinder::OpenBandRequested);
  QSignalSpy forms(binder_.get(), &InteractionBinder::OpenFormRequested);
  binder_->ToolClick("X_BVCOM");
  ASSERT_EQ(bands.count(), 1);
  EXPECT_EQ(bands.at(0).at(0).toString(), "RESO_CREATE_BV_C");
  binder_->ToolClick("X_CALAGE");
  ASSERT_EQ(forms.count(), 1);
  EXPECT_EQ(forms.at(0).at(0).toString(), "frmCalage");
}

TEST_F(InteractionBinderTest, PlacementInProgressPicture) {
  NodeAt(500, 2000);
  NodeAt(1500, 1000);
  NodeAt(2800, 1400);
  binder_->ToolClick("X_CAC");
  ClickAt(500, 2000);
  ClickAt(1500, 1000);
  ClickAt(2800, 1400);
  MoveTo(3500, 2500);
  ASSERT_TRUE(view_->HasRubberLine());
  const QImage shot = view_->grab().toImage();
  ASSERT_TRUE(shot.save(QString::fromStdString(SnapshotPath("interaction_link_in_progress.png"))));
  // The rubber line runs from the last node toward the pointer: a dark pixel
  // stands half way, on white ground.
  const QPoint middle = (At(2800, 1400) + At(3500, 2500)) / 2;
  bool dark = false;
  for (int dx = -2; dx <= 2 && !dark; ++dx) {
    for (int dy = -2; dy <= 2 && !dark; ++dy) {
      dark = qGray(shot.pixel(middle + QPoint(dx, dy))) < 128;
    }
  }
  EXPECT_TRUE(dark);
  EXPECT_EQ(CountByName(surface_, kINameCAC), 2);
}

}  // namespace
}  // namespace pluvane
