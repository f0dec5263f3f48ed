#include "foundation/dialogs.h"

#include <gtest/gtest.h>

#include "expect_message.h"
#include "foundation/scripted_ui.h"
#include "test_files.h"

namespace pluvane {
namespace {

TEST(AskOpenFile, ExistingFileTrimmed) {
  ScriptedUi ui;
  TempFolder dir;
  WriteBytes(dir.File("r.mtf"), "{}");
  ui.Queue("  " + dir.File("r.mtf") + "  ");
  EXPECT_EQ(AskOpenFile(ui, "Ouvrir un réseau", "Réseau (*.mtf)|*.mtf", "mtf", "r.mtf"),
            dir.File("r.mtf"));
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Last().kind, "open");
  EXPECT_EQ(ui.Last().title, "Ouvrir un réseau");
  EXPECT_EQ(ui.Last().text, "r.mtf");
}

TEST(AskOpenFile, CancelOrWildcardGivesEmptyWithoutMessage) {
  ScriptedUi ui;
  ui.QueueCancel();
  ui.Queue("*.mtf");
  ui.Queue("/tmp/a?.mtf");
  ui.Queue("   ");
  for (int i = 0; i < 4; ++i) EXPECT_EQ(AskOpenFile(ui, "T", "", "", ""), "");
  for (const auto& m : ui.Messages()) EXPECT_EQ(m.kind, "open");
}

TEST(AskOpenFile, MissingFileIsRefusedWithItsMessage) {
  ScriptedUi ui;
  ui.Queue("/nonexistent/r.mtf");
  EXPECT_EQ(AskOpenFile(ui, "T", "", "", ""), "");
  ASSERT_EQ(ui.Messages().size(), 2u);
  ExpectLastMessage(ui, "Le fic sélectionné n'existe pas, recommencer svp...", "",
                    MessageIcon::kNone);
}

TEST(AskSaveFile, NameNeedNotExist) {
  ScriptedUi ui;
  ui.Queue(" /nonexistent/nouveau.mtf ");
  EXPECT_EQ(AskSaveFile(ui, "Enregistrer", "", "mtf", "x.mtf"), "/nonexistent/nouveau.mtf");
  EXPECT_EQ(ui.Last().kind, "save");
  EXPECT_EQ(ui.Last().title, "Enregistrer");
  ui.QueueCancel();
  ui.Queue("*.mtf");
  ui.Queue("a?b");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(AskSaveFile(ui, "T", "", "", ""), "");
  EXPECT_EQ(ui.Messages().size(), 4u);
}

TEST(BrowseFolder, FolderOrEmpty) {
  ScriptedUi ui;
  ui.Queue("/data/Exemples");
  EXPECT_EQ(BrowseFolder(ui, "/data", "Choisir le dossier"), "/data/Exemples");
  EXPECT_EQ(ui.Last().kind, "folder");
  EXPECT_EQ(ui.Last().text, "/data");
  EXPECT_EQ(ui.Last().title, "Choisir le dossier");
  ui.QueueCancel();
  EXPECT_EQ(BrowseFolder(ui, "/data", "T"), "");
}

TEST(AskText, TypedTextTrimmed) {
  ScriptedUi ui;
  ui.Queue("  Scn 1 ");
  EXPECT_EQ(AskText(ui, "Nom du scénario", "Nouveau"), "Scn 1");
  EXPECT_EQ(ui.Last().kind, "text");
  EXPECT_EQ(ui.Last().text, "Nom du scénario");
  EXPECT_EQ(ui.Last().title, "Nouveau");
  ui.QueueCancel();
  EXPECT_EQ(AskText(ui, "P", "T", "défaut"), "");
  EXPECT_EQ(AskText(ui, "P", "T", " défaut "), "défaut");
}

TEST(AskConfirm, YesNoBoxWithDefaultTitle) {
  ScriptedUi ui;
  ui.QueueYes();
  EXPECT_TRUE(AskConfirm(ui, "Supprimer le scénario ?"));
  ExpectLastMessage(ui, "Supprimer le scénario ?", "Confirmation", MessageIcon::kQuestion, "yesno");
  ui.QueueNo();
  EXPECT_FALSE(AskConfirm(ui, "Encore ?", "Suppression"));
  EXPECT_EQ(ui.Last().title, "Suppression");
}

}  // namespace
}  // namespace pluvane
