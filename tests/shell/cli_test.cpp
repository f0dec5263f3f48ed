#include "shell/cli.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "foundation/test_files.h"
#include "simulation/model_fixture.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

struct CliRun {
  int status;
  std::string out;
  std::string err;
};

CliRun RunCommand(const std::vector<std::string>& args, const std::string& app_path = PLUVANE_BIN) {
  std::ostringstream out, err;
  const int status = RunCli(args, app_path, out, err);
  return {status, out.str(), err.str()};
}

TEST(Cli, HelpListsTheCommands) {
  CliRun run = RunCommand({"--help"});
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("usage: pluvane-cli COMMAND"), std::string::npos);
  EXPECT_NE(run.out.find("  plot SCRIPT.Mst [--ctl OUT.ctl]"), std::string::npos);
  EXPECT_EQ(RunCommand({"plot", "--help"}).status, 0);
}

TEST(Cli, BadUsageIsTwo) {
  EXPECT_EQ(RunCommand({}).status, 2);
  CliRun unknown = RunCommand({"dessine"});
  EXPECT_EQ(unknown.status, 2);
  EXPECT_EQ(unknown.err.rfind("pluvane-cli: commande inconnue : dessine\n", 0), 0u);
  EXPECT_EQ(RunCommand({"plot"}).status, 2);
  EXPECT_EQ(RunCommand({"plot", "a.Mst", "--ctl"}).status, 2);
}

TEST(Cli, PlotCompilesPageOneAndCopiesTheControlFile) {
  TempFolder folder;
  const std::string script = folder.File("s.Mst");
  fs::copy_file(std::string(PLUVANE_TESTS) + "/plot/data/scripts/s01_writer_example.Mst", script);
  const std::string ctl = folder.File("copie.ctl");
  CliRun run = RunCommand({"plot", script, "--ctl", ctl});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(ReadBytes(ctl), ReadBytes(std::string(PLUVANE_TEST_DATA) +
                                      "/../../plot/data/expected/s01_writer_example.ctl"));
  EXPECT_TRUE(fs::exists(folder.File("P1.ctl")));
}

TEST(Cli, PlotOfAMissingScriptIsRefusedWithItsMessage) {
  TempFolder folder;
  CliRun run = RunCommand({"plot", folder.File("absent.Mst")});
  EXPECT_EQ(run.status, 1);
  EXPECT_FALSE(run.err.empty());
  EXPECT_NE(run.err.find(": "), std::string::npos);
}

// A complete application folder (pluvane.ini, Symboles...) of its own, so that
// the recent files of the runs stay out of the build's.
class CliGenerate : public ModelTest {
 protected:
  CliGenerate() {
    fs::copy(PLUVANE_DATA, app.Path(), fs::copy_options::recursive);
    BuildReference();
    Record({{"iName", "112"}, {"iGroup", "-1"}, {"Id", "Scn-1"}, {"UsId", "Référence"}});
    network = folder.File("reseau.mtf");
    EXPECT_TRUE(surface.SaveFile(network, kNativeFormat));
    fs::remove_all(state.ModelFolder);
  }
  CliRun Generate(std::vector<std::string> args) {
    args.insert(args.begin(), "generate");
    return RunCommand(args, app.Path());
  }

  TempFolder app;
  std::string network;
};

TEST_F(CliGenerate, GeneratesTheCurrentScenarioBesideTheNetwork) {
  CliRun run = Generate({network});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, folder.File("Scn-1") + "\n");
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(ReadBytes(ModelFile(".LI1")), Expected("reference.LI1"));
  EXPECT_EQ(ReadBytes(ModelFile(".BRN")), Expected("reference.BRN"));
  EXPECT_EQ(ReadBytes(ModelFile(".GEN")), Expected("reference.GEN"));
  EXPECT_EQ(ReadBytes(ModelFile(".NOD")).substr(0, 22), "         4         2\r\n");
  EXPECT_EQ(ReadBytes(folder.File("Scn-1/scenario.nom")), "Scn-1_reseau\r\n");
  EXPECT_TRUE(fs::exists(ModelFile(".msg")));
}

TEST_F(CliGenerate, TheScenarioOptionIsCheckedFirst) {
  CliRun run = Generate({network, "--scenario", "Scenario-dixsept7"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err,
            "Contrôle de cohérence: Le nom du scénario de calcul doit être limité à 16 "
            "caractères\n");
  EXPECT_FALSE(fs::exists(folder.File("Scenario-dixsept7")));
}

TEST_F(CliGenerate, AScenarioWithoutRecordIsRefused) {
  CliRun run = Generate({"--scenario", "Scn-2", network});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err.rfind("Contrôle de cohérence: Un scénario de pluie doit être défini", 0), 0u);
}

TEST_F(CliGenerate, AFailedStepEndsWithOne) {
  fs::create_directories(ModelFile(".SEC"));
  CliRun run = Generate({network});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "pluvane-cli: génération interrompue à l'étape 5 sur 8\n");
}

TEST_F(CliGenerate, BadUsageIsTwo) {
  EXPECT_EQ(Generate({}).status, 2);
  EXPECT_EQ(Generate({network, "--scenario"}).status, 2);
  EXPECT_EQ(Generate({network, "autre.mtf"}).status, 2);
  EXPECT_NE(RunCommand({"--help"}).out.find("  generate NETWORK.mtf [--scenario NAME]"),
            std::string::npos);
}

}  // namespace
}  // namespace pluvane
