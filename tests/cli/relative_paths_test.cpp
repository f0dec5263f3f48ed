// pluvane-cli started as a user starts it: from a folder of the user's, with
// paths relative to it, and leaving the desktop program's configuration as it
// was, byte for byte.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/program_folder.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class RelativePathsTest : public ::testing::Test {
 protected:
  RelativePathsTest() { ini_before_ = ReadBytes(programs_.App("pluvane.ini")); }

  // Runs a command and checks that pluvane.ini did not change.
  ProgramRun Cli(const std::string& arguments) {
    ProgramRun run = programs_.Start("pluvane-cli", arguments);
    EXPECT_EQ(ReadBytes(programs_.App("pluvane.ini")), ini_before_) << arguments;
    EXPECT_FALSE(fs::exists(programs_.Home(".config/pluvane"))) << arguments;
    return run;
  }

  ProgramFolder programs_;
  std::string ini_before_;
};

TEST_F(RelativePathsTest, InfoReadsARelativeNetwork) {
  const ProgramRun run = Cli("info Exemples/Demo.mtf");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_NE(run.output.find("Scénario courant : Decennale\n"), std::string::npos) << run.output;
}

TEST_F(RelativePathsTest, GenerateWritesTheModelBesideTheRelativeNetwork) {
  const ProgramRun run = Cli("generate Exemples/Demo.mtf");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_EQ(run.output, programs_.Work("Exemples/Decennale") + "\n");
  EXPECT_TRUE(fs::exists(programs_.Work("Exemples/Decennale/Decennale_Demo.NOD")));
}

TEST_F(RelativePathsTest, RunFindsTheRelativeNetworkAfterTheEngineChangedFolder) {
  programs_.Engine("Velmar", "echo 0 > Velmar.err\necho 'Velmar : modèle construit' > Velmar.log\n");
  programs_.Engine("Sidrel", "echo 0 > Sidrel.err\necho r > Decennale_Demo.Hys\n");
  const ProgramRun run = Cli("run ./Exemples/Demo.mtf --scenario Decennale");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_NE(run.output.find("Exécution réussie (Sidrel).\n"), std::string::npos) << run.output;
  EXPECT_TRUE(fs::exists(programs_.Work("Exemples/Decennale/Decennale_Demo.Hys")));
}

TEST_F(RelativePathsTest, RecapWritesBesideTheRelativeNetwork) {
  const ProgramRun run = Cli("recap Exemples/Demo.mtf");
  EXPECT_EQ(run.status, 0) << run.output;
  ASSERT_FALSE(run.output.empty());
  const std::string path = run.output.substr(0, run.output.size() - 1);
  EXPECT_EQ(path.rfind(programs_.Work("Exemples/Decennale") + "/", 0), 0u) << path;
  EXPECT_TRUE(fs::exists(path));
}

TEST_F(RelativePathsTest, RenderWritesARelativePicture) {
  fs::create_directories(programs_.Work("images"));
  const ProgramRun run = Cli("render Exemples/Demo.mtf -o images/demo.png --width 320");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_EQ(run.output, programs_.Work("images/demo.png") + "\n");
  EXPECT_EQ(ReadBytes(programs_.Work("images/demo.png")).substr(1, 3), "PNG");
}

TEST_F(RelativePathsTest, PlotReadsARelativeScriptAndWritesRelativeFiles) {
  fs::create_directories(programs_.Work("traces"));
  fs::copy_file(fs::path(PLUVANE_TESTS) / "plot/data/scripts/s02_curve_script.Mst",
                programs_.Work("traces/page.Mst"));
  fs::copy_file(fs::path(PLUVANE_TESTS) / "plot/data/crb.Deb", programs_.Work("traces/crb.Deb"));
  const ProgramRun run = Cli("plot traces/page.Mst --ctl page.ctl -o page.svg --width 400");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_EQ(run.output, programs_.Work("page.ctl") + "\n" + programs_.Work("page.svg") + "\n");
  EXPECT_TRUE(fs::exists(programs_.Work("traces/P1.ctl")));
  EXPECT_EQ(ReadBytes(programs_.Work("page.ctl")), ReadBytes(programs_.Work("traces/P1.ctl")));
  EXPECT_NE(ReadBytes(programs_.Work("page.svg")).find("<svg"), std::string::npos);
}

TEST_F(RelativePathsTest, RefusalsLeaveTheConfigurationAlone) {
  EXPECT_EQ(Cli("info Exemples/Absent.mtf").status, 1);
  EXPECT_EQ(Cli("generate Exemples/Demo.mtf --scenario Inconnu").status, 1);
  EXPECT_EQ(Cli("run Exemples/Absent.mtf").status, 1);
  EXPECT_EQ(Cli("recap Exemples/Absent.mtf").status, 1);
  EXPECT_EQ(Cli("render Exemples/Absent.mtf -o absent.png").status, 1);
  EXPECT_EQ(Cli("info").status, 2);
}

}  // namespace
}  // namespace pluvane
