#include "simulation/scenario_check.h"

#include <gtest/gtest.h>

#include "drawing/surface_helpers.h"
#include "foundation/expect_message.h"
#include "shell/app_state.h"
#include "simulation/model_fixture.h"
#include "simulation/model_names.h"

namespace pluvane {
namespace {

constexpr const char kTitle[] = "Contrôle de cohérence";

class ScenarioCheck : public ModelTest {
 protected:
  bool Check(const std::string& name) { return CheckScenarioNames(surface, state, ui, name); }
  void ExpectRefused(const std::string& name, const std::string& text) {
    EXPECT_TRUE(Check(name));
    ExpectLastMessage(ui, text, kTitle, MessageIcon::kInformation);
    EXPECT_EQ(ui.Messages().size(), 1u);
  }
};

TEST_F(ScenarioCheck, SixteenCharactersAreAccepted) {
  Scenario("Scenario-seize16");
  state.NetworkFile = folder.File("r.mtf");
  EXPECT_FALSE(Check("Scenario-seize16"));
  EXPECT_TRUE(ui.Empty());
}

TEST_F(ScenarioCheck, SeventeenAreRefusedBeforeAnythingElse) {
  state.NetworkFile.clear();  // would be the next refusal
  ExpectRefused("Scenario-dixsept7",
                "Le nom du scénario de calcul doit être limité à 16 caractères");
}

TEST_F(ScenarioCheck, CharactersAreCountedNotBytes) {
  Scenario("Scénario-été-16c");
  state.NetworkFile = folder.File("r.mtf");
  EXPECT_FALSE(Check("Scénario-été-16c"));
}

TEST_F(ScenarioCheck, AnUnsavedNetworkIsRefused) {
  Scenario("Scn-1");
  state.NetworkFile = "   ";
  ExpectRefused("Scn-1",
                "Votre réseau n'est pas encore sauvegardé\r\n\r\n"
                "Utilisez 'Fichier/Sauvegarder sous...'\r\n"
                "pour le sauvegarder sous un nom désiré.");
}

TEST_F(ScenarioCheck, AModelNameOfTwentyFourIsAccepted) {
  Scenario("Scn-1234");                                    // 8
  state.NetworkFile = folder.File("reseau-de-15car.mtf");  // 15, with "_" 24
  EXPECT_FALSE(Check("Scn-1234"));
  EXPECT_TRUE(ui.Empty());
}

TEST_F(ScenarioCheck, AModelNameOfTwentyFiveGivesItsLengthAndItself) {
  Scenario("Scn-12345");
  state.NetworkFile = folder.File("reseau-de-15car.mtf");
  ExpectRefused("Scn-12345",
                "Attention.\r\n\r\n"
                "Le nom du scénario + le caractère de liaison '_' + le nom du réseau\r\n"
                "est limité à 24 caractères.\r\n"
                "Actuellement cette concaténation présente 25 caractères.\r\n"
                "(Scn-12345_reseau-de-15car)\r\n\r\n"
                "Réduire le nom du scénario ou celui du réseau puis réessayer.");
}

constexpr const char kNoRain[] =
    "Un scénario de pluie doit être défini\r\n\r\n"
    "Utilisez 'Pluie/Choix d'un scénario...'\r\n"
    "pour définir un scénario de pluie sous un nom désiré.";

TEST_F(ScenarioCheck, AScenarioWithoutRainIsRefused) {
  Scenario("Scn-1", "  ");
  ExpectRefused("Scn-1", kNoRain);
}

TEST_F(ScenarioCheck, AMissingScenarioIsRefusedAsWithoutRain) {
  Scenario("Scn-2");
  ExpectRefused("Scn-1", kNoRain);
}

TEST_F(ScenarioCheck, TheBrowseTextPassesAsARain) {
  Scenario("Scn-1", "Parcourir...");
  EXPECT_FALSE(Check("Scn-1"));
}

TEST_F(ScenarioCheck, TheScenarioIsFoundTrimmedAndInAnyCase) {
  Scenario(" scn-1 ");
  EXPECT_FALSE(Check("SCN-1"));
  EXPECT_EQ(FindScenarioObject(surface, "Scn-1 "), FindObject(surface, "iName", 111));
}

TEST_F(ScenarioCheck, ABlankScenarioNameIsRefusedLast) {
  Scenario("");  // the choice form makes such a scenario
  ExpectRefused("  ", "\r\nLe nom du scénario de calcul n'a pas été défini");
}

TEST_F(ScenarioCheck, AllPassedCreatesTheMissingNetworkParameters) {
  Scenario("Scn-1");
  ASSERT_EQ(surface.FindById("ParamReseau"), 0);
  const int cursor = Node(10, 10);
  surface.SetCurrentObject(cursor);
  EXPECT_FALSE(Check("Scn-1"));
  const int param = surface.FindById("ParamReseau");
  ASSERT_GT(param, 10);
  EXPECT_EQ(TagOf(param, "CalcMode"), "0");
  EXPECT_EQ(surface.CurrentObject(), cursor);
  // A second check leaves the record as it is.
  EXPECT_FALSE(Check("Scn-1"));
  EXPECT_EQ(CountByTag(surface, "Id", "ParamReseau"), 1);
}

TEST(ModelNames, FolderNameAndPaths) {
  AppState state;
  state.NetworkFile = "/data/projet/Reseau.v2.mtf";
  state.ScenarioName = "Scn-1";
  SetModelNames(state);
  EXPECT_EQ(state.NetworkBase, "Reseau");
  EXPECT_EQ(state.ModelFolder, "/data/projet/Scn-1");
  EXPECT_EQ(state.ModelName, "Scn-1_Reseau");
  EXPECT_EQ(ModelFilePath(state, ".NOD"), "/data/projet/Scn-1/Scn-1_Reseau.NOD");
}

}  // namespace
}  // namespace pluvane
