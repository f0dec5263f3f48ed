#include "ui/surface_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <vector>

#include "qt_test_app.h"

namespace pluvane {
namespace {

// A 400 x 300 client over the logical rectangle (0, 0)-(4000, 3000): ten
// logical units a pixel.
class SurfaceViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    TestApp();
    surface_.SetViewLeft(0);
    surface_.SetViewTop(0);
    surface_.SetViewWidth(4000);
    surface_.SetViewHeight(3000);
    view_ = std::make_unique<SurfaceView>(surface_);
    view_->resize(400, 300);
    view_->show();
    ASSERT_EQ(view_->ClientWidth(), 400);
    ASSERT_EQ(view_->ClientHeight(), 300);
  }

  void Mouse(QEvent::Type type, QPointF at, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, view_->viewport()->mapToGlobal(at), button, buttons, modifiers);
    QApplication::sendEvent(view_->viewport(), &event);
  }
  void Drag(QPointF from, QPointF to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Mouse(QEvent::MouseButtonPress, from, Qt::LeftButton, modifiers);
    Mouse(QEvent::MouseMove, (from + to) / 2, Qt::LeftButton, modifiers);
    Mouse(QEvent::MouseMove, to, Qt::LeftButton, modifiers);
    Mouse(QEvent::MouseButtonRelease, to, Qt::LeftButton, modifiers);
  }

  Surface surface_;
  std::unique_ptr<SurfaceView> view_;
};

TEST(KeyCodes, AreTheOldOnes) {
  EXPECT_EQ(KeyCode(Qt::Key_C, Qt::ControlModifier), 67);
  EXPECT_EQ(KeyCode(Qt::Key_3, Qt::KeypadModifier), 99);
  EXPECT_EQ(KeyCode(Qt::Key_F7, Qt::NoModifier), 118);
  EXPECT_EQ(KeyCode(Qt::Key_F12, Qt::NoModifier), 123);
  EXPECT_EQ(KeyCode(Qt::Key_Left, Qt::NoModifier), 37);
  EXPECT_EQ(KeyCode(Qt::Key_Down, Qt::NoModifier), 40);
  EXPECT_EQ(KeyCode(Qt::Key_Escape, Qt::NoModifier), 27);
  EXPECT_EQ(KeyCode(Qt::Key_Delete, Qt::NoModifier), 46);
  EXPECT_EQ(KeyCode(Qt::Key_Return, Qt::NoModifier), 13);
  EXPECT_EQ(KeyCode(Qt::Key_Enter, Qt::KeypadModifier), 13);
  EXPECT_EQ(ShiftCode(Qt::ShiftModifier | Qt::AltModifier), 5);
  EXPECT_EQ(ShiftCode(Qt::ControlModifier), 2);
  EXPECT_EQ(ButtonCode(Qt::RightButton), 2);
  EXPECT_EQ(ButtonCode(Qt::MiddleButton), 4);
}

TEST_F(SurfaceViewTest, ConvertsClientPixelsToLogicalUnitsAndBack) {
  EXPECT_DOUBLE_EQ(view_->ClientToLogicX(100), 1000);
  EXPECT_DOUBLE_EQ(view_->ClientToLogicY(30), 300);
  EXPECT_DOUBLE_EQ(view_->LogicToClientX(2500), 250);
  surface_.SetViewLeft(500);
  surface_.SetViewTop(-100);
  EXPECT_DOUBLE_EQ(view_->ClientToLogicX(0), 500);
  EXPECT_DOUBLE_EQ(view_->ClientToLogicY(10), 0);
}

TEST_F(SurfaceViewTest, KeepsTheAspectOfTheView) {
  // A view as high as wide in a wider client: the height decides.
  surface_.SetViewWidth(3000);
  EXPECT_DOUBLE_EQ(view_->ClientToLogicX(400), 4000);
  EXPECT_DOUBLE_EQ(view_->ClientToLogicY(300), 3000);
}

TEST_F(SurfaceViewTest, PaintsTheSurfaceInTheWidget) {
  AddFilledRect(surface_, 1000, 1000, 2000, 2000, kRed);
  const QImage shot = view_->viewport()->grab().toImage();
  EXPECT_EQ(shot.pixelColor(150, 150), QColor(Qt::red));
  EXPECT_EQ(shot.pixelColor(50, 50), QColor(Qt::white));
}

TEST_F(SurfaceViewTest, RepaintsWhenTheSurfaceRefreshes) {
  int changes = 0;
  QObject::connect(view_.get(), &SurfaceView::SurfaceChanged, [&] { ++changes; });
  view_->viewport()->grab();
  AddFilledRect(surface_, 1000, 1000, 2000, 2000, kRed);
  surface_.Refresh();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(view_->viewport()->grab().toImage().pixelColor(150, 150), QColor(Qt::red));
  // While painting is held the last frame stays.
  surface_.SetRedraw(false);
  surface_.SetCurrentObject(kAllObjects);
  surface_.SetFillColor(kBlue);
  EXPECT_EQ(view_->viewport()->grab().toImage().pixelColor(150, 150), QColor(Qt::red));
  surface_.SetRedraw(true);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(view_->viewport()->grab().toImage().pixelColor(150, 150), QColor(Qt::blue));
}

