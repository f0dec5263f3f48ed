#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "drawing/surface.h"
#include "ui/drawing_picture.h"
#include "ui/qt_test_app.h"
#include "ui/qt_user_interface.h"

namespace pluvane {
namespace {

TEST(QtClipboard, CarriesOurObjectsUnderTheirOwnType) {
  TestApp();
  QtUserInterface ui;
  QGuiApplication::clipboard()->clear();
  EXPECT_TRUE(ui.ClipboardEmpty());
  EXPECT_EQ(ui.ClipboardData(kClipboardType), "");

  Surface surface;
  AddFilledRect(surface, 10, 10, 90, 90, kRed);
  surface.SetObjTag("Id", "Nod_1");
  const std::string copied = surface.CopySelection(1);
  ui.PutClipboardData(kClipboardType, copied);
  EXPECT_FALSE(ui.ClipboardEmpty());
  EXPECT_EQ(ui.ClipboardData(kClipboardType), copied);
  EXPECT_EQ(ui.ClipboardData("text/plain"), "");

  QGuiApplication::clipboard()->setText("Bonjour");
  EXPECT_FALSE(ui.ClipboardEmpty());
  EXPECT_EQ(ui.ClipboardData(kClipboardType), "");
}

TEST(QtClipboard, ThePictureOfTheDrawingComesFromTheRenderer) {
  TestApp();
  QtUserInterface ui;
  EXPECT_FALSE(ui.CopyDrawingPicture());  // no renderer yet
  Surface surface;
  AddFilledRect(surface, 0, 0, 1000, 1000, kBlue);
  ui.drawing_renderer = [&surface] { return RenderDrawing(surface, 200); };
  ASSERT_TRUE(ui.CopyDrawingPicture());
  const QImage image = QGuiApplication::clipboard()->image();
  ASSERT_FALSE(image.isNull());
  EXPECT_EQ(image.width(), 200);
  EXPECT_TRUE(Near(image.pixelColor(100, image.height() / 2), QColor(0, 0, 255)));
}

}  // namespace
}  // namespace pluvane
