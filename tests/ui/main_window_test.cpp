#include "ui/main_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <filesystem>

#include "qt_test_app.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

TEST(MainWindow, StartsOnTheShippedConfigurationAndShowsTheNetworkSummary) {
  TestApp();
  MainWindow window;
  ASSERT_TRUE(window.Start(PLUVANE_BIN, ""));
  window.show();
  ASSERT_TRUE(window.Activate());
  EXPECT_EQ(window.windowTitle(), "Pluvane");
  const QString summary = window.Summary();
  EXPECT_TRUE(summary.contains("Aucun réseau chargé"));
  EXPECT_TRUE(summary.contains("1 objets sur le dessin."));
  const QImage shot = window.grab().toImage();
  EXPECT_FALSE(shot.isNull());
  shot.save(
      QString::fromStdString((fs::path(PLUVANE_BIN).parent_path() / "main_window.png").string()));
  // Pictures of the drawing go through the main window's writer.
  const std::string picture =
      (fs::path(PLUVANE_BIN).parent_path() / "main_window_drawing.png").string();
  fs::remove(picture);
  EXPECT_TRUE(window.user_interface().SaveDrawingPicture(picture));
  QImage drawn;
  EXPECT_TRUE(drawn.load(QString::fromStdString(picture)));
  EXPECT_EQ(drawn.width(), 1600);
  EXPECT_FALSE(window.user_interface().SaveDrawingPicture(picture + ".dxf"));
  window.application().QuitCommand();
  window.close();
}

}  // namespace
}  // namespace pluvane
