#include "ui/vistrel_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QImage>
#include <QPrinter>
#include <QTest>
#include <filesystem>

#include "foundation/expect_message.h"
#include "foundation/fixed_width.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "plot/frm_ech_def.h"
#include "plot/viewer_placing.h"
#include "plot/viewer_session.h"
#include "ui/form_window.h"
#include "ui/pdf_page.h"
#include "ui/surface_view.h"
#include "ui/test_app.h"
#include "ui/vistrel_program.h"

namespace pluvane {
namespace {

std::string Curve(const std::string& name, const std::vector<std::pair<double, double>>& points) {
  std::string text = "'" + name + "'\r\n";
  for (const auto& [x, y] : points) text += FormatFixed(x, 10, 3) + FormatFixed(y, 10, 3) + "\r\n";
  return text;
}

// Two curves, red and blue, in one frame of 0..100 by 0..10.
const char* kTwoCurves =
    "PAGE  \"A4\"  \"H\"  \"Essai\"\r\n"
    " Cadre  2  28  2  20  \"Débits\"  6 1 0 6 0 65535\r\n"
    "    Echelle \"F\"  0  100  0  10  10  1  5  2 \"Temps(mn)\"  \"Débit (m3/s)\"  \"V\" 5 "
    "\"######0.00\" \"######0.00\"\r\n"
    "    Grille  1  1 2 1 0\r\n"
    "    Plotxy 1 \"xy.crb\" \"N1\" \"\" 0 2 255\r\n"
    "    Plotxy 1 \"xy.crb\" \"N2\" \"\" 0 2 16711680\r\n"
    " EndCadre\r\nENDPAGE\r\n";

class VistrelTest : public ::testing::Test {
 protected:
  void SetUp() override {
    TestApp();
    WriteBytes(folder.File("xy.crb"), Curve("N1", {{0, 1}, {30, 8}, {60, 4}, {100, 2}}) +
                                          Curve("N2", {{0, 2}, {40, 3}, {70, 9}, {100, 6}}));
    script = folder.File("Vistrel.Mst");
    WriteBytes(script, kTwoCurves);
    state.page_title = "Bv_1 hydrogramme d'apport ";
  }
  // The window loaded on the script, shown at a known size.
  std::unique_ptr<VistrelWindow> Open() {
    EXPECT_TRUE(StartViewer(ui, state, script));
    auto window = std::make_unique<VistrelWindow>(ui, state, folder.Path());
    EXPECT_TRUE(window->Load());
    window->resize(900, 680);
    window->show();
    QApplication::processEvents();
    return window;
  }
  static int CountNear(const QImage& image, QColor colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (Near(image.pixelColor(x, y), colour, 60)) ++count;
    return count;
  }
  void Drag(SurfaceView* view, QPoint from, QPoint to) {
    QWidget* port = view->viewport();
    QTest::mousePress(port, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(port, to);
    QTest::mouseRelease(port, Qt::LeftButton, Qt::NoModifier, to);
  }

  TempFolder folder;
  ScriptedUi ui;
  ViewerState state;
  std::string script;
};

TEST_F(VistrelTest, ShowsTheTwoCurvesUnderThePageTitle) {
  auto window = Open();
  EXPECT_TRUE(ui.Texts().empty()) << ui.Last().text;
  EXPECT_EQ(window->windowTitle(), "Bv_1 hydrogramme d'apport ");
  EXPECT_GT(window->surface().ObjectCount(kAllObjects), 10);
  // The whole A4 page in view.
  EXPECT_DOUBLE_EQ(window->surface().ViewWidth(), window->surface().LogicWidth());
  const QImage shot = window->grab().toImage();
  shot.save(QString::fromStdString(SnapshotPath("vistrel.png")));
  EXPECT_GT(CountNear(shot, QColor(255, 0, 0)), 100);
  EXPECT_GT(CountNear(shot, QColor(0, 0, 255)), 100);
  ASSERT_NE(window->Action("mnuOpt_Attrib_Text_Font"), nullptr);
  EXPECT_EQ(window->Action("mnuOpt_Echelle")->text(), "&Echelle...");
}

TEST_F(VistrelTest, AZoomFrameThenTheWholePage) {
  auto window = Open();
  Surface& surface = window->surface();
  const double whole = surface.ViewWidth();
  window->RunMenu("mnuAff_Zfen");
  EXPECT_EQ(surface.EditMode(), kEditZoomWindow);
  Drag(window->view(), QPoint(200, 150), QPoint(400, 300));
  EXPECT_LT(surface.ViewWidth(), whole / 2);
  EXPECT_EQ(surface.EditMode(), kEditSelection);
  window->grab().save(QString::fromStdString(SnapshotPath("vistrel_zoom.png")));
  window->RunMenu("mnuAff_Ztout");
  EXPECT_DOUBLE_EQ(surface.ViewWidth(), whole);
  // A click in zoom mode draws no frame, and ends the mode.
  window->RunMenu("mnuAff_Zfen");
  QTest::mouseClick(window->view()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
  EXPECT_EQ(surface.EditMode(), kEditSelection);
  EXPECT_DOUBLE_EQ(surface.ViewWidth(), whole);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(VistrelTest, SavesThePageAsPngAndSvg) {
  auto window = Open();
  const std::string png = folder.File("plot.png");
  ui.Queue(png);
  window->RunMenu("mnuFi_SaveAs");
  EXPECT_EQ(ui.Last().title, "Enregistrer le tracé sous");
  QImage image;
  ASSERT_TRUE(image.load(QString::fromStdString(png)));
  // The page, A4 across.
  EXPECT_EQ(image.width(), 1600);
  EXPECT_NEAR(image.height(), 1600 * 21.0 / 29.7, 2);
  EXPECT_GT(CountNear(image, QColor(0, 0, 255)), 100);
  ui.Queue(folder.File("plot"));
  window->RunMenu("mnuFi_SaveAs");
  QFile svg(QString::fromStdString(folder.File("plot.svg")));
  ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
  const QByteArray content = svg.readAll();
  EXPECT_TRUE(content.contains("<svg"));
  EXPECT_TRUE(content.contains("Temps(mn)"));
  EXPECT_EQ(ui.Last().kind, "save");
}

TEST_F(VistrelTest, PrintsThePageOnAPrinter) {
  RequirePdfTools();
  auto window = Open();
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  const std::string pdf = folder.File("printed.pdf");
  printer.setOutputFileName(QString::fromStdString(pdf));
  ASSERT_TRUE(window->PrintOn(printer));
  // One page that carries the plot's texts: the frame's title, the axes' titles.
  EXPECT_EQ(PdfPageCount(pdf), 1);
  const QString text = PdfText(pdf);
  for (const char* word : {"Débits", "Temps(mn)", "Débit (m3/s)"}) {
    EXPECT_TRUE(text.contains(QString::fromUtf8(word))) << word << " in:\n" << text.toStdString();
  }
  // And both curves, in their colours.
  const QImage page = PdfPage(pdf, 50);
  ASSERT_FALSE(page.isNull());
  EXPECT_GT(CountNear(page, QColor(255, 0, 0)), 30);
  EXPECT_GT(CountNear(page, QColor(0, 0, 255)), 30);
}

TEST_F(VistrelTest, PlacesALineAndARectangleWithTheMouse) {
  auto window = Open();
  Surface& surface = window->surface();
  const int before = surface.ObjectCount(kAllObjects);
  window->RunMenu("mnuOpt_PlacerLigne");
  Drag(window->view(), QPoint(100, 100), QPoint(300, 200));
  window->RunMenu("mnuOpt_PlacerRect");
  Drag(window->view(), QPoint(400, 100), QPoint(500, 200));
  EXPECT_EQ(surface.ObjectCount(kAllObjects), before + 2);
  EXPECT_EQ(surface.EditMode(), kEditSelection);
  window->RunMenu("mnuOpt_PlacerTxt");
  ui.Queue("Pointe de crue");
  QTest::mouseClick(window->view()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(600, 120));
  ExpectLastMessage(ui, "Entrez le texte à placer", "Placer un texte", MessageIcon::kNone, "text");
  EXPECT_EQ(surface.ObjectCount(kAllObjects), before + 3);
  window->grab().save(QString::fromStdString(SnapshotPath("vistrel_placed.png")));
}

TEST_F(VistrelTest, TheScaleDialogueRedrawsWithTheNewScale) {
  auto window = Open();
  int shown = 0;
  window->show_scale_form = [&](FormController& form) {
    ++shown;
    auto& scale = static_cast<FrmEchDef&>(form);
    EXPECT_EQ(scale.Spread1.Text(2, 2), "10");
    scale.Spread1.SetText(2, 2, "20");
    form.Run("Command1");
  };
  window->RunMenu("mnuOpt_Echelle");
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(state.action, kViewerApply);
  EXPECT_NE(ReadBytes(script).find("ECHELLE \"F\"  0  100  0  20"), std::string::npos)
      << ReadBytes(script);
  window->grab().save(QString::fromStdString(SnapshotPath("vistrel_scale.png")));
  // Back to the initial scale.
  window->show_scale_form = [](FormController& form) { form.Run("Command2"); };
  window->RunMenu("mnuOpt_Echelle");
  EXPECT_NE(ReadBytes(script).find("ECHELLE \"F\"  0  100  0  10"), std::string::npos);
  // Closed by its frame: nothing is redrawn.
  const int objects = window->surface().ObjectCount(kAllObjects);
  window->RunMenu("mnuOpt_PlacerRect");
  window->show_scale_form = [](FormController&) {};
  window->RunMenu("mnuOpt_Echelle");
  EXPECT_EQ(state.action, kViewerCancel);
  EXPECT_EQ(window->surface().ObjectCount(kAllObjects), objects);
  EXPECT_TRUE(ui.Empty()) << ui.Last().text;
}

TEST_F(VistrelTest, TheScaleDialogueWindow) {
  auto window = Open();
  FrmEchDef form(ui, state);
  FormWindow dialog(form, window.get());
  dialog.show();
  EXPECT_EQ(dialog.windowTitle(), "Définition des Echelles");
  EXPECT_EQ(dialog.Table(0)->model()->rowCount(), 5);
  dialog.grab().save(QString::fromStdString(SnapshotPath("frm_ech_def.png")));
}

TEST_F(VistrelTest, ABadScriptIsRefusedWithItsMessage) {
  WriteBytes(script, "PAGE \"A4\" \"H\"\r\n Cadre 2 28\r\n");
  ASSERT_TRUE(StartViewer(ui, state, script));
  VistrelWindow window(ui, state, folder.Path());
  EXPECT_FALSE(window.Load());
  ExpectLastMessage(
      ui,
      " Le couple PAGE/ENDPAGE non coherent dans " + script + "\n il y a 1 page(s) pour 0 ENDPAGE",
      "", MessageIcon::kNone);
}

TEST_F(VistrelTest, TheProgramRefusesAMissingScript) {
  VistrelProgram program;
  EXPECT_EQ(StartVistrel(ui, {"absent.Mst"}, folder.Path(), program), 1);
  ExpectLastMessage(ui, "Fichier " + folder.File("absent.Mst") + " introuvable!", "Vistrel",
                    MessageIcon::kExclamation);
  EXPECT_EQ(program.window, nullptr);
  EXPECT_EQ(StartVistrel(ui, {}, folder.Path(), program), 1);
}

TEST_F(VistrelTest, TheProgramShowsTheScriptOfTheCurrentFolder) {
  VistrelProgram program;
  ASSERT_EQ(StartVistrel(ui, {"vistrel.mst"}, folder.Path(), program), 0);
  ASSERT_NE(program.window, nullptr);
  EXPECT_EQ(program.state.script, script);
  EXPECT_TRUE(FileExist(program.state.initial_script));
  EXPECT_EQ(program.window->windowTitle(), "Vistrel.Mst");
  EndViewer(program.state);
}

}  // namespace
}  // namespace pluvane
