#include "simulation/engine_run.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "foundation/ini_profile.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "foundation/text.h"
#include "shell/app_state.h"
#include "shell/console_model.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

// An application folder with stand-in engine programs written as shell
// scripts, and a model folder of scenario "Scn1" for network "Demo".
class EngineRunTest : public ::testing::Test {
 protected:
  EngineRunTest() {
    state_.AppPath = app_.Path();
    state_.ScenarioName = "Scn1";
    state_.NetworkBase = "Demo";
    state_.ModelName = "Scn1_Demo";
    state_.ModelFolder = app_.File("Scn1");
    fs::create_directories(state_.ModelFolder);
    msg_ = JoinPath(state_.ModelFolder, "Scn1_Demo.msg");
    WriteTextLines(msg_, {"tête"});
  }
  void Engine(const std::string& name, const std::string& body) {
    const std::string path = app_.File(name);
    WriteBytes(path, "#!/bin/sh\n" + body);
    ::chmod(path.c_str(), 0755);
  }
  std::string Model(const std::string& name) { return JoinPath(state_.ModelFolder, name); }
  std::vector<std::string> Log() {
    std::vector<std::string> lines;
    ReadTextLines(msg_, lines);
    return lines;
  }

  TempFolder app_;
  AppState state_;
  ScriptedUi ui_;
  std::string msg_;
};

TEST_F(EngineRunTest, EnginesAreFoundWhateverTheirCase) {
  EXPECT_EQ(EngineCommand(state_, "Velmar"), "");
  Engine("VELMAR", "exit 0\n");
  EXPECT_EQ(EngineCommand(state_, "Velmar"), app_.File("VELMAR"));
}

TEST_F(EngineRunTest, AWindowsProgramGoesThroughTheLauncher) {
  WriteBytes(app_.File("Sidrel.exe"), "MZ");
  EXPECT_EQ(EngineCommand(state_, "Sidrel"), app_.File("Sidrel.exe"));
  IniWrite("Autres", "Lanceur", "wine", app_.File("pluvane.ini"));
  EXPECT_EQ(EngineCommand(state_, "Sidrel"), "wine " + app_.File("Sidrel.exe"));
}

