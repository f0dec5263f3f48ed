#include "plot/curve_script.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "plot/curve_view.h"

namespace pluvane {
namespace {

const std::string kData = PLUVANE_TEST_DATA;

TEST(CurveKind, TitlesByExtensionInAnyCase) {
  EXPECT_EQ(TitleOfCurveKind("deb", "p"), "Hydrogramme");
  EXPECT_EQ(TitleOfCurveKind("HYS", "p"), "Hydrogramme");
  EXPECT_EQ(TitleOfCurveKind("Lim", "p"), "Limnigramme");
  EXPECT_EQ(TitleOfCurveKind("app", "p"), "Apport");
  EXPECT_EQ(TitleOfCurveKind("crb", "Page"), "Page");
  std::string x, y;
  AxisTitlesOfCurveKind("Hys", x, y);
  EXPECT_EQ(x, "Temps(mn)");
  EXPECT_EQ(y, "Débit (m3/s)");
  AxisTitlesOfCurveKind("LIM", x, y);
  EXPECT_EQ(y, "Cote (m)");
  AxisTitlesOfCurveKind("APP", x, y);
  EXPECT_EQ(x + y, "");
}

TEST(NextCurveLook, ColoursWidthsAndStylesInTurn) {
  const std::int32_t blue = 16711680, red = 255, black = 0, orange = 4895487, violet = 10158235,
                     green = 65280;
  const std::int32_t colours[] = {blue, red,   black,  orange, violet, green, blue,
                                  red,  black, orange, violet, violet, blue};
  CurveLook look;
  for (int i = 1; i <= 20; ++i) {
    look = NextCurveLook(i, look);
    if (i <= 13) {
      EXPECT_EQ(look.colour, colours[i - 1]) << i;
    }
    EXPECT_EQ(look.width, i >= 19 ? 4 : 2) << i;
    EXPECT_EQ(look.style, i <= 6 ? 0 : i <= 12 ? 2 : i <= 18 ? 1 : 2) << i;
    if (i == 18) {
      EXPECT_EQ(look.colour, violet);
    }
  }
}

TEST(WriteCurveScript, WritesTheScriptOfTheChosenCurves) {
  TempFolder folder;
  WriteBytes(folder.File("crb.Deb"), ReadBytes(kData + "/crb.Deb"));
  WriteBytes(folder.File("IdCrb.Tmp"), "  Cac_1 \r\n\r\nCac_2\r\n");
  ScriptedUi ui;
  ASSERT_TRUE(WriteCurveScript(ui, folder.File("IdCrb.Tmp"), folder.File("Deb.Mst"),
                               folder.File("crb.Deb"), "Deb", "Résultats"));
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(ReadBytes(folder.File("Deb.Mst")), ReadBytes(kData + "/expected/deb_two_curves.Mst"));
  // The list file now holds the extraction.
  EXPECT_EQ(ReadBytes(folder.File("IdCrb.Tmp")),
            "'Cac_1'\r\n     0.000     0.000\r\n    60.000     2.000\r\n   120.000     1.000\r\n"
            " 'Cac_2'  2 points\r\n     0.000     0.500\r\n   120.000     1.500\r\n");
}

TEST(WriteCurveScript, CurvesWithoutDataGiveNoScript) {
  TempFolder folder;
  WriteBytes(folder.File("c.crb"), "'E'\r\n'F'\r\n     1.000     1.000\r\n");
  WriteBytes(folder.File("IdCrb.Tmp"), "E\r\n");
  ScriptedUi ui;
  EXPECT_FALSE(WriteCurveScript(ui, folder.File("IdCrb.Tmp"), folder.File("x.Mst"),
                                folder.File("c.crb"), "crb", "p"));
  ExpectLastMessage(ui,
                    "Anomalie dans le fichier de courbes à restituer \r" + folder.File("IdCrb.Tmp"),
                    "Controle de cohérence", MessageIcon::kNone);
  EXPECT_FALSE(FileExist(folder.File("x.Mst")));
}

TEST(CurveView, AFileThatIsNoCurveFileIsRefused) {
  TempFolder folder;
  WriteBytes(folder.File("r.deb"), "     0.000     1.000\r\n");
  ScriptedUi ui;
  CurveViewSession session;
  EXPECT_FALSE(PrepareCurveView(ui, folder.File("r.deb"), folder.Path(), session));
  ExpectLastMessage(ui,
                    "Le format de courbe du fichier n'est pas de type Kalder.\rVoir fichier " +
                        folder.File("r.deb"),
                    "Visu de courbe Kalder", MessageIcon::kNone);
}

TEST(CurveView, CopiesScriptsAndCleansUp) {
  TempFolder folder;
  const std::string results = folder.File("S1"), work = folder.File("work");
  MakeFolder(results);
  MakeFolder(work);
  const std::string file = JoinPath(results, "S1_net.Deb");
  WriteBytes(file, ReadBytes(kData + "/crb.Deb"));
  ScriptedUi ui;
  CurveViewSession session;
  ASSERT_TRUE(PrepareCurveView(ui, file, work, session));
  EXPECT_EQ(session.mode, "Deb");
  EXPECT_EQ(session.copy, JoinPath(work, "S1_net.Deb"));
  EXPECT_EQ(session.list_file, JoinPath(work, "IdCrb.Tmp"));
  EXPECT_EQ(session.script, JoinPath(work, "Deb.Mst"));
  EXPECT_EQ(ReadBytes(session.copy), ReadBytes(file));
  EXPECT_FALSE(WriteCurveViewScript(ui, session, "p"));  // nothing chosen
  WriteBytes(session.list_file, "Cac_2\r\n");
  ASSERT_TRUE(WriteCurveViewScript(ui, session, "p"));
  EXPECT_TRUE(ui.Empty());
  WriteBytes(JoinPath(work, "P1.TMP"), "x");
  EndCurveView(ui, session, work, results);
  EXPECT_FALSE(FileExist(session.list_file));
  EXPECT_FALSE(FileExist(session.script));
  EXPECT_FALSE(FileExist(JoinPath(work, "P1.TMP")));
  EXPECT_TRUE(FileExist(session.copy));  // the file is the scenario's
  EndCurveView(ui, session, work, "/elsewhere");
  EXPECT_FALSE(FileExist(session.copy));
  EXPECT_TRUE(FileExist(file));
}

TEST(CurveView, AFileChosenInTheWorkFolderIsNeverRemoved) {
  TempFolder folder;
  WriteBytes(folder.File("xy.crb"), "'A'\r\n     0.000     1.000\r\n");
  ScriptedUi ui;
  CurveViewSession session;
  ASSERT_TRUE(PrepareCurveView(ui, folder.File("xy.crb"), folder.Path(), session));
  EXPECT_EQ(session.mode, "crb");
  EndCurveView(ui, session, folder.Path(), "/elsewhere");
  EXPECT_TRUE(FileExist(folder.File("xy.crb")));
}

}  // namespace
}  // namespace pluvane
