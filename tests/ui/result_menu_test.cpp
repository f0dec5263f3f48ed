// The Exploitation menu after a calculation, as the user opens it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <filesystem>

#include "foundation/test_files.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"
#include "ui/selection_window.h"
#include "ui/test_app.h"
#include "ui/vistrel_window.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

TEST(ResultMenu, EntriesFollowTheirFilesAndFlowsAreDrawn) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  const fs::path results = fs::path(app.Demo()).parent_path() / "Decennale";
  fs::create_directories(results);
  WriteBytes((results / "Decennale_Demo.Deb").string(),
             "'Cac_1'\r\n     0.000     1.000\r\n    10.000     3.000\r\n");
  emit window.Menu("mnuExploitation")->aboutToShow();
  EXPECT_TRUE(window.Action("mnuExploit_ResDeb")->isEnabled());
  EXPECT_FALSE(window.Action("mnuExploit_ResHys")->isEnabled());
  EXPECT_FALSE(window.Action("mnuExploit_ResLim")->isEnabled());
  EXPECT_FALSE(window.Action("mnuExploit_ResReso")->isEnabled());

  QString chooser_title, viewer_title;
  OnNextModal<SelectionWindow>([&](SelectionWindow* chooser) {
    chooser_title = chooser->windowTitle();
    chooser->RunCommand("mnSelection");
    OnNextModal<VistrelWindow>([&](VistrelWindow* viewer) {
      viewer_title = viewer->windowTitle();
      viewer->grab().save(QString::fromStdString(SnapshotPath("result_flows.png")));
      viewer->close();
    });
    chooser->RunCommand("mnDessiner");
  });
  window.RunMenu("mnuExploit_ResDeb");
  EXPECT_EQ(chooser_title, "Choix de courbe à visualiser");
  EXPECT_NE(viewer_title.toStdString().find("Hydrogramme de routage"), std::string::npos)
      << viewer_title.toStdString();
  Quit(window);
}

}  // namespace
}  // namespace pluvane
