#include "simulation/record_lists.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "simulation/general_file.h"
#include "simulation/model_fixture.h"

namespace pluvane {
namespace {

class RecordFiles : public ModelTest {
 protected:
  using Writer = int (*)(ModelContext&, const std::string&);
  std::string Write(Writer writer, const std::string& extension) {
    ModelContext context = Context();
    count = writer(context, ModelFile(extension));
    return ReadBytes(ModelFile(extension));
  }
  int count = -1;
};

TEST_F(RecordFiles, DiagnosticModeGivesZero) {
  const int scenario = Scenario("Scn-1");
  Set(scenario, {{"CalcMode", "1: mode diagnostic "}, {"CalcDuree", "90.125"}, {"CalcDt", ""}});
  state.ModelName = "Scn-1_reseau";
  EXPECT_EQ(Write(GenFicGen, ".GEN"), "Scn-1_reseau\r\n    0\r\n     90.13\r\n      0.00\r\n");
  EXPECT_EQ(count, 1);
}

TEST_F(RecordFiles, AMissingScenarioWritesNoGeneralFile) {
  Scenario("Scn-2");
  state.ScenarioName = "Scn-1";
  EXPECT_EQ(Write(GenFicGen, ".GEN"), "");
  EXPECT_EQ(count, 0);
  EXPECT_FALSE(FileExist(ModelFile(".GEN")));
  ExpectLastMessage(ui,
                    "Le scénario Scn-1 est mal paramétré.\r\n\r\n"
                    "Revoir 'Paramétrage d'un scénario..., Réseau/Paramétrage...'",
                    "Contrôle de cohérence", MessageIcon::kNone);
}

TEST_F(RecordFiles, AReachWithoutCollectorsIsItsIdAlone) {
  Reach(12, {});
  EXPECT_EQ(Write(GenFicBrn, ".BRN"), "    1\r\n        12\r\n");
  EXPECT_EQ(count, 1);
}

TEST_F(RecordFiles, ReachFieldsAreCutToTen) {
  Set(Reach(4, {"Collecteur_12", "Cac_2"}), {{"Id", "123456789012"}});
  EXPECT_EQ(Write(GenFicBrn, ".BRN"), "    1\r\n1234567890Collecteur     Cac_2\r\n");
}

TEST_F(RecordFiles, NoReachGivesTheCountAlone) { EXPECT_EQ(Write(GenFicBrn, ".BRN"), "    0\r\n"); }

TEST_F(RecordFiles, ASectionWithoutPointsGivesTwoEmptyLines) {
  Record({{"iName", "101"}, {"Id", "Vide"}, {"NbPt", "0"}, {"X1", "3"}});
  EXPECT_EQ(Write(GenFicSec, ".SEC"), "'Vide'\r\n\r\n\r\n");
  EXPECT_EQ(count, 1);
}

TEST_F(RecordFiles, AHydrographWithoutPointsLosesItsDryWeatherFlow) {
  Set(Symbol("X_HY", 0, 0, Node(100, 100)), {{"Qsec", "0.5"}});
  EXPECT_EQ(Write(GenFicApp, ".APP"), "'Hy_1'\r\n");
}

TEST_F(RecordFiles, HydrographValuesAreRoundedToWholeNumbers) {
  Set(Symbol("X_HY", 0, 0, Node(100, 100)), {{"libell", " Débit été "},
                                             {"NbPt", "2"},
                                             {"X1", "2.5"},
                                             {"Y1", "-0.5"},
                                             {"X2", "3.5"},
                                             {"Y2", "abc"},
                                             {"Qsec", "0.125"}});
  EXPECT_EQ(Write(GenFicApp, ".APP"),
            "' D\xE9"
            "bit \xE9t\xE9 '\r\n"
            "        3.       -1.      0.13\r\n"
            "        4.        0.\r\n");
}

}  // namespace
}  // namespace pluvane
