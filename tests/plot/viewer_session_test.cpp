#include "plot/viewer_session.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "drawing/surface_object.h"
#include "plot/viewer_placing.h"
#include "plot/viewer_view.h"
#include "plot_fixture.h"

namespace pluvane {
namespace {

class ViewerSession : public ::testing::Test {
 protected:
  TempFolder folder;
  ScriptedUi ui;
  ViewerState state;
};

TEST_F(ViewerSession, StartKeepsAnInitialCopy) {
  const std::string script = folder.File("Vistrel.Mst");
  WriteBytes(script, "PAGE \"A4\"\r\n");
  state.action = kViewerCancel;
  ASSERT_TRUE(StartViewer(ui, state, script));
  EXPECT_EQ(state.script, script);
  EXPECT_EQ(state.action, kViewerInitial);
  EXPECT_EQ(state.initial_script, folder.File("MstInitial.tmp"));
  EXPECT_EQ(ReadBytes(state.initial_script), "PAGE \"A4\"\r\n");
  EXPECT_TRUE(ui.Empty());
  EndViewer(state);
  EXPECT_FALSE(FileExist(state.initial_script));
  EXPECT_TRUE(FileExist(script));
}

TEST_F(ViewerSession, StartOnAMissingScriptIsTold) {
  const std::string script = folder.File("absent.Mst");
  EXPECT_FALSE(StartViewer(ui, state, script));
  ExpectLastMessage(ui, "Fichier " + script + " introuvable!", "Vistrel",
                    MessageIcon::kExclamation);
  EXPECT_TRUE(state.script.empty());
}

TEST_F(ViewerSession, TheProgramsScriptIsFoundInTheCurrentFolderWhateverItsCase) {
  WriteBytes(folder.File("Vistrel.Mst"), "x");
  EXPECT_EQ(VistrelScriptOf(ui, {"Vistrel.Mst"}, folder.Path()), folder.File("Vistrel.Mst"));
  EXPECT_EQ(VistrelScriptOf(ui, {"vistrel.mst"}, folder.Path()), folder.File("Vistrel.Mst"));
  EXPECT_EQ(VistrelScriptOf(ui, {folder.File("Vistrel.Mst")}, "/elsewhere"),
            folder.File("Vistrel.Mst"));
  EXPECT_TRUE(ui.Empty());
}

TEST_F(ViewerSession, TheProgramRefusesAMissingScriptOrArgument) {
  EXPECT_EQ(VistrelScriptOf(ui, {"absent.Mst"}, folder.Path()), "");
  ExpectLastMessage(ui, "Fichier " + folder.File("absent.Mst") + " introuvable!", "Vistrel",
                    MessageIcon::kExclamation);
  for (const std::vector<std::string>& args :
       {std::vector<std::string>{}, {""}, {"a.Mst", "b.Mst"}}) {
    ui.Clear();
    EXPECT_EQ(VistrelScriptOf(ui, args, folder.Path()), "");
    ExpectLastMessage(ui,
                      "Donnez le nom du fichier de tracé à afficher.\nUsage : vistrel FICHIER.Mst",
                      "Vistrel", MessageIcon::kExclamation);
  }
}

TEST_F(ViewerSession, DrawTellsWhetherTheScriptWasCompiled) {
  WriteBytes(folder.File("c.crb"), CurveText("A", {{0, 1}, {50, 5}}));
  const std::string good = folder.File("good.Mst");
  WriteBytes(good, PageScript(" Plotxy 1 \"c.crb\" \"A\" \"\" 0 2 255\r\n"));
  Surface surface;
  ASSERT_TRUE(StartViewer(ui, state, good));
  EXPECT_TRUE(ViewerDraw(ui, surface, state, folder.Path()));
  EXPECT_GT(surface.ObjectCount(kAllObjects), 0);
  // The curve's pen does not stay for the objects placed next.
  surface.SetCurrentObject(kDefaults);
  EXPECT_EQ(surface.LineColor(), 0);
  EXPECT_EQ(surface.LineWidth(), 0);
  const std::string bad = folder.File("bad.Mst");
  WriteBytes(bad, "rien de bon\r\n");
  state.script = bad;
  EXPECT_FALSE(ViewerDraw(ui, surface, state, folder.Path()));
  EXPECT_FALSE(ui.Empty());
}

TEST(ViewerZoom, ARectangleFillsTheClientArea) {
  ScriptedUi ui;
  Surface surface;
  surface.SetScale(0, 0, 29700, 21000, 16384);
  ASSERT_TRUE(ViewerZoomRect(ui, surface, 400, 200, 1000, 1000, 3000, 2000));
  EXPECT_DOUBLE_EQ(surface.ViewLeft(), 1000);
  EXPECT_DOUBLE_EQ(surface.ViewTop(), 1000);
  // 2000 wide over 400 pixels: 5 units a pixel, so 1000 high over 200.
  EXPECT_DOUBLE_EQ(surface.ViewWidth(), 2000);
  EXPECT_DOUBLE_EQ(surface.ViewHeight(), 1000);
  EXPECT_TRUE(ui.Empty());
  ViewerZoomAll(surface);
  EXPECT_DOUBLE_EQ(surface.ViewLeft(), 0);
  EXPECT_DOUBLE_EQ(surface.ViewWidth(), 29700);
  EXPECT_DOUBLE_EQ(surface.ViewHeight(), 21000);
}

TEST(ViewerZoom, ARectangleTooSmallIsAnError) {
  ScriptedUi ui;
  Surface surface;
  surface.SetScale(0, 0, 29700, 21000, 16384);
  EXPECT_FALSE(ViewerZoomRect(ui, surface, 400, 200, 1000, 1000, 1001, 3000));
  ExpectLastMessage(ui, "Erreur !", "", MessageIcon::kNone);
  EXPECT_DOUBLE_EQ(surface.ViewWidth(), 29700);
}

TEST(ViewerSaveAs, WritesTheChosenPictureAndAddsSvgToABareName) {
  ScriptedUi ui;
  std::vector<std::string> written;
  auto writer = [&](const std::string& path) {
    written.push_back(path);
    return true;
  };
  ui.Queue("/tmp/plot.pdf");
  EXPECT_EQ(ViewerSaveAs(ui, writer, "/tmp"), "/tmp/plot.pdf");
  EXPECT_EQ(ui.Last().kind, "save");
  EXPECT_EQ(ui.Last().title, "Enregistrer le tracé sous");
  ui.Queue("/tmp/plot");
  EXPECT_EQ(ViewerSaveAs(ui, writer, "/tmp"), "/tmp/plot.svg");
  EXPECT_EQ(written, (std::vector<std::string>{"/tmp/plot.pdf", "/tmp/plot.svg"}));
  ui.QueueCancel();
  EXPECT_EQ(ViewerSaveAs(ui, writer, "/tmp"), "");
  EXPECT_EQ(written.size(), 2u);
}

TEST(ViewerSaveAs, AFailedWriteIsTold) {
  ScriptedUi ui;
  ui.Queue("/tmp/plot.dxf");
  EXPECT_EQ(ViewerSaveAs(
                ui, [](const std::string&) { return false; }, "/tmp"),
            "");
  ExpectLastMessage(ui,
                    "Erreur de sauvegarde : le tracé n'a pas pu être écrit dans /tmp/plot.dxf\n"
                    "(formats reconnus : svg, pdf, png)",
                    "Vistrel", MessageIcon::kCritical);
}

TEST(ViewerPlacing, ALineBetweenPressAndReleaseInTheDefaultsColour) {
  ScriptedUi ui;
  Surface surface;
  surface.SetCurrentObject(kDefaults);
  surface.SetLineColor(255);
  mnuOpt_PlacerLigne(surface);
  EXPECT_TRUE(IsPlacingMode(surface.EditMode()));
  const int n = PlaceViewerObject(ui, surface, 100, 900, 500.4, 200);
  ASSERT_GT(n, 0);
  const Shape* line = surface.ObjectShape(n);
  EXPECT_EQ(line->kind, kKindPolyline);
  EXPECT_EQ(line->points, (std::vector<Point>{{100, 900}, {500, 200}}));
  EXPECT_EQ(line->line_color, 255);
  EXPECT_EQ(surface.EditMode(), kEditSelection);
  // Back in selection, a drag places nothing more.
  EXPECT_EQ(PlaceViewerObject(ui, surface, 0, 0, 10, 10), 0);
  EXPECT_EQ(surface.ObjectCount(kAllObjects), 1);
}

TEST(ViewerPlacing, ARectangleOverTheDragWithoutFill) {
  ScriptedUi ui;
  Surface surface;
  mnuOpt_PlacerRect(surface);
  const int n = PlaceViewerObject(ui, surface, 800, 700, 200, 100);
  ASSERT_GT(n, 0);
  const Shape* box = surface.ObjectShape(n);
  EXPECT_EQ(box->kind, kKindRectangle);
  EXPECT_EQ(box->box.left, 200);
  EXPECT_EQ(box->box.top, 100);
  EXPECT_EQ(box->box.right, 800);
  EXPECT_EQ(box->box.bottom, 700);
  EXPECT_EQ(box->fill_style, 1);
  // A click makes no rectangle, and ends the mode all the same.
  mnuOpt_PlacerRect(surface);
  EXPECT_EQ(PlaceViewerObject(ui, surface, 5, 5, 5, 5), 0);
  EXPECT_EQ(surface.EditMode(), kEditSelection);
}

TEST(ViewerPlacing, ATextAskedAtThePress) {
  ScriptedUi ui;
  Surface surface;
  mnuOpt_PlacerTxt(surface);
  ui.Queue("Crue de 1998");
  const int n = PlaceViewerObject(ui, surface, 1000, 2000, 1500, 2500);
  ExpectLastMessage(ui, "Entrez le texte à placer", "Placer un texte", MessageIcon::kNone, "text");
  ASSERT_GT(n, 0);
  const Shape* text = surface.ObjectShape(n);
  EXPECT_EQ(text->kind, kKindText);
  EXPECT_EQ(text->text.string, "Crue de 1998");
  EXPECT_EQ(text->box.left, 1000);
  EXPECT_EQ(text->box.top, 2000);
  EXPECT_EQ(text->text.size, -282);  // 8 points
  mnuOpt_PlacerTxt(surface);
  ui.QueueCancel();
  EXPECT_EQ(PlaceViewerObject(ui, surface, 0, 0, 0, 0), 0);
  mnuOpt_PlacerTxt(surface);
  ui.Queue("   ");
  EXPECT_EQ(PlaceViewerObject(ui, surface, 0, 0, 0, 0), 0);
  EXPECT_EQ(surface.ObjectCount(kAllObjects), 1);
}

}  // namespace
}  // namespace pluvane