TEST_F(SurfaceViewTest, HitsAThinLineWithinAFewPixels) {
  const int a = surface_.AddObject(2, 0, 1490, 20, 1510);
  const int b = surface_.AddObject(2, 3980, 1490, 4000, 1510);
  const int link = surface_.AddLink(a, b);
  surface_.SetCurrentObject(kPage);
  EXPECT_EQ(view_->HitTest(QPointF(200, 152)), link);
  EXPECT_EQ(surface_.CurrentObject(), link);
  EXPECT_EQ(view_->HitTest(QPointF(200, 160)), 0);
}

TEST_F(SurfaceViewTest, SignalsCarryLogicalPositionsButtonsAndShift) {
  std::vector<std::vector<double>> calls;
  QObject::connect(view_.get(), &SurfaceView::MousePressed, [&](int b, int s, double x, double y) {
    calls.push_back({1, 1.0 * b, 1.0 * s, x, y});
  });
  QObject::connect(view_.get(), &SurfaceView::MouseMoved, [&](int b, int s, double x, double y) {
    calls.push_back({2, 1.0 * b, 1.0 * s, x, y});
  });
  QObject::connect(view_.get(), &SurfaceView::MouseReleased, [&](int b, int s, double x, double y) {
    calls.push_back({3, 1.0 * b, 1.0 * s, x, y});
  });
  surface_.SetEditMode(0);
  Mouse(QEvent::MouseButtonPress, QPointF(10, 20), Qt::RightButton, Qt::ShiftModifier);
  Mouse(QEvent::MouseMove, QPointF(30, 40), Qt::RightButton, Qt::ShiftModifier);
  Mouse(QEvent::MouseButtonRelease, QPointF(50, 60), Qt::RightButton, Qt::ControlModifier);
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[0], (std::vector<double>{1, 2, 1, 100, 200}));
  EXPECT_EQ(calls[1], (std::vector<double>{2, 2, 1, 300, 400}));
  EXPECT_EQ(calls[2], (std::vector<double>{3, 2, 2, 500, 600}));
}

TEST_F(SurfaceViewTest, KeysAndDoubleClicksGoToTheWindow) {
  const int n = surface_.AddObject(2, 1000, 1000, 2000, 2000);
  int key = 0, shift = 0, clicked = -1;
  QObject::connect(view_.get(), &SurfaceView::KeyPressed,
                   [&](int k, int s) { key = k, shift = s; });
  QObject::connect(view_.get(), &SurfaceView::DoubleClicked,
                   [&](int object, double, double) { clicked = object; });
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Left, Qt::ShiftModifier);
  QApplication::sendEvent(view_.get(), &press);
  EXPECT_EQ(key, 37);
  EXPECT_EQ(shift, 1);
  Mouse(QEvent::MouseButtonDblClick, QPointF(150, 150));
  EXPECT_EQ(clicked, n);
}

TEST_F(SurfaceViewTest, ARubberBandSelectsWhatItTouches) {
  const int a = surface_.AddObject(2, 1000, 1000, 1200, 1200);
  const int b = surface_.AddObject(2, 3000, 2000, 3200, 2200);
  int finished = -1;
  QObject::connect(view_.get(), &SurfaceView::SelectionFinished,
                   [&](int count) { finished = count; });
  Drag(QPointF(50, 50), QPointF(150, 150));
  EXPECT_EQ(finished, 1);
  EXPECT_TRUE(surface_.IsSelected(a));
  EXPECT_FALSE(surface_.IsSelected(b));
  // A click on nothing clears it.
  Drag(QPointF(380, 20), QPointF(380, 20));
  EXPECT_EQ(finished, 0);
  EXPECT_FALSE(surface_.IsSelected(a));
}

TEST_F(SurfaceViewTest, AClickSelectsAndShiftAdds) {
  const int a = surface_.AddObject(2, 1000, 1000, 1200, 1200);
  const int b = surface_.AddObject(2, 3000, 2000, 3200, 2200);
  surface_.SetCurrentObject(kPage);
  Drag(QPointF(110, 110), QPointF(110, 110));
  EXPECT_TRUE(surface_.IsSelected(a));
  Drag(QPointF(310, 210), QPointF(310, 210), Qt::ShiftModifier);
  EXPECT_TRUE(surface_.IsSelected(a));
  EXPECT_TRUE(surface_.IsSelected(b));
  Drag(QPointF(110, 110), QPointF(110, 110));  // already selected: stays as it is
  EXPECT_EQ(surface_.ObjectCount(kSelection), 2);
  EXPECT_EQ(surface_.CurrentObject(), kPage);  // the view's own hits leave the cursor
}

