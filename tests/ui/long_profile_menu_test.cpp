// Option > Bief de collecteurs > Profil en long from the main window: the
// reach ticked in frmProf, its profile written into the work folder and the
// viewer program started there on Vistrel.Mst, the window going on at once.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <chrono>
#include <thread>

#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

TEST(LongProfileMenu, VisuWritesTheProfileAndStartsTheViewerProgram) {
  TestApp();
  AppFolder app;
  // A stand-in viewer beside the programs, that notes its folder and argument.
  const std::string viewer = JoinPath(app.Path(), "vistrel");
  const std::string note = JoinPath(app.Path(), "seen.txt");
  WriteBytes(viewer, "#!/bin/sh\n{ pwd; echo \"$1\"; } > '" + note + ".tmp'; mv '" + note +
                         ".tmp' '" + note + "'\n");
  ::chmod(viewer.c_str(), 0755);
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  QString title;
  int rows = 0;
  OnNextForm([&](FormWindow* form) {
    title = form->windowTitle();
    GridTableView* reaches = form->Table(0);
    rows = reaches->model()->rowCount();
    ASSERT_GE(rows, 1);
    reaches->model()->setData(reaches->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    form->RunCommand("cmdVisu");
  });
  window.RunMenu("mnuOpt_Bief_Profil");
  EXPECT_EQ(title, "Profil en long");
  EXPECT_EQ(rows, 1);
  const std::string work = window.application().state().WorkDir;
  ASSERT_TRUE(FileExist(JoinPath(work, "Prof.Mst")));
  EXPECT_EQ(ReadBytes(JoinPath(work, "Vistrel.Mst")), ReadBytes(JoinPath(work, "Prof.Mst")));
  EXPECT_NE(ReadBytes(JoinPath(work, "Prof.crb")).find("'ZTN_1'"), std::string::npos);
  for (int i = 0; i < 200 && !FileExist(note); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  const std::string seen = ReadBytes(note);
  EXPECT_NE(seen.find("\nVistrel.Mst\n"), std::string::npos) << seen;
  Quit(window);
}

}  // namespace
}  // namespace pluvane
