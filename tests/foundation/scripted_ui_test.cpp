#include "foundation/scripted_ui.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

TEST(ScriptedUi, RecordsMessagesAndAnswersFromTheQueue) {
  ScriptedUi ui;
  std::vector<std::string> echoed;
  ui.echo = [&](const std::string& line) { echoed.push_back(line); };
  ui.QueueNo();
  ui.ShowMessage("Bonjour", "Pluvane", MessageIcon::kInformation);
  EXPECT_FALSE(ui.AskYesNo("Continuer ?", "Question", MessageIcon::kQuestion, true));
  EXPECT_TRUE(ui.AskYesNo("Encore ?", "Question", MessageIcon::kQuestion, true));
  EXPECT_FALSE(ui.AskYesNo("Arrêter ?", "Question", MessageIcon::kQuestion, false));
  ui.QueueCancel();
  EXPECT_EQ(ui.AskYesNoCancel("Sauver ?", "Fichier", MessageIcon::kQuestion), Answer::kCancel);
  EXPECT_EQ(ui.Texts(),
            (std::vector<std::string>{"Bonjour", "Continuer ?", "Encore ?", "Arrêter ?", "Sauver ?"}));
  EXPECT_EQ(echoed.front(), "Pluvane: Bonjour");
  EXPECT_EQ(ui.Last().title, "Fichier");
}

TEST(ScriptedUi, TextAndFileQuestions) {
  ScriptedUi ui;
  ui.Queue("Nouveau nom");
  ui.QueueCancel();
  EXPECT_EQ(ui.AskText("Nom ?", "Titre", "défaut"), "Nouveau nom");
  EXPECT_EQ(ui.AskText("Nom ?", "Titre", "défaut"), std::nullopt);
  EXPECT_EQ(ui.AskText("Nom ?", "Titre", "défaut"), "défaut");
  EXPECT_EQ(ui.AskOpenFile("Ouvrir", "*.mtf", "mtf", ""), "");
  ui.Queue("/tmp/a.mtf");
  EXPECT_EQ(ui.AskOpenFile("Ouvrir", "*.mtf", "mtf", ""), "/tmp/a.mtf");
}

}  // namespace
}  // namespace pluvane