TEST_F(SurfaceViewTest, DraggingMovesTheSelectionWithItsLinks) {
  const int a = surface_.AddObject(2, 1000, 1000, 1200, 1200);
  const int b = surface_.AddObject(2, 3000, 1000, 3200, 1200);
  const int link = surface_.AddLink(a, b);
  int moved_x = 0, moved_y = 0;
  QObject::connect(view_.get(), &SurfaceView::MoveFinished,
                   [&](int dx, int dy) { moved_x = dx, moved_y = dy; });
  // Beside the link, which runs through the centres.
  Drag(QPointF(104, 104), QPointF(124, 144));
  EXPECT_EQ(moved_x, 200);
  EXPECT_EQ(moved_y, 400);
  EXPECT_EQ(surface_.ObjectShape(a)->box, (Box{1200, 1400, 1400, 1600}));
  EXPECT_EQ(surface_.ObjectShape(b)->box, (Box{3000, 1000, 3200, 1200}));
  EXPECT_EQ(surface_.ObjectShape(link)->points.front(), (Point{1300, 1500}));
}

TEST_F(SurfaceViewTest, DraggingNeedsTheDragBitOfSelectionAllowed) {
  const int a = surface_.AddObject(2, 1000, 1000, 1200, 1200);
  surface_.SetSelectionAllowed(7);
  Drag(QPointF(110, 110), QPointF(130, 150));
  EXPECT_TRUE(surface_.IsSelected(a));
  EXPECT_EQ(surface_.ObjectShape(a)->box, (Box{1000, 1000, 1200, 1200}));
}

TEST_F(SurfaceViewTest, NoSelectionGesturesWhileSelectionIsDisabled) {
  const int a = surface_.AddObject(2, 1000, 1000, 1200, 1200);
  surface_.SetSelectionEnabled(false);
  Drag(QPointF(110, 110), QPointF(130, 150));
  EXPECT_FALSE(surface_.IsSelected(a));
  EXPECT_EQ(surface_.ObjectShape(a)->box, (Box{1000, 1000, 1200, 1200}));
}

TEST_F(SurfaceViewTest, TheZoomRectangleIsGivenInLogicalUnits) {
  std::vector<double> rect;
  QObject::connect(view_.get(), &SurfaceView::ZoomRectangle,
                   [&](double l, double t, double r, double b) {
                     rect = {l, t, r, b};
                   });
  surface_.SetEditMode(kEditZoomWindow);
  Drag(QPointF(200, 150), QPointF(100, 50));
  EXPECT_EQ(rect, (std::vector<double>{1000, 500, 2000, 1500}));
  EXPECT_EQ(surface_.ObjectCount(kSelection), 0);
}

TEST_F(SurfaceViewTest, TheRubberLineRunsToThePointer) {
  view_->SetRubberLine(1000, 1000);
  EXPECT_TRUE(view_->HasRubberLine());
  surface_.SetEditMode(0);
  Mouse(QEvent::MouseMove, QPointF(300, 100), Qt::NoButton);
  const QImage shot = view_->viewport()->grab().toImage();
  // Halfway between (100, 100) and (300, 100), dashes included somewhere.
  int dark = 0;
  for (int x = 110; x < 290; ++x)
    if (shot.pixelColor(x, 100) == QColor(Qt::black)) ++dark;
  EXPECT_GT(dark, 40);
  view_->ClearRubberLine();
  EXPECT_FALSE(view_->HasRubberLine());
  EXPECT_EQ(view_->viewport()->grab().toImage().pixelColor(200, 100), QColor(Qt::white));
}

TEST_F(SurfaceViewTest, TheWheelZoomsAboutThePointer) {
  int changed = 0;
  QObject::connect(view_.get(), &SurfaceView::ViewChanged, [&] { ++changed; });
  const QPointF at(100, 60);
  QWheelEvent wheel(at, view_->viewport()->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(view_->viewport(), &wheel);
  EXPECT_EQ(changed, 1);
  EXPECT_NEAR(view_->ClientToLogicX(100), 1000, 1e-6);
  EXPECT_NEAR(view_->ClientToLogicY(60), 600, 1e-6);
  EXPECT_NEAR(surface_.ViewWidth(), 4000 / 1.25, 1e-6);
  EXPECT_NEAR(surface_.ViewHeight(), 3000 / 1.25, 1e-6);
}

TEST_F(SurfaceViewTest, ScrollBarsShowWhenAskedAndMoveTheView) {
  surface_.SetCurrentObject(kPage);
  EXPECT_FALSE(view_->horizontalScrollBar()->isVisible());
  surface_.SetScrollBars(2);
  surface_.Refresh();
  EXPECT_TRUE(view_->horizontalScrollBar()->isVisible());
  EXPECT_TRUE(view_->verticalScrollBar()->isVisible());
  const double per_pixel = view_->Transform().per_pixel;
  view_->horizontalScrollBar()->setValue(view_->horizontalScrollBar()->value() + 50);
  EXPECT_NEAR(surface_.ViewLeft(), 50 * per_pixel, 1e-6);
}

TEST_F(SurfaceViewTest, ReportsItsClientSize) {
  int width = 0, height = 0;
  QObject::connect(view_.get(), &SurfaceView::ClientResized,
                   [&](int w, int h) { width = w, height = h; });
  view_->resize(500, 200);
  QApplication::processEvents();
  EXPECT_EQ(width, 500);
  EXPECT_EQ(height, 200);
}

}  // namespace
}  // namespace pluvane
