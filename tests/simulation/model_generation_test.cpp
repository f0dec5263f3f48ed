#include "simulation/model_generation.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "simulation/model_fixture.h"

namespace pluvane {
namespace {

class Generation : public ModelTest {
 protected:
  int Generate(const std::string& name = "Scn-1_reseau",
               const std::vector<ModelStep>& steps = ModelSteps()) {
    ModelContext context = Context();
    return GenerateModel(context, name, steps);
  }
  std::string Msg() const { return ReadBytes(ModelFile(".msg")); }
  std::string MsgHead() const {
    return "<<< D\xE9"
           "but du traitement >>>\r\n\r\n"
           "Fichiers mis en oeuvre pour le mod\xE8le Scn-1_reseau :\r\n\r\n";
  }
  std::string Paths(const std::vector<std::string>& extensions) const {
    std::string lines;
    for (const auto& e : extensions) lines += ModelFile(e) + "\r\n";
    return lines;
  }
};

TEST_F(Generation, EightStepsWithTheirProgressAndLog) {
  BuildReference();
  EXPECT_EQ(Generate(" Scn-1_reseau  "), 8);
  EXPECT_EQ(state.ModelName, "Scn-1_reseau");
  EXPECT_EQ(ui.Progress(), (std::vector<int>{12, 25, 38, 50, 62, 75, 88, 100, 0}));
  EXPECT_EQ(ReadBytes(folder.File("Scn-1/scenario.nom")), "Scn-1_reseau\r\n");
  EXPECT_EQ(
      Msg(),
      MsgHead() + Paths({".NOD", ".GEN", ".LI1", ".LI2", ".BRN", ".SEC", ".APP", ".PLU"}) + "\r\n");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(Generation, AnEmptyNameIsRefused) {
  EXPECT_EQ(Generate("   "), 0);
  ExpectLastMessage(ui, "nom de fichier du réseau inconnu.", "", MessageIcon::kNone);
  EXPECT_TRUE(std::filesystem::is_empty(state.ModelFolder));
  EXPECT_TRUE(ui.Progress().empty());
}

TEST_F(Generation, OldFilesAreReplaced) {
  BuildReference();
  WriteBytes(ModelFile(".APP"), "vieux contenu");
  WriteBytes(ModelFile(".PLU"), "vieille pluie");
  EXPECT_EQ(Generate(), 8);
  EXPECT_EQ(ReadBytes(ModelFile(".APP")), Expected("reference.APP"));
  // The rain file is written anew, and the .Scn beside it.
  EXPECT_NE(ReadBytes(ModelFile(".PLU")), "vieille pluie");
  EXPECT_TRUE(FileExist(ModelFile(".Scn")));
}

TEST_F(Generation, ARunTimeErrorEndsTheDriver) {
  BuildReference();
  std::filesystem::create_directories(ModelFile(".GEN"));  // cannot be opened as a file
  EXPECT_EQ(Generate(), 2);
  EXPECT_EQ(Msg(), MsgHead() + Paths({".NOD"}));
  EXPECT_EQ(ui.Progress(), (std::vector<int>{12, 25, 0}));
  EXPECT_FALSE(FileExist(ModelFile(".LI1")));
  EXPECT_TRUE(ui.Empty());
}

TEST_F(Generation, TheLinkWritersTrapTheirOwnErrors) {
  BuildReference();
  std::filesystem::create_directories(ModelFile(".LI1"));
  EXPECT_EQ(Generate(), 8);
  ExpectLastMessage(ui, "Erreur d'accès au chemin/fichier\rGenFicLi1", "Pluvane (erreur n°75, L0)",
                    MessageIcon::kExclamation);
  EXPECT_EQ(ReadBytes(ModelFile(".APP")), Expected("reference.APP"));
}

TEST_F(Generation, AMissingScenarioLeavesOutTheGeneralFileOnly) {
  BuildReference();
  state.ScenarioName = "Scn-9";
  EXPECT_EQ(Generate(), 8);
  EXPECT_FALSE(FileExist(ModelFile(".GEN")));
  EXPECT_EQ(ReadBytes(ModelFile(".NOD")), Expected("reference.NOD"));
  // The general file's check speaks first, then the rain step finds no scenario.
  ASSERT_EQ(ui.Messages().size(), 2u);
  EXPECT_EQ(ui.Messages()[0].title, "Contrôle de cohérence");
  ExpectLastMessage(ui, "scenario de pluie non trouvé !", "", MessageIcon::kNone);
}

TEST_F(Generation, TheRainWriterPlugsIntoItsStep) {
  BuildReference();
  std::vector<ModelStep> steps = ModelSteps();
  ASSERT_EQ(steps.size(), 8u);
  ASSERT_EQ(steps.back().extension, ".PLU");
  std::string given;
  steps.back().write = [&](ModelContext& context, const std::string& path) {
    given = path;
    WriteBytes(path, context.state.ModelName);
    return 1;
  };
  EXPECT_EQ(Generate("Scn-1_reseau", steps), 8);
  EXPECT_EQ(given, ModelFile(".PLU"));
  EXPECT_EQ(ReadBytes(ModelFile(".PLU")), "Scn-1_reseau");
}

TEST_F(Generation, TheReachesShareTheStepOfTheRecordFile) {
  const std::vector<ModelStep>& steps = ModelSteps();
  std::string shared;
  int counted = 0;
  for (const ModelStep& step : steps) {
    if (!step.shows_progress) shared += step.extension;
    if (step.counts) ++counted;
  }
  EXPECT_EQ(shared, ".BRN");
  EXPECT_EQ(counted, 7);  // plus the first: 8
}

}  // namespace
}  // namespace pluvane
