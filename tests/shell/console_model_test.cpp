#include "shell/console_model.h"

#include <gtest/gtest.h>

#include "foundation/dates.h"
#include "foundation/expect_message.h"

namespace pluvane {
namespace {

TEST(ConsoleModel, DebutStartsARun) {
  ScriptedUi ui;
  ConsoleModel console(ui, false);
  console.SetStatus("OK");
  console.Debut("Génération du modèle");
  EXPECT_EQ(console.Caption(), "Génération du modèle");
  EXPECT_EQ(console.GetStatus(), "");
  EXPECT_TRUE(console.Visible());
  EXPECT_TRUE(console.CancelEnabled());
  EXPECT_FALSE(console.ClosingButtonsEnabled());
}

TEST(ConsoleModel, TheSeventeenthLineScrollsAndTheSixteenthDoesNot) {
  ScriptedUi ui;
  ConsoleModel console(ui, false);
  console.Debut("Messages");
  for (int i = 1; i <= 16; ++i) console.AfficheMessage("ligne " + std::to_string(i));
  EXPECT_EQ(console.TopIndex(), 0);
  console.AfficheMessage("ligne 17");
  EXPECT_EQ(console.TopIndex(), 2);
  console.AfficheMessage("ligne 18");
  EXPECT_EQ(console.TopIndex(), 3);
  // Each line lets pending events run.
  EXPECT_EQ(ui.PumpCount(), 18);
}

TEST(ConsoleModel, AGaugeValueOutOfRangeIsIgnored) {
  ScriptedUi ui;
  ConsoleModel console(ui, false);
  console.AfficheJauge(40, "étape 2");
  EXPECT_TRUE(console.GaugeVisible());
  EXPECT_EQ(console.GaugeValue(), 40);
  EXPECT_EQ(console.GaugeText(), "étape 2");
  console.AfficheJauge(101, "trop");
  EXPECT_EQ(console.GaugeValue(), 40);
  EXPECT_EQ(console.GaugeText(), "étape 2");
  console.AfficheJauge(-1, "moins");
  EXPECT_EQ(console.GaugeValue(), 40);
  console.AfficheJauge(40, "même valeur");
  EXPECT_EQ(console.GaugeText(), "étape 2");
  console.EffaceJauge();
  EXPECT_FALSE(console.GaugeVisible());
}

TEST(ConsoleModel, ARunEndedAfterCancelSaysCancelledEvenIfTheWorkWasDone) {
  ScriptedUi ui;
  ConsoleModel console(ui, false);
  console.Debut("Messages");
  ui.QueueYes();
  console.cmdAnnuler();
  ExpectLastMessage(ui, "Confirmer l'arrêt du traitement", "Messages", MessageIcon::kExclamation,
                    "yesno");
  EXPECT_EQ(console.GetStatus(), "ANNUL");
  console.AfficheMessage("fin du travail");
  console.Fin(true);
  EXPECT_EQ(console.Lines(),
            (std::vector<std::string>{"fin du travail", "", "<<< Traitement annulé >>>"}));
  EXPECT_FALSE(console.Visible());
}

TEST(ConsoleModel, CancelAnsweredNoKeepsRunning) {
  ScriptedUi ui;
  ConsoleModel console(ui, false);
  console.Debut("Messages");
  ui.QueueNo();
  console.cmdAnnuler();
  EXPECT_EQ(console.GetStatus(), "");
  // With no answer queued the default button is No.
  console.cmdAnnuler();
  EXPECT_EQ(console.GetStatus(), "");
}

TEST(ConsoleModel, FinWithoutClosingLeavesAPaleListAndTheClosingButtons) {
  ScriptedUi ui;
  ConsoleModel console(ui, true);
  console.Debut("Messages");
  console.AfficheJauge(50, "");
  console.AfficheMessage("ok");
  console.Fin(false);
  EXPECT_TRUE(console.Visible());
  EXPECT_TRUE(console.Pale());
  EXPECT_FALSE(console.GaugeVisible());
  EXPECT_TRUE(console.ClosingButtonsEnabled());
  EXPECT_FALSE(console.CancelEnabled());
  EXPECT_EQ(console.Lines(),
            (std::vector<std::string>{"ok", "", "<<< Traitement terminé >>>", ""}));
  EXPECT_EQ(ConsoleModel::kPaleColour, 16777152);
  console.cmdOk();
  EXPECT_EQ(console.GetStatus(), "OK");
  EXPECT_FALSE(console.Visible());
}

TEST(ConsoleModel, AFullListOffersAPrintoutAndStartsAgain) {
  ScriptedUi ui;
  ConsoleModel console(ui, false);
  console.Debut("Messages");
  console.SetCapacity(3);
  for (int i = 1; i <= 3; ++i) console.AfficheMessage(std::to_string(i));
  ui.QueueYes();
  console.AfficheMessage("4");
  EXPECT_EQ(ui.Messages().front().text,
            "Liste pleine : voulez-vous imprimer ces messages avant de les effacer");
  ASSERT_EQ(ui.printed.size(), 1u);
  const auto& page = ui.printed.front();
  ASSERT_EQ(page.size(), 5u);
  EXPECT_EQ(page[0].rfind("Messages - édité le ", 0), 0u);
  EXPECT_EQ(page[1], "");
  EXPECT_EQ(page[4], "3");
  EXPECT_EQ(console.Lines(), (std::vector<std::string>{"4"}));
  console.AfficheMessage("5");
  console.AfficheMessage("6");
  ui.QueueNo();
  console.AfficheMessage("7");
  EXPECT_EQ(ui.printed.size(), 1u);
  EXPECT_EQ(console.Lines(), (std::vector<std::string>{"7"}));
}

TEST(ConsoleModel, APrintingFaultIsShownAndTheListStays) {
  ScriptedUi ui;
  ConsoleModel console(ui, true);
  console.AfficheMessage("a");
  ui.print_error = "Impression annulée";
  EXPECT_FALSE(console.cmdImprimer());
  ExpectLastMessage(ui, "Impression annulée", "Messages", MessageIcon::kCritical);
  EXPECT_EQ(console.Lines().size(), 1u);
}

TEST(ConsoleModel, PasteIsRefusedAndCopyJoinsWithLineFeeds) {
  ScriptedUi ui;
  ConsoleModel console(ui, true);
  console.PasteRefused();
  ExpectLastMessage(ui, "Coller avec Ctrl+V n'est pas permis", "Messages",
                    MessageIcon::kExclamation);
  EXPECT_EQ(ConsoleModel::CopyText({"a", "b", "c"}), "a\nb\nc");
}

TEST(Dates, FrenchDateTime) {
  std::tm when{};
  when.tm_mday = 5;
  when.tm_mon = 10;
  when.tm_year = 126;
  when.tm_hour = 14;
  when.tm_min = 3;
  when.tm_sec = 27;
  EXPECT_EQ(FrenchDateTime(when), "05 novembre 2026 14:03:27");
  when.tm_mon = 7;
  EXPECT_EQ(FrenchDateTime(when), "05 août 2026 14:03:27");
}

}  // namespace
}  // namespace pluvane
