#include "ui/main_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QStatusBar>
#include <filesystem>

#include "ui/test_app.h"

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
  shot.save(QString::fromStdString(SnapshotPath("main_window.png")));
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

TEST(MainWindow, EveryMenuItemExistsAndTheUnbuiltOnesSaySo) {
  TestApp();
  MainWindow window;
  ASSERT_TRUE(window.Start(PLUVANE_BIN, ""));
  ASSERT_TRUE(window.Activate());
  for (const char* name : {"mnuFile_Open", "mnuFile_Quit", "mnuScn_ModeleRun", "MnuFi_Import_Mif_Nod",
                           "mnuExploit_ResCarto", "mnuMyUtil_Down", "mnuRufList"}) {
    EXPECT_NE(window.Action(name), nullptr) << name;
  }
  EXPECT_EQ(window.Action("mnuFile")->text(), "&Fichier");
  EXPECT_EQ(window.Action("mnuFile_SaveAs")->text(), "S&auvegarder sous...");
  window.RunMenu("mnuExploit_ResCarto");
  EXPECT_EQ(window.statusBar()->currentMessage(), "Fonction non disponible dans cette version.");
  window.application().QuitCommand();
  window.close();
}

}  // namespace
}  // namespace pluvane
