#include "plot/plot_viewer.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "foundation/text.h"
#include "plot/curve_file.h"
#include "plot/frm_ech_def.h"
#include "plot/grid_plot.h"
#include "plot/script_words.h"
#include "plot_fixture.h"

namespace pluvane {
namespace {

class GridPlot : public ::testing::Test {
 protected:
  // Column 1 X, then one column per curve.
  void Fill(const std::vector<std::vector<std::string>>& rows) {
    grid.SetMaxRows(static_cast<int>(rows.size()));
    grid.SetMaxCols(static_cast<int>(rows.front().size()));
    for (std::size_t r = 0; r < rows.size(); ++r)
      for (std::size_t c = 0; c < rows[r].size(); ++c)
        grid.SetText(static_cast<int>(c) + 1, static_cast<int>(r) + 1, rows[r][c]);
  }
  std::string Run(const std::string& kind, const std::string& title = "T") {
    PlotxyRequest request{kind, "Q", folder.Path(), folder.File("xy.mst"), title};
    return Plotxy(ui, grid, request);
  }
  std::vector<std::string> ScriptLines() {
    std::vector<std::string> lines;
    ReadTextLines(folder.File("xy.mst"), lines);
    return lines;
  }

  TempFolder folder;
  ScriptedUi ui;
  Grid grid{2, 0};
};

TEST_F(GridPlot, ScriptOverRoundedLimits) {
  Fill({{"0", "0"}, {"1", "5"}, {"2", "3"}, {"3", "1"}});
  EXPECT_EQ(Run("Autre"), folder.File("xy.mst"));
  EXPECT_EQ(ReadBytes(folder.File("xy.crb")),
            "'Q2'\r\n     0.000     0.000\r\n     1.000     5.000\r\n     2.000     3.000\r\n"
            "     3.000     1.000\r\n");
  // X 0..3 rounds to 0..4, Y 0..5 to 0..8 (the first even value above 5, plus 2).
  const std::vector<std::string> expected = {
      "PAGE  \"A4\"  \"H\"  \"T\"",
      " Cadre  2  28  2  20  \"T\"  6 1 0 6 0 65535",
      "    Echelle \"F\"  0  4  0  8  0.1  0.5  2  2 \"\"  \"\"  \"V\" 5 \"#######0.0\" "
      "\"#######0.0\"",
      "    Grille  2  2 2 1 0",
      "    Plotxy 1 \"" + folder.File("xy.crb") + "\" \"Q2\" \"\" 0 2  16711680",
      " EndCadre",
      "ENDPAGE",
      ""};
  EXPECT_EQ(ScriptLines(), expected);
}

TEST_F(GridPlot, SeveralCurvesTakeTheSixteenColours) {
  Fill({{"0", "0", "1"}, {"10", "5", "2"}});
  ASSERT_FALSE(Run("Autre").empty());
  const auto lines = ScriptLines();
  // Colour number i + 7: grey, then light blue.
  EXPECT_NE(lines[4].find("\"Q2\" \"\" 0 2  8421504"), std::string::npos) << lines[4];
  EXPECT_NE(lines[5].find("\"Q3\" \"\" 0 2  16711680"), std::string::npos) << lines[5];
  grid.SetSingleSeries(true);
  ASSERT_FALSE(Run("Autre").empty());
  EXPECT_EQ(ScriptLines()[5], " EndCadre");
}

TEST_F(GridPlot, OnePointWritesNoScript) {
  Fill({{"0", "1"}, {"", ""}});
  EXPECT_EQ(Run("Autre"), "");
  EXPECT_FALSE(FileExist(folder.File("xy.mst")));
}

TEST_F(GridPlot, PluvioLosesItsFirstRow) {
  Fill({{"0", "9"}, {"1", "2"}, {"2", "3"}});
  ASSERT_FALSE(Run("Pluvio").empty());
  EXPECT_EQ(ReadBytes(folder.File("xy.crb")),
            "'Q2'\r\n     1.000     2.000\r\n     2.000     3.000\r\n");
  Fill({{"0", "9"}, {"1", "2"}});
  EXPECT_EQ(Run("Pluvio"), "");  // one point left
}

TEST_F(GridPlot, SectionIsAClosedOutlineWithEqualScales) {
  // Heights and widths of three levels.
  Fill({{"0", "1"}, {"1", "2"}, {"2", "2.5"}});
  ASSERT_FALSE(Run("SEC", "").empty());  // no title to lower the frame's top
  std::vector<double> x, y;
  int count = 0, status = 0;
  ReadCurve(ui, folder.File("xy.crb"), "Q2", x, y, count, status);
  ASSERT_EQ(count, 6);
  EXPECT_EQ(x, (std::vector<double>{-0.5, -1, -1.25, 1.25, 1, 0.5}));
  EXPECT_EQ(y, (std::vector<double>{0, 1, 2, 2, 1, 0}));
  const std::vector<std::string> words = MorvexGetEline(StatementRest(ScriptLines()[2]), 15);
  EXPECT_DOUBLE_EQ(Val(words[2]) - Val(words[1]), Val(words[4]) - Val(words[3]));
  // Drawn in the section mode, a unit of X is as long as a unit of Y.
  ViewerState state;
  state.script = folder.File("xy.mst");
  state.selection_mode = "SEC";
  Surface surface;
  ViewerDraw(ui, surface, state, folder.Path());
  EXPECT_TRUE(ui.Empty()) << ui.Last().text;
  const Shape* outline = nullptr;
  for (const Shape* s : ShapesOfKind(surface, kKindPolyline))
    if (s->points.size() == 6) outline = s;
  ASSERT_NE(outline, nullptr);
  // (-0.5, 0) to (0.5, 0) is one unit across; (-0.5, 0) to (-1, 1) one unit up.
  const double across = outline->points[5].x - outline->points[0].x;
  const double up = outline->points[0].y - outline->points[1].y;
  EXPECT_NEAR(across, up, 2);
}

TEST_F(GridPlot, SappCapsYAtOne) {
  Fill({{"0", "0"}, {"10", "0.5"}});
  ASSERT_FALSE(Run("SAPP").empty());
  const std::vector<std::string> words = MorvexGetEline(StatementRest(ScriptLines()[2]), 15);
  EXPECT_EQ(Val(words[4]), 1);
}

TEST(QBColor, TheSixteenColours) {
  EXPECT_EQ(QBColor(0), 0);
  EXPECT_EQ(QBColor(9), 16711680);
  EXPECT_EQ(QBColor(12), 255);
  EXPECT_EQ(QBColor(15), 16777215);
  EXPECT_EQ(QBColor(16), 0);
}

class ScaleDialogue : public ::testing::Test {
 protected:
  void SetUp() override {
    state.script = folder.File("Vistrel.Mst");
    state.initial_script = folder.File("Initial.Mst");
    WriteBytes(state.script, kScript);
    WriteBytes(state.initial_script, kScript);
  }
  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    ReadTextLines(state.script, lines);
    return lines;
  }
  static constexpr const char* kScript =
      "PAGE  \"A4\"  \"H\"  \"T\"\r\n Cadre  2  28  2  20  \"T\"  6 1 0 6 0 65535\r\n"
      "    Echelle \"F\"  0  4  0  8  0.1  0.5  2  2 \"x\"  \"y\"  \"V\" 5 \"#######0.0\" "
      "\"#######0.0\"\r\n    Grille  2  2 2 1 0\r\n    Plotxy 1 \"xy.crb\" \"Q2\" \"\" 0 2 "
      "16711680\r\n EndCadre\r\nENDPAGE\r\n";
  TempFolder folder;
  ScriptedUi ui;
  ViewerState state;
};

TEST_F(ScaleDialogue, LoadsTheFirstScaleAndGrid) {
  FrmEchDef form(ui, state);
  EXPECT_EQ(form.Spread1.Text(1, 1), "0");
  EXPECT_EQ(form.Spread1.Text(1, 2), "4");
  EXPECT_EQ(form.Spread1.Text(2, 2), "8");
  EXPECT_EQ(form.Spread1.Text(1, 3), "0.1");
  EXPECT_EQ(form.Spread1.Text(2, 3), "0.5");
  EXPECT_EQ(form.Spread1.Text(1, 4), "2");
  EXPECT_EQ(form.Spread1.Text(2, 5), "2");
}

TEST_F(ScaleDialogue, ApplyRewritesTheScaleAndGrid) {
  FrmEchDef form(ui, state);
  form.Spread1.SetText(1, 2, "10");
  form.Spread1.SetText(1, 3, "0.25");
  form.Spread1.SetText(2, 5, "0");
  form.Run("Command1");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(state.action, kViewerApply);
  const auto lines = Lines();
  EXPECT_EQ(lines[2],
            "ECHELLE \"F\"  0  10  0  8  0.25  0.5  2  2 \"x\" \"y\" \"V\" 5 \"######0.00\" "
            "\"#######0.0\"");
  EXPECT_EQ(lines[3], "GRILLE  2  0 2 1 0");
  EXPECT_EQ(lines[4], "    Plotxy 1 \"xy.crb\" \"Q2\" \"\" 0 2 16711680");
  EXPECT_FALSE(FileExist(folder.File("Mst.tmp")));
}

TEST_F(ScaleDialogue, BackToTheInitialScaleAfterApply) {
  FrmEchDef first(ui, state);
  first.Spread1.SetText(2, 2, "20");
  first.Command1();
  FrmEchDef second(ui, state);
  EXPECT_EQ(second.Spread1.Text(2, 2), "20");
  second.Command2();
  EXPECT_EQ(state.action, kViewerInitial);
  FrmEchDef third(ui, state);
  EXPECT_EQ(third.Spread1.Text(2, 2), "8");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(ScaleDialogue, MissingInitialScriptIsTold) {
  std::filesystem::remove(state.initial_script);
  FrmEchDef form(ui, state);
  form.Command2();
  ExpectLastMessage(ui, "Fichier Mst initial " + state.initial_script + "introuvale.", "",
                    MessageIcon::kNone);
  EXPECT_FALSE(form.Closed());
}

TEST_F(ScaleDialogue, CancelOnlySetsTheFlag) {
  FrmEchDef form(ui, state);
  form.Spread1.SetText(1, 2, "10");
  form.Command3();
  EXPECT_EQ(state.action, kViewerCancel);
  EXPECT_EQ(ReadBytes(state.script), kScript);
  // The draw method then does nothing.
  Surface surface;
  ViewerDraw(ui, surface, state, folder.Path());
  EXPECT_EQ(surface.ObjectCount(kAllObjects), 0);
}

TEST_F(ScaleDialogue, ReversedPairsAreTold) {
  FrmEchDef form(ui, state);
  form.Spread1.SetText(1, 1, "5");
  EXPECT_FALSE(form.Spread1_LeaveCell(1, 1));
  ExpectLastMessage(ui,
                    "Incohérence entre les valeurs Xmin et Xmax :\n     Xmin = 5\n     Xmax = 4",
                    "Définition des Echelles", MessageIcon::kNone);
  EXPECT_EQ(form.Spread1.ActiveCol(), 1);
  form.Spread1.SetText(2, 2, "-1");
  EXPECT_FALSE(form.Spread1_LeaveCell(2, 2));
  ExpectLastMessage(ui,
                    "Incohérence entre les valeurs Ymin et Ymax :\n     Ymin = 0\n     Ymax = -1",
                    "Définition des Echelles", MessageIcon::kNone);
  form.Spread1.SetText(1, 1, "05/01/2000");
  form.Spread1.SetText(1, 2, "01/02/1999");
  EXPECT_FALSE(form.Spread1_LeaveCell(1, 2));
  ExpectLastMessage(ui,
                    "Incohérence entre les dates Xmin et Xmax :\n     Date Xmin = 05/01/2000\n"
                    "     Date Xmax = 01/02/1999",
                    "Définition des Echelles", MessageIcon::kNone);
  form.Spread1.SetText(1, 2, "01/02/2000");
  EXPECT_TRUE(form.Spread1_LeaveCell(1, 2));
}

TEST_F(ScaleDialogue, ScriptWithoutGridLeavesRowFiveAtZero) {
  WriteBytes(state.script,
             "PAGE \"A4\" \"H\"\r\n Cadre 2 28 2 20 \"\" 6 1 0 6 0 0\r\n Echelle \"F\" 0 4 0 8 "
             "1 1 2 2 \"\" \"\"\r\n Plotxy 1 \"xy.crb\" \"Q2\"\r\n EndCadre\r\nENDPAGE\r\n");
  FrmEchDef form(ui, state);
  EXPECT_EQ(form.Spread1.Text(1, 5), "0");
  EXPECT_EQ(form.Spread1.Text(2, 5), "0");
  EXPECT_EQ(form.Spread1.Text(1, 2), "4");
}

TEST_F(ScaleDialogue, MissingScriptIsTold) {
  state.script = folder.File("absent.Mst");
  FrmEchDef form(ui, state);
  ExpectLastMessage(ui, "fichier non trouvé : " + state.script, "", MessageIcon::kNone);
  EXPECT_EQ(form.Spread1.Text(1, 1), "");
}

TEST(ViewerCommands, AttributesOfTheSelection) {
  ScriptedUi ui;
  Surface surface;
  const int text = surface.AddObject(kKindText, 0, 0, 100, 100);
  const int line = surface.AddObject(kKindPolyline, 0, 0, 100, 100);
  surface.SetCurrentObject(text);
  surface.SetSelected(true);
  surface.SetCurrentObject(line);
  surface.SetSelected(true);
  ui.Queue("2");
  mnuOpt_Attrib_Dess_WtLine(ui, surface);
  EXPECT_EQ(ui.Last().text, "Entrez la taille désirée (en nombre réel positif (ex 0,1,2,4,...).");
  EXPECT_EQ(ui.Last().title, "Epaisseur du trait de ligne");
  ui.Queue("45");
  mnuOpt_Attrib_Text_Ori(ui, surface);
  EXPECT_EQ(ui.Last().title, "Définition de l'angle d'orientation des textes");
  ui.Queue("8");
  mnuOpt_Attrib_Text_Size(ui, surface);
  EXPECT_EQ(ui.Last().title, "Taille du texte");
  EXPECT_EQ(surface.ObjectShape(line)->line_width, 2);
  EXPECT_EQ(surface.ObjectShape(text)->text.angle, 45);
  EXPECT_EQ(surface.ObjectShape(text)->text.size, -282);  // 8 points
  mnuOpt_PlacerRect(surface);
  EXPECT_EQ(surface.EditMode(), kKindRectangle);
}

TEST(ViewerCommands, CurveFileChoiceIsKept) {
  ScriptedUi ui;
  ViewerState state;
  ui.Queue("/data/run.hys");
  EXPECT_EQ(mnuUtil_Vistrel_ChooseFile(ui, state), "/data/run.hys");
  EXPECT_EQ(ui.Last().title, "Charger un fichier crb d'Kalder");
  EXPECT_EQ(state.last_curve_file, "/data/run.hys");
}

}  // namespace
}  // namespace pluvane