TEST_F(EngineRunTest, WithoutVelmarTheLogSaysTheGenerationSucceeded) {
  EXPECT_TRUE(RunVelmar(state_, ui_));
  EXPECT_EQ(Log(), (std::vector<std::string>{"tête", "", "Génération réussie (Velmar)", ""}));
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(EngineRunTest, VelmarErrZeroIsSuccessAndOneIsFailure) {
  Engine("Velmar", "echo 0 > Velmar.err\necho 'modèle lu' > Velmar.log\n");
  EXPECT_TRUE(RunVelmar(state_, ui_));
  EXPECT_EQ(Log(), (std::vector<std::string>{"tête", "", "Génération réussie (Velmar)", "",
                                             "modèle lu"}));
  WriteTextLines(msg_, {"tête"});
  Engine("Velmar", "echo '  1  erreurs' > Velmar.err\necho 'noeud 4 isolé' > Velmar.log\n");
  EXPECT_FALSE(RunVelmar(state_, ui_));
  EXPECT_EQ(Log(), (std::vector<std::string>{
                       "tête", "", "Erreur détectée dans Velmar, génération non réussie.", "",
                       "noeud 4 isolé"}));
}

TEST_F(EngineRunTest, OldResultsAndEngineFilesGoBeforeTheStart) {
  for (const char* name : {"Scn1_Demo.Lim", "Scn1_Demo.HYS", "Scn1_Demo.BV", "Velmar.err",
                           "Scn1.Deb", "Scn1.Sor", "Sidrel.err"}) {
    WriteBytes(Model(name), "1");
  }
  EXPECT_TRUE(RunVelmar(state_, ui_));
  RunSidrel(state_, ui_);
  for (const char* name : {"Scn1_Demo.Lim", "Scn1_Demo.HYS", "Scn1_Demo.BV", "Velmar.err",
                           "Scn1.Deb", "Scn1.Sor", "Sidrel.err"}) {
    EXPECT_FALSE(fs::exists(Model(name))) << name;
  }
}

TEST_F(EngineRunTest, SidrelCmdInTheModelFolderWarnsWithTheKeptWording) {
  WriteBytes(Model("sidrel.cmd"), "x");
  EXPECT_TRUE(RunVelmar(state_, ui_));
  RunSidrel(state_, ui_);
  EXPECT_EQ(Log(), (std::vector<std::string>{
                       "tête", "",
                       "Pluvane a détecté l'existence du fichier 'runoff.cmd' dans le répertoire",
                       state_.ModelFolder, "Veuillez le déplacer dans un autre répertoire.", "", "",
                       "",
                       "Pluvane a détecté l'existence du fichier 'sidrel.cmd' dans le répertoire",
                       state_.ModelFolder, "Veuillez le déplacer dans un autre répertoire.", "",
                       ""}));
}

TEST_F(EngineRunTest, AFullRunLogsVelmarThenSidrelEachWithItsLogAndTheResults) {
  Engine("Velmar", "echo 0 > Velmar.err\necho 'Velmar 2.1 : 12 noeuds' > Velmar.log\n");
  Engine("Sidrel",
         "echo 0 > Sidrel.err\nprintf 'Sidrel 3.0\\r\\nfin normale\\r\\n' > Sidrel.log\n"
         "echo r > Scn1_Demo.Hys\necho r > Scn1_Demo.Deb\necho r > Scn1_Demo.App\n");
  ASSERT_TRUE(RunVelmar(state_, ui_));
  RunSidrel(state_, ui_);
  EXPECT_EQ(Log(), (std::vector<std::string>{"tête",
                                             "",
                                             "Génération réussie (Velmar)",
                                             "",
                                             "Velmar 2.1 : 12 noeuds",
                                             "",
                                             "Exécution réussie (Sidrel).",
                                             "",
                                             "Les fichier suivants sont générés:",
                                             "",
                                             Model("Scn1_Demo.App"),
                                             Model("Scn1_Demo.Hys"),
                                             Model("Scn1_Demo.Deb"),
                                             "",
                                             "Sidrel 3.0",
                                             "fin normale"}));
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(EngineRunTest, AFailingSidrelIsLogged) {
  Engine("Sidrel", "echo 2 > Sidrel.err\n");
  RunSidrel(state_, ui_);
  EXPECT_EQ(Log(), (std::vector<std::string>{
                       "tête", "", "Erreur détectée dans Sidrel, exécution non réussie.", ""}));
}

TEST_F(EngineRunTest, TheWindowKeepsItsEventsDuringASlowRun) {
  Engine("Velmar", "sleep 1\necho 0 > Velmar.err\n");
  EXPECT_TRUE(RunVelmar(state_, ui_));
  EXPECT_GT(ui_.PumpCount(), 5);
}

TEST_F(EngineRunTest, TheLogIsShownInTheConsole) {
  ConsoleModel console(ui_, true);
  ShowModelLog(state_, console, msg_);
  EXPECT_EQ(console.Caption(), "Génération du modèle Scn1");
  EXPECT_EQ(console.Lines().front(), "tête");
  EXPECT_TRUE(console.Visible());
  ConsoleModel untouched(ui_, true);
  ShowModelLog(state_, untouched, Model("absent.msg"));
  EXPECT_FALSE(untouched.Visible());
}

class CleanModelFilesTest : public EngineRunTest {
 protected:
  CleanModelFilesTest() {
    std::vector<std::string> lines = {"l1", "l2", "l3", "l4"};
    for (const char* ext : {".NOD", ".GEN", ".LI1", ".LI2", ".BRN", ".SEC", ".APP", ".PLU"}) {
      const std::string path = Model(std::string("Scn1_Demo") + ext);
      WriteBytes(path, "x");
      lines.push_back(path);
    }
    WriteTextLines(msg_, lines);
    for (const char* name : {"Scn1.err", "Scn1.log", "Scn1.msg", "profil.mst"}) {
      WriteBytes(Model(name), "x");
    }
  }
  void PlaceNette(const std::string& value) {
    IniWrite("Autres", "Place Nette", value, app_.File("pluvane.ini"));
  }
};

TEST_F(CleanModelFilesTest, PlaceNetteOuiKeepsTheAppAndTheLog) {
  PlaceNette(" oui ");
  CleanModelFiles(state_, msg_, 8);
  for (const char* ext : {".NOD", ".GEN", ".LI1", ".LI2", ".BRN", ".SEC", ".PLU"}) {
    EXPECT_FALSE(fs::exists(Model(std::string("Scn1_Demo") + ext))) << ext;
  }
  EXPECT_TRUE(fs::exists(Model("Scn1_Demo.APP")));
  EXPECT_TRUE(fs::exists(msg_));
  EXPECT_FALSE(fs::exists(Model("Scn1.err")));
  EXPECT_FALSE(fs::exists(Model("Scn1.msg")));
  EXPECT_TRUE(fs::exists(Model("profil.mst")));
}

TEST_F(CleanModelFilesTest, AFailedGenerationOfSixStepsRemovesTheFirstSixOnly) {
  PlaceNette("1");
  CleanModelFiles(state_, msg_, 6);
  EXPECT_FALSE(fs::exists(Model("Scn1_Demo.SEC")));
  EXPECT_TRUE(fs::exists(Model("Scn1_Demo.APP")));
  EXPECT_TRUE(fs::exists(Model("Scn1_Demo.PLU")));
}

TEST_F(CleanModelFilesTest, NothingGoesWithoutPlaceNette) {
  PlaceNette("non");
  CleanModelFiles(state_, msg_, 8);
  EXPECT_TRUE(fs::exists(Model("Scn1_Demo.NOD")));
  PlaceNette("-1");
  CleanModelFiles(state_, msg_, 0);
  EXPECT_TRUE(fs::exists(Model("Scn1_Demo.NOD")));
}

}  // namespace
}  // namespace pluvane
