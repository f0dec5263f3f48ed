#include "plot/ctl_create.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "foundation/text.h"
#include "plot/ctl_read.h"
#include "plot/plot_command.h"

namespace pluvane {
namespace {

std::string Frames(int count) {
  std::string page = "PAGE\r\n";
  for (int i = 0; i < count; ++i)
    page += "CADRE 1 2 1 2 \"t\"\r\nPLOTXY 1 \"f\" \"c\"\r\nENDCADRE\r\n";
  return page + "ENDPAGE\r\n";
}

TEST(CtlCreate, MoreThanTwentyFramesEndsTheTreatmentNotTheProgram) {
  TempFolder folder;
  WriteBytes(folder.File("P1.TMP"), Frames(21));
  WriteBytes(folder.File("P1.ctl"), "old");
  ScriptedUi ui;
  EXPECT_FALSE(CtlCreate(ui, folder.File("P1.TMP"), folder.File("P1.ctl")));
  ExpectLastMessage(ui, "Dépassement de cadre max  20", "", MessageIcon::kNone);
  EXPECT_EQ(ReadBytes(folder.File("P1.ctl")), "");
}

TEST(CtlCreate, TwentyFramesPass) {
  TempFolder folder;
  WriteBytes(folder.File("P1.TMP"), Frames(20));
  ScriptedUi ui;
  ASSERT_TRUE(CtlCreate(ui, folder.File("P1.TMP"), folder.File("P1.ctl")));
  EXPECT_TRUE(ui.Empty());
  std::vector<std::string> lines;
  ReadTextLines(folder.File("P1.ctl"), lines);
  ASSERT_EQ(lines.size(), 1u + 20 * 4 + 1);
  EXPECT_EQ(ReadCtlPage(lines[0]).frame_count, 20);
  EXPECT_EQ(ReadCtlFrame(lines[1 + 19 * 4]).rank, 20);
}

TEST(CtlCreate, AMissingPageFileIsATrappedError) {
  TempFolder folder;
  WriteBytes(folder.File("P1.ctl"), "kept");
  ScriptedUi ui;
  EXPECT_FALSE(CtlCreate(ui, folder.File("P1.TMP"), folder.File("P1.ctl")));
  ExpectLastMessage(ui, "Module CtlCreate, erreur n° 53 : Fichier introuvable", "Lecture de donnée",
                    MessageIcon::kNone);
  EXPECT_EQ(ReadBytes(folder.File("P1.ctl")), "kept");
}

TEST(CtlCreate, AnUnwritableControlFileIsATrappedError) {
  TempFolder folder;
  WriteBytes(folder.File("P1.TMP"), Frames(1));
  ScriptedUi ui;
  EXPECT_FALSE(CtlCreate(ui, folder.File("P1.TMP"), folder.File("no/such/P1.ctl")));
  ASSERT_FALSE(ui.Empty());
  EXPECT_EQ(ui.Last().title, "Lecture de donnée");
  EXPECT_EQ(ui.Last().text.rfind("Module CtlCreate, erreur n° ", 0), 0u);
}

TEST(CtlCreate, FindsThePageFileWhateverTheCaseOfItsName) {
  TempFolder folder;
  WriteBytes(folder.File("p1.tmp"), Frames(1));
  ScriptedUi ui;
  EXPECT_TRUE(CtlCreate(ui, folder.File("P1.TMP"), folder.File("P1.ctl")));
  EXPECT_TRUE(ui.Empty());
}

TEST(CtlCreate, KeepsFiveHundredComments) {
  TempFolder folder;
  std::string page = "PAGE\r\n";
  for (int i = 0; i < 501; ++i) page += "COMMENT 4 1 1 0 \"c" + std::to_string(i) + "\"\r\n";
  WriteBytes(folder.File("P1.TMP"), page + "ENDPAGE\r\n");
  ScriptedUi ui;
  ASSERT_TRUE(CtlCreate(ui, folder.File("P1.TMP"), folder.File("P1.ctl")));
  std::vector<std::string> lines;
  ReadTextLines(folder.File("P1.ctl"), lines);
  ASSERT_EQ(lines.size(), 502u);
  EXPECT_EQ(lines[0], "     0    ");
  EXPECT_EQ(ReadCtlCount(lines[1]), 500);
  EXPECT_EQ(ReadCtlComment(lines[501]).text, "c499");
}

}  // namespace
}  // namespace pluvane
