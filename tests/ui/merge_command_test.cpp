// Fichier > Import > Fichier Mtf de Pluvane, from the menu of the window.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QTimer>
#include <filesystem>

#include "drawing/surface_helpers.h"
#include "shell/main_keys.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

TEST(MergeCommand, TheChosenNetworkComesBesideTheOpenOne) {
  TestApp();
  AppFolder app;
  const std::string guest = app.File("quartier.mtf");
  fs::copy_file(app.Demo(), guest);
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  Surface& surface = window.surface();
  ASSERT_EQ(CountByTag(surface, "iName", 99), 30);

  QString title;
  AnswerNextFileDialog(guest, title);
  window.RunMenu("MnuFi_Import_Mtf");
  EXPECT_EQ(title, "Importer un réseau Pluvane");
  // The guest's nodes stand beside the host's, renamed with its name's first letters.
  EXPECT_EQ(CountByTag(surface, "iName", 99), 60);
  EXPECT_GT(FindObject(surface, "libell", "quartie_Nod_2"), 10);
  EXPECT_GT(FindObject(surface, "libell", "quartie_Église"), 10);
  // One step of the journal takes the whole merge back.
  window.interaction().Key(90, kCtrlMask);
  EXPECT_EQ(CountByTag(surface, "iName", 99), 30);
  Quit(window);
}

TEST(MergeCommand, WithoutAnOpenNetworkItIsRefused) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, "", true));
  SeenMessage seen;
  AnswerNextMessage(seen);
  window.RunMenu("MnuFi_Import_Mtf");
  EXPECT_EQ(seen.text,
            "\rUn réseau d'accueil type Pluvane doit être chargé !\r(Cf. Fichier/Ouvrir...)");
  EXPECT_EQ(seen.title, "Import de fichier mtf");
  EXPECT_EQ(seen.icon, QMessageBox::Warning);
  Quit(window);
}

TEST(MergeCommand, AHostWithoutCalibrationIsRefusedAndStaysAsItWas) {
  TestApp();
  AppFolder app;
  // A network of two nodes, never calibrated.
  const std::string host = app.File("libre.mtf");
  {
    Surface surface;
    for (const char* id : {"Nod_1", "Nod_2"}) {
      surface.AddObject(kKindRectangle, 10, 10, 20, 20);
      surface.SetObjTag("iName", "99");
      surface.SetObjTag("Id", id);
    }
    ASSERT_TRUE(surface.SaveFile(host, kNativeFormat));
  }
  MainWindow window;
  ASSERT_TRUE(Open(window, app, host, true));
  Surface& surface = window.surface();
  const int objects = surface.ObjectCount(kPage);
  SeenMessage seen;
  AnswerNextMessage(seen);
  window.RunMenu("MnuFi_Import_Mtf");
  EXPECT_EQ(seen.text, "\rLe réseau d'accueil doit être calé !\r(Cf. Fichier/Ouvrir...)");
  EXPECT_EQ(seen.title, "Import de fichier mtf");
  EXPECT_EQ(seen.icon, QMessageBox::Warning);
  EXPECT_EQ(surface.ObjectCount(kPage), objects);
  Quit(window);
}

}  // namespace
}  // namespace pluvane
