#include "results/view_curve_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "results/frm_selection.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class CurveFileView : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(work.Path() + "/run");
    file = work.File("run/essai.Deb");
    WriteBytes(file,
               "'N1'\r\n     0.000     1.000\r\n    10.000     3.000\r\n"
               "'N2'\r\n     0.000     2.000\r\n    10.000     1.000\r\n");
    state.page_title = "Essai";
  }
  // The chooser ticks everything and draws; the viewer keeps what it was given.
  ShowModal TickAll() {
    return [](FormController& form) {
      form.Run("mnSelection");
      form.Run("mnDessiner");
    };
  }
  ShowViewer Keep() {
    return [this](ViewerState& shown) {
      ++viewer_opened;
      shown_script = ReadBytes(shown.script);
      shown_mode = shown.selection_mode;
    };
  }

  TempFolder work;
  ScriptedUi ui;
  ViewerState state;
  std::string file;
  int viewer_opened = 0;
  std::string shown_script;
  std::string shown_mode;
};

TEST_F(CurveFileView, TheChosenCurvesAreShownThenTheWorkFolderIsCleaned) {
  ASSERT_TRUE(ViewCurveFile(ui, state, file, work.Path(), work.File("scn"), TickAll(), Keep()));
  EXPECT_EQ(viewer_opened, 1);
  EXPECT_EQ(shown_mode, "Deb");
  EXPECT_NE(shown_script.find("\"N1\""), std::string::npos) << shown_script;
  EXPECT_NE(shown_script.find("\"N2\""), std::string::npos) << shown_script;
  EXPECT_EQ(state.script, work.File("Deb.Mst"));
  EXPECT_FALSE(FileExist(work.File("Deb.Mst")));
  EXPECT_FALSE(FileExist(work.File("IdCrb.Tmp")));
  // The copy goes, as the file lies outside the scenario's folder; the file stays.
  EXPECT_FALSE(FileExist(work.File("essai.Deb")));
  EXPECT_TRUE(FileExist(file));
}

TEST_F(CurveFileView, AClosedChooserShowsNothing) {
  auto close = [](FormController& form) { form.Run("mnClose"); };
  EXPECT_FALSE(ViewCurveFile(ui, state, file, work.Path(), work.File("run"), close, Keep()));
  EXPECT_EQ(viewer_opened, 0);
  // The scenario's own file keeps its copy.
  EXPECT_TRUE(FileExist(work.File("essai.Deb")));
}

TEST_F(CurveFileView, AFileNotInTheCurveFormatIsRefused) {
  WriteBytes(file, "     0.000     1.000\r\n'N1'\r\n");
  EXPECT_FALSE(ViewCurveFile(ui, state, file, work.Path(), "", TickAll(), Keep()));
  ExpectLastMessage(
      ui, "Le format de courbe du fichier n'est pas de type Kalder.\rVoir fichier " + file,
      "Visu de courbe Kalder", MessageIcon::kNone);
  EXPECT_EQ(viewer_opened, 0);
}

TEST_F(CurveFileView, TheMenuAsksTheFileFirst) {
  ui.QueueCancel();
  EXPECT_FALSE(mnuUtil_Vistrel(ui, state, work.Path(), "", TickAll(), Keep()));
  EXPECT_EQ(ui.Last().title, "Charger un fichier crb d'Kalder");
  ui.Queue(file);
  EXPECT_TRUE(mnuUtil_Vistrel(ui, state, work.Path(), "", TickAll(), Keep()));
  EXPECT_EQ(viewer_opened, 1);
  EXPECT_EQ(state.last_curve_file, file);
}

}  // namespace
}  // namespace pluvane
