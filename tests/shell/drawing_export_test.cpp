#include "shell/drawing_export.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/scripted_ui.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

TEST(DrawingExport, AsksWithTheOldTitleAndWritesThePicture) {
  AppState state;
  state.NetworkFile = "/data/reseaux/Demo.mtf";
  ScriptedUi ui;
  ui.Queue("/data/reseaux/Demo.pdf");
  EXPECT_EQ(MnuFi_Export_Emf(state, ui), "/data/reseaux/Demo.pdf");
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Messages()[0].kind, "save");
  EXPECT_EQ(ui.Messages()[0].title, "Exporter le dessin en fichier metafile de Windows");
  EXPECT_EQ(ui.Messages()[0].text, "/data/reseaux/Demo.svg");
  EXPECT_EQ(ui.SavedPictures(), std::vector<std::string>{"/data/reseaux/Demo.pdf"});
  EXPECT_EQ(ui.Statuses().back(), "Dessin exporté : /data/reseaux/Demo.pdf");
}

TEST(DrawingExport, TheOldMetafileNamesAreKeptAndANameWithoutExtensionGetsSvg) {
  AppState state;
  ScriptedUi ui;
  ui.Queue("/data/plan.emf");
  EXPECT_EQ(MnuFi_Export_Emf(state, ui), "/data/plan.emf");
  ui.Queue("/data/plan.WMF");
  EXPECT_EQ(MnuFi_Export_Emf(state, ui), "/data/plan.WMF");
  ui.Queue("/data/plan");
  EXPECT_EQ(MnuFi_Export_Emf(state, ui), "/data/plan.svg");
  EXPECT_EQ(ui.SavedPictures(),
            (std::vector<std::string>{"/data/plan.emf", "/data/plan.WMF", "/data/plan.svg"}));
}

TEST(DrawingExport, ACancelledDialogWritesNothing) {
  AppState state;
  ScriptedUi ui;
  ui.Queue("");
  EXPECT_EQ(MnuFi_Export_Emf(state, ui), "");
  EXPECT_TRUE(ui.SavedPictures().empty());
}

TEST(DrawingExport, APictureThatCannotBeWrittenIsReported) {
  AppState state;
  ScriptedUi ui;
  ui.picture_succeeds = false;
  ui.Queue("/nowhere/plan.dxf");
  EXPECT_EQ(MnuFi_Export_Emf(state, ui), "");
  ExpectLastMessage(ui, "Le dessin n'a pas pu être écrit dans le fichier :\r\n/nowhere/plan.dxf",
                    "Exporter le dessin en fichier metafile de Windows", MessageIcon::kExclamation);
}

}  // namespace
}  // namespace pluvane
