#include "plot/page_split.h"

#include <gtest/gtest.h>

#include "foundation/errors.h"
#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "plot/plot_command.h"

namespace pluvane {
namespace {

const char* kFrame = "CADRE 2 28 2 20 \"t\"\r\nPLOTXY 1 \"f.crb\" \"c\"\r\nENDCADRE\r\n";

TEST(SplitPages, WritesEachPageTrimmedWithoutEmptyLines) {
  TempFolder folder;
  WriteBytes(folder.File("s.Mst"),
             "  PAGE \"A4\"  \n\n  Cadre 1 2  \n Plotxy 1\nEndCadre\nENDPAGE\n");
  ScriptedUi ui;
  int pages = 0;
  ASSERT_TRUE(SplitPages(ui, folder.File("s.Mst"), folder.Path(), pages));
  EXPECT_EQ(pages, 1);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(ReadBytes(folder.File("P1.TMP")),
            "PAGE \"A4\"\r\nCadre 1 2\r\nPlotxy 1\r\nEndCadre\r\nENDPAGE\r\n");
}

TEST(SplitPages, NoPageIsReported) {
  TempFolder folder;
  const std::string script = folder.File("s.Mst");
  WriteBytes(script, "END\nPAGE\nENDPAGE\n");
  ScriptedUi ui;
  int pages = 0;
  EXPECT_FALSE(SplitPages(ui, script, folder.Path(), pages));
  ExpectLastMessage(ui, " Pas de mot-cle PAGE/ENDPAGE dans " + script, "", MessageIcon::kNone);
  EXPECT_FALSE(FileExist(folder.File("P1.TMP")));
}

TEST(SplitPages, UnpairedPagesRemoveEveryPageFile) {
  TempFolder folder;
  const std::string script = folder.File("s.Mst");
  WriteBytes(script, std::string("PAGE\n") + kFrame + "ENDPAGE\nPAGE\n" + kFrame);
  WriteBytes(folder.File("P12.TMP"), "old");
  WriteBytes(folder.File("P123.TMP"), "not a page file of the pattern");
  ScriptedUi ui;
  int pages = 0;
  EXPECT_FALSE(SplitPages(ui, script, folder.Path(), pages));
  ExpectLastMessage(
      ui,
      " Le couple PAGE/ENDPAGE non coherent dans " + script + "\n il y a 2 page(s) pour 1 ENDPAGE",
      "", MessageIcon::kNone);
  EXPECT_FALSE(FileExist(folder.File("P1.TMP")));
  EXPECT_FALSE(FileExist(folder.File("P2.TMP")));
  EXPECT_FALSE(FileExist(folder.File("P12.TMP")));
  EXPECT_TRUE(FileExist(folder.File("P123.TMP")));
}

TEST(SplitPages, UnpairedFramesKeepASinglePage) {
  TempFolder folder;
  const std::string script = folder.File("s.Mst");
  WriteBytes(script, "PAGE\nCADRE 1\nCAD 2\nENDC\nENDPAGE\n");
  ScriptedUi ui;
  int pages = 0;
  EXPECT_FALSE(SplitPages(ui, script, folder.Path(), pages));
  ExpectLastMessage(ui,
                    " Le couple CADRE/ENDCADRE non coherent dans le fichier " + script +
                        "\n il y a 2 CADRE pour 1 ENDCADRE",
                    "", MessageIcon::kNone);
  EXPECT_TRUE(FileExist(folder.File("P1.TMP")));
}

TEST(SplitPages, UnpairedFramesOverSeveralPagesRemoveThem) {
  TempFolder folder;
  const std::string script = folder.File("s.Mst");
  WriteBytes(script, "PAGE\nENDCADRE\nENDPAGE\nPAGE\nENDPAGE\n");
  ScriptedUi ui;
  int pages = 0;
  EXPECT_FALSE(SplitPages(ui, script, folder.Path(), pages));
  ExpectLastMessage(ui,
                    " Le couple CADRE/ENDCADRE non coherent dans le fichier " + script +
                        "\n il y a 0 CADRE pour 1 ENDCADRE",
                    "", MessageIcon::kNone);
  EXPECT_FALSE(FileExist(folder.File("P1.TMP")));
  EXPECT_FALSE(FileExist(folder.File("P2.TMP")));
}

TEST(SplitPages, EndStopsBeforeLaterPagesAndTheirEndpage) {
  TempFolder folder;
  WriteBytes(folder.File("s.Mst"), "PAGE\nENDPAGE\nend\nPAGE\nENDPAGE\nENDPAGE\n");
  ScriptedUi ui;
  int pages = 0;
  EXPECT_TRUE(SplitPages(ui, folder.File("s.Mst"), folder.Path(), pages));
  EXPECT_EQ(pages, 1);
  EXPECT_FALSE(FileExist(folder.File("P2.TMP")));
}

TEST(SplitPages, ALineBeforeThePageHasNoFileToGoTo) {
  TempFolder folder;
  WriteBytes(folder.File("s.Mst"), "REM une note\nPAGE\nENDPAGE\n");
  ScriptedUi ui;
  int pages = 0;
  try {
    SplitPages(ui, folder.File("s.Mst"), folder.Path(), pages);
    FAIL() << "no error raised";
  } catch (const AppError& error) {
    EXPECT_EQ(error.number(), 52);
  }
}

TEST(CompileScriptPage, ReportsTheSplitterErrorsAsTheDrawingDoes) {
  TempFolder folder;
  WriteBytes(folder.File("s.Mst"), "REM une note\nPAGE\nENDPAGE\n");
  ScriptedUi ui;
  EXPECT_FALSE(CompileScriptPage(ui, folder.File("s.Mst"), ""));
  ExpectLastMessage(ui, "Erreur dans Morvex, n° 52 (ligne 0) : Nom ou numéro de fichier incorrect",
                    "Traçage de courbe", MessageIcon::kNone);
  ui.Clear();
  EXPECT_FALSE(CompileScriptPage(ui, folder.File("missing.Mst"), ""));
  ExpectLastMessage(ui, "Erreur dans Morvex, n° 53 (ligne 0) : Fichier introuvable",
                    "Traçage de courbe", MessageIcon::kNone);
}

TEST(CompileScriptPage, StopsAtAnUnpairedScript) {
  TempFolder folder;
  WriteBytes(folder.File("s.Mst"), "PAGE\n");
  ScriptedUi ui;
  EXPECT_FALSE(CompileScriptPage(ui, folder.File("s.Mst"), folder.File("out.ctl")));
  EXPECT_EQ(ui.Messages().size(), 1u);
  EXPECT_FALSE(FileExist(folder.File("out.ctl")));
}

}  // namespace
}  // namespace pluvane
