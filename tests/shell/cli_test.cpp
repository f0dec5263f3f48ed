#include "shell/cli.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "drawing/surface.h"
#include "simulation/model_fixture.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

struct CliRun {
  int status;
  std::string out;
  std::string err;
};

CliRun RunCommand(const std::vector<std::string>& args, const std::string& app_path = PLUVANE_BIN,
                  const std::vector<CliCommand>& commands = CoreCliCommands()) {
  std::ostringstream out, err;
  const int status = RunCli(args, commands, app_path, out, err);
  return {status, out.str(), err.str()};
}

TEST(Cli, HelpListsTheCommands) {
  CliRun run = RunCommand({"--help"});
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("usage: pluvane-cli COMMAND"), std::string::npos);
  EXPECT_NE(run.out.find("  info NETWORK.mtf\n"), std::string::npos);
  // In the order of their names.
  EXPECT_LT(run.out.find("  generate "), run.out.find("  info "));
  EXPECT_LT(run.out.find("  recap "), run.out.find("  run "));
  EXPECT_EQ(RunCommand({"info", "--help"}).status, 0);
  EXPECT_EQ(RunCommand({"info", "--help"}).out, "usage: pluvane-cli\n" + CoreCliCommands()[0].usage);
}

TEST(Cli, BadUsageIsTwo) {
  EXPECT_EQ(RunCommand({}).status, 2);
  CliRun unknown = RunCommand({"dessine"});
  EXPECT_EQ(unknown.status, 2);
  EXPECT_EQ(unknown.err.rfind("pluvane-cli: commande inconnue : dessine\n", 0), 0u);
  EXPECT_EQ(RunCommand({"info"}).status, 2);
  EXPECT_EQ(RunCommand({"generate", "a.mtf", "--scenario"}).status, 2);
}

TEST(Cli, ACommandOfTheTableRunsWithItsUsageAndMessages) {
  std::vector<std::string> seen;
  std::vector<CliCommand> commands = CoreCliCommands();
  commands.push_back({"essai", "  essai WORD    repeats a word\n",
                      [&](const std::vector<std::string>& args, const std::string& app_path,
                          std::ostream& out, ScriptedUi& ui) {
                        seen = args;
                        seen.push_back(app_path);
                        if (args.empty()) return 2;
                        ui.ShowMessage("mot " + args[0], "Essai", MessageIcon::kInformation);
                        out << args[0] << "\n";
                        return 0;
                      }});
  CliRun run = RunCommand({"essai", "bonjour"}, "/opt/pluvane", commands);
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "bonjour\n");
  EXPECT_EQ(run.err, "Essai: mot bonjour\n");
  EXPECT_EQ(seen, (std::vector<std::string>{"bonjour", "/opt/pluvane"}));
  EXPECT_NE(RunCommand({"--help"}, PLUVANE_BIN, commands).out.find("  essai WORD    repeats a word\n"),
            std::string::npos);
  run = RunCommand({"essai"}, PLUVANE_BIN, commands);
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.err, "usage: pluvane-cli\n  essai WORD    repeats a word\n");
}

const std::string kDemo = std::string(PLUVANE_DATA) + "/Exemples/Demo.mtf";

TEST(CliInfo, CountsEveryTypeOfTheShippedExample) {
  const std::string ini = std::string(PLUVANE_BIN) + "/pluvane.ini";
  const std::string ini_before = ReadBytes(ini);
  CliRun run = RunCommand({"info", kDemo});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out,
            "1\t9\tBassins Versants\n"
            "2\t9\tRoutage\n"
            "3\t9\tExutoire de BV\n"
            "4\t1\tHydrogramme\n"
            "5\t23\tCollecteur circulaire\n"
            "6\t4\tCollecteur paramétrique fermé\n"
            "7\t4\tCollecteur paramétrique ouvert\n"
            "8\t1\tDéversoir DQQ\n"
            "9\t1\tDéversoir DQZ\n"
            "10\t1\tBassin RS\n"
            "11\t1\tBassin RSP\n"
            "12\t1\tPluviographe\n"
            "13\t1\tRaccord\n"
            "14\t1\tCondition Limite aval\n"
            "16\t1\tMarquage de sortie\n"
            "21\t1\t\n"
            "99\t30\tNoeud\n"
            "100\t1\tBief\n"
            "101\t2\tSection paramétrique\n"
            "102\t3\tCoef. de Montana\n"
            "103\t1\tPluie réelle H(t)\n"
            "104\t1\tPluie Caquot\n"
            "105\t1\tPluie simple triangle\n"
            "106\t1\tPluie double triangle\n"
            "107\t1\tPluie synthétique I(t)\n"
            "111\t1\t\n"
            "112\t1\t\n"
            "150\t3\t\n"
            "Scénario courant : Decennale\n"
            "Calé : oui\n");
  // A look at a network leaves the recent files of the desktop program alone.
  EXPECT_EQ(ReadBytes(ini), ini_before);
}

TEST(CliInfo, ANetworkWithoutScenarioNorCalibration) {
  TempFolder folder;
  const std::string path = folder.File("petit.mtf");
  {
    Surface surface;
    surface.AddObject(kKindPicture, 0, 0, 100, 100);
    surface.SetObjTag("iName", "99");
    surface.SetObjTag("Id", "Nod_1");
    surface.AddObject(kKindPicture, 0, 0, 100, 100);
    surface.SetObjTag("iName", "14");
    surface.SetObjTag("Id", "Cla_1");
    surface.AddObject(kKindRectangle, 0, 0, 10, 10);
    surface.SetObjTag("Id", "ParamReseau");
    ASSERT_TRUE(surface.SaveFile(path, kNativeFormat));
  }
  CliRun run = RunCommand({"info", path});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out,
            "14\t1\tCondition Limite aval\n"
            "99\t1\tNoeud\n"
            "Scénario courant : \n"
            "Calé : non\n");
}

TEST(CliInfo, AFileThatIsNoNetworkIsRefusedWithTheProgramsMessage) {
  TempFolder folder;
  const std::string text = folder.File("notes.txt");
  WriteBytes(text, "pas un réseau\n");
  CliRun run = RunCommand({"info", text});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "Pluvane: " + text + " n'est pas de type Pluvane !!!\n");

  const std::string broken = folder.File("casse.mtf");
  WriteBytes(broken, "{\"format\":\"pluvane-network\",");
  run = RunCommand({"info", broken});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err,
            "Pluvane: Le fichier " + broken + " ne peut pas être lu comme un réseau Pluvane.\n");

  run = RunCommand({"info", folder.File("absent.mtf")});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "Pluvane: Le fichier " + folder.File("absent.mtf") +
                         " ne peut pas être lu comme un réseau Pluvane.\n");
}

TEST(CliInfo, NeedsTheConfigurationBesideThePrograms) {
  TempFolder folder;
  CliRun run = RunCommand({"info", kDemo}, folder.Path());
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err.rfind("Pluvane: Ce fichier de paramétrage est requis !", 0), 0u);
}

TEST(CliInfo, TakesExactlyOneNetwork) {
  EXPECT_EQ(RunCommand({"info"}).status, 2);
  EXPECT_EQ(RunCommand({"info", kDemo, kDemo}).status, 2);
  CliRun run = RunCommand({"info", "-x"});
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.err.find("  info NETWORK.mtf"), std::string::npos);
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
